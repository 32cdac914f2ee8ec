#include "platform/qt/qt_clock.h"

#include <QDateTime>

namespace platform::qt {

UtcTime QtClock::UtcNow() const {
  return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
}

std::chrono::minutes QtClock::LocalOffset() const {
  const std::chrono::seconds offset(QDateTime::currentDateTime().offsetFromUtc());
  return std::chrono::floor<std::chrono::minutes>(offset);
}

}  // namespace platform::qt
