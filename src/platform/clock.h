#pragma once

#include <chrono>

namespace platform {

using UtcTime = std::chrono::sys_time<std::chrono::milliseconds>;

// The wall clock. It may step; what measures durations uses Scheduler::Now.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual UtcTime UtcNow() const = 0;
  // What local time is ahead of UTC at this moment, daylight saving included. East is positive.
  virtual std::chrono::minutes LocalOffset() const = 0;
};

}  // namespace platform
