#include "platform/qt/qt_end_signals.h"

#include <unistd.h>

#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <memory>

namespace platform::qt {
namespace {

std::array<int, 2> pipeEnds = {-1, -1};
std::unique_ptr<QSocketNotifier> notifier;

constexpr std::array kSignals = {SIGTERM, SIGINT, SIGHUP};

// In a signal handler nothing but a write is allowed.
void OnSignal(int) {
  const char byte = 0;
  [[maybe_unused]] const auto written = write(pipeEnds[1], &byte, 1);
}

}  // namespace

QtEndSignals::QtEndSignals(std::function<void()> onEnd) {
  if (pipe(pipeEnds.data()) != 0) return;
  notifier = std::make_unique<QSocketNotifier>(pipeEnds[0], QSocketNotifier::Read);
  QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(),
                   [onEnd = std::move(onEnd)] {
                     char byte = 0;
                     if (read(pipeEnds[0], &byte, 1) == 1) onEnd();
                   });
  for (const int signal : kSignals) std::signal(signal, OnSignal);
}

QtEndSignals::~QtEndSignals() {
  for (const int signal : kSignals) std::signal(signal, SIG_DFL);
  notifier.reset();
  for (const int end : pipeEnds)
    if (end >= 0) close(end);
}

}  // namespace platform::qt
