#pragma once

#include <QWidget>

#include "program/conditions.h"
#include "ui/frames.h"
#include "ui/theme.h"

namespace ui {

// The line under the link bar that is there while something is not as it should be.
class ConditionsBar : public QWidget {
 public:
  ConditionsBar(program::Conditions& model, Frames& frames, LiveTheme& theme, QWidget* parent);
};

}  // namespace ui
