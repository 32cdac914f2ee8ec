#pragma once

#include <QWidget>

#include "ui/frames.h"

namespace ui {

// Tells the frames when somebody is at the window or one of its dialogs: keys, buttons, the wheel,
// a scroll bar that is dragged.
class TouchWatch : public QObject {
 public:
  // The frames outlive the window, whose child this is.
  TouchWatch(QWidget* window, Frames& frames);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Frames& frames_;
};

}  // namespace ui
