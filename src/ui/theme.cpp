#include "ui/theme.h"

#include <algorithm>
#include <cmath>

namespace ui {
namespace {

using program::ThemeColour;

// From red for the longest wave to violet for the shortest, neighbours differing in lightness.
constexpr std::array<ThemeColour, static_cast<std::size_t>(BandColour::Count)> kBands = {{
    {0xA43A41, 0xFFB4B3},  // 160 m
    {0x903302, 0xF59977},  // 80 m
    {0x905201, 0xFFBA7C},  // 60 m
    {0x6D5001, 0xD8AD52},  // 40 m
    {0x6C6601, 0xD6CF6E},  // 30 m
    {0x446003, 0xA0C26C},  // 20 m
    {0x0B742E, 0x93E09E},  // 17 m
    {0x06654D, 0x57CDA8},  // 15 m
    {0x01726F, 0x57E3DD},  // 12 m
    {0x01606E, 0x3CC8E1},  // 10 m
    {0x066C94, 0x8AD5FE},  // 6 m
    {0x0A54A0, 0x7FB7FE},  // 4 m
    {0x4F58B1, 0xBCC7FE},  // 2 m
    {0x5F3F98, 0xBDA3F7},  // 1.25 m
    {0x844495, 0xECB1FD},  // 70 cm
    {0x852E6D, 0xE795CC},  // microwaves
}};

QColor Pick(const ThemeColour& colour, Theme::Kind kind) {
  return QColor::fromRgb(kind == Theme::Kind::Light ? colour.light : colour.dark);
}

double Luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

}  // namespace

QColor Theme::operator[](Token token) const { return Pick(program::ColourOf(token), kind_); }

QColor Theme::operator[](BandColour band) const {
  return Pick(kBands[static_cast<std::size_t>(band)], kind_);
}

QColor Theme::Of(core::Colour colour, Token otherwise) const {
  switch (colour) {
    case core::kThemeColour:
      return (*this)[otherwise];
    case core::kRed:
      return (*this)[Token::Bad];
    case core::kGreen:
      return (*this)[Token::Good];
    case core::kBlue:
      return (*this)[Token::Accent];
    default:
      return AsStored(colour);
  }
}

QColor Theme::Of(program::ColourKey key, core::Colour stored) const {
  const program::ColourRow& row = program::RowOf(key);
  if (stored == core::kThemeColour || stored == program::UsualOf(key))
    return Pick(row.usual, kind_);
  return row.kind == program::ColourKind::Text ? Of(stored, Token::Text) : AsStored(stored);
}

QColor AsStored(core::Colour colour) {
  return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

core::Colour StoredAs(const QColor& colour) {
  return colour.red() | colour.green() << 8 | colour.blue() << 16;
}

double Contrast(const QColor& a, const QColor& b) {
  const double first = Luminance(a), second = Luminance(b);
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

}  // namespace ui
