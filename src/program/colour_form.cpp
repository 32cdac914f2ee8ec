#include "program/colour_form.h"

#include <algorithm>
#include <utility>

namespace program {
namespace {

void Enable(core::Button& button, bool on, const char* whyNot) {
  button.Enabled.Set(on);
  button.ToolTip.Set(on ? "" : whyNot);
}

}  // namespace

ColourForm::ColourForm(core::Settings& settings, Needs needs)
    : settings_(settings), needs_(std::move(needs)) {
  std::vector<std::string> words;
  words.reserve(kColourTable.size());
  for (const ColourRow& row : kColourTable) words.emplace_back(row.words);
  optColour.Options.Set(std::move(words));
  cmdChoose.Caption.Set("Choose colour…");
  cmdTheme.Caption.Set("As the theme has it");
  cmdDefault.Caption.Set("Default Colour");
  cmdClose.Caption.Set("Close");
  const auto onPress = [this](core::Button& button, std::function<void()> act) {
    watching_.push_back(button.Click.Add(std::move(act)));
  };
  onPress(cmdChoose, [this] { BeginPicking(); });
  onPress(cmdTheme, [this] {
    Stored(Selected()) = UsualOf(Selected());
    Keep();
  });
  onPress(cmdDefault, [this] {
    for (const ColourRow& row : kColourTable) Stored(row.key) = UsualOf(row.key);
    Keep();
  });
  onPress(cmdClose, [this] { Open.Set(false); });
  watching_.push_back(Open.Observe([this](bool open) {
    if (!open) UserLeaves();
  }));
  watching_.push_back(optColour.Click.Add([this] { Renew(); }));
}

void ColourForm::Load() { Renew(); }

void ColourForm::BeginPicking() {
  before_ = Stored(Selected());
  Picking.Set(true);
}

void ColourForm::UserTries(core::Colour colour) {
  if (!Picking.Get()) return;
  Stored(Selected()) = ChosenAs(Selected(), colour);
  Renew();
}

void ColourForm::UserTakes() {
  if (!Picking.Get()) return;
  Picking.Set(false);
  Keep();
}

// What he looked at may have been written meanwhile.
void ColourForm::UserLeaves() {
  if (!Picking.Get()) return;
  Stored(Selected()) = before_;
  Picking.Set(false);
  Keep();
}

void ColourForm::Keep() {
  Renew();
  needs_.delayedWriteCfg();
}

void ColourForm::Renew() {
  const ColourValues values = ValuesOf(settings_);
  const auto chosen =
      std::count_if(kColourTable.begin(), kColourTable.end(),
                    [&](const ColourRow& row) { return !FollowsTheme(row.key, values[row.key]); });
  lblChosen.Caption.Set(chosen == 0 ? "All as the theme has them."
                                    : std::to_string(chosen) + " of " +
                                          std::to_string(kColourTable.size()) + " are your own.");
  Enable(cmdTheme, !FollowsTheme(Selected(), values[Selected()]),
         "This colour is as the theme has it.");
  Enable(cmdDefault, chosen > 0, "All colours are as the theme has them.");
  if (values == OnShow.Get()) return;
  OnShow.Set(values);
  needs_.changed();
}

}  // namespace program
