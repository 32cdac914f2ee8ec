#pragma once

#include "program/conditions.h"

namespace program {

// The times of fresh spots say that the clock is an hour out, or that it isn't.
void ShowClock(Conditions& conditions, bool hourOut);

}  // namespace program
