#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string_view>

#include "core/controls.h"
#include "spots/bands.h"

namespace spots {

// The bands beside the table, by their index: which one is chosen, how many spots of each have not
// been seen, and how many there were.
class BandRail {
 public:
  // `firstUnseen` is told a band whose label begins to show.
  explicit BandRail(std::function<void(int band)> firstUnseen);

  core::Choice optBand;  // captions as in kBands; the choice of the user tells Click
  std::array<core::Label, kBandCount> lblUnseen;  // hidden: all have been seen
  std::array<core::Label, kBandCount> lblTotal;

  int SelectedBand() const { return optBand.Selected.Get(); }

  // Counts a spot on the band of that label, and on all bands unless it is an alarm. False: there
  // is no such band.
  bool Increment(std::string_view bandLabel);

  // Every count begins anew: what was counted is coming again.
  void ForgetCounts();
  // All spots of the band have been seen.
  void ClearUnseen(int band);

 private:
  struct Count {
    std::uint64_t unseen = 0;
    std::uint64_t total = 0;
  };

  static std::size_t Index(int band) { return static_cast<std::size_t>(band); }
  void Add(int band);

  std::function<void(int band)> firstUnseen_;
  std::array<Count, kBandCount> counts_;
};

}  // namespace spots
