#include "ui/surface.h"

namespace ui {
namespace {

Theme ReadableOn(const QColor& ground) {
  const Theme light(Theme::Kind::Light), dark(Theme::Kind::Dark);
  const bool darkText = Contrast(light[Token::Text], ground) >= Contrast(dark[Token::Text], ground);
  return darkText ? light : dark;
}

bool IsInk(Token token) {
  switch (token) {
    case Token::DimText:
    case Token::Accent:
    case Token::Good:
    case Token::Caution:
    case Token::Bad:
      return true;
    default:
      return false;
  }
}

}  // namespace

Surface::Surface(program::ColourKey key, core::Colour stored, const Theme& theme)
    : chosen_(!program::FollowsTheme(key, stored)),
      ground_(theme.Of(key, stored)),
      on_(ReadableOn(ground_)) {}

QColor Surface::operator[](Token token) const {
  const QColor colour = on_[token];
  return IsInk(token) ? Readable(colour) : colour;
}

QColor Surface::Readable(QColor colour) const {
  const int step = on_.kind() == Theme::Kind::Light ? -1 : 1;
  for (int lightness = colour.lightness();
       Contrast(colour, ground_) < kReadable && lightness > 0 && lightness < 255;) {
    lightness += step;
    colour.setHsl(colour.hslHue(), colour.hslSaturation(), lightness);
  }
  return colour;
}

}  // namespace ui
