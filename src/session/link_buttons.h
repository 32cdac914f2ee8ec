#pragma once

#include <array>
#include <functional>

#include "core/settings.h"
#include "platform/tasks.h"
#include "session/connection.h"
#include "session/login_watch.h"
#include "session/outgoing.h"
#include "session/session_state.h"
#include "session/timers.h"

namespace session {

// The user's two acts on the link. While a try is awaited both are right, and are called by what
// they do then.
class LinkButtons {
 public:
  struct Needs {
    std::function<void()> askUserInfo;       // the name or the QTH is missing
    std::function<void()> openLocalNetwork;  // if it is on and its port closed
    platform::FaultHandler onFault;
  };

  LinkButtons(platform::Scheduler& scheduler, core::Settings& settings, SessionState& state,
              Connection& connection, LoginWatch& loginWatch, Outgoing& outgoing, Timers& timers,
              Needs needs);

 private:
  void Name();
  void PressConnect();
  platform::Task<> PressDisconnect();

  core::Settings& settings_;
  SessionState& state_;
  Connection& connection_;
  LoginWatch& loginWatch_;
  Outgoing& outgoing_;
  Timers& timers_;
  Needs needs_;
  bool Disconnecting = false;
  platform::Registration connectPressed_;
  platform::Registration disconnectPressed_;
  std::array<platform::Registration, 3> naming_;
  platform::Tasks tasks_;
};

}  // namespace session
