#pragma once

#include <functional>

#include "core/controls.h"
#include "core/settings.h"
#include "platform/platform.h"
#include "platform/tasks.h"
#include "session/session.h"

namespace session {

// The two entries of the menu that say over what the cluster is reached. The settings tell which of
// them holds; choosing that one again runs its rule again.
//
// A link of the other mode ends first, as the user would end it; one that has logged in only if he
// agrees.
class ModeSwitch {
 public:
  struct Needs {
    std::function<void()> takeMode;   // the settings have the other mode now
    std::function<void()> openNodes;  // frmNode
    std::function<void()> askPort;    // the TNC has none yet
    std::function<void()> askScript;  // nor is there a way over it to the cluster
    std::function<void()> delayedWriteCfg;
    platform::FaultHandler onFault;
  };

  // All outlive it.
  ModeSwitch(const platform::Platform& platform, core::Settings& settings, Session& session,
             Needs needs);

  core::Button RadioClus;   // over the TNC
  core::Button TelnetClus;  // over the network

 private:
  platform::Task<> ChooseRadio();
  platform::Task<> ChooseTelnet();
  platform::Task<> AskAboutReconnect();
  // True once no link of another mode than this holds; false if the user keeps it.
  platform::Task<bool> EndOther(bool overTnc);
  platform::Task<bool> MayEnd();
  bool HoldsOther(bool overTnc) const;
  bool Ends(bool overTnc) const;
  void Take(bool overTnc);
  void AskWhatTheTncLacks();

  platform::Dialogs& dialogs_;
  core::Settings& settings_;
  Session& session_;
  Needs needs_;
  platform::Registration radio_;
  platform::Registration telnet_;
  platform::Tasks tasks_;
};

}  // namespace session
