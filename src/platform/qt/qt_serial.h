#pragma once

#include <QSerialPort>

#include "platform/serial.h"

namespace platform::qt {

// Sets a port that is not open. Empty on success, otherwise what can't be had, in plain words.
std::string ApplySettings(QSerialPort& port, const SerialSettings& settings);

class QtSerialDevice final : public SerialDevice {
 public:
  explicit QtSerialDevice(Scheduler& scheduler);

  std::string Open(const std::string& path, const SerialSettings& settings) override;
  void Close() override;
  std::string Read() override;
  void Write(std::string_view bytes) override;

 private:
  void OnError(QSerialPort::SerialPortError error);

  Scheduler& scheduler_;
  QSerialPort port_;
  Registration losing_;
};

class QtSerialPorts final : public SerialPorts {
 public:
  explicit QtSerialPorts(Scheduler& scheduler) : scheduler_(scheduler) {}

  std::unique_ptr<SerialPort> MakePort() override;
  std::vector<Present> List() override;

 private:
  Scheduler& scheduler_;
};

}  // namespace platform::qt
