#include "spots/spot_minute.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "spots/spot_date.h"

namespace spots {
namespace {

constexpr int kLastHHMM = 9999;

int MinutesOf(int hhmm) {
  const int held = std::clamp(hhmm, 0, kLastHHMM);
  return held / 100 * 60 + held % 100;
}

int Absolute(int dayNumber, int minutes) {
  return static_cast<int>(std::min(std::int64_t{dayNumber} * core::kMinutesOfDay + minutes,
                                   std::int64_t{std::numeric_limits<int>::max()}));
}

}  // namespace

int SpotMinutes::Of(const Spot& spot) {
  if (spot.SpotDate != date_) {
    date_ = spot.SpotDate;
    dayNumber_ = calendar_.ConvertDate2Julian(date_);
  }
  return Absolute(dayNumber_, MinutesOf(spot.SpotHHMM));
}

int MinuteNow(core::Calendar& calendar) {
  const Moment now = MomentNow(calendar);
  return Absolute(now.dayNumber, now.minutes);
}

}  // namespace spots
