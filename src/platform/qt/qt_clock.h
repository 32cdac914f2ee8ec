#pragma once

#include "platform/clock.h"

namespace platform::qt {

// The system's clock and time zone.
class QtClock final : public Clock {
 public:
  UtcTime UtcNow() const override;
  std::chrono::minutes LocalOffset() const override;
};

}  // namespace platform::qt
