#pragma once

#include <QColor>
#include <array>
#include <cstddef>

#include "core/controls.h"
#include "program/colour_table.h"

namespace ui {

using program::Token;

// The bands in the order of their wavelength, as far as they have a colour.
enum class BandColour {
  M160,
  M80,
  M60,
  M40,
  M30,
  M20,
  M17,
  M15,
  M12,
  M10,
  M6,
  M4,
  M2,
  M1,
  Cm70,
  Mw,
  Count
};

class Theme {
 public:
  enum class Kind { Light, Dark };

  explicit Theme(Kind kind) : kind_(kind) {}
  bool operator==(const Theme&) const = default;

  Kind kind() const { return kind_; }
  QColor operator[](Token token) const;
  QColor operator[](BandColour band) const;

  // A colour that the rules or the configuration give to a text: what follows the theme is drawn in
  // the theme's colour of that meaning, `otherwise` for none, and the user's own as it is.
  QColor Of(core::Colour colour, Token otherwise) const;

  // One that the user may choose for himself, by what is stored for it.
  QColor Of(program::ColourKey key, core::Colour stored) const;

 private:
  Kind kind_;
};

// The one that the window is in. It may change at any time.
using LiveTheme = core::Property<Theme>;

// Between how colours are stored and how they are drawn.
QColor AsStored(core::Colour colour);
core::Colour StoredAs(const QColor& colour);

// How well one colour can be read on another: 1 (not at all) to 21, as WCAG 2 computes it.
double Contrast(const QColor& a, const QColor& b);
inline constexpr double kReadable = 4.5;

}  // namespace ui
