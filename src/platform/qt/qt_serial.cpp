#include "platform/qt/qt_serial.h"

#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <QSerialPortInfo>
#include <algorithm>
#include <optional>

namespace platform::qt {
namespace {

constexpr qint64 kReadBuffer = qint64{64} * 1024;

constexpr char kNoDevice[] = "no such device";
constexpr char kNotAPort[] = "not a serial port, or it does not take these settings";

std::optional<QSerialPort::Parity> ParityOf(char letter) {
  switch (letter) {
    case 'N':
      return QSerialPort::NoParity;
    case 'E':
      return QSerialPort::EvenParity;
    case 'O':
      return QSerialPort::OddParity;
    case 'M':
      return QSerialPort::MarkParity;
    case 'S':
      return QSerialPort::SpaceParity;
    default:
      return std::nullopt;
  }
}

std::optional<QSerialPort::StopBits> StopBitsOf(const std::string& count) {
  if (count == "1") return QSerialPort::OneStop;
  if (count == "2") return QSerialPort::TwoStop;
  return std::nullopt;
}

// Both at once is unknown to Qt: the other half is added once the port is open.
QSerialPort::FlowControl FlowOf(FlowControl flow) {
  switch (flow) {
    case FlowControl::XonXoff:
      return QSerialPort::SoftwareControl;
    case FlowControl::Hardware:
    case FlowControl::Both:
      return QSerialPort::HardwareControl;
    case FlowControl::None:
      break;
  }
  return QSerialPort::NoFlowControl;
}

bool AddXonXoff(int descriptor) {
  termios settings;
  if (tcgetattr(descriptor, &settings) != 0) return false;
  settings.c_iflag |= IXON | IXOFF | IXANY;
  return tcsetattr(descriptor, TCSANOW, &settings) == 0;
}

bool HasHungUp(int descriptor) {
  pollfd line{.fd = descriptor, .events = POLLIN, .revents = 0};
  return poll(&line, 1, 0) > 0 && (line.revents & (POLLHUP | POLLERR)) != 0;
}

// Why the port did not open.
std::string Why(const QSerialPort& port, const std::string& path) {
  switch (port.error()) {
    case QSerialPort::DeviceNotFoundError:
      return kNoDevice;
    case QSerialPort::PermissionError:
      // Qt says the same of a port that somebody else has opened.
      return access(path.c_str(), R_OK | W_OK) == 0 ? "busy" : "no permission";
    default:
      return kNotAPort;
  }
}

}  // namespace

std::string ApplySettings(QSerialPort& port, const SerialSettings& settings) {
  const auto parity = ParityOf(settings.parity);
  const auto stopBits = StopBitsOf(settings.stopBits);
  if (settings.baud <= 0) return "a speed of " + std::to_string(settings.baud) + " is not possible";
  if (!parity) return "this parity is not possible";
  if (settings.dataBits < 5 || settings.dataBits > 8)
    return std::to_string(settings.dataBits) + " data bits are not possible";
  if (!stopBits) return settings.stopBits + " stop bits are not possible";
  port.setBaudRate(settings.baud);
  port.setParity(*parity);
  port.setDataBits(static_cast<QSerialPort::DataBits>(settings.dataBits));
  port.setStopBits(*stopBits);
  port.setFlowControl(FlowOf(settings.flow));
  return {};
}

QtSerialDevice::QtSerialDevice(Scheduler& scheduler, QtClosingPorts& closing)
    : scheduler_(scheduler), closing_(closing) {}

QtSerialDevice::~QtSerialDevice() { Close(); }

std::string QtSerialDevice::Open(const std::string& path, const SerialSettings& settings) {
  Close();
  if (path.empty()) return kNoDevice;
  closing_.CloseNow(path);
  port_ = std::make_unique<QSerialPort>();
  std::string why = OpenPort(path, settings);
  if (!why.empty()) port_.reset();
  return why;
}

std::string QtSerialDevice::OpenPort(const std::string& path, const SerialSettings& settings) {
  std::string why = ApplySettings(*port_, settings);
  if (!why.empty()) return why;
  port_->setReadBufferSize(kReadBuffer);
  port_->setPortName(QString::fromStdString(path));
  if (!port_->open(QIODevice::ReadWrite)) return Why(*port_, path);
  if (settings.flow == FlowControl::Both && !AddXonXoff(port_->handle())) return kNotAPort;
  QObject::connect(port_.get(), &QSerialPort::errorOccurred, port_.get(),
                   [this](QSerialPort::SerialPortError error) { OnError(error); });
  return {};
}

void QtSerialDevice::Close() {
  losing_.Release();
  if (port_ == nullptr) return;
  QObject::disconnect(port_.get(), nullptr, nullptr, nullptr);
  closing_.Close(std::move(port_));
}

std::string QtSerialDevice::Read() {
  return port_ == nullptr ? std::string() : port_->readAll().toStdString();
}

void QtSerialDevice::Write(std::string_view bytes) {
  if (port_ != nullptr) port_->write(bytes.data(), static_cast<qint64>(bytes.size()));
}

void QtSerialDevice::OnError(QSerialPort::SerialPortError error) {
  // Qt takes the end of a device that was pulled out for a read that failed, again and again.
  const bool readFailed = error == QSerialPort::ReadError && HasHungUp(port_->handle());
  if (error != QSerialPort::ResourceError && !readFailed) return;
  losing_ = scheduler_.Post([this] {
    Close();
    if (lost) lost("the device has gone");
  });
}

std::unique_ptr<SerialPort> QtSerialPorts::MakePort() {
  return std::make_unique<SerialPort>(scheduler_,
                                      std::make_unique<QtSerialDevice>(scheduler_, closing_));
}

std::vector<SerialPorts::Present> QtSerialPorts::List() {
  std::vector<Present> present;
  for (const QSerialPortInfo& port : QSerialPortInfo::availablePorts())
    present.push_back({port.systemLocation().toStdString(), port.description().toStdString()});
  std::ranges::sort(present, {}, &Present::path);
  return present;
}

}  // namespace platform::qt
