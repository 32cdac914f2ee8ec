#pragma once

#include <memory>

#include "platform/platform.h"
#include "session/command_line.h"
#include "session/connection.h"
#include "session/intake.h"
#include "session/keep_alive.h"
#include "session/keep_alive_panel.h"
#include "session/latency_meter.h"
#include "session/link_text.h"
#include "session/local_feed.h"
#include "session/local_network.h"
#include "session/login.h"
#include "session/macros.h"
#include "session/outgoing.h"
#include "session/port_path.h"
#include "session/session_state.h"
#include "session/technical.h"
#include "session/timers.h"
#include "session/tnc_link.h"

namespace session {

// The session with the node: everything about the text stream as such.
class Session {
 public:
  // What the session asks of the program around it.
  struct Needs {
    Chain& chain;
    LoggerServer& loggers;
    std::function<DefaultNode()> defaultNode;
    std::function<void()> askUserInfo;
    std::function<void()> onNodeKnown;
    std::function<void()> delayedWriteCfg;
    std::function<void()> writeCfg;
    platform::FaultHandler onFault;
    std::function<std::string(int number)> portPath = PortPath;
    std::function<bool(std::string_view line)> rcvdPrompt = [](std::string_view) { return false; };
    // A command from the local network that is for this program alone.
    std::function<bool(std::string_view line)> localCommand = [](std::string_view) {
      return false;
    };
    std::function<bool()> weatherInFront = [] { return false; };
    std::function<void()> beginFreshWeatherPage = [] {};
    std::function<void()> openChat = [] {};
  };

  Session(const platform::Platform& platform, const core::Calendar& calendar,
          core::Settings& settings, Needs needs);

  SessionState state;
  const std::unique_ptr<platform::TcpSocket> WinsockOut;
  Timers timers;
  KeepAlive keepAlive;
  Outgoing outgoing;
  TncLink tncLink;
  LocalNetwork localNetwork;
  LocalFeed localFeed;
  CommandLine commandLine;
  Intake intake;
  NodeAddress nodeAddress;
  Connection connection;
  Login login;
  LinkText linkText;
  KeepAlivePanel keepAlivePanel;
  Macros macros;
  LatencyMeter latency;
  Technical technical;

 private:
  platform::Registration showing_;
  platform::Registration phaseShown_;
};

}  // namespace session
