#pragma once

#include <utility>

#include "session_fixture.h"

// A station whose way to the cluster N0CLU is a TNC, with a script of two steps.
class TncStage : public SessionFixture {
 protected:
  static constexpr const char* kPort = "/dev/ttyUSB0";

  TncStage() {
    settings.TncMode = program.state.TncMode = true;
    settings.TncCluster = "N0CLU";
    settings.TncPort = 17;
    settings.TncBaud = 9600;
    settings.TncSteps = {{"c n0dig", "connected to N0DIG", "30"}, {"c n0clu", "N0CLU", "20"}};
  }

  // The TNC says so, and is polled.
  void Says(std::string_view line) {
    tnc->Feed(std::string(line) + "\r");
    LetPass(std::chrono::milliseconds(250));
  }
  // What has been written to it since the last call.
  std::string Written() { return std::exchange(tnc->written, {}); }

  // Presses connect, and lets the first step go out.
  void Begin() {
    PressConnect();
    LetPass(std::chrono::milliseconds(500));
  }
  // The same up to the end of the script.
  void Link() {
    Begin();
    Says("*** CONNECTED to N0DIG");
    Says("*** CONNECTED to N0CLU");
    Written();
  }
  void LogInByTnc() {
    Link();
    Says("login: ");
    Written();
  }

  const core::Label& lamp() const { return program.tncLink.lblTnc; }
  bool RetryAwaited() const { return program.timers.Enabled(session::TimerId::Reconnect); }

  platform::sim::SimDevice* tnc = &world.serialPorts.Plug(kPort, "TNC-X");
};
