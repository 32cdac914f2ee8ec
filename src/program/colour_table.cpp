#include "program/colour_table.h"

namespace program {
namespace {

// What texts have in these, the theme draws in its colours of that meaning.
bool IsNamed(core::Colour stored) {
  return stored == core::kRed || stored == core::kGreen || stored == core::kBlue;
}

}  // namespace

ColourValues ValuesOf(const core::Settings& settings) {
  ColourValues values{.bands = settings.SpotColor};
  for (std::size_t i = 0; i < kColourTable.size(); ++i)
    values.stored[i] = settings.*kColourTable[i].stored;
  return values;
}

core::Colour UsualOf(ColourKey key) {
  static const ColourValues usual = ValuesOf(core::Settings());
  return usual[key];
}

bool FollowsTheme(ColourKey key, core::Colour stored) {
  if (stored == core::kThemeColour || stored == UsualOf(key)) return true;
  return RowOf(key).kind == ColourKind::Text && IsNamed(stored);
}

core::Colour ChosenAs(ColourKey key, core::Colour colour) {
  return FollowsTheme(key, colour) ? colour ^ 1 : colour;
}

}  // namespace program
