#pragma once

#include <QTimer>

#include "platform/scheduler.h"
#include "platform/timer_queue.h"

namespace platform::qt {

// Calls back from Qt's event loop; made after the application object. A turn is one timeout of one
// timer, so Qt's own events, painting among them, come between any two turns.
class QtScheduler final : public Scheduler {
 public:
  QtScheduler();

  Milliseconds Now() const override;
  Registration After(Milliseconds delay, Callback callback) override;

 private:
  void RunTurn();
  void Arm();

  TimerQueue queue_;
  QTimer timer_;
  Milliseconds armedFor_{0};  // while the timer is active
  bool inTurn_ = false;
};

}  // namespace platform::qt
