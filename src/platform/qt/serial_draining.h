#pragma once

#include <cstdint>

#include "platform/scheduler.h"

namespace platform::qt {

// When a serial port that is being closed can be let go of: the system holds up whoever closes one
// that has not transmitted everything, for half a minute if the device takes nothing.
class SerialDraining {
 public:
  enum class Step {
    Wait,
    Discard,  // drop what was not transmitted, and let nothing hold back the rest; told once
    Close,
  };

  // `outstanding` bytes have not been transmitted `since` the closing was asked for.
  Step Next(std::int64_t outstanding, Milliseconds since);

 private:
  bool discarded_ = false;
};

}  // namespace platform::qt
