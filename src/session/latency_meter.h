#pragma once

#include <optional>
#include <string_view>

#include "core/controls.h"
#include "platform/scheduler.h"
#include "session/session_state.h"

namespace session {

// How long the node takes to answer a command that is timed.
class LatencyMeter {
 public:
  LatencyMeter(platform::Scheduler& scheduler, const SessionState& state)
      : scheduler_(scheduler), state_(state) {}

  // The seconds of the last reading: "001.25", or "001.3" if there was no other within 10 seconds.
  core::Label Text3;

  // The last reading; 0 before the first.
  platform::Milliseconds Last() const { return last_; }

  // A timed command has been sent; the last reading is of no account any more.
  void Begin();
  // A line handler that claims nothing: the next prompt ends the time of the command.
  void Latency(std::string_view line);
  // The session is over: no prompt will come.
  void Disconnected() { sentAt_.reset(); }

 private:
  platform::Scheduler& scheduler_;
  const SessionState& state_;
  std::optional<platform::Milliseconds> sentAt_;
  std::optional<platform::Milliseconds> readAt_;
  platform::Milliseconds last_{0};
};

}  // namespace session
