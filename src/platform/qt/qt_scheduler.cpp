#include "platform/qt/qt_scheduler.h"

#include <algorithm>

namespace platform::qt {
namespace {

// A QTimer counts in an int; a longer wait is made of several.
constexpr Milliseconds kLongestWait = std::chrono::hours(24);

}  // namespace

QtScheduler::QtScheduler() {
  timer_.setSingleShot(true);
  timer_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { RunTurn(); });
}

Milliseconds QtScheduler::Now() const {
  const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::floor<Milliseconds>(sinceStart);
}

Registration QtScheduler::After(Milliseconds delay, Callback callback) {
  const Milliseconds due = Now() + std::max(delay, Milliseconds{0});
  Registration registration = queue_.Add(due, std::move(callback));
  Arm();
  return registration;
}

void QtScheduler::RunTurn() {
  inTurn_ = true;
  queue_.RunDue(Now());
  inTurn_ = false;
  Arm();
}

void QtScheduler::Arm() {
  const auto due = queue_.NextDue();
  if (inTurn_ || !due || (timer_.isActive() && *due >= armedFor_)) return;
  armedFor_ = *due;
  timer_.start(std::clamp(*due - Now(), Milliseconds{0}, kLongestWait));
}

}  // namespace platform::qt
