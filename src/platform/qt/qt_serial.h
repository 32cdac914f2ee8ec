#pragma once

#include <QSerialPort>
#include <memory>

#include "platform/qt/qt_closing_ports.h"
#include "platform/serial.h"

namespace platform::qt {

// Sets a port that is not open. Empty on success, otherwise what can't be had, in plain words.
std::string ApplySettings(QSerialPort& port, const SerialSettings& settings);

class QtSerialDevice final : public SerialDevice {
 public:
  QtSerialDevice(Scheduler& scheduler, QtClosingPorts& closing);
  QtSerialDevice(const QtSerialDevice&) = delete;
  QtSerialDevice& operator=(const QtSerialDevice&) = delete;
  ~QtSerialDevice() override;

  std::string Open(const std::string& path, const SerialSettings& settings) override;
  void Close() override;
  std::string Read() override;
  void Write(std::string_view bytes) override;

 private:
  std::string OpenPort(const std::string& path, const SerialSettings& settings);
  void OnError(QSerialPort::SerialPortError error);

  Scheduler& scheduler_;
  QtClosingPorts& closing_;
  std::unique_ptr<QSerialPort> port_;  // while open
  Registration losing_;
};

class QtSerialPorts final : public SerialPorts {
 public:
  explicit QtSerialPorts(Scheduler& scheduler) : scheduler_(scheduler), closing_(scheduler) {}

  std::unique_ptr<SerialPort> MakePort() override;
  std::vector<Present> List() override;

 private:
  Scheduler& scheduler_;
  QtClosingPorts closing_;
};

}  // namespace platform::qt
