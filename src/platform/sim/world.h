#pragma once

#include <functional>

#include "platform/platform.h"
#include "platform/sim/sim_browser.h"
#include "platform/sim/sim_dialogs.h"
#include "platform/sim/sim_files.h"
#include "platform/sim/sim_http.h"
#include "platform/sim/sim_network.h"
#include "platform/sim/sim_programs.h"
#include "platform/sim/sim_serial.h"
#include "platform/timer_queue.h"

namespace platform::sim {

// Time that moves only when the test says so.
class VirtualScheduler : public Scheduler {
 public:
  Milliseconds Now() const override { return now_; }
  Registration After(Milliseconds delay, Callback callback) override {
    return queue_.Add(now_ + std::max(delay, Milliseconds{0}), std::move(callback));
  }

  // Runs the next event if it is due by `end`, moving the time to it. False if there is none.
  bool Step(Milliseconds end);
  void AdvanceTo(Milliseconds time) { now_ = std::max(now_, time); }

 private:
  TimerQueue queue_;
  Milliseconds now_{0};
};

// The wall clock of the simulated world; it runs with the scheduler and can be stepped.
class SimClock : public Clock {
 public:
  explicit SimClock(const Scheduler& scheduler) : scheduler_(scheduler) {}
  UtcTime UtcNow() const override { return start_ + scheduler_.Now(); }
  std::chrono::minutes LocalOffset() const override { return localOffset; }

  // Makes it this time now; it runs on from there.
  void Set(UtcTime now) { start_ = now - scheduler_.Now(); }
  std::chrono::minutes localOffset{0};

 private:
  const Scheduler& scheduler_;
  UtcTime start_ =
      std::chrono::sys_days{std::chrono::year{2026} / 11 / 20} + std::chrono::hours{21};
};

// Everything outside the program, in one order of events.
class World {
 public:
  World();
  ~World();

  VirtualScheduler scheduler;
  SimClock clock{scheduler};
  SimNetwork network{scheduler};
  SimSerialPorts serialPorts{scheduler};
  SimFiles files;
  SimDialogs dialogs;
  SimBrowser browser;
  SimHttp http;
  SimPrograms programs;

  Platform platform() {
    return {scheduler, clock,   network, network, serialPorts,
            files,     dialogs, browser, http,    programs};
  }

  // Lets that much time pass.
  void Run(Milliseconds duration);
  // Lets time pass until the condition holds; false if it doesn't within `most`.
  bool RunUntil(const std::function<bool()>& condition,
                Milliseconds most = std::chrono::minutes{10});
};

}  // namespace platform::sim
