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
#include "session/duelling.h"
#include "session/intake.h"
#include "session/login_watch.h"
#include "session/node_address.h"
#include "session/outgoing.h"
#include "session/session_state.h"
#include "session/timers.h"
#include "session/tnc_retry.h"
#include "session/tnc_script.h"

namespace session {

// The one link to the chosen node: making it, noticing that it is dead, and making it again.
class Connection {
 public:
  // What the connection asks of the program around it.
  struct Needs {
    std::function<void()> askUserInfo;           // the call is missing
    std::function<void()> delayedWriteCfg;       // a setting has changed
    std::function<void()> lookUpAddress;         // of MOLVA-1, which can't be reached
    std::function<platform::Task<>()> wakeNode;  // what is about to be called, if it needs that
    std::function<void()> onConnected;           // the link is up, nothing has been read
    std::function<void()> onLoggedIn;
    std::function<void()> onNodeKnown;  // the node has said its call
    std::function<void()> onEnding;     // first of all, when a session ends
    std::function<void()> onEnded;      // when its controls are put back
    platform::FaultHandler onFault;
  };

  Connection(platform::Scheduler& scheduler, const core::Calendar& calendar,
             core::Settings& settings, SessionState& state, platform::TcpSocket& socket,
             Outgoing& outgoing, Intake& intake, NodeAddress& nodeAddress, LoginWatch& loginWatch,
             Duelling& duelling, TncRetry& tncRetry, TncScript& tncScript, Timers& timers,
             Needs needs);

  core::Button cmdConnect;     // cmdButton(2)
  core::Button cmdDisconnect;  // cmdButton(1)
  core::Check AutoReconnect;
  int DisconnectCount = 0;                     // sessions that ended in this run of the program
  platform::Milliseconds ConnectTimeStamp{0};  // of the last login, by the scheduler
  platform::Milliseconds ConnectedAt{0};       // of the last connect event, by the scheduler
  platform::UtcTime DisconnectTime{};          // of the last session
  // When the last link that had logged in began, and when it ended; the epoch while there was none.
  platform::UtcTime LinkBegan{};
  platform::UtcTime LinkEnded{};
  std::string WhyEnded;  // the last link, in a few words; empty while one holds

  core::Label lblDisconnects;  // "Disconnects = 3"

  // The way into every telnet connect.
  void WhichNode();
  // The call was sent to a login prompt.
  void LoggedInSetup();
  // Ends the session from here, or is told that the node did.
  void ForceClose();
  // The same where there is something to close.
  void CloseIfOpen();
  // The node does not take the call: closes the link, and shows what it said.
  void Refused(std::string_view line);
  // The user has pressed connect: what was told of earlier attempts may be told again.
  void BeginAnew();
  // The user turns to something else: nothing connects by itself until he presses connect, or goes
  // on as before.
  void InterruptReconnect();
  void ResumeReconnect();
  // The session that runs is not to be counted when it ends.
  void NotCounted() { ConnectedOnce = false; }
  // The user has chosen other colours for the phases of the link.
  void Recolour() { Show(state_.Phase.Get()); }
  // The count of disconnects begins anew.
  void ClearCount();

  // The link is dead: closes it, and the next try comes one interval later. `why` is shown.
  void GiveUp(std::string why);
  // Begins to connect, over the path that the settings name.
  void Try();
  // The same for a link that saw no login.
  void GiveUpLogin();

  // An attempt over the TNC: it begins, it goes on, and its script has come to its end.
  void BeginOverTnc();
  void GoOnOverTnc();
  void LinkedOverTnc(bool byAnotherNode);
  // The session over the TNC has ended; why, unless that is known already.
  void EndedOverTnc(std::string why);

  // Line handlers; true claims the line.
  bool QRX(std::string_view line);
  bool ConnectToNode(std::string_view line);

 private:
  platform::Task<> ConnectNode();
  bool MayOpen() const { return !state_.UserDisconnected && !state_.ConnectFailed; }
  void OpenSocket();
  void ShowState();
  void ShowFailure();
  void TellFailure(const std::string& what, const std::string& line);
  void Disconnected();
  void Show(LinkPhase phase);

  void OnConnect();
  void OnError(const platform::SocketFault& fault);
  void RetryNow();
  // The call is there. Otherwise the user is asked for it, and no link is made.
  bool KnowsCall();
  void ConnectOverTnc();

  void Count();
  void SessionOver();
  void WaitForRetry();
  void AwaitReconnect();
  void StopReconnecting();
  void ShowNode(const std::string& call);

  platform::Scheduler& scheduler_;
  const core::Calendar& calendar_;
  core::Settings& settings_;
  SessionState& state_;
  platform::TcpSocket& socket_;
  Outgoing& outgoing_;
  Intake& intake_;
  NodeAddress& nodeAddress_;
  LoginWatch& loginWatch_;
  Duelling& duelling_;
  TncRetry& tncRetry_;
  TncScript& tncScript_;
  Timers& timers_;
  Needs needs_;

  bool ConnectedOnce = false;
  std::set<std::string> toldFailures_;  // since the last login: not said again for each retry
  platform::Registration connectHold_;
  platform::Tasks connecting_;
};

}  // namespace session
