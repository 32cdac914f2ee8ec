#pragma once

#include <QColor>

#include "program/colour_table.h"
#include "ui/theme.h"

namespace ui {

// A ground, the theme's or the user's own, and what is drawn on it: the colours of the theme whose
// text can be read better there, made darker or lighter until they can be read.
class Surface {
 public:
  // `stored` is what the configuration holds for that ground.
  Surface(program::ColourKey key, core::Colour stored, const Theme& theme);

  const QColor& Ground() const { return ground_; }
  // The user has chosen it.
  bool IsChosen() const { return chosen_; }
  // The theme that goes with it.
  const Theme& On() const { return on_; }
  // What is drawn. The text and the grounds that may lie on this one are as that theme has them.
  QColor operator[](Token token) const;
  // That colour, as it can be read here.
  QColor Readable(QColor colour) const;

 private:
  bool chosen_;
  QColor ground_;
  Theme on_;
};

}  // namespace ui
