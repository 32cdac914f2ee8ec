#pragma once

#include <cstdint>
#include <deque>
#include <random>
#include <string>
#include <vector>

#include "practice_node/spot.h"

namespace practice_node {

enum class Mode { Cw, Ssb, Digital };

// Makes up spots as a busy evening has them: a few stations that many spot, on the bands and in the
// modes of the day; Skimmers among the spotters, spots that come twice, and what else a network
// lets through: late ones, frequencies on the edge of a band and outside, every kind of character.
// The same seed gives the same spots, on every machine.
class SpotSource {
 public:
  // Of the spots, so many percent are those of Skimmers.
  SpotSource(std::uint32_t seed, std::size_t skimmersPercent);

  Spot Next(platform::UtcTime now);

 private:
  // A station that calls.
  struct Signal {
    int tenths;
    Station station;
    Mode mode;
    std::string comment;
  };

  std::size_t Below(std::size_t bound);
  bool Chance(std::size_t percent) { return Below(100) < percent; }
  template <class Table>
  const auto& OneOf(const Table& table) {
    return table[Below(table.size())];
  }
  std::string Letters(std::size_t count);
  std::string MadeUpCall(std::string_view prefix);
  Station MadeUpStation(const Area& area);
  Station NewSkimmer();
  Signal NewSignal(bool cwOnly);
  Signal Heard(bool bySkimmer);
  Spot SpotOf(const Signal& signal, bool bySkimmer);
  void AddOddities(Spot& spot);
  std::string SkimmerComment();
  void Remember(const Spot& spot);

  std::mt19937 random_;
  const std::size_t skimmersPercent_;
  std::vector<Station> spotters_;
  std::vector<Station> skimmers_;
  std::vector<Signal> onAir_;  // stations that are spotted again; the oldest gives way
  std::size_t oldest_ = 0;
  std::deque<Spot> latest_;  // come again word for word
};

}  // namespace practice_node
