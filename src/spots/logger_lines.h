#pragma once

#include <string>

#include "spots/spot.h"

namespace spots {

// What the operator chose of the lines for logging programs.
struct LoggerLineOptions {
  bool spotterQth = false;  // the spotter's state or country behind the line
  bool dxState = false;
  bool membership = false;  // a list of members is on
};

// Both make their line in `line`.
//
// As a node sends a live spot:
//   DX de DL1ABC:    14025.0  3Y0J         CW up 2                       +2210Z MI
void LoggerLongLine(const Spot& spot, const LoggerLineOptions& options, std::string& line);

// As a node lists older spots:
//    14025.0  3Y0J        20-Nov-2026 2210Z  CW up 2                   +NY<DL1ABC>
void LoggerShortLine(const Spot& spot, const LoggerLineOptions& options, std::string& line);

}  // namespace spots
