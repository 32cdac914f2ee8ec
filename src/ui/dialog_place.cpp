#include "ui/dialog_place.h"

#include <QEvent>
#include <QScreen>
#include <array>
#include <utility>

#include "ui/window_place.h"

namespace ui {

DialogPlace::DialogPlace(QDialog* dialog, core::Settings& settings, const PlaceKeys& keys,
                         std::function<void()> changed)
    : QObject(dialog),
      dialog_(dialog),
      settings_(settings),
      keys_(keys),
      changed_(std::move(changed)) {
  dialog->installEventFilter(this);
}

bool DialogPlace::eventFilter(QObject* watched, QEvent* event) {
  if (watched != dialog_) return false;
  if (event->type() == QEvent::Show && !event->spontaneous()) Apply();
  if (event->type() == QEvent::Hide && !event->spontaneous()) applied_ = false;
  if (event->type() == QEvent::Move || event->type() == QEvent::Resize) Store();
  return false;
}

bool DialogPlace::WasPlaced() const {
  const core::Settings never;
  const auto differs = [&](PlaceKeys::Key key) {
    return key != nullptr && settings_.*key != never.*key;
  };
  return differs(keys_.top) || differs(keys_.left) || differs(keys_.height) || differs(keys_.width);
}

void DialogPlace::Apply() {
  if (WasPlaced()) {
    QSize size = dialog_->size();
    if (keys_.width != nullptr && settings_.*keys_.width > 0 && settings_.*keys_.height > 0)
      size = QSize(Pixels(settings_.*keys_.width), Pixels(settings_.*keys_.height))
                 .boundedTo(dialog_->screen()->availableSize());
    const QRect place(QPoint(Pixels(settings_.*keys_.left), Pixels(settings_.*keys_.top)), size);
    dialog_->resize(size);
    if (OnSomeScreen(place)) dialog_->move(place.topLeft());
  }
  applied_ = true;
}

void DialogPlace::Store() {
  if (!applied_ || !dialog_->isVisible() || dialog_->isMinimized()) return;
  const std::array values = {
      std::pair(keys_.top, dialog_->y()), std::pair(keys_.left, dialog_->x()),
      std::pair(keys_.height, dialog_->height()), std::pair(keys_.width, dialog_->width())};
  for (const auto& [key, pixels] : values)
    if (key != nullptr) settings_.*key = Twips(pixels);
  changed_();
}

}  // namespace ui
