#pragma once

#include <functional>

#include "core/settings.h"
#include "platform/dialogs.h"
#include "platform/tasks.h"
#include "session/connection.h"
#include "session/session_state.h"
#include "session/timers.h"

namespace session {

// The user's choice of the path to the node. It interrupts the reconnecting over the other one.
class ModeSwitch {
 public:
  struct Needs {
    std::function<void()> openNodes;  // frmNode
    platform::FaultHandler onFault;
  };

  ModeSwitch(platform::Scheduler& scheduler, platform::Dialogs& dialogs, core::Settings& settings,
             SessionState& state, Connection& connection, Timers& timers, Needs needs);

  core::Button RadioClus;   // over the TNC
  core::Button TelnetClus;  // over the Internet

 private:
  void ChooseRadio();
  void ChooseTelnet();
  void StopReconnecting();
  platform::Task<> AskToReconnect();

  platform::Dialogs& dialogs_;
  core::Settings& settings_;
  SessionState& state_;
  Connection& connection_;
  Timers& timers_;
  Needs needs_;
  platform::Registration radioChosen_;
  platform::Registration telnetChosen_;
  platform::Tasks tasks_;
};

}  // namespace session
