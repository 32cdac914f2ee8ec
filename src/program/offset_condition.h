#pragma once

#include <functional>
#include <string_view>

#include "program/conditions.h"

namespace program {

// Raises the condition that nobody has said how local time stands to UTC, until somebody has.
// `choose` opens the form that asks.
void ShowOffset(Conditions& conditions, std::string_view gmtOffset, std::function<void()> choose);

}  // namespace program
