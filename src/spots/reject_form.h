#pragma once

#include <array>
#include <functional>
#include <string_view>
#include <vector>

#include "core/controls.h"
#include "core/settings.h"
#include "spots/reject_lists.h"

namespace spots {

// frmReject: what the operator doesn't want to see. Every act holds, and is kept, at once.
class RejectForm {
 public:
  struct Needs {
    std::function<void()> delayedWriteCfg;
  };

  // All outlive the form.
  RejectForm(RejectLists& lists, core::Settings& settings, Needs needs);

  core::Check chkEnabled;   // the lists are in force
  core::Check chkInvalid;   // spots without a known country go too
  core::Label lblInvalid;   // that chkInvalid rejects nothing yet
  core::Check chkCounty;    // and those of mobile county calls; needs no chkEnabled
  core::Check chkDupes;     // duplicates of Skimmers stay
  core::Check chkOwnCall;   // those of the operator's own call at least
  core::Label lblNotSaved;  // the lists couldn't be written
  // By RejectLists::Kind, beside its lstReject.
  std::array<core::TextBox, RejectLists::kKinds> txtReject;  // the entry to come
  std::array<core::Button, RejectLists::kKinds> cmdAdd;      // Return in the field does the same
  std::array<core::Button, RejectLists::kKinds> cmdDelete;   // takes the selected entry out

  // Shows the switches as the settings have them.
  void Load();

 private:
  struct Switch {
    core::Check RejectForm::*check;
    bool core::Settings::*member;
    std::string_view caption;
  };
  static const std::array<Switch, 5> kSwitches;

  void Bind(const Switch& each);
  void Bind(RejectLists::Kind kind);
  void Add(RejectLists::Kind kind);
  void Delete(RejectLists::Kind kind);
  void Save();
  void ShowInvalid();

  RejectLists& lists_;
  core::Settings& settings_;
  Needs needs_;
  std::vector<platform::Registration> watching_;
};

}  // namespace spots
