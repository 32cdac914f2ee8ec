#include "spots/spots_form.h"

#include <algorithm>
#include <string>
#include <utility>

#include "core/text.h"

namespace spots {
namespace {

using core::Settings;

struct Tick {
  core::Check SpotsForm::*box;
  bool Settings::*setting;
  const char* caption;
};

constexpr std::array kTicks = {
    Tick{&SpotsForm::chkSave, &Settings::LogDxSpots, "Save Dx Spots To Log File"},
    Tick{&SpotsForm::chkLoad, &Settings::LoadLogFileOnStartup,
         "Load Old Spots from File on Restart"},
    Tick{&SpotsForm::chkDelete, &Settings::DeleteDxLogs, "Delete Old DX Log Files"},
    Tick{&SpotsForm::chkShowNrs, &Settings::ShowSpotNrs, "Show Spot Nrs"},
};

constexpr int kMostDays = 3650;
constexpr int kDefaultMemory = 200;
constexpr int kLeastMemory = 20;
constexpr int kMostMemory = 100'000;

}  // namespace

// A box with a number. One below `least` counts as `fallback`, and one above `most` as that.
struct SpotsForm::Number {
  core::TextBox& box;
  int& setting;
  const char* caption;
  int least;
  int fallback;
  int most;

  int Held(int number) const { return number < least ? fallback : std::min(number, most); }
  int Typed() const { return Held(core::ValInt(box.Text.Get())); }
};

SpotsForm::SpotsForm(Settings& settings, SpotReload& reload, Needs needs)
    : settings_(settings), reload_(reload), needs_(std::move(needs)) {
  lblMemory.Caption.Set("Max Spots Displayed");
  BindChecks();
  BindNumbers();
  BindReload();
}

std::array<SpotsForm::Number, 4> SpotsForm::Numbers() {
  return {
      {{Text1, settings_.KeepSpotsDays, "Number of days to keep", 1, 1, kMostDays},
       {txtReloadNr, settings_.ReloadHours, "Number of hours to reload", 0, 0,
        SpotReload::kMostHours},
       {txtMemory[0], settings_.SpotMemoryAll, "ALL", kLeastMemory, kDefaultMemory, kMostMemory},
       {txtMemory[1], settings_.SpotMemorySingle, "Single", kLeastMemory, kDefaultMemory,
        kMostMemory}}};
}

void SpotsForm::Show() {
  for (const Tick& tick : kTicks) (this->*tick.box).Value.Set(settings_.*tick.setting);
  for (const Number& number : Numbers())
    number.box.Text.Set(std::to_string(number.Held(number.setting)));
  shown_ = true;
  Open.Set(true);
}

void SpotsForm::BindChecks() {
  for (const Tick& tick : kTicks) {
    core::Check& box = this->*tick.box;
    box.Caption.Set(tick.caption);
    bound_.push_back(box.Click.Add([this, &box, setting = tick.setting] {
      settings_.*setting = box.Value.Get();
      needs_.settingsChanged();
    }));
  }
  bound_.push_back(chkSave.Click.Add([this] { needs_.loggingChanged(); }));
  bound_.push_back(chkShowNrs.Click.Add([this] { needs_.setupSpotNrs(); }));
}

void SpotsForm::BindNumbers() {
  for (const Number& number : Numbers()) {
    number.box.Caption.Set(number.caption);
    bound_.push_back(number.box.Return.Add([this] { TakeNumbers(); }));
  }
  bound_.push_back(Open.Observe([this](bool open) {
    if (!open && shown_) TakeNumbers();
  }));
}

// Not with each key: on the way to "500" a limit of 5 would cost all spots but a few. The boxes
// show what holds then.
void SpotsForm::TakeNumbers() {
  for (const Number& number : Numbers()) {
    const int typed = number.Typed();
    number.box.Text.Set(std::to_string(typed));
    if (std::exchange(number.setting, typed) != typed) needs_.settingsChanged();
  }
}

void SpotsForm::BindReload() {
  cmdReload.Caption.Set("Reload");
  cmdStop.Caption.Set("Stop");
  bound_.push_back(cmdReload.Click.Add([this] {
    if (shown_) TakeNumbers();
    reload_.ReloadSpots();
  }));
  bound_.push_back(cmdStop.Click.Add([this] { reload_.Stop(); }));
  bound_.push_back(reload_.Reloading.Observe([this](bool reloading) {
    cmdReload.Enabled.Set(!reloading);
    cmdStop.Enabled.Set(reloading);
  }));
  bound_.push_back(reload_.SpotsRead.Observe(
      [this](std::uint64_t spots) { lblCount.Caption.Set(std::to_string(spots)); }));
}

}  // namespace spots
