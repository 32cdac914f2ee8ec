#include "ui/drop_panel.h"

#include <QAccessibleWidget>
#include <QScreen>
#include <QShortcut>
#include <algorithm>
#include <utility>

namespace ui {
namespace {

class AccessibleDropButton : public QAccessibleWidget {
 public:
  explicit AccessibleDropButton(DropButton& button)
      : QAccessibleWidget(&button, QAccessible::ButtonMenu) {}

  int childCount() const override { return Dropped() != nullptr ? 1 : 0; }
  QAccessibleInterface* child(int index) const override { return index == 0 ? Dropped() : nullptr; }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return child == Dropped() ? 0 : -1;
  }

  QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
  void doAction(const QString& action) override {
    if (action == pressAction()) return static_cast<DropButton*>(widget())->animateClick();
    QAccessibleWidget::doAction(action);
  }

 private:
  // The panel while it is on show.
  QAccessibleInterface* Dropped() const {
    for (QObject* each : widget()->children())
      if (auto* panel = dynamic_cast<DropPanel*>(each); panel != nullptr && panel->isVisible())
        return QAccessible::queryAccessibleInterface(panel);
    return nullptr;
  }
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
  if (auto* button = dynamic_cast<DropButton*>(object)) return new AccessibleDropButton(*button);
  auto* panel = dynamic_cast<DropPanel*>(object);
  return panel != nullptr ? new QAccessibleWidget(panel, QAccessible::Grouping) : nullptr;
}

}  // namespace

DropButton::DropButton(const QString& caption, const QString& name, QWidget* parent)
    : QPushButton(parent) {
  QAccessible::installFactory(MakeAccessible);  // before Qt asks who speaks for it
  setText(caption + QStringLiteral(" ▾"));
  setAccessibleName(name);
}

DropPanel::DropPanel(DropButton* button, const QString& name, std::function<void()> help)
    : QFrame(button, Qt::Popup) {
  setObjectName(QStringLiteral("DropPanel"));
  setAccessibleName(name);
  connect(button, &QPushButton::clicked, this, [this, button] { Drop(button); });
  connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this,
          [this, help = std::move(help)] {
            close();  // what pops up keeps all keys to itself
            help();
          });
}

void DropPanel::Drop(const QPushButton* button) {
  adjustSize();
  const QPoint under = button->mapToGlobal(QPoint(0, button->height() + 2));
  const QRect room = button->screen()->availableGeometry();
  move(std::clamp(under.x(), room.left(), std::max(room.left(), room.right() - width())),
       under.y());
  show();
  if (QWidget* first = nextInFocusChain(); isAncestorOf(first))
    first->setFocus(Qt::PopupFocusReason);
}

}  // namespace ui
