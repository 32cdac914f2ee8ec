#pragma once

#include <functional>
#include <set>
#include <string>
#include <string_view>

#include "core/dates.h"
#include "core/settings.h"
#include "platform/clock.h"
#include "platform/tasks.h"
#include "platform/tcp.h"
#include "session/intake.h"
#include "session/node_address.h"
#include "session/outgoing.h"
#include "session/session_state.h"
#include "session/timers.h"

namespace session {

// The one link to the chosen node: making it, noticing that it is dead, and making it again.
class Connection {
 public:
  // What the connection asks of the program around it.
  struct Needs {
    std::function<void()> askUserInfo;      // a call, name or QTH is missing
    std::function<void()> delayedWriteCfg;  // a setting has changed
    std::function<void()> onLoggedIn;
    std::function<void()> onNodeKnown;  // the node has said its call
    platform::FaultHandler onFault;
  };

  Connection(platform::Scheduler& scheduler, const core::Calendar& calendar,
             core::Settings& settings, SessionState& state, platform::TcpSocket& socket,
             Outgoing& outgoing, Intake& intake, NodeAddress& nodeAddress, Timers& timers,
             Needs needs);

  core::Button cmdConnect;     // cmdButton(2)
  core::Button cmdDisconnect;  // cmdButton(1)
  core::Check AutoReconnect;
  int DisconnectCount = 0;                     // sessions that ended in this run of the program
  platform::Milliseconds ConnectTimeStamp{0};  // of the last login, by the scheduler
  platform::Milliseconds ConnectedAt{0};       // of the last connect event, by the scheduler
  std::string WhyEnded;  // the last link, in a few words; empty while one holds

  // The login message of the node, as it comes in.
  core::TextPage rtbLoginMsg;

  // The way into every telnet connect.
  void WhichNode();
  // The call was sent to a login prompt.
  void LoggedInSetup();
  // Ends the session from here, or is told that the node did.
  void ForceClose();

  // The link is dead: closes it, and the next try comes one interval later. `why` is shown.
  void GiveUp(std::string why);

  // Line handlers; true claims the line.
  bool QRX(std::string_view line);
  bool ConnectToNode(std::string_view line);

 private:
  platform::Task<> ConnectNode();
  void OpenSocket();
  void ShowState();
  void ShowFailure();
  void TellFailure(const std::string& what, const std::string& line);
  void Disconnected();
  void Show(LinkPhase phase);

  void OnConnect();
  void OnError(const platform::SocketFault& fault);
  void RetryNow();
  void WatchLogin();
  void GiveUpLogin();
  void PressConnect();
  platform::Task<> PressDisconnect();

  void SessionOver();
  void WaitForRetry();
  void ShowNode(const std::string& call);

  platform::Scheduler& scheduler_;
  const core::Calendar& calendar_;
  core::Settings& settings_;
  SessionState& state_;
  platform::TcpSocket& socket_;
  Outgoing& outgoing_;
  Intake& intake_;
  NodeAddress& nodeAddress_;
  Timers& timers_;
  Needs needs_;

  int LoginAttempts = 0;  // ticks of the login watch since the socket was connected
  int LoginPatience = 2;  // ticks to wait for a first byte
  bool ConnectedOnce = false;
  bool Disconnecting = false;
  std::set<std::string> toldFailures_;  // since the last login: not said again for each retry
  platform::Registration connectHold_;
  platform::Registration connectPressed_;
  platform::Registration disconnectPressed_;
  platform::Tasks connecting_;
  platform::Tasks tasks_;
};

}  // namespace session
