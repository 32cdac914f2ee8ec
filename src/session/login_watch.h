#pragma once

#include <functional>

#include "core/settings.h"
#include "platform/tcp.h"
#include "session/intake.h"
#include "session/outgoing.h"
#include "session/session_state.h"
#include "session/timers.h"

namespace session {

// Watches a link that is up and has seen no login: sends the call to a node that waits for it, and
// gives up one that stays mute.
class LoginWatch {
 public:
  struct Needs {
    std::function<void()> giveUp;  // no byte has come in time
  };

  LoginWatch(const core::Settings& settings, SessionState& state, platform::TcpSocket& socket,
             Outgoing& outgoing, Intake& intake, Timers& timers, Needs needs);

  int LoginAttempts = 0;  // ticks since the socket was connected
  int LoginPatience = 2;  // ticks to wait for a first byte

 private:
  void Tick();
  void GiveUp();

  const core::Settings& settings_;
  SessionState& state_;
  platform::TcpSocket& socket_;
  Outgoing& outgoing_;
  Intake& intake_;
  Timers& timers_;
  Needs needs_;
};

}  // namespace session
