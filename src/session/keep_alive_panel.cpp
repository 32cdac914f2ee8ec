#include "session/keep_alive_panel.h"

#include <algorithm>

namespace session {
namespace {

constexpr int kMostMinutes = 14;
constexpr int kOff = 14;
constexpr int kFiveMinutes = 4;

std::vector<std::string> MinuteCaptions() {
  std::vector<std::string> captions;
  for (int minutes = 1; minutes <= kMostMinutes; ++minutes)
    captions.push_back(std::to_string(minutes));
  captions.emplace_back("0");
  return captions;
}

}  // namespace

KeepAlivePanel::KeepAlivePanel(KeepAlive& keepAlive, core::Settings& settings, Needs needs)
    : keepAlive_(keepAlive),
      settings_(settings),
      needs_(std::move(needs)),
      choosing_(optKA.Click.Add([this] { ChooseMinutes(); })),
      applying_(cmdExit.Click.Add([this] { Apply(); })) {
  optKA.Options.Set(MinuteCaptions());
  optKA.ToolTip.Set("0: Disabled.  Cannot be disabled if \"Auto Reconnect\" is enabled.");
  optDirection.Options.Set({"Tx", "Rx"});
  optMode.Options.Set({"Telnet", "TNC"});
  cmdExit.Caption.Set("Apply");
}

void KeepAlivePanel::Load() {
  const bool tnc = settings_.TncMode;
  const int minutes =
      std::clamp(tnc ? settings_.TncKAtime : settings_.TelnetKAtime, 0, kMostMinutes);
  keepAlive_.KeepAliveRx = (tnc ? settings_.TncKA : settings_.TelnetKA) != "Tx";
  keepAlive_.KeepAliveMinutes = minutes;
  keepAlive_.ShowInactivity();
  optMode.Selected.Set(tnc ? Tnc : Telnet);
  optDirection.Selected.Set(keepAlive_.KeepAliveRx ? Rx : Tx);
  optKA.Selected.Set(minutes == 0 ? kOff : minutes - 1);
}

void KeepAlivePanel::ChooseMinutes() {
  if (optKA.Selected.Get() == kOff && needs_.autoReconnect()) optKA.Selected.Set(kFiveMinutes);
  const int chosen = optKA.Selected.Get();
  keepAlive_.KeepAliveMinutes = chosen == kOff ? 0 : chosen + 1;
}

void KeepAlivePanel::Apply() {
  keepAlive_.KeepAliveRx = optDirection.Selected.Get() == Rx;
  const std::string direction = keepAlive_.KeepAliveRx ? "Rx" : "Tx";
  const bool tnc = optMode.Selected.Get() == Tnc;
  (tnc ? settings_.TncKA : settings_.TelnetKA) = direction;
  (tnc ? settings_.TncKAtime : settings_.TelnetKAtime) = keepAlive_.KeepAliveMinutes;
  needs_.writeCfg();
}

}  // namespace session
