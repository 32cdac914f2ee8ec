#pragma once

#include <string>
#include <vector>

#include "core/controls.h"
#include "platform/serial.h"
#include "session/port_names.h"

namespace session {

// One serial line as the user chooses it: the number of the port, the device that stands behind
// it, and the speed.
class PortChoice {
 public:
  using Devices = std::vector<platform::SerialPorts::Present>;

  // The names outlive this.
  explicit PortChoice(const PortNames& names);

  core::Choice optCommPort;  // entry n is port n; entry 0 is none
  core::Choice cboDevice;    // those that are present, and that of the port
  core::Choice cboBaud;

  // Shows a port and a speed of the settings. What makes no sense shows as none, and as 9600.
  void Load(int port, int baud, Devices present);
  // Shows which devices are present now. What the user has chosen stays.
  void Look(Devices present);
  // No port is chosen.
  void Clear();
  void Enable(bool on);

  int Port() const { return optCommPort.Selected.Get(); }
  int Baud() const;
  // The path of the chosen device; empty without a port.
  const std::string& Device() const { return device_; }

 private:
  void ShowPorts();
  void ShowDevices();
  void ShowBaud(int baud);
  std::string Words(const std::string& path) const;

  const PortNames& names_;
  Devices present_;
  std::vector<std::string> paths_;  // by entry of cboDevice
  std::vector<int> bauds_;          // by entry of cboBaud
  std::string device_;
  bool enabled_ = true;
  platform::Registration portChosen_;
  platform::Registration deviceChosen_;
};

}  // namespace session
