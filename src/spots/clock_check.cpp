#include "spots/clock_check.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

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

ClockCheck::ClockCheck(core::Calendar& calendar, std::function<void()> readUtcOffset)
    : calendar_(calendar), readUtcOffset_(std::move(readUtcOffset)) {}

void ClockCheck::Check(const Spot& spot) {
  if (!core::SameIgnoringCase(calendar_.GmtOffset, "Ok") || !IsClockTime(spot.SpotTime)) return;
  const int distance = Distance(MinutesOfDay(spot.SpotHHMM), MomentNow(calendar_).minutes);
  if (distance >= kLeast && distance <= kMost) readUtcOffset_();
}

}  // namespace spots
