#include "session/timers.h"

#include <exception>
#include <string>

namespace session {
namespace {

struct Row {
  std::size_t index;
  std::string_view name;
  int interval;  // milliseconds
  bool enabledAtStart;
  bool oneShot = false;
};

// 3 and 31 are set anew at run time, 13 by the step of the connect script.
constexpr std::array<Row, Timers::kCount> kTimers = {{
    {0, "TimerTnc", 250, false},
    {1, "timerClock", 1000, true},
    {2, "timer2", 5000, false, true},
    {3, "timerReconnect", 55000, false, true},
    {4, "Timerconnectiontimeout", 15000, false},
    {5, "timerloggerdisplay", 5000, false, true},
    {6, "", 5000, false, true},
    {7, "timedelay", 250, true, true},
    {8, "timeropencommport", 500, false, true},
    {9, "timerWriteCFG", 2000, false, true},
    {10, "timer1", 60000, false, true},
    {11, "timerunload", 2000, false, true},
    {12, "Timer1", 60000, true},
    {13, "timernetrom", 0, true},
    {14, "", 10000, false, true},
    {15, "Suntimer", 60000, true},
    {16, "", 1000, false, true},
    {17, "", 1000, true},
    {18, "", 6000, false, true},
    {19, "", 200, false, true},
    {20, "", 2000, false},
    {21, "", 1000, false, true},
    {22, "", 5000, false, true},
    {23, "", 500, false, true},
    {24, "", 1000, true},
    {25, "", 5000, true},
    {26, "", 0, false},
    {27, "", 60, true},
    {28, "", 10000, true, true},
    {29, "", 1000, false, true},
    {30, "", 100, true},
    {31, "", 1000, false, true},
    {32, "Updater", 60000, false},
    {33, "", 0, false},
    {34, "", 30000, false, true},
}};

constexpr bool IndicesAreInOrder() {
  for (std::size_t i = 0; i < kTimers.size(); ++i)
    if (kTimers[i].index != i) return false;
  return true;
}
static_assert(IndicesAreInOrder());

}  // namespace

Timers::Timers(platform::Scheduler& scheduler, platform::FaultHandler onFault)
    : scheduler_(scheduler), onFault_(std::move(onFault)) {
  for (const Row& row : kTimers) {
    timers_[row.index].interval = platform::Milliseconds{row.interval};
    timers_[row.index].enabled = row.enabledAtStart;
    timers_[row.index].oneShot = row.oneShot;
  }
}

void Timers::SetDuty(TimerId timer, std::function<void()> duty) {
  At(timer).duty = std::move(duty);
}

void Timers::Begin() {
  begun_ = true;
  for (Timer& timer : timers_) Arm(timer);
}

void Timers::Enable(TimerId timer) {
  if (!At(timer).enabled) Restart(timer);
}

void Timers::Disable(TimerId timer) { At(timer).enabled = false; }

void Timers::Restart(TimerId timer) {
  At(timer).enabled = true;
  Arm(At(timer));
}

void Timers::SetInterval(TimerId timer, platform::Milliseconds interval) {
  At(timer).interval = interval;
  if (Enabled(timer)) Restart(timer);
}

platform::Milliseconds Timers::Remaining(TimerId timer) const {
  return begun_ ? At(timer).due - scheduler_.Now() : At(timer).interval;
}

void Timers::Arm(Timer& timer) {
  // Without a duty there is nothing to wake up for, but to switch off.
  const bool acts = timer.duty || timer.oneShot;
  if (!begun_ || !timer.enabled || !acts || timer.interval.count() == 0) return;
  timer.due = scheduler_.Now() + timer.interval;
  if (!timer.wakeAsked || timer.wakeAt > timer.due) AskWake(timer);
}

void Timers::AskWake(Timer& timer) {
  timer.wakeAsked = true;
  timer.wakeAt = timer.due;
  timer.wake = scheduler_.After(timer.due - scheduler_.Now(), [this, &timer] { Wake(timer); });
}

void Timers::Wake(Timer& timer) {
  timer.wakeAsked = false;
  if (!timer.enabled || timer.interval.count() == 0) return;
  if (scheduler_.Now() < timer.due)
    AskWake(timer);
  else
    Fire(timer);
}

void Timers::Fire(Timer& timer) {
  const platform::Milliseconds due = timer.due;
  if (timer.oneShot) timer.enabled = false;
  try {
    if (timer.duty) timer.duty();
  } catch (const std::exception& fault) {
    const auto index = &timer - timers_.data();
    onFault_("TimeCounter " + std::to_string(index), fault.what());
  }
  if (timer.enabled && timer.due == due) Arm(timer);  // unless the duty restarted it
}

}  // namespace session
