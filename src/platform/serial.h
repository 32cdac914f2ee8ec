#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/scheduler.h"

namespace platform {

enum class FlowControl { None, XonXoff, Hardware, Both };

// What a serial port is opened with.
struct SerialSettings {
  int baud = 9600;
  char parity = 'N';           // N, E, O, M or S
  int dataBits = 8;            // 4 to 8
  std::string stopBits = "1";  // "1", "1.5" or "2"
  FlowControl flow = FlowControl::None;

  bool operator==(const SerialSettings&) const = default;
};

// One serial device as the system gives it.
class SerialDevice {
 public:
  virtual ~SerialDevice() = default;

  // Empty on success, otherwise why not, in plain words ("busy", "no such device").
  virtual std::string Open(const std::string& path, const SerialSettings& settings) = 0;
  // Never waits. What was written still goes out if the device takes it within two seconds.
  virtual void Close() = 0;
  // Everything that has come in since.
  virtual std::string Read() = 0;
  virtual void Write(std::string_view bytes) = 0;

  // The device has gone while open; it counts as closed. Comes in a turn of its own.
  std::function<void(const std::string& why)> lost;
};

// One serial port, as the rules see it. Polled, as they poll it.
class SerialPort {
 public:
  SerialPort(Scheduler& scheduler, std::unique_ptr<SerialDevice> device);
  SerialPort(const SerialPort&) = delete;
  SerialPort& operator=(const SerialPort&) = delete;

  std::string CommPort;     // path of the device
  SerialSettings Settings;  // read by Open

  // Empty on success, otherwise why not. Opening an open port changes nothing.
  std::string Open();
  // Drops what was not read and not yet written.
  void Close();
  bool PortOpen() const { return open_; }

  std::size_t InBufferCount();
  // Takes everything that has come in.
  std::string Input();
  // Writes after everything told before, `gap` later than the piece before it. Lost if closed.
  void Output(std::string_view bytes, Milliseconds gap = Milliseconds{0});
  // Nothing waits to be written.
  bool AllWritten() const { return waiting_.empty(); }

  std::function<void(const std::string& why)> lost;

 private:
  struct Piece {
    std::string bytes;
    Milliseconds gap;
  };

  void WriteNext();

  Scheduler& scheduler_;
  std::unique_ptr<SerialDevice> device_;
  bool open_ = false;
  std::string received_;
  std::vector<Piece> waiting_;
  Registration writing_;
};

// Makes the serial ports of a platform.
class SerialPorts {
 public:
  struct Present {
    std::string path;     // "/dev/ttyUSB0"
    std::string product;  // what the device calls itself; may be empty
  };
  virtual ~SerialPorts() = default;
  virtual std::unique_ptr<SerialPort> MakePort() = 0;
  virtual std::vector<Present> List() = 0;
};

}  // namespace platform
