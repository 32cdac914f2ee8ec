#include "session/keep_alive.h"

#include <algorithm>

#include "core/version.h"

namespace session {
namespace {

constexpr int kMinutesToGiveUp = 4;

}  // namespace

KeepAlive::KeepAlive(Timers& timers, const SessionState& state, Needs needs)
    : timers_(timers), state_(state), needs_(std::move(needs)) {
  for (core::Label& label : lblKA) label.Visible.Set(false);
  timers_.SetDuty(TimerId::KeepAlive, [this] { Minute(); });
  timers_.SetDuty(TimerId::KeepAliveColour,
                  [this] { lblKA[0].ForeColour.Set(core::kThemeColour); });
  timers_.SetDuty(TimerId::NullsColour, [this] { lblKA[1].ForeColour.Set(core::kThemeColour); });
}

void KeepAlive::LineReceived() {
  const bool wasSilent = RxInactiveMinutes != 0;
  RxInactiveMinutes = 0;
  if (KeepAliveRx) {
    timers_.Disable(TimerId::KeepAlive);
    if (wasSilent) ShowInactivity();
  }
  if (state_.LoggedIn) timers_.Enable(TimerId::KeepAlive);
}

void KeepAlive::NulReceived(int nulls) {
  Flash(1, "Nulls Rx = " + std::to_string(nulls), TimerId::NullsColour);
  if (!KeepAliveRx) return;
  RxInactiveMinutes = 0;
  ShowInactivity();
}

void KeepAlive::LineSent() {
  if (KeepAliveRx) return;
  TxInactiveMinutes = 0;
  ShowInactivity();
}

void KeepAlive::LoggedIn() { timers_.Enable(TimerId::KeepAlive); }

void KeepAlive::Minute() {
  if (KeepAliveMinutes == 0) return;
  if (!state_.LoggedIn) {
    RxInactiveMinutes = 0;
    TxInactiveMinutes = 0;
    timers_.Disable(TimerId::KeepAlive);
    if (KeepAliveRx) ShowInactivity();
    return;
  }
  ++RxInactiveMinutes;
  ++TxInactiveMinutes;
  if (RxInactiveMinutes >= KeepAliveMinutes + kMinutesToGiveUp) {
    GiveUp();
  } else if (KeepAliveRx) {
    if (RxInactiveMinutes >= KeepAliveMinutes) SendOne();
  } else if (TxInactiveMinutes >= KeepAliveMinutes) {
    RxInactiveMinutes = std::max(RxInactiveMinutes, TxInactiveMinutes);
    SendOne();
  }
  ShowInactivity();
}

void KeepAlive::GiveUp() {
  ++KeepAliveDisc;
  lblKA[2].Caption.Set("KA Disc= " + std::to_string(KeepAliveDisc));
  lblKA[2].Visible.Set(true);
  RxInactiveMinutes = 0;
  needs_.giveUp();
}

void KeepAlive::SendOne() {
  ++KeepAliveSent;
  Flash(0, "Keep Alive Tx= " + std::to_string(KeepAliveSent), TimerId::KeepAliveColour);
  needs_.sendAsIs(Text());
}

std::string KeepAlive::VersionText() const {
  return "KeepAlive " + std::string(KeepAliveRx ? "Rx " : "Tx ") +
         std::to_string(KeepAliveMinutes) + "  V" + std::string(core::kProgramVersion);
}

std::string KeepAlive::Text() const {
  if (state_.IsZelva()) return VersionText();
  if (state_.Ar17Refused()) return {};
  return state_.IsArCluster() ? VersionText() : " ";
}

void KeepAlive::ShowInactivity() {
  const int minutes = KeepAliveRx ? RxInactiveMinutes : TxInactiveMinutes;
  lblInactivity.Caption.Set((KeepAliveRx ? "Rx Inact. = " : "Tx Inact. = ") +
                            std::to_string(minutes));
}

void KeepAlive::Flash(std::size_t label, const std::string& text, TimerId reset) {
  lblKA[label].Caption.Set(text);
  lblKA[label].Visible.Set(true);
  lblKA[label].ForeColour.Set(core::kRed);
  timers_.Enable(reset);
}

}  // namespace session
