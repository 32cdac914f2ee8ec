#pragma once

#include <QLabel>
#include <QWidget>

#include "program/program.h"
#include "ui/frames.h"

namespace ui {

// The page of the spots.
class DxPage : public QWidget {
 public:
  DxPage(program::Program& program, Frames& frames, QWidget* parent);
};

}  // namespace ui
