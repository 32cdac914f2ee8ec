#pragma once

#include <string>

#include "practice_node/spot.h"

namespace practice_node {

// The line that a live spot comes in.
enum class Shape {
  Plain,  // "DX de DL1ABC:    14025.0  3Y0J         CW up 2                        2210Z"
  Ar17,   // "AR17^...", 19 fields
  Zv11,   // "ZV11^...", 14 to 25 fields
};

// What a dialect, or its user, wants different.
struct SpotStyle {
  Shape shape = Shape::Plain;
  bool lowerCaseSpotter = false;
  bool zone = false;          // the zone of the DX station ends a plain line
  std::size_t listCall = 11;  // column of the call in a row of the list

  // DXSpider: the first of these that is wanted and known stands in front of the time for the DX
  // station, and another behind it for the spotter.
  bool grid = false;
  bool state = false;
  bool itu = false;
  bool cq = false;

  // The others.
  bool country = false;  // a word on the DX station ends the comment
  bool qth = false;      // one on the spotter follows the time
};

// A live spot in the shape of the style. No line end. In a plain line the frequency ends in column
// 24, the call begins in 27, the comment in 40, the time in 71; a long spotter is glued to the
// frequency and shifts what follows. In the other shapes a "^" of the comment is "%5E".
std::string SpotLine(const Spot& spot, const SpotStyle& style);

// " 14025.0  3Y0J        20-Nov-2026 2210Z  CW up 2                     <DL1ABC>"
std::string ListRow(const Spot& spot, const SpotStyle& style);

}  // namespace practice_node
