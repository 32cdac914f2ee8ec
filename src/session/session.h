#pragma once

#include <memory>

#include "platform/platform.h"
#include "session/ar17.h"
#include "session/clockwork.h"
#include "session/command_line.h"
#include "session/connection.h"
#include "session/duelling.h"
#include "session/echoes.h"
#include "session/intake.h"
#include "session/keep_alive.h"
#include "session/keep_alive_panel.h"
#include "session/latency_meter.h"
#include "session/link_buttons.h"
#include "session/link_text.h"
#include "session/links.h"
#include "session/local_feed.h"
#include "session/local_network.h"
#include "session/login.h"
#include "session/login_sequence.h"
#include "session/login_text.h"
#include "session/login_watch.h"
#include "session/macros.h"
#include "session/outgoing.h"
#include "session/port_path.h"
#include "session/profile_hints.h"
#include "session/requests.h"
#include "session/session_state.h"
#include "session/technical.h"
#include "session/timers.h"
#include "session/tnc_link.h"
#include "session/tnc_notices.h"
#include "session/tnc_retry.h"
#include "session/tnc_script.h"

namespace session {

// The session with the node: everything about the text stream as such.
class Session {
 public:
  // What the session asks of the program around it.
  struct Needs {
    Chain& chain;
    LoggerServer& loggers;
    LoginRequests& requests;
    ClockWork& clockWork;
    std::function<DefaultNode()> defaultNode;
    std::function<void()> askUserInfo;
    std::function<void()> lookUpAddress;  // of MOLVA-1
    std::function<void()> onNodeKnown;    // its call or its software has become known
    std::function<void()> delayedWriteCfg;
    std::function<void()> writeCfg;
    std::function<void(const std::string& heading, const std::string& text)> showMessage;
    std::function<void()> closeMessage;
    std::function<void()> ar17Settled;   // which spot lines will come is known
    std::function<void()> profileAsked;  // the login has asked for the operator's profile
    std::function<void()> onEnding;      // first of all, when a session ends
    platform::FaultHandler onFault;
    std::uint32_t seed = 0;  // of what is picked at random
    // The chosen node is about to be called over the network; what this starts is waited for.
    std::function<platform::Task<>()> wakeNode = []() -> platform::Task<> { co_return; };
    std::function<std::string(int number)> portPath = PortPath;
    // A command from the local network that is for this program alone.
    std::function<bool(std::string_view line)> localCommand = [](std::string_view) {
      return false;
    };
    std::function<bool()> weatherInFront = [] { return false; };
    std::function<void()> beginFreshWeatherPage = [] {};
    std::function<void()> openChat = [] {};
    std::function<void()> askTncScript = [] {};     // there is none to connect with
    std::function<void()> localNetworkOff = [] {};  // its port is no longer a choice
  };

  Session(const platform::Platform& platform, const core::Calendar& calendar,
          core::Settings& settings, Needs needs);
  ~Session();

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
  Duelling duelling;
  TncRetry tncRetry;
  TncScript tncScript;  // frmTNC
  LoginWatch loginWatch;
  Connection connection;
  LinkButtons linkButtons;
  Login login;
  LoginText loginText;
  Links loginLinks;  // in the login text, as long as the session lasts
  LoginSequence loginSequence;
  ProfileHints profileHints;
  Ar17 ar17;
  LinkText linkText;
  Clockwork clockwork;
  TncNotices tncNotices;
  KeepAlivePanel keepAlivePanel;
  Macros macros;
  LatencyMeter latency;
  Technical technical;

 private:
  bool IsEcho(std::string_view line);
  bool IsPassword(std::string_view line) const;
  void ShowReceived(std::string_view line);
  void NothingToTry(const std::function<void()>& ask);
  void LoggedIn();
  void Ended();

  Echoes echoes_;
  platform::Registration showing_;
  platform::Registration phaseShown_;
};

}  // namespace session
