#include "session/connection.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "core/pause.h"
#include "core/text.h"
#include "session/socket_text.h"

using namespace std::chrono_literals;

namespace session {
namespace {

using platform::Delay;
using platform::SocketState;

constexpr auto kConnectEventRest = 250ms;
constexpr auto kPoll = 10ms;
constexpr platform::Milliseconds kAskConfig = 1s;
constexpr platform::Milliseconds kAskConfigOverTnc = 60s;

}  // namespace

Connection::Connection(platform::Scheduler& scheduler, const core::Calendar& calendar,
                       core::Settings& settings, SessionState& state, platform::TcpSocket& socket,
                       Outgoing& outgoing, Intake& intake, NodeAddress& nodeAddress,
                       LoginWatch& loginWatch, Duelling& duelling, TncRetry& tncRetry,
                       TncScript& tncScript, Timers& timers, Needs needs)
    : scheduler_(scheduler),
      calendar_(calendar),
      settings_(settings),
      state_(state),
      socket_(socket),
      outgoing_(outgoing),
      intake_(intake),
      nodeAddress_(nodeAddress),
      loginWatch_(loginWatch),
      duelling_(duelling),
      tncRetry_(tncRetry),
      tncScript_(tncScript),
      timers_(timers),
      needs_(std::move(needs)),
      connecting_(scheduler, needs_.onFault) {
  socket_.connected = [this] { OnConnect(); };
  socket_.closed = [this] { ForceClose(); };
  socket_.error = [this](const platform::SocketFault& fault) { OnError(fault); };
  socket_.dataArrival = [this] { intake_.Turn(); };
  timers_.SetDuty(TimerId::Reconnect, [this] { RetryNow(); });
  cmdDisconnect.Caption.Set("Disconnect");
  cmdDisconnect.Enabled.Set(false);
  AutoReconnect.Caption.Set("Auto Reconnect");
  AutoReconnect.Value.Set(true);
}

void Connection::WhichNode() {
  nodeAddress_.EnsureNode();
  state_.ConnectHost = nodeAddress_.ChooseHost();
  timers_.Disable(TimerId::Reconnect);
  connecting_.CancelAll();
  connecting_.Start("ConnectNode", ConnectNode());
}

platform::Task<> Connection::ConnectNode() {
  // However this ends, text may be read then.
  const platform::Registration letGo([this] { connectHold_.Release(); });
  if (!KnowsCall()) co_return;
  socket_.Close();
  outgoing_.LinkDown();
  intake_.Drop();
  state_.SocketConnected = false;
  state_.ConnectEventSeen = false;
  state_.ConnectFailed = false;
  timers_.Restart(TimerId::ConnectionTimeout);
  Show(LinkPhase::Trying);
  co_await Delay(2 * core::kPause);
  if (MayOpen()) co_await needs_.wakeNode();
  if (MayOpen()) OpenSocket();
  while (!state_.SocketConnected && !state_.ConnectFailed && !state_.UserDisconnected) {
    ShowState();
    co_await Delay(kPoll);
  }
  if (!state_.SocketConnected) {
    ShowFailure();
    WaitForRetry();
    co_return;
  }
  co_await Delay(kConnectEventRest);
  if (state_.SocketConnected) ShowState();
}

bool Connection::KnowsCall() {
  if (settings_.MyCall == "-16") settings_.MyCall.clear();
  if (!core::Trim(settings_.MyCall).empty()) return true;
  needs_.askUserInfo();
  needs_.delayedWriteCfg();
  SessionOver();
  return false;
}

void Connection::OpenSocket() {
  socket_.RemotePort =
      static_cast<std::uint16_t>(std::clamp(core::ValInt(settings_.NodePort), 0, 65535));
  socket_.RemoteHost = state_.ConnectHost;
  socket_.Connect();
}

void Connection::ShowState() {
  const SocketState now = socket_.State();
  if (now == SocketState::Connected && !state_.LoggedIn) {
    loginWatch_.LoginAttempts = 0;
    Show(LinkPhase::Trying);
  }
  state_.txtNode.Caption.Set(StateText(now, state_.LoggedIn) + settings_.NodeCall);
}

void Connection::ShowFailure() {
  if (state_.ConnectFailed && socket_.State() == SocketState::Resolving) {
    TellFailure("DNS", "  DNS Failure - Is Firewall blocking this program from the Internet?");
    state_.txtNode.Caption.Set("DNS Failure");
  } else {
    state_.txtNode.Caption.Set("Failure with " + state_.ConnectedNodeCall + ": IP = " +
                               settings_.NodeNumberedAddress + " :" + settings_.NodePort);
  }
  if (state_.ConnectFailed && settings_.NodeCall == "MOLVA-1") needs_.lookUpAddress();
  Show(LinkPhase::Disconnected);
}

void Connection::TellFailure(const std::string& what, const std::string& line) {
  if (toldFailures_.insert(what).second) outgoing_.updateText2(line);
}

void Connection::WaitForRetry() {
  timers_.Restart(TimerId::Reconnect);
  cmdConnect.Enabled.Set(true);
  cmdDisconnect.Enabled.Set(true);
}

void Connection::Show(LinkPhase phase) {
  const core::Colour colours[] = {settings_.ColourNodeDisc, settings_.ColourNodeTrying,
                                  settings_.ColourNodeConn};
  state_.Phase.Set(phase);
  state_.txtNode.ForeColour.Set(colours[static_cast<std::size_t>(phase)]);
}

void Connection::OnConnect() {
  needs_.delayedWriteCfg();
  if (std::exchange(state_.ConnectEventSeen, true)) return;
  Show(LinkPhase::Trying);
  state_.SocketConnected = true;
  loginWatch_.LoginAttempts = 0;
  ConnectedAt = scheduler_.Now();
  state_.LoginMsgActive = true;
  state_.ConnectedNodeCall.clear();
  needs_.onNodeKnown();
  needs_.onConnected();
  intake_.ClearLine();
  // Nothing is read until the connecting routine has ended.
  connectHold_ = intake_.Hold();
  timers_.Enable(TimerId::ConnectionTimeout);
  outgoing_.LinkUp();
}

void Connection::ForceClose() {
  const bool byPeer = socket_.State() == SocketState::PeerClosing || !state_.LoggedIn;
  const std::string text = byPeer
                               ? "Winsock Connection Closed by remote node: " + settings_.NodeCall
                               : "Forcing a disconnect with: " + state_.ConnectedNodeCall;
  duelling_.ClosedByRemote = byPeer;
  if (byPeer && WhyEnded.empty()) WhyEnded = "closed by the node";
  state_.txtNode.Caption.Set(text);
  if (state_.LoggedIn)
    outgoing_.updateText2(calendar_.GmtTime() + text);
  else
    TellFailure("closed", calendar_.GmtTime() + text);
  socket_.Close();
  Disconnected();
  intake_.Drop();
}

void Connection::OnError(const platform::SocketFault& fault) {
  state_.txtNode.Caption.Set("Winsock Error: Disconnected: " + state_.ConnectedNodeCall);
  const std::string number = std::to_string(fault.number);
  WhyEnded = fault.text;
  TellFailure(number, socket_.RemoteHost + " " + state_.ConnectedNodeCall + " Winsock Error: " +
                          number + ": " + fault.text + ": " + calendar_.GmtTime());
  duelling_.DuelSuspected = false;
  duelling_.ClosedByRemote = false;
  Disconnected();
}

void Connection::Disconnected() {
  needs_.onEnding();
  state_.ConnectEventSeen = false;
  state_.LoginMsgActive = false;
  state_.ForgetNode();
  ++state_.Sessions;
  intake_.ClearLine();
  outgoing_.LinkDown();
  connectHold_.Release();
  duelling_.DuellingConnection();
  duelling_.DuelArmed = false;
  Count();
  needs_.onEnded();
  SessionOver();
  state_.ConnectFailed = true;
  timers_.Disable(TimerId::ConnectionTimeout);
  state_.WantMissedSpots = state_.FirstConnect = settings_.GetMissedOnes;
  DisconnectTime = calendar_.GmtNow();
  if (state_.LoggedIn) LinkEnded = DisconnectTime;
  if (AutoReconnect.Value.Get()) AwaitReconnect();
  state_.SocketConnected = false;
  state_.LoggedIn = false;
}

void Connection::AwaitReconnect() {
  if (state_.TncMode && !timers_.Enabled(TimerId::Reconnect)) tncRetry_.LinkLost();
  timers_.Enable(TimerId::Reconnect);
  cmdDisconnect.Enabled.Set(true);
}

void Connection::ClearCount() {
  DisconnectCount = 0;
  lblDisconnects.Caption.Set({});
}

void Connection::Count() {
  if (!std::exchange(ConnectedOnce, false)) return;
  ++DisconnectCount;
  lblDisconnects.Caption.Set("Disconnects = " + std::to_string(DisconnectCount));
}

void Connection::SessionOver() {
  cmdDisconnect.Enabled.Set(false);
  cmdConnect.Enabled.Set(true);
  Show(LinkPhase::Disconnected);
}

void Connection::RetryNow() {
  state_.ConnectEventSeen = false;
  if (state_.UserDisconnected) {
    StopReconnecting();
  } else if (!AutoReconnect.Value.Get()) {
    SessionOver();
  } else if (state_.TncMode) {
    if (!tncRetry_.Interval())
      timers_.Enable(TimerId::Reconnect);
    else if (!state_.LoggedIn)
      ConnectOverTnc();
  } else {
    cmdConnect.Enabled.Set(false);
    cmdDisconnect.Enabled.Set(true);
    WhichNode();
  }
}

void Connection::StopReconnecting() {
  state_.txtNode.Caption.Set("Press Connect to restart Auto Reconnect");
  AutoReconnect.Value.Set(false);
  cmdConnect.Enabled.Set(true);
  cmdDisconnect.Enabled.Set(false);
}

void Connection::GiveUpLogin() {
  TellFailure("silent",
              "No login request received : " + calendar_.GmtTime() + state_.ConnectedNodeCall);
  GiveUp("the node asked for no login");
}

void Connection::GiveUp(std::string why) {
  WhyEnded = std::move(why);
  timers_.Disable(TimerId::Reconnect);
  if (state_.TncMode)
    tncScript_.DisconnectTNC();
  else
    ForceClose();
  timers_.Enable(TimerId::Reconnect);
}

void Connection::BeginOverTnc() {
  state_.ConnectedNodeCall = settings_.TncCluster;
  ConnectedAt = scheduler_.Now();
  intake_.ClearLine();
  needs_.onNodeKnown();
  needs_.onConnected();
}

void Connection::GoOnOverTnc() {
  timers_.Disable(TimerId::Reconnect);
  state_.ConnectFailed = false;
  state_.LoginMsgActive = true;
  cmdConnect.Enabled.Set(false);
  cmdDisconnect.Enabled.Set(true);
  Show(LinkPhase::Trying);
}

void Connection::LinkedOverTnc(bool byAnotherNode) {
  Show(LinkPhase::Connected);
  // The node in between has told the cluster whose link it is: no prompt asks for the call.
  if (byAnotherNode) LoggedInSetup();
}

void Connection::EndedOverTnc(std::string why) {
  if (!why.empty() && !state_.UserDisconnected) WhyEnded = std::move(why);
  Disconnected();
}

void Connection::LoggedInSetup() {
  ConnectTimeStamp = scheduler_.Now();
  LinkBegan = calendar_.GmtNow();
  ConnectedOnce = true;
  Show(LinkPhase::Connected);
  state_.LoggedIn = true;
  cmdDisconnect.Enabled.Set(true);
  cmdConnect.Enabled.Set(false);
  timers_.SetInterval(TimerId::AskConfig, state_.TncMode ? kAskConfigOverTnc : kAskConfig);
  timers_.Disable(TimerId::ConnectScript);
  timers_.Disable(TimerId::ConnectionTimeout);
  tncRetry_.Reset();
  state_.ConnectFailed = false;
  toldFailures_.clear();
  WhyEnded.clear();
  needs_.onLoggedIn();
}

void Connection::BeginAnew() {
  WhyEnded.clear();
  toldFailures_.clear();
  tncRetry_.Reset();
  Show(LinkPhase::Trying);
}

void Connection::Try() {
  if (state_.TncMode)
    ConnectOverTnc();
  else
    WhichNode();
}

void Connection::ConnectOverTnc() {
  if (KnowsCall()) tncScript_.Connect();
}

void Connection::InterruptReconnect() {
  AutoReconnect.Value.Set(false);
  state_.UserDisconnected = true;
}

void Connection::ResumeReconnect() {
  AutoReconnect.Value.Set(true);
  state_.UserDisconnected = false;
  if (state_.Phase.Get() != LinkPhase::Disconnected) return;
  timers_.Enable(TimerId::Reconnect);
  cmdDisconnect.Enabled.Set(true);
}

void Connection::CloseIfOpen() {
  if (socket_.State() != SocketState::Closed) ForceClose();
}

void Connection::Refused(std::string_view line) {
  const std::string what(core::Trim(line));
  WhyEnded = what;
  ForceClose();
  state_.txtNode.Caption.Set(what);
}

bool Connection::QRX(std::string_view line) {
  if (state_.LoggedIn) return false;
  if (core::StartsWith(line, "QRX")) {
    state_.txtNode.Caption.Set(std::string(line));
    timers_.Restart(TimerId::ConnectionTimeout);
    return true;
  }
  if (core::StartsWith(line, "Cluster is offline")) {
    WhyEnded = "the cluster is offline";
    ForceClose();
    state_.txtNode.Caption.Set(std::string(line));
  }
  return false;
}

bool Connection::ConnectToNode(std::string_view line) {
  if (state_.LoginTextDone) return false;
  const bool unexpanded = core::StartsWith(line, "%C de %M");
  const std::string call =
      GreetingCall(line, state_.LoginCall(settings_.MyCall), settings_.NodeCall);
  if (call.empty()) return false;
  if (!unexpanded && !state_.TncMode) nodeAddress_.Learn(call, socket_.RemoteHostIP());
  ShowNode(call);
  return false;
}

void Connection::ShowNode(const std::string& call) {
  state_.ConnectedNodeCall = call;
  if (state_.KnownNodes.empty() || state_.KnownNodes.front() != call) state_.KnownNodes = {call};
  needs_.onNodeKnown();
  state_.txtNode.Caption.Set("***Connected to: " + state_.ConnectedNodeCall);
}

}  // namespace session
