#pragma once

#include <map>
#include <string>

#include "platform/serial.h"

namespace platform::sim {

// A device at the end of a wire: what a test plugs in, feeds and reads.
class SimDevice {
 public:
  std::string product;
  bool busy = false;    // another program has it
  std::string written;  // everything the program has written to it
  SerialSettings openedWith;

  // What the device says to the program; lost while nobody has the port open.
  void Feed(std::string_view bytes);

 private:
  friend class SimSerialDevice;
  friend class SimSerialPorts;
  class SimSerialDevice* opener_ = nullptr;
  std::string toProgram_;
};

class SimSerialPorts : public SerialPorts {
 public:
  explicit SimSerialPorts(Scheduler& scheduler) : scheduler_(scheduler) {}

  // The device stays valid until it is unplugged.
  SimDevice& Plug(const std::string& path, const std::string& product = {});
  // Whoever has it open is told that it is lost.
  void Unplug(const std::string& path);

  std::unique_ptr<SerialPort> MakePort() override;
  std::vector<Present> List() override;

 private:
  friend class SimSerialDevice;

  Scheduler& scheduler_;
  std::map<std::string, SimDevice> devices_;
};

}  // namespace platform::sim
