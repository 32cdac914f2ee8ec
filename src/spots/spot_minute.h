#pragma once

#include <string>

#include "core/dates.h"
#include "spots/spot.h"

namespace spots {

// The minute that a spot's date and time stand for, as SpotMinute counts them.
class SpotMinutes {
 public:
  // The calendar outlives this.
  explicit SpotMinutes(const core::Calendar& calendar) : calendar_(calendar) {}

  // Never negative; a date that is none counts as day 0, and one beyond the range of int is held
  // within it.
  int Of(const Spot& spot);

 private:
  const core::Calendar& calendar_;
  std::string date_;  // the last one that was read: most spots in a row are of one day
  int dayNumber_ = 0;
};

// The minute that it is now.
int MinuteNow(core::Calendar& calendar);

}  // namespace spots
