#include "session/login_text.h"

#include <chrono>
#include <utility>

#include "core/text.h"
#include "session/feed_options.h"
#include "session/uptime.h"

using namespace std::chrono_literals;

namespace session {

LoginText::LoginText(const core::Settings& settings, SessionState& state, Outgoing& outgoing,
                     Intake& intake, Duelling& duelling, Timers& timers, LoginRequests& requests,
                     std::function<void()> profileAsked)
    : settings_(settings),
      state_(state),
      outgoing_(outgoing),
      intake_(intake),
      duelling_(duelling),
      timers_(timers),
      requests_(requests),
      profileAsked_(std::move(profileAsked)) {}

void LoginText::updatetxtLoginMsg(std::string_view line) {
  if (!state_.LoginMsgActive || state_.LoginTextDone) return;
  if (!Feeds(settings_, FeedOption::LoginMessage)) intake_.ForwardSuppressed = true;
  if (state_.Kind == NodeKind::Unknown) {
    state_.Recognise(RecognisedIn(line));
    if (state_.Kind != NodeKind::Unknown && onKind) onKind();
  }
  if (state_.RcvdPrompt(line))
    FirstPrompt();
  else
    Collect(line);
}

void LoginText::Collect(std::string_view line) {
  if (core::EndsWith(line, "dxspider >")) return;
  if (const auto minutes = UptimeMinutes(line)) duelling_.NodeUptimeMinutes = *minutes;
  rtbLoginMsg.Append(" " + std::string(line));
}

void LoginText::FirstPrompt() {
  state_.LoginTextDone = true;
  if (!state_.TncMode && settings_.InternetCheckVersion) {
    timers_.Enable(TimerId::Updater);
    requests_.GetLatestVersion();
  }
  if (state_.IsDxNet()) {
    state_.txtNode.Caption.Set("Connected to " + state_.ConnectedNodeCall);
    outgoing_.SendAsIs("set/page 0");
    NameConnectedNode();
  }
  const bool asksLater = state_.IsSpider() || state_.IsZelva() || state_.IsArCluster();
  if (state_.WantMissedSpots && !asksLater)
    intake_.PushStep("GetEm", AskMissedSpots(state_.Sessions));
  if (state_.IsZelva() && !std::exchange(state_.RequestedSettings, true)) {
    profileAsked_();
    outgoing_.Send("sh/settings");
  }
}

// Those that it told of stay.
void LoginText::NameConnectedNode() {
  if (state_.KnownNodes.empty()) state_.KnownNodes.emplace_back();
  state_.KnownNodes.front() = state_.ConnectedNodeCall;
}

platform::Task<> LoginText::AskMissedSpots(std::uint64_t session) {
  co_await platform::Delay(200ms);
  if (state_.Sessions != session) co_return;
  state_.FirstConnect = false;
  requests_.GetEm();
}

}  // namespace session
