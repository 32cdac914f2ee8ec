#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "practice_node/spot.h"

namespace practice_node {

// What is asked for by a show-spots command.
struct SpotSearch {
  struct Range {
    double low;  // kHz, both ends included
    double high;
  };
  std::size_t count = 10;
  std::vector<Range> ranges;  // in one of these; none: anywhere
  std::string call;           // what the call of the DX station begins with
  std::string spotter;        // and that of the spotter
};

// Understands, in any order and number: a count; "on 20m", "20m" or, behind a count, "20"; the
// ranges "3500-4000" and "3500/4000"; "by DL1ABC"; the beginning of a call; and, behind "where",
// the frequencies of an expression ("freq>7000 and freq<7300"). A band that isn't one, and the
// range with "-" where that isn't taken, find nothing.
SpotSearch ReadSearch(std::string_view argument, bool takesDash);

bool Matches(const Spot& spot, const SpotSearch& search);

}  // namespace practice_node
