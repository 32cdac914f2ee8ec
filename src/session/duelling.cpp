#include "session/duelling.h"

#include <chrono>
#include <utility>

#include "core/call.h"
#include "core/text.h"

using namespace std::chrono_literals;

namespace session {
namespace {

constexpr float kFreshNodeMinutes = 30;
constexpr auto kDuelWithin = 240s;
constexpr int kHighestSsid = 14;

constexpr const char* kHeading = "Duelling Connections Suspected";
constexpr const char* kText =
    "      Your SSID has temporarily been changed.\n"
    "      If you are making two or more connections\n"
    "      each one requires a distinctive call.\n"
    "      For example W7XXX, W7XXX-1, W7XXX-2\n"
    "      Go to \"Configuration>User Info\" and add\n"
    "      an SSID to your call.  ie -1, -2 etc\n"
    "   You must use DIFFERENT SSIDs for each connection.";

}  // namespace

Duelling::Duelling(platform::Scheduler& scheduler, SessionState& state, Timers& timers, Needs needs)
    : scheduler_(scheduler),
      state_(state),
      timers_(timers),
      needs_(std::move(needs)),
      random_(needs_.seed) {
  timers_.SetDuty(TimerId::Message, [this] { needs_.closeMessage(); });
}

void Duelling::DuellingConnection() {
  if (!DuelArmed) {
    DuelSeenOnce = false;
    ClosedByRemote = false;
    return;
  }
  if (NodeUptimeMinutes < kFreshNodeMinutes || !ClosedByRemote) return;
  const platform::Milliseconds now = scheduler_.Now();
  if (std::exchange(DuelSeenOnce, !DuelSeenOnce)) {
    if (now - DuelTime <= kDuelWithin) DuelSuspected = true;
  } else {
    DuelTime = now;
  }
  ClosedByRemote = false;
}

std::string Duelling::CheckDuelling(const std::string& call) {
  state_.TempCall.clear();
  if (!std::exchange(DuelSuspected, false)) return call;
  needs_.showMessage(kHeading, kText);
  timers_.Restart(TimerId::Message);
  const int ssid = std::uniform_int_distribution<int>(1, kHighestSsid)(random_);
  state_.TempCall = core::Nossid(call) + "-" + std::to_string(ssid);
  return state_.TempCall;
}

bool Duelling::SeventyThree(std::string_view line) {
  if (!core::StartsWith(line, "73")) return false;
  ClosedByRemote = false;
  DuelSeenOnce = false;
  return true;
}

bool Duelling::InstanceNotice(std::string_view line) {
  if ((state_.IsSpider() || state_.IsZelva()) &&
      core::EndsWith(line, "this instance is disconnected"))
    DuelSuspected = true;
  return false;
}

}  // namespace session
