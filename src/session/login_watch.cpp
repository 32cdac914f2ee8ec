#include "session/login_watch.h"

#include <utility>

#include "core/text.h"

namespace session {

LoginWatch::LoginWatch(const core::Settings& settings, SessionState& state,
                       platform::TcpSocket& socket, Outgoing& outgoing, Intake& intake,
                       Timers& timers, Needs needs)
    : settings_(settings),
      state_(state),
      socket_(socket),
      outgoing_(outgoing),
      intake_(intake),
      timers_(timers),
      needs_(std::move(needs)) {
  timers_.SetDuty(TimerId::ConnectionTimeout, [this] { Tick(); });
}

void LoginWatch::Tick() {
  const bool connected = socket_.State() == platform::SocketState::Connected;
  if (LoginAttempts == 0 && connected) outgoing_.Send(core::Trim(settings_.MyCall));
  ++LoginAttempts;
  if (!connected) {
    timers_.Disable(TimerId::ConnectionTimeout);
    LoginAttempts = 0;
  } else if (socket_.BytesReceived() > 0 && state_.ConnectEventSeen) {
    intake_.Turn();
  } else if (LoginAttempts > LoginPatience) {
    GiveUp();
  }
}

void LoginWatch::GiveUp() {
  ++LoginPatience;
  state_.ConnectFailed = true;
  timers_.Disable(TimerId::ConnectionTimeout);
  needs_.giveUp();
}

}  // namespace session
