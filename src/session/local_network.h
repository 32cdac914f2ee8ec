#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "core/controls.h"
#include "core/settings.h"
#include "platform/serial.h"
#include "platform/tasks.h"
#include "session/timers.h"

namespace session {

// The serial port to another computer, which reads the node's text there and may send commands.
class LocalNetwork {
 public:
  struct Needs {
    std::function<std::string(int number)> portPath;  // empty: there is no such port
    // Whether a command is for this program and has been seen to.
    std::function<bool(std::string_view line)> claimedHere;
    std::function<void(std::string_view line)> sendAsIs;
    std::function<void()> switchedOff;  // by the node: the settings have changed
    // Told why the port does not open, and that it has gone.
    platform::FaultHandler onFault;
  };

  LocalNetwork(platform::SerialPorts& ports, core::Settings& settings, Timers& timers, Needs needs);

  const std::unique_ptr<platform::SerialPort> MSComm2;
  core::Property<std::string> Trouble;  // why the port isn't open; empty: nothing is wrong

  // Opens the port with the settings, unless it is open. False if it can't be opened.
  bool OpenComm2();
  // Lets other programs have the port.
  void CloseComm2();

  // Polled: takes what has come in. One command a reading: what follows a line end counts as so
  // many empty lines.
  void ReadNetwork();

  // Line handler; claims nothing. The node complains that its own text comes back to it: switches
  // the network off, and forgets its port.
  void RunawayNotice(std::string_view line);

  // Writes the text with a line end. Lost while the port is closed.
  void SendRS232(std::string_view text);

 private:
  void TakeLine();

  core::Settings& settings_;
  Timers& timers_;
  Needs needs_;
  std::string NetworkLine;  // the command that has begun
};

}  // namespace session
