#pragma once

#include <array>
#include <functional>
#include <vector>

#include "core/controls.h"
#include "core/settings.h"
#include "spots/spot_reload.h"

namespace spots {

// frmSpots: what is kept of the spots, in memory and in files, and the reload of the files. Each
// tick counts at once; a number with Return, with the reload, and when the form is closed.
class SpotsForm {
 public:
  static constexpr const char* kTitle = "Dx Spot Log File ";

  struct Needs {
    std::function<void()> settingsChanged;
    std::function<void()> loggingChanged;  // logging has been switched on or off
    std::function<void()> setupSpotNrs;
  };

  // The settings and the reload outlive the form.
  SpotsForm(core::Settings& settings, SpotReload& reload, Needs needs);
  SpotsForm(const SpotsForm&) = delete;
  SpotsForm& operator=(const SpotsForm&) = delete;

  core::Property<bool> Open{false};
  core::Check chkSave;
  core::Check chkLoad;
  core::Check chkDelete;
  core::Check chkShowNrs;
  core::TextBox Text1;                     // days
  core::TextBox txtReloadNr;               // hours
  core::Label lblMemory;                   // above the two limits
  std::array<core::TextBox, 2> txtMemory;  // for all bands, for each band
  core::Button cmdReload;
  core::Button cmdStop;  // while a reload runs
  core::Label lblCount;  // spots read in this reload, or the last

  // Opens it with the settings as they are.
  void Show();

 private:
  struct Number;

  std::array<Number, 4> Numbers();
  void BindChecks();
  void BindNumbers();
  void TakeNumbers();
  void BindReload();

  core::Settings& settings_;
  SpotReload& reload_;
  Needs needs_;
  bool shown_ = false;  // the boxes hold something
  std::vector<platform::Registration> bound_;
};

}  // namespace spots
