#pragma once

#include <cstdint>
#include <functional>

#include "platform/scheduler.h"

namespace practice_node {

// Beats at a steady rate, over time exactly so many a second. What was missed while the machine
// slept isn't made up for beyond a second's worth.
class Pacer {
 public:
  // A rate of 0 never beats. The beat may stop the pacer, not destroy it.
  Pacer(platform::Scheduler& scheduler, double beatsPerSecond, std::function<void()> beat);

  // The first beat comes one period from now. Starting a running one changes nothing.
  void Start();
  void Stop();
  bool Running() const { return running_; }

 private:
  platform::Milliseconds Due() const;
  void Wait();
  void Beat();

  platform::Scheduler& scheduler_;
  const double rate_;
  const std::function<void()> beat_;
  bool running_ = false;
  platform::Milliseconds start_{0};
  std::int64_t beats_ = 0;  // since start_
  platform::Registration timer_;
};

}  // namespace practice_node
