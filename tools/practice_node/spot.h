#pragma once

#include <string>

#include "platform/clock.h"

namespace practice_node {

struct Spot {
  int tenths = 0;  // frequency in units of 100 Hz
  std::string call;
  std::string spotter;
  std::string comment;
  platform::UtcTime time;
  std::string spotterGrid;  // four characters
  int dxZone = 0;           // CQ zone of `call`
};

// What a dialect, or its user, wants different.
struct SpotStyle {
  bool lowerCaseSpotter = false;
  bool grid = false;          // the spotter's grid stands behind the time
  bool zone = false;          // the zone of the DX station ends the line
  std::size_t listCall = 11;  // column of the call in a row of the list
};

// "DX de DL1ABC:    14025.0  3Y0J         CW up 2                        2210Z": the frequency ends
// in column 24, the call begins in 27, the comment in 40, the time in 71. No line end.
std::string SpotLine(const Spot& spot, const SpotStyle& style);

// " 14025.0  3Y0J        20-Nov-2026 2210Z  CW up 2                     <DL1ABC>"
std::string ListRow(const Spot& spot, const SpotStyle& style);

}  // namespace practice_node
