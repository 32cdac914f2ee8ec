#include "session/link_buttons.h"

#include <chrono>
#include <utility>

#include "core/pause.h"
#include "core/text.h"

using namespace std::chrono_literals;

namespace session {

LinkButtons::LinkButtons(platform::Scheduler& scheduler, core::Settings& settings,
                         SessionState& state, Connection& connection, LoginWatch& loginWatch,
                         Outgoing& outgoing, Timers& timers, Needs needs)
    : settings_(settings),
      state_(state),
      connection_(connection),
      loginWatch_(loginWatch),
      outgoing_(outgoing),
      timers_(timers),
      needs_(std::move(needs)),
      connectPressed_(connection.cmdConnect.Click.Add([this] { PressConnect(); })),
      disconnectPressed_(connection.cmdDisconnect.Click.Add([this] {
        if (!Disconnecting) tasks_.Start("Disconnect", PressDisconnect());
      })),
      naming_{connection.cmdConnect.Enabled.Observe([this](bool) { Name(); }),
              connection.cmdDisconnect.Enabled.Observe([this](bool) { Name(); }),
              connection.AutoReconnect.Value.Observe([this](bool) { Name(); })},
      tasks_(scheduler, needs_.onFault) {}

void LinkButtons::Name() {
  core::Button& connect = connection_.cmdConnect;
  core::Button& disconnect = connection_.cmdDisconnect;
  const bool tryIsAwaited =
      connect.Enabled.Get() && disconnect.Enabled.Get() && connection_.AutoReconnect.Value.Get();
  connect.Caption.Set(tryIsAwaited ? "Connect now" : "Connect");
  disconnect.ToolTip.Set(tryIsAwaited ? "Ends the tries" : "");
}

void LinkButtons::PressConnect() {
  loginWatch_.LoginPatience = 2;
  connection_.cmdConnect.Enabled.Set(false);
  if (core::StartsWith(settings_.MyCall, "-")) settings_.MyCall.clear();
  const bool nameOrQthMissing = settings_.MyName.empty() || settings_.MyQth.empty();
  if (!settings_.MyCall.empty() && nameOrQthMissing) {
    connection_.cmdConnect.Enabled.Set(true);
    needs_.askUserInfo();
    return;
  }
  needs_.openLocalNetwork();
  connection_.AutoReconnect.Value.Set(true);
  state_.UserDisconnected = false;
  connection_.BeginAnew();
  connection_.cmdDisconnect.Enabled.Set(true);
  connection_.Try();
}

platform::Task<> LinkButtons::PressDisconnect() {
  Disconnecting = true;
  const platform::Registration done([this] { Disconnecting = false; });
  state_.ConnectFailed = true;
  // A script that runs over the radio ends with its step's time.
  timers_.SetInterval(TimerId::ConnectScript, 1ms);
  timers_.Restart(TimerId::ConnectScript);
  connection_.NotCounted();
  state_.UserDisconnected = true;
  connection_.AutoReconnect.Value.Set(false);
  connection_.WhyEnded = "disconnected by you";
  state_.txtNode.Caption.Set("Ready to Connect");
  if (state_.LoggedIn && !state_.TncMode) {
    outgoing_.Send("BYE");
    co_await platform::Delay(6 * core::kPause);
  }
  // Meanwhile the user may have connected anew.
  if (state_.UserDisconnected && !state_.TncMode) connection_.CloseIfOpen();
  connection_.ClearCount();
}

}  // namespace session
