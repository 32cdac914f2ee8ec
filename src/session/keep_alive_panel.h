#pragma once

#include <functional>

#include "core/controls.h"
#include "core/settings.h"
#include "session/keep_alive.h"

namespace session {

// fraKA: how often the link is kept alive, and by whose silence.
class KeepAlivePanel {
 public:
  enum Direction { Tx, Rx };
  enum Mode { Telnet, Tnc };

  struct Needs {
    std::function<bool()> autoReconnect;  // whether it is ticked
    std::function<void()> writeCfg;
  };

  KeepAlivePanel(KeepAlive& keepAlive, core::Settings& settings, Needs needs);

  core::Choice optKA;         // minutes: entries 0 to 13 are 1 to 14, the last one is off
  core::Choice optDirection;  // Option1(0) and Option1(1)
  core::Choice optMode;       // Option1(2) and Option1(3): whose setting Apply stores
  core::Button cmdExit;       // "Apply"

  // Takes the settings of the mode that the program runs in, and shows them.
  void Load();

 private:
  void ChooseMinutes();
  void Apply();

  KeepAlive& keepAlive_;
  core::Settings& settings_;
  Needs needs_;
  platform::Registration choosing_;
  platform::Registration applying_;
};

}  // namespace session
