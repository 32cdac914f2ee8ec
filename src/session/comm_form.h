#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "core/controls.h"
#include "core/settings.h"
#include "platform/platform.h"
#include "session/port_choice.h"
#include "session/port_names.h"
#include "session/session.h"

namespace session {

// frmComm: the way to the node, the TNC's port and the local network's. Its fields are copies;
// cmdComm applies them.
//
// What would break a link that is up ends it first, as the user would, and is applied once it has
// ended.
class CommForm {
 public:
  enum Mode { Telnet, Tnc };
  enum KeepAliveType { Tx, Rx };
  enum List { kParity, kDataBits, kStopBits, kFlow, kLists };

  struct Needs {
    std::function<void()> takeMode;  // the settings have the other mode now
    std::function<void()> delayedWriteCfg;
  };

  // All outlive the form.
  CommForm(const platform::Platform& platform, core::Settings& settings, PortNames& names,
           Session& session, Needs needs);

  core::Property<bool> Open{false};
  core::Button cmdOpen;  // on the page of settings

  core::Choice optMode;
  core::Choice optKA;  // of the mode, like the minutes
  core::Label lblKA;   // "Rx Keep Alives in Minutes"
  core::Choice cboKA;  // entry n is n minutes; 0 is off

  PortChoice tnc;
  std::array<core::Choice, kLists> cboTNC;
  core::Label lblSettings;  // "9600,N,8,1"

  core::Check chkNetwork;
  PortChoice network;
  core::Check chkEcho;  // of what the other computer types

  // Of parts that come later; they stand disabled.
  core::Check chkLogger;
  core::TextBox txtLoggerPort;
  core::TextBox txtK3Port;

  core::Label lblWarning;  // what applying does to the link
  core::Label lblProblem;  // what is to be put right, or why a port doesn't open
  core::Label lblResult;   // what has been done
  core::Button cmdLook;    // which devices are present
  core::Button cmdComm;    // "Apply"
  core::Button cmdClose;

  // Fills the fields and opens the form. One that is open stays as the user has it.
  void Show();

  // The mode was chosen elsewhere: an open form shows it.
  void ModeTaken();

  // The local network was switched off by the node, and has no port any more: an open form shows
  // it.
  void NetworkStopped();

 private:
  void Caption();
  void Watch();
  void Load();
  void LoadKeepAlive();
  void ChooseMinutes();
  void Look();
  void Changed();
  void ShowWarning();

  void Apply();
  void StoreInAWhile();
  void Store();
  bool NameDevices(const core::Settings& wanted);
  void OpenPorts(bool tncIsNew, bool networkIsNew);

  // The settings as the fields have them.
  core::Settings Wanted() const;
  std::string Problem(const core::Settings& wanted) const;
  bool TncLineIsNew(const core::Settings& wanted) const;
  bool NetworkLineIsNew(const core::Settings& wanted) const;
  bool EndsLink(const core::Settings& wanted) const;

  platform::Scheduler& scheduler_;
  platform::SerialPorts& ports_;
  core::Settings& settings_;
  PortNames& names_;
  Session& session_;
  Needs needs_;
  bool ending_ = false;  // the link, before all is applied
  std::vector<platform::Registration> watching_;
  platform::Registration storing_;
};

}  // namespace session
