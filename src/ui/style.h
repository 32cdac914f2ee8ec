#pragma once

#include "ui/theme.h"

class QApplication;

namespace ui {

// Gives the whole application the theme's palette, style and fonts.
void Apply(const Theme& theme, QApplication& application);

}  // namespace ui
