#include "program/start_options.h"

#include <array>
#include <utility>

namespace program {
namespace {

using core::Settings;

struct Option {
  core::Check StartOptions::*box;
  bool Settings::*setting;
  const char* caption;
};

constexpr std::array kOptions = {
    Option{&StartOptions::AutoStart, &Settings::AutoStart, "Connect when the program starts"},
    Option{&StartOptions::ChkAskSettings, &Settings::AskSettings, "Ask for settings at login"},
    Option{&StartOptions::AutoFilter, &Settings::AutoFilter, "Ask for filters at login"},
    Option{&StartOptions::GetMissedOnes, &Settings::GetMissedOnes, "Ask for missed spots at login"},
    Option{&StartOptions::DontAsk, &Settings::QuietExit, "End without asking"},
};

}  // namespace

StartOptions::StartOptions(Settings& settings, Needs needs)
    : settings_(settings), needs_(std::move(needs)) {
  for (const Option& each : kOptions) {
    core::Check& box = this->*each.box;
    box.Caption.Set(each.caption);
    ticking_.push_back(box.Click.Add([this, &box, setting = each.setting] {
      settings_.*setting = box.Value.Get();
      needs_.delayedWriteCfg();
    }));
  }
  ticking_.push_back(AutoFilter.Click.Add([this] {
    if (AutoFilter.Value.Get()) needs_.askFilters();
  }));
  ticking_.push_back(
      GetMissedOnes.Click.Add([this] { needs_.missedSpots(GetMissedOnes.Value.Get()); }));
}

void StartOptions::Load() {
  for (const Option& each : kOptions) (this->*each.box).Value.Set(settings_.*each.setting);
}

}  // namespace program
