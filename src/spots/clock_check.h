#pragma once

#include <functional>

#include "core/dates.h"
#include "spots/spot.h"

namespace spots {

// Notices from the times of spots that the clock is an hour out, as it may be after a change to or
// from summer time.
class ClockCheck {
 public:
  // `readUtcOffset` reads the system's offset from UTC again.
  ClockCheck(core::Calendar& calendar, std::function<void()> readUtcOffset);

  // A spot that has only just been sent. Its time about an hour away from now makes the offset be
  // read, unless the operator has set one.
  void Check(const Spot& spot);

 private:
  core::Calendar& calendar_;
  std::function<void()> readUtcOffset_;
};

}  // namespace spots
