#pragma once

#include <QLabel>
#include <QWidget>

#include "session/session.h"
#include "ui/frames.h"
#include "ui/lamp.h"
#include "ui/theme.h"

namespace ui {

// The line at the foot of the window: lamps with words, and the link's state as the rules say it.
class StatusLine : public QWidget {
 public:
  StatusLine(session::Session& session, Frames& frames, LiveTheme& theme,
             QWidget* parent = nullptr);

 private:
  Lamp* lamp_;
  QLabel* text_;
  QLabel* inactivity_;
};

}  // namespace ui
