#pragma once

#include <string>

#include "core/location.h"

namespace spots {

// What headings are counted from, and in.
struct Home {
  core::Coordinates position;  // both 0: the operator has not told it
  bool kilometres = false;     // distances; else miles

  bool operator==(const Home&) const = default;
};

// The texts of a row. Both are empty where nothing is known.
struct Heading {
  std::string CurBearing;   // degrees from north by east, 3 wide
  std::string CurDistance;  // 5 wide

  bool operator==(const Heading&) const = default;
};

// The heading of the shortest way from home. Empty without a home, and where the sums fail, as at
// a pole.
Heading Bearing(const Home& home, core::Coordinates there);

}  // namespace spots
