#include "program/clock_condition.h"

namespace program {
namespace {

constexpr auto kClockKey = "clock";

}  // namespace

void ShowClock(Conditions& conditions, bool hourOut) {
  if (hourOut)
    conditions.Raise({.key = kClockKey,
                      .text = "This computer's clock is about an hour away from the node's spots.",
                      .button = {}});
  else
    conditions.Clear(kClockKey);
}

}  // namespace program
