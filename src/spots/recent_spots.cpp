#include "spots/recent_spots.h"

#include <cmath>
#include <cstdlib>
#include <functional>
#include <string_view>

#include "core/call.h"
#include "core/text.h"

namespace spots {
namespace {

// Differences of decimal frequencies aren't exact: one of 0.31 may come out a little below it.
constexpr double kKilohertzApart = 0.31 - 1e-6;
constexpr int kMinutesApart = 5;
constexpr int kComparedComment = 24;

std::string_view Compared(std::string_view comment) {
  return core::Trim(core::Left(comment, kComparedComment));
}

std::size_t HashOf(std::string_view call, std::string_view spotter) {
  constexpr std::hash<std::string_view> kHash;
  return kHash(call) * 31 + kHash(spotter);
}

}  // namespace

bool RecentSpots::Hold(const Spot& spot) const {
  const std::string spotter = core::Nossid(spot.Spotter);
  const std::string_view comment = Compared(spot.Comment);
  const std::size_t hash = HashOf(spot.DxCall, spotter);
  for (int slot = index_.First(hash); slot != SlotIndex::kNone; slot = index_.Next(slot)) {
    const Entry& entry = entries_[static_cast<std::size_t>(slot)];
    if (std::abs(entry.SpotMinute - spot.SpotMinute) < kMinutesApart &&
        std::abs(entry.Freq - spot.Freq) < kKilohertzApart && SameText(entry.DxCall, spot.DxCall) &&
        SameText(entry.Spotter, spotter) && SameText(entry.Comment, comment))
      return true;
  }
  return false;
}

void RecentSpots::Record(const Spot& spot) {
  Entry& entry = entries_[next_];
  const int slot = static_cast<int>(next_);
  index_.Remove(slot);
  entry.SpotMinute = spot.SpotMinute;
  entry.Freq = spot.Freq;
  entry.DxCall = spot.DxCall;
  entry.Spotter = core::Nossid(spot.Spotter);
  entry.Comment = Compared(spot.Comment);
  index_.Add(slot, HashOf(entry.DxCall, entry.Spotter));
  next_ = (next_ + 1) % kSize;
}

}  // namespace spots
