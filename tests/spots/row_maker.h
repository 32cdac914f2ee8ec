#pragma once

#include <string>

#include "spots/classic_row.h"
#include "spots/expanded_row.h"
#include "spots/row_layout.h"
#include "spots/table_row.h"

namespace spots {

inline Spot UsualSpot() {
  Spot spot;
  spot.Freq = 14025;
  spot.DxCall = "3Y0J";
  spot.SpotDate = "20-Nov-2026";
  spot.SpotTime = "2116";
  spot.SpotHHMM = 2116;
  spot.Comment = "CW up 2";
  spot.Spotter = "DL1ABC";
  spot.LotwMark = " ";
  return spot;
}

// The row of a spot in either display.
inline TableRow RowOf(const Spot& spot, const RowShape& shape = {}, int band = 6) {
  const RowLayout layout = ArPcScreenSetup(shape);
  std::string text;
  std::size_t commentField = 0;
  if (layout.IsExpanded())
    ExpandedRow(spot, layout, {}, text);
  else
    commentField = ClassicRow(spot, layout, {}, text);
  return {text, IsSkimmer(spot) ? TableRow::Kind::Skimmer : TableRow::Kind::Other, band,
          RowSpotOf(spot, Packed(shape), commentField)};
}

inline RowShape Classic(const ShownColumns& shown, int width = kDefaultSpotWidth) {
  return {.shown = shown, .spotWidth = width};
}
inline RowShape Expanded(ShownColumns shown) {
  shown.Expanded = true;
  return {.shown = shown};
}

}  // namespace spots
