#pragma once

#include <memory>

#include "platform/platform.h"
#include "session/command_line.h"
#include "session/connection.h"
#include "session/intake.h"
#include "session/keep_alive.h"
#include "session/keep_alive_panel.h"
#include "session/link_text.h"
#include "session/login.h"
#include "session/outgoing.h"
#include "session/session_state.h"
#include "session/timers.h"

namespace session {

// The session with the node: everything about the text stream as such.
class Session {
 public:
  // What the session asks of the program around it.
  struct Needs {
    Chain& chain;
    LineFeed& feed;
    std::function<DefaultNode()> defaultNode;
    std::function<void()> askUserInfo;
    std::function<void()> onNodeKnown;
    std::function<void()> delayedWriteCfg;
    std::function<void()> writeCfg;
    platform::FaultHandler onFault;
  };

  Session(const platform::Platform& platform, const core::Calendar& calendar,
          core::Settings& settings, Needs needs);

  SessionState state;
  const std::unique_ptr<platform::TcpSocket> WinsockOut;
  Timers timers;
  KeepAlive keepAlive;
  Outgoing outgoing;
  CommandLine commandLine;
  Intake intake;
  NodeAddress nodeAddress;
  Connection connection;
  Login login;
  LinkText linkText;
  KeepAlivePanel keepAlivePanel;

 private:
  platform::Registration showing_;
  platform::Registration phaseShown_;
};

}  // namespace session
