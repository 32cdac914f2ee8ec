#pragma once

#include <functional>
#include <optional>

#include "core/dates.h"
#include "session/outgoing.h"
#include "session/requests.h"
#include "session/session_state.h"
#include "session/timers.h"

namespace session {

// What comes round by itself: the second, the hour, the day; and a few requests that are put off.
class Clockwork {
 public:
  struct Needs {
    ClockWork& work;
    LoginRequests& requests;
    std::function<void()> second;  // a second has passed
  };

  Clockwork(Timers& timers, const core::Calendar& calendar, SessionState& state, Outgoing& outgoing,
            Needs needs);

  bool SysopEnabled = false;  // the operator reads his node's mail
  bool MailPoll = false;      // the directory that comes is one nobody asked for
  int DirTicks = 0;           // seconds since the directory was asked for
  int VersionPollMinutes = 0;

  // Asks for the configuration of each known node.
  void AskConfig();

 private:
  void Second();
  void Minute();
  void PollDirectory();
  void PollVersion();

  Timers& timers_;
  const core::Calendar& calendar_;
  SessionState& state_;
  Outgoing& outgoing_;
  Needs needs_;
  std::optional<std::chrono::hours> hour_;
  std::optional<int> day_;  // from the first second on: the user's offset is known then
};

}  // namespace session
