#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "program/program.h"
#include "ui/frames.h"
#include "ui/lamp.h"
#include "ui/theme.h"

namespace ui {

// The bar at the top: which node, how it stands with it, the one button that is right now, and the
// time.
class LinkBar : public QWidget {
 public:
  LinkBar(program::Program& program, Frames& frames, LiveTheme& theme, QWidget* parent = nullptr);

  QPushButton* Connect() { return connect_; }
  QPushButton* Disconnect() { return disconnect_; }

 private:
  void Lay();
  void Name();
  void Tie(program::Program& program, Frames& frames, LiveTheme& theme);
  void ShowButtons();
  // Before the pressed one of the two goes: who works by keyboard finds the other under his finger.
  void HandFocusOn();

  program::Program& program_;
  Lamp* lamp_;
  QLabel* node_;
  QLabel* software_;
  QLabel* state_;
  QLabel* age_;
  QPushButton* connect_;
  QPushButton* disconnect_;
  QPushButton* nodes_;
  QLabel* clock_;
  QLabel* date_;
};

}  // namespace ui
