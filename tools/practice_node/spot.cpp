#include "practice_node/spot.h"

#include <algorithm>

#include "core/text.h"
#include "practice_node/bands.h"

namespace practice_node {

bool IsSkimmer(const Spot& spot) { return core::EndsWith(spot.spotter.call, "#"); }

bool IsBottomOfBand(const Spot& spot) {
  return std::any_of(kBands.begin(), kBands.end(),
                     [&](const Band& band) { return spot.tenths == band.low * 10; });
}

}  // namespace practice_node
