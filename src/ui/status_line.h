#pragma once

#include <QHBoxLayout>
#include <QLabel>
#include <QWidget>

#include "session/session.h"
#include "ui/frames.h"
#include "ui/lamp.h"
#include "ui/theme.h"

namespace ui {

// The line at the foot of the window: lamps with words, how long it has been silent, and the link's
// state as the rules say it.
class StatusLine : public QWidget {
 public:
  StatusLine(session::Session& session, Frames& frames, LiveTheme& theme,
             QWidget* parent = nullptr);

 private:
  void AddNode(session::SessionState& state, Frames& frames, LiveTheme& theme);
  void AddTnc(core::Label& model, Frames& frames, LiveTheme& theme);
  void AddInactivity(core::Label& model, Frames& frames);
  void AddLink(core::Label& model, Frames& frames);

  QHBoxLayout* row_;
};

}  // namespace ui
