#include "ui/touch_watch.h"

#include <QApplication>
#include <QMouseEvent>

namespace ui {
namespace {

bool IsTouch(const QEvent& event) {
  switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
      return true;
    case QEvent::MouseMove:
      return static_cast<const QMouseEvent&>(event).buttons() != Qt::NoButton;
    default:
      return false;
  }
}

}  // namespace

TouchWatch::TouchWatch(QWidget* window, Frames& frames) : QObject(window), frames_(frames) {
  QApplication::instance()->installEventFilter(this);
}

bool TouchWatch::eventFilter(QObject* watched, QEvent* event) {
  if (IsTouch(*event)) frames_.Touched();
  return QObject::eventFilter(watched, event);
}

}  // namespace ui
