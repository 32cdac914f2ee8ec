#include "ui/theme.h"

#include <algorithm>
#include <cmath>

namespace ui {
namespace {

struct Pair {
  QRgb light;
  QRgb dark;
};

constexpr std::array<Pair, static_cast<std::size_t>(Token::Count)> kTokens = {{
    {0xFCFCFB, 0x16191D},  // ground
    {0xF1F2F0, 0x1D2126},  // panel
    {0xD9DBD7, 0x32383F},  // line
    {0x1D2125, 0xE3E6E8},  // text
    {0x4F575F, 0x9AA4AE},  // dim text
    {0x1B65A3, 0x6CB6F5},  // accent
    {0x20702F, 0x69DB7C},  // good
    {0x9A4C00, 0xFFB454},  // caution
    {0xB3202A, 0xFF7B72},  // bad
    {0xDCEBF8, 0x21384D},  // selection
    {0xFFF1D6, 0x3A2E14},  // alarm ground
}};

// From red for the longest wave to violet for the shortest, neighbours differing in lightness.
constexpr std::array<Pair, static_cast<std::size_t>(BandColour::Count)> kBands = {{
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

QColor Pick(const Pair& pair, Theme::Kind kind) {
  return QColor::fromRgb(kind == Theme::Kind::Light ? pair.light : pair.dark);
}

double Luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

}  // namespace

QColor Theme::operator[](Token token) const {
  return Pick(kTokens[static_cast<std::size_t>(token)], kind_);
}

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
      return QColor(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
  }
}

double Contrast(const QColor& a, const QColor& b) {
  const double first = Luminance(a), second = Luminance(b);
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

}  // namespace ui
