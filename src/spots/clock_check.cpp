#include "spots/clock_check.h"

#include <algorithm>
#include <cstdlib>

#include "core/text.h"
#include "spots/clock_time.h"
#include "spots/spot_date.h"

namespace spots {
namespace {

constexpr int kLeast = 56;
constexpr int kMost = 64;

// The shorter way round, for one of them may be on the other side of midnight.
int Distance(int minutes, int other) {
  const int distance = std::abs(minutes - other) % core::kMinutesOfDay;
  return std::min(distance, core::kMinutesOfDay - distance);
}

}  // namespace

void ClockCheck::Check(const Spot& spot) {
  if (!IsClockTime(spot.SpotTime)) return;
  const bool automatic = core::SameIgnoringCase(calendar_.GmtOffset, "Ok");
  const int distance = Distance(MinutesOfDay(spot.SpotHHMM), MomentNow(calendar_).minutes);
  HourOut.Set(automatic && distance >= kLeast && distance <= kMost);
}

}  // namespace spots
