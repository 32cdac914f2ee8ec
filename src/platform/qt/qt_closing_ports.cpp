#include "platform/qt/qt_closing_ports.h"

#include <sys/ioctl.h>
#include <sys/stat.h>
#include <termios.h>

#include <utility>

namespace platform::qt {
namespace {

using namespace std::chrono_literals;

constexpr auto kBetweenLooks = 20ms;

// The transmitter's own few bytes are in no count; not every driver tells of them.
bool TransmitterIsBusy(int descriptor) {
  int status = 0;
  return ioctl(descriptor, TIOCSERGETLSR, &status) == 0 && (status & TIOCSER_TEMT) == 0;
}

// Bytes that were written and not transmitted. None on a device that has gone.
std::int64_t Outstanding(const QSerialPort& port) {
  int held = 0;
  if (ioctl(port.handle(), TIOCOUTQ, &held) != 0) return 0;
  return port.bytesToWrite() + held + (TransmitterIsBusy(port.handle()) ? 1 : 0);
}

void Discard(QSerialPort& port) {
  port.clear(QSerialPort::Output);
  port.setFlowControl(QSerialPort::NoFlowControl);
}

bool IsDevice(const QSerialPort& port, const std::string& path) {
  struct stat mine;
  struct stat asked;
  return fstat(port.handle(), &mine) == 0 && stat(path.c_str(), &asked) == 0 &&
         mine.st_rdev == asked.st_rdev;
}

}  // namespace

QtClosingPorts::~QtClosingPorts() {
  for (Closing& closing : closing_) Discard(*closing.port);
}

void QtClosingPorts::Close(std::unique_ptr<QSerialPort> port) {
  port->flush();
  closing_.push_back({std::move(port), scheduler_.Now(), {}});
  Look();
}

void QtClosingPorts::CloseNow(const std::string& path) {
  std::erase_if(closing_, [&path](Closing& closing) {
    if (!IsDevice(*closing.port, path)) return false;
    Discard(*closing.port);
    return true;
  });
}

void QtClosingPorts::Look() {
  std::erase_if(closing_, [this](Closing& closing) { return IsDone(closing); });
  if (closing_.empty()) return;
  looking_ = scheduler_.After(kBetweenLooks, [this] { Look(); });
}

bool QtClosingPorts::IsDone(Closing& closing) const {
  using Step = SerialDraining::Step;
  const Milliseconds since = scheduler_.Now() - closing.since;
  const Step step = closing.draining.Next(Outstanding(*closing.port), since);
  if (step == Step::Discard) Discard(*closing.port);
  return step == Step::Close;
}

}  // namespace platform::qt
