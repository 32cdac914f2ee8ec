#pragma once

#include <functional>

namespace platform::qt {

// Turns the system's signals to end (SIGTERM, SIGINT, SIGHUP) into a call from the event loop. One
// for a process, as long as it lives.
class QtEndSignals {
 public:
  // After the application object. The call may come any number of times.
  explicit QtEndSignals(std::function<void()> onEnd);
  QtEndSignals(const QtEndSignals&) = delete;
  QtEndSignals& operator=(const QtEndSignals&) = delete;
  ~QtEndSignals();
};

}  // namespace platform::qt
