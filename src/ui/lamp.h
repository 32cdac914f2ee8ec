#pragma once

#include <QColor>
#include <QWidget>

#include "session/session_state.h"
#include "ui/frames.h"
#include "ui/theme.h"

namespace ui {

// A small round light. What it says stands beside it in words.
class Lamp : public QWidget {
 public:
  explicit Lamp(QWidget* parent = nullptr);
  void SetColour(const QColor& colour);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor colour_;
};

// Lights it by the phase of the link: in the user's colour for it, else in the theme's.
void BindLamp(Lamp* lamp, session::SessionState& state, Frames& frames, LiveTheme& theme);

}  // namespace ui
