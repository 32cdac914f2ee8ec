#include "practice_tnc/pseudo_terminal.h"

#include <fcntl.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace practice_tnc {
namespace {

// While no program has the device open, its line counts as cut, and is looked at again after this.
constexpr auto kLookAgain = 200ms;

// A line that changes no byte and sends none back.
void MakeRaw(const std::string& path) {
  const int device = open(path.c_str(), O_RDWR | O_NOCTTY);
  if (device < 0) return;
  termios settings = {};
  if (tcgetattr(device, &settings) == 0) {
    cfmakeraw(&settings);
    tcsetattr(device, TCSANOW, &settings);
  }
  close(device);
}

}  // namespace

PseudoTerminal::PseudoTerminal(platform::Scheduler& scheduler,
                               std::function<void(std::string_view bytes)> received)
    : scheduler_(scheduler),
      received_(std::move(received)),
      own_(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK)) {
  if (own_ < 0 || grantpt(own_) != 0 || unlockpt(own_) != 0) return;
  std::array<char, 128> path = {};
  if (ptsname_r(own_, path.data(), path.size()) != 0) return;
  path_ = path.data();
  MakeRaw(path_);
  readable_ = std::make_unique<QSocketNotifier>(own_, QSocketNotifier::Read);
  QObject::connect(readable_.get(), &QSocketNotifier::activated, readable_.get(),
                   [this] { Read(); });
}

PseudoTerminal::~PseudoTerminal() {
  readable_.reset();
  if (own_ >= 0) close(own_);
}

void PseudoTerminal::Read() {
  std::array<char, 4096> bytes;
  const ssize_t count = read(own_, bytes.data(), bytes.size());
  if (count > 0) {
    received_({bytes.data(), static_cast<std::size_t>(count)});
    return;
  }
  readable_->setEnabled(false);
  waiting_ = scheduler_.After(kLookAgain, [this] { readable_->setEnabled(true); });
}

void PseudoTerminal::Write(std::string_view bytes) const {
  while (!bytes.empty()) {
    const ssize_t count = write(own_, bytes.data(), bytes.size());
    if (count <= 0) return;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

}  // namespace practice_tnc
