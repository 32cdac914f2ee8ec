#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace program {

using Rgb = std::uint32_t;  // 0xRRGGBB

// A colour as each of the two themes has it.
struct ThemeColour {
  Rgb light;
  Rgb dark;
};

// Every colour that the window uses, by what it is for.
enum class Token {
  Ground,
  Panel,
  Line,
  Text,
  DimText,
  Accent,
  Good,
  Caution,
  Bad,
  Selection,
  AlarmGround,
  Count
};

inline constexpr std::array<ThemeColour, static_cast<std::size_t>(Token::Count)> kThemeColours = {{
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

constexpr ThemeColour ColourOf(Token token) {
  return kThemeColours[static_cast<std::size_t>(token)];
}

}  // namespace program
