#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/controls.h"
#include "core/location.h"
#include "core/settings.h"

namespace program {

// frmSettings: who the operator is and where. Its fields are copies; OK checks and stores them. The
// location follows the grid as it is typed, unless the user has typed one of his own.
class UserInfo {
 public:
  struct Needs {
    std::function<std::string()> password;                  // the stored one
    std::function<void(const std::string& password)> save;  // the settings have been changed
  };

  // The settings outlive the form.
  UserInfo(core::Settings& settings, Needs needs);

  core::Property<bool> Open{false};
  core::TextBox txtCall;
  core::TextBox txtName;
  core::TextBox txtQth;
  core::TextBox txtGrid;
  core::TextBox txtHomeNode;
  core::TextBox txtEmail;
  core::TextBox txtPassword;
  // Latitude, then longitude: degrees, minutes, letter. All six may be empty.
  std::array<core::TextBox, 6> txtLatLong;
  core::Label lblFromGrid;  // says that the grid has given them
  core::Check chkSystemZone;
  core::TextBox txtGmtOffset;  // hours to add to local time; of no account while the zone is ticked
  core::Label lblProblem;      // what is to be put right before it can be stored
  core::Button cmdOk;
  core::Button cmdCancel;

  // What stands on the page of settings.
  core::Label lblWho;    // the call, the name and the QTH
  core::Button cmdOpen;  // opens the form

  // Fills the fields and opens the form. One that is open stays as the user has it.
  void Show();
  // Puts the settings into lblWho.
  void Refresh();

 private:
  void Watch();
  void ShowLocation(const std::optional<core::Location>& place);
  void FollowGrid();
  void TakeOwnLocation();
  void PressOk();
  std::string Problem() const;
  void Store();
  std::string LocationText() const;

  core::Settings& settings_;
  Needs needs_;
  bool ownLocation_ = false;  // the user's own, which no grid replaces
  std::vector<platform::Registration> watching_;
};

// Whether a text can be a call: letters, digits, "/" and a "-" before its SSID, with at least one
// letter and one digit among them.
bool IsCall(std::string_view text);
// Whether it is a locator of four or six characters, in either case.
bool IsGrid(std::string_view text);

}  // namespace program
