#pragma once

#include <QSerialPort>
#include <list>
#include <memory>
#include <string>

#include "platform/qt/serial_draining.h"
#include "platform/scheduler.h"

namespace platform::qt {

// Closes serial ports without waiting for their devices. What was written just before still goes
// out, if the device takes it within two seconds; the port is the system's again when it has. Made
// after the application object.
class QtClosingPorts {
 public:
  explicit QtClosingPorts(Scheduler& scheduler) : scheduler_(scheduler) {}
  QtClosingPorts(const QtClosingPorts&) = delete;
  QtClosingPorts& operator=(const QtClosingPorts&) = delete;
  // Drops what has not gone out.
  ~QtClosingPorts();

  // Takes an open port whose signals nobody hears any more.
  void Close(std::unique_ptr<QSerialPort> port);
  // Closes this device now if it is still waiting; what it has not taken is dropped.
  void CloseNow(const std::string& path);

 private:
  struct Closing {
    std::unique_ptr<QSerialPort> port;
    Milliseconds since;
    SerialDraining draining;
  };

  void Look();
  bool IsDone(Closing& closing) const;

  Scheduler& scheduler_;
  std::list<Closing> closing_;
  Registration looking_;
};

}  // namespace platform::qt
