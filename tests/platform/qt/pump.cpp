#include "platform/qt/pump.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

bool PumpUntil(const std::function<bool()>& condition, std::chrono::seconds deadline) {
  const QDeadlineTimer end(deadline);
  QTimer wakeUp;
  wakeUp.start(std::chrono::milliseconds(20));
  while (!condition()) {
    if (end.hasExpired()) return false;
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  return true;
}

void PumpTurns(platform::Scheduler& scheduler, int turns) {
  for (; turns > 0; --turns) {
    bool come = false;
    const auto turn = scheduler.Post([&come] { come = true; });
    PumpUntil([&come] { return come; });
  }
}
