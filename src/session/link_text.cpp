#include "session/link_text.h"

#include "core/text.h"

namespace session {
namespace {

using std::chrono::duration_cast;
using std::chrono::seconds;

std::string ClockText(platform::UtcTime now) {
  const std::chrono::hh_mm_ss time(
      duration_cast<seconds>(now - std::chrono::floor<std::chrono::days>(now)));
  const auto two = [](auto part) { return core::Digits(static_cast<unsigned>(part.count()), 2); };
  return two(time.hours()) + ":" + two(time.minutes()) + ":" + two(time.seconds());
}

// "21:07:09 UTC, 05-Jan-2026".
std::string MomentText(platform::UtcTime moment) {
  const auto days = std::chrono::floor<std::chrono::days>(moment.time_since_epoch());
  return ClockText(moment) + " UTC, " + core::EnglishDate(static_cast<int>(days.count()));
}

}  // namespace

std::string SpanText(seconds span) {
  const auto count = span.count();
  const auto text = [](auto number, const char* unit) { return std::to_string(number) + unit; };
  if (count < 60) return text(count, " s");
  if (count < 3600) return text(count / 60, " m ") + text(count % 60, " s");
  if (count < 86400) return text(count / 3600, " h ") + text(count / 60 % 60, " m");
  return text(count / 86400, " d ") + text(count / 3600 % 24, " h");
}

LinkText::LinkText(platform::Scheduler& scheduler, const core::Calendar& calendar,
                   const core::Settings& settings, SessionState& session,
                   const Connection& connection, const TncRetry& tncRetry, const Intake& intake,
                   const Timers& timers)
    : scheduler_(scheduler),
      calendar_(calendar),
      settings_(settings),
      session_(session),
      connection_(connection),
      tncRetry_(tncRetry),
      intake_(intake),
      timers_(timers),
      trying_(session.Phase.Observe([this](LinkPhase) { tryingSince_ = scheduler_.Now(); })) {
  lblclock[1].ToolTip.Set("UTC");
}

void LinkText::Tick() {
  const bool named = session_.LoggedIn && !session_.ConnectedNodeCall.empty();
  const std::string& cluster = settings_.TncCluster;
  const std::string wanted = !session_.TncMode ? settings_.NodeCall
                             : cluster.empty() ? "TNC"  // until it has been named
                                               : cluster;
  node.Caption.Set(named ? session_.ConnectedNodeCall : wanted);
  software.Caption.Set(std::string(DialectOf(session_.Kind).software));
  state.Caption.Set(StateNow());
  state.ToolTip.Set(MomentsNow());
  age.Caption.Set(AgeNow());
  lblclock[0].Caption.Set(ClockText(calendar_.GmtNow()));
  lblclock[1].Caption.Set("UTC  " + calendar_.GmtDate());
}

std::string LinkText::StateNow() const {
  if (session_.LoggedIn) {
    const auto since = scheduler_.Now() - connection_.ConnectTimeStamp;
    return "connected " + SpanText(duration_cast<seconds>(since));
  }
  const std::string why = connection_.WhyEnded.empty() ? "" : "  ·  " + connection_.WhyEnded;
  const bool retries = connection_.AutoReconnect.Value.Get() && !session_.UserDisconnected;
  if (retries && timers_.Enabled(TimerId::Reconnect)) {
    const auto left = std::chrono::ceil<seconds>(UntilRetry());
    return "next try in " + SpanText(left) + why;
  }
  if (session_.Phase.Get() == LinkPhase::Disconnected) return "not connected" + why;
  const auto since = duration_cast<seconds>(scheduler_.Now() - tryingSince_);
  return (LinkStands() ? "waiting for the login " : "connecting ") + SpanText(since);
}

std::string LinkText::MomentsNow() const {
  if (session_.LoggedIn) return "Since " + MomentText(connection_.LinkBegan);
  if (connection_.LinkEnded == platform::UtcTime{}) return {};
  return "The last link ended at " + MomentText(connection_.LinkEnded);
}

bool LinkText::LinkStands() const {
  return session_.SocketConnected ||
         (session_.TncMode && session_.Phase.Get() == LinkPhase::Connected);
}

platform::Milliseconds LinkText::UntilRetry() const {
  return session_.TncMode ? tncRetry_.Wait(timers_) : timers_.Remaining(TimerId::Reconnect);
}

std::string LinkText::AgeNow() const {
  if (!LinkStands() || intake_.LastLineAt < connection_.ConnectedAt) return {};
  const auto silent = duration_cast<seconds>(scheduler_.Now() - intake_.LastLineAt);
  return "last line " + SpanText(silent) + " ago";
}

}  // namespace session
