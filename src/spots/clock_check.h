#pragma once

#include "core/controls.h"
#include "core/dates.h"
#include "spots/spot.h"

namespace spots {

// Notices from the times of spots that the clock is an hour out, as it may be after a change to or
// from summer time. UTC is asked of the system at each use, so nothing here could be read again:
// it is for the operator to set the clock right.
class ClockCheck {
 public:
  // The calendar outlives this.
  explicit ClockCheck(core::Calendar& calendar) : calendar_(calendar) {}

  // The last spot's time was about an hour away from now. Never while the operator has set an
  // offset of his own.
  core::Property<bool> HourOut{false};

  // A spot that has only just been sent.
  void Check(const Spot& spot);
  // The session has ended.
  void Forget() { HourOut.Set(false); }

 private:
  core::Calendar& calendar_;
};

}  // namespace spots
