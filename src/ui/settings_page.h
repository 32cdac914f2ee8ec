#pragma once

#include <QWidget>

#include "program/program.h"
#include "ui/frames.h"

namespace ui {

// The page of the first tab.
class SettingsPage : public QWidget {
 public:
  SettingsPage(program::Program& program, Frames& frames, QWidget* parent);
};

}  // namespace ui
