#include "spots/band_rail.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace spots {

BandRail::BandRail(std::function<void(int band)> firstUnseen)
    : firstUnseen_(std::move(firstUnseen)) {
  std::vector<std::string> captions;
  captions.reserve(kBands.size());
  for (const Band& band : kBands) captions.emplace_back(band.label);
  optBand.Options.Set(std::move(captions));
  ForgetCounts();
}

void BandRail::ForgetCounts() {
  for (int band = 0; band < kBandCount; ++band) {
    counts_[Index(band)].total = 0;
    lblTotal[Index(band)].Caption.Set("0");
    ClearUnseen(band);
  }
}

bool BandRail::Increment(std::string_view bandLabel) {
  const auto found = std::find_if(kBands.begin(), kBands.end(),
                                  [&](const Band& band) { return band.label == bandLabel; });
  if (found == kBands.end()) return false;
  const auto band = static_cast<int>(found - kBands.begin());
  Add(band);
  if (band != kAlarmBand) Add(kAllBands);
  return true;
}

void BandRail::Add(int band) {
  Count& count = counts_[Index(band)];
  core::Label& unseen = lblUnseen[Index(band)];
  ++count.total;
  ++count.unseen;
  if (band != SelectedBand() && !unseen.Visible.Get()) {
    count.unseen = 1;
    unseen.Visible.Set(true);
    firstUnseen_(band);
  }
  unseen.Caption.Set(std::to_string(count.unseen));
  lblTotal[Index(band)].Caption.Set(std::to_string(count.total));
}

void BandRail::ClearUnseen(int band) {
  counts_[Index(band)].unseen = 0;
  lblUnseen[Index(band)].Visible.Set(false);
  lblUnseen[Index(band)].Caption.Set("0");
}

}  // namespace spots
