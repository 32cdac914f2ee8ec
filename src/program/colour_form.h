#pragma once

#include <functional>
#include <vector>

#include "core/controls.h"
#include "core/settings.h"
#include "program/colour_table.h"

namespace program {

// Of frmColour, the colours: which of them the user has chosen for himself. What he does here is
// seen at once, and kept.
class ColourForm {
 public:
  struct Needs {
    std::function<void()> delayedWriteCfg;
    std::function<void()> changed;  // what stands in the settings is to be drawn
  };

  static constexpr const char* kTitle = "Color and Font Selection";

  // The settings outlive it.
  ColourForm(core::Settings& settings, Needs needs);

  core::Property<bool> Open{false};
  core::Property<ColourValues> OnShow;
  core::Choice optColour;   // by its place in the table
  core::Label lblChosen;    // how many are the user's
  core::Button cmdChoose;   // lets him pick the one that is selected
  core::Button cmdTheme;    // gives that one back to the theme
  core::Button cmdDefault;  // gives all back
  core::Button cmdClose;

  // The user is picking a colour for the one that is selected.
  core::Property<bool> Picking{false};
  // His acts meanwhile: he looks at one, takes what he looks at, or leaves things as they were.
  void UserTries(core::Colour colour);
  void UserTakes();
  void UserLeaves();

  // The settings have been read.
  void Load();
  void Show() { Open.Set(true); }
  ColourKey Selected() const { return static_cast<ColourKey>(optColour.Selected.Get()); }

 private:
  core::Colour& Stored(ColourKey key) { return settings_.*RowOf(key).stored; }
  void BeginPicking();
  void Renew();
  void Keep();

  core::Settings& settings_;
  Needs needs_;
  core::Colour before_ = core::kThemeColour;  // what is stored for the one that is being picked
  std::vector<platform::Registration> watching_;
};

}  // namespace program
