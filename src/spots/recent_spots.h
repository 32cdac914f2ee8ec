#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "spots/slot_index.h"
#include "spots/spot.h"

namespace spots {

// The last 200 spots that were taken, against which the next ones are held.
class RecentSpots {
 public:
  static constexpr std::size_t kSize = 200;

  RecentSpots() { index_.MakeRoom(kSize); }

  // Whether one of them is the same: the call, the spotter but for the SSID, the first 24
  // characters of the comment, less than 0.31 kHz and less than 5 minutes away. SpotMinute stands.
  bool Hold(const Spot& spot) const;

  void Record(const Spot& spot);

 private:
  struct Entry {
    int SpotMinute = 0;
    double Freq = 0;  // kHz
    std::string DxCall;
    std::string Spotter;  // without its SSID
    std::string Comment;  // as far as it is compared
  };

  std::array<Entry, kSize> entries_;
  std::size_t next_ = 0;
  SlotIndex index_;  // by call and spotter
};

}  // namespace spots
