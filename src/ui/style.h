#pragma once

#include "program/appearance.h"
#include "ui/surface.h"
#include "ui/theme.h"

class QApplication;
class QWidget;

namespace ui {

// Gives the whole application the theme's palette and style sheet, the style and the fonts.
void Apply(const Theme& theme, QApplication& application);

// Gives a page of the window the ground that the user chose for it, with all that stands on it. One
// that he has not chosen leaves the page to the theme.
void Dress(QWidget* page, const Surface& surface);

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
