#pragma once

#include <chrono>

namespace core {

// The small delay that most waits are multiples of.
inline constexpr std::chrono::milliseconds kPause{250};

}  // namespace core
