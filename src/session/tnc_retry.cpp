#include "session/tnc_retry.h"

#include <string>

namespace session {
namespace {

std::string RetryText(int minutes) { return "Retry in " + std::to_string(minutes); }

}  // namespace

void TncRetry::LinkLost() {
  ReconnectCountdown = ++ReconnectMinutes;
  if (state_.UserDisconnected) {
    for (core::Label& label : technical_.lblTechnical) label.Caption.Set({});
  } else {
    technical_.lblTechnical[0].Caption.Set(RetryText(ReconnectMinutes));
  }
}

platform::Milliseconds TncRetry::Wait(const Timers& timers) const {
  return timers.Remaining(TimerId::Reconnect) +
         ReconnectCountdown * timers.Interval(TimerId::Reconnect);
}

bool TncRetry::Interval() {
  if (ReconnectCountdown < 1) {
    technical_.lblTechnical[1].Caption.Set("Retrying");
    return true;
  }
  technical_.lblTechnical[1].Caption.Set(RetryText(--ReconnectCountdown));
  return false;
}

void TncRetry::Reset() {
  ReconnectMinutes = 0;
  for (core::Label& label : technical_.lblTechnical) label.Caption.Set({});
}

}  // namespace session
