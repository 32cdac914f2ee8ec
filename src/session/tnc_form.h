#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "core/controls.h"
#include "core/settings.h"
#include "session/session.h"
#include "session/tnc_script.h"

namespace session {

// frmTNC: the way through the TNC to the cluster, step by step. Its fields are copies; cmdSave
// stores them. A step is in use if it has a time-out.
class TncForm {
 public:
  static constexpr std::size_t kSteps = TncScript::kMostSteps;

  struct Needs {
    std::function<void()> saved;       // the settings have the script
    std::function<void()> openManual;  // at the page of the TNC; empty: there is no manual
  };

  // Both outlive the form.
  TncForm(core::Settings& settings, Session& session, Needs needs);

  core::Property<bool> Open{false};
  core::Button cmdOpen;  // on the page of settings

  core::Label lblCluster;
  core::TextBox txtCluster;
  // The heads of the three columns; each tells more in its tool tip.
  core::Label lblCmd;
  core::Label lblScript;
  core::Label lblTimeOut;
  std::array<core::TextBox, kSteps> txtCmd;
  std::array<core::TextBox, kSteps> txtScript;
  std::array<core::TextBox, kSteps> txtTimeOut;  // whole seconds; takes nothing else
  std::array<core::Label, kSteps> lblStep;       // how far the script has come, in a word

  core::Label lblProblem;  // what is to be put right
  core::Label lblResult;   // what has been done
  core::Button cmdSave;
  core::Button cmdRun;   // saves and connects
  core::Button cmdConv;  // the TNC's converse mode
  core::Button cmdCmd;   // its command mode
  core::Button cmdHelp;
  core::Button cmdClose;

  // Fills the fields and opens the form. One that is open stays as the user has it.
  void Show();

  // What can be done has changed with the mode.
  void TakeMode();

 private:
  void Caption();
  void Watch();
  void WatchStep(std::size_t step);
  void Load();
  void LimitTime(std::size_t step);
  bool Save();
  void Run();
  void ShowSent(bool sent);
  std::string Problem() const;
  std::vector<core::TncStep> Steps() const;

  core::Settings& settings_;
  Session& session_;
  Needs needs_;
  std::vector<platform::Registration> watching_;
};

}  // namespace session
