#pragma once

#include "program/appearance.h"
#include "ui/theme.h"

class QApplication;

namespace ui {

// Gives the whole application the theme's palette and style sheet, the style and the fonts.
void Apply(const Theme& theme, QApplication& application);

// Dresses the application by the appearance that is on show, and anew whenever that changes.
class Wardrobe {
 public:
  // Both outlive it.
  Wardrobe(program::Appearance& appearance, QApplication& application);

  LiveTheme theme{Theme(Theme::Kind::Light)};

 private:
  platform::Registration following_;
};

}  // namespace ui
