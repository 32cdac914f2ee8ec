#pragma once

#include <array>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "practice_node/spot.h"

namespace practice_node {

// Makes up spots as a busy evening has them: a few stations that many spot, on the bands and in the
// modes of the day. The same seed gives the same spots, on every machine.
class SpotSource {
 public:
  enum class Taste { Mixed, Skimmer };  // Skimmer: CW only, each with its report

  SpotSource(std::uint32_t seed, Taste taste);

  Spot Next(platform::UtcTime now);

 private:
  struct Spotter {
    std::string call;
    std::string grid;
  };

  std::size_t Below(std::size_t bound);
  template <class Table>
  const auto& OneOf(const Table& table) {
    return table[Below(table.size())];
  }
  std::string Letters(std::size_t count);
  std::string MadeUpCall(std::string_view prefix);
  Spotter NewSpotter();
  Spot NewStation();
  std::string SkimmerComment();

  std::mt19937 random_;
  const Taste taste_;
  std::vector<Spotter> spotters_;
  std::vector<Spot> onAir_;  // stations that are spotted again; the oldest gives way
  std::size_t oldest_ = 0;
};

}  // namespace practice_node
