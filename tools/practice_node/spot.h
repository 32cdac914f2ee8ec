#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/clock.h"

namespace practice_node {

// Where calls of a prefix come from.
struct Area {
  std::string_view prefix;  // of calls: "W8"
  std::string_view country;
  std::string_view continent;
  std::string_view state;  // of the USA and Canada; empty elsewhere
  int cq = 0;
  int itu = 0;
  bool spansZones = false;  // those are two of several
  std::string_view field;   // first half of a grid
};

struct Station {
  std::string call;
  Area area;
  std::string grid;  // four characters; empty: not known
};

struct Spot {
  int tenths = 0;  // frequency in units of 100 Hz
  Station dx;
  Station spotter;  // the call of a Skimmer ends in "#"
  std::string comment;
  platform::UtcTime time;
  std::string_view node = "N0DE-2";  // at which it came into the network
  std::uint32_t variant = 0;         // chooses where a dialect has several forms for the same
};

bool IsSkimmer(const Spot& spot);
// On the very edge of a band.
bool IsBottomOfBand(const Spot& spot);

}  // namespace practice_node
