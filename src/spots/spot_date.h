#pragma once

#include <string>
#include <string_view>

#include "core/dates.h"

namespace spots {

// Now in UTC.
struct Moment {
  int dayNumber = 0;
  std::string_view date;  // "20-Nov-2026"
  int minutes = 0;        // of the day
};

// The date in it holds until the calendar is asked again.
Moment MomentNow(core::Calendar& calendar);

// Around midnight a spot may be of yesterday: in the first minutes of a day one whose time is late.
struct MidnightLimits {
  int late;   // yesterday's times are above this, written as HHMM
  int early;  // and now is under this, in minutes of the day
};

// Puts the date into `date` of a spot with a time but no date of its own.
void InferDate(int hhmm, const Moment& now, MidnightLimits limits, std::string& date);

}  // namespace spots
