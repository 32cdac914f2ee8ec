#pragma once

#include <array>

#include "core/controls.h"
#include "core/dates.h"
#include "core/settings.h"
#include "session/connection.h"

namespace session {

// How it stands with the node, in words that leave no doubt whether the link is alive; and the
// time.
class LinkText {
 public:
  LinkText(platform::Scheduler& scheduler, const core::Calendar& calendar,
           const core::Settings& settings, SessionState& session, const Connection& connection,
           const TncRetry& tncRetry, const Intake& intake, const Timers& timers);

  core::Label node;      // the call of the node
  core::Label software;  // of the node, empty while it is unknown
  // "connected 2 d 4 h", or what is being done about it; its tool tip has the moments.
  core::Label state;
  core::Label age;                      // "last line 1 s ago"
  std::array<core::Label, 2> lblclock;  // the time and the date in UTC

  // Once a second.
  void Tick();

 private:
  std::string StateNow() const;
  std::string MomentsNow() const;
  std::string AgeNow() const;
  bool LinkStands() const;
  platform::Milliseconds UntilRetry() const;

  platform::Scheduler& scheduler_;
  const core::Calendar& calendar_;
  const core::Settings& settings_;
  const SessionState& session_;
  const Connection& connection_;
  const TncRetry& tncRetry_;
  const Intake& intake_;
  const Timers& timers_;
  platform::Milliseconds tryingSince_{0};  // by the scheduler
  platform::Registration trying_;
};

// A span of time by its two largest units: "34 s", "5 m 12 s", "2 d 4 h".
std::string SpanText(std::chrono::seconds span);

}  // namespace session
