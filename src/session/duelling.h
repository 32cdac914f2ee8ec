#pragma once

#include <cstdint>
#include <functional>
#include <random>
#include <string>
#include <string_view>

#include "platform/clock.h"
#include "session/session_state.h"
#include "session/timers.h"

namespace session {

// Two programs that log in with one call throw each other out for ever. Notices it, and lets the
// next login go out under another SSID.
class Duelling {
 public:
  struct Needs {
    std::function<void(const std::string& heading, const std::string& text)> showMessage;
    std::function<void()> closeMessage;
    std::uint32_t seed = 0;  // of the SSID
  };

  Duelling(platform::Scheduler& scheduler, SessionState& state, Timers& timers, Needs needs);

  bool DuelArmed = false;       // the session has passed its login
  bool ClosedByRemote = false;  // the node closed the session
  bool DuelSeenOnce = false;
  bool DuelSuspected = false;
  float NodeUptimeMinutes = 0;  // a node that has just restarted explains a lost link

  // The session has ended.
  void DuellingConnection();
  // The call to log in with: `call` itself, or one with a random SSID if a duel is suspected. The
  // user is told then.
  std::string CheckDuelling(const std::string& call);

  // Line handlers; true claims the line.
  bool SeventyThree(std::string_view line);
  bool InstanceNotice(std::string_view line);

 private:
  platform::Scheduler& scheduler_;
  SessionState& state_;
  Timers& timers_;
  Needs needs_;
  platform::Milliseconds DuelTime{0};
  std::mt19937 random_;
};

}  // namespace session
