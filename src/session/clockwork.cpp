#include "session/clockwork.h"

#include <chrono>
#include <utility>

namespace session {
namespace {

constexpr int kDirSeconds = 3600;
// The first look comes after so many minutes, then one every five.
constexpr int kFirstVersionPoll = 59;
constexpr int kVersionPollAgain = 54;

}  // namespace

Clockwork::Clockwork(Timers& timers, const core::Calendar& calendar, SessionState& state,
                     Outgoing& outgoing, Needs needs)
    : timers_(timers),
      calendar_(calendar),
      state_(state),
      outgoing_(outgoing),
      needs_(std::move(needs)) {
  timers_.SetDuty(TimerId::Clock, [this] { Second(); });
  timers_.SetDuty(TimerId::Minute, [this] { Minute(); });
  timers_.SetDuty(TimerId::Updater, [this] { PollVersion(); });
  timers_.SetDuty(TimerId::BareLineEnd, [this] { outgoing_.Send(""); });
  timers_.SetDuty(TimerId::AskWho, [this] {
    outgoing_.Send(state_.NodeSentPassword && state_.SysopLink ? "who" : "sh/tnc");
  });
  timers_.SetDuty(TimerId::AskConfig, [this] { AskConfig(); });
}

void Clockwork::Second() {
  needs_.second();
  const auto hour = std::chrono::floor<std::chrono::hours>(calendar_.GmtNow().time_since_epoch());
  if (std::exchange(hour_, hour) != hour) needs_.work.HourlyWork();
  if (!day_) day_ = calendar_.Date2Julian();
  PollDirectory();
}

void Clockwork::PollDirectory() {
  if (!state_.SysopLink || !SysopEnabled || ++DirTicks < kDirSeconds) return;
  MailPoll = true;
  DirTicks = 1;
  outgoing_.Send("dir/100");
}

void Clockwork::Minute() {
  needs_.work.Sun();
  const int today = calendar_.Date2Julian();
  if (std::exchange(day_, today).value_or(today) == today) return;
  needs_.work.DayChange();
  needs_.work.EnableLoggingSpots();
}

void Clockwork::PollVersion() {
  if (++VersionPollMinutes < kFirstVersionPoll) return;
  VersionPollMinutes = kVersionPollAgain;
  if (state_.LoggedIn) needs_.requests.GetLatestVersion();
}

void Clockwork::AskConfig() {
  for (const std::string& node : state_.KnownNodes) outgoing_.Send("show/config " + node);
}

}  // namespace session
