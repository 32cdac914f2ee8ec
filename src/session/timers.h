#pragma once

#include <array>
#include <functional>
#include <string_view>

#include "platform/scheduler.h"
#include "platform/tasks.h"

namespace session {

// The timers that rules name. The number is the timer's index.
enum class TimerId : std::size_t {
  Tnc = 0,
  Clock = 1,
  KeepAliveColour = 2,
  Reconnect = 3,
  ConnectionTimeout = 4,
  LoggerColour = 5,
  NullsColour = 6,
  OpenCommPort = 8,
  WriteCfg = 9,
  Message = 10,
  KeepAlive = 12,
  ConnectScript = 13,
  Minute = 15,
  BareLineEnd = 16,
  AskWho = 21,
  DxQue = 30,
  AskConfig = 31,
  Updater = 32,
};

// The program's clockwork: 35 timers, each with a period and a switch. An interval of 0 never
// fires; enabling a running timer changes nothing; several missed periods fire once. A period is a
// minimum: the next one begins when the duty is done. A one-shot timer switches itself off before
// its duty.
class Timers {
 public:
  static constexpr std::size_t kCount = 35;

  // The timers that the table enables from the start run when Begin is called.
  Timers(platform::Scheduler& scheduler, platform::FaultHandler onFault);

  // What a timer does. Its owner sets it before Begin.
  void SetDuty(TimerId timer, std::function<void()> duty);

  // Ends the time of loading: until then no timer fires, whatever is enabled.
  void Begin();

  void Enable(TimerId timer);
  void Disable(TimerId timer);
  void Restart(TimerId timer);  // a whole period from now; cheap enough for every line
  // Takes effect with the next period; a running one is begun anew.
  void SetInterval(TimerId timer, platform::Milliseconds interval);

  bool Enabled(TimerId timer) const { return At(timer).enabled; }
  platform::Milliseconds Interval(TimerId timer) const { return At(timer).interval; }
  // Until it fires; the whole period before Begin. Meaningless while it is off.
  platform::Milliseconds Remaining(TimerId timer) const;

 private:
  struct Timer {
    platform::Milliseconds interval{0};
    bool enabled = false;
    bool oneShot = false;
    std::function<void()> duty;
    platform::Milliseconds due{0};
    // A wake-up is left where it is when the timer is stopped or put off, and asks again then.
    platform::Milliseconds wakeAt{0};
    bool wakeAsked = false;
    platform::Registration wake;
  };

  Timer& At(TimerId timer) { return timers_[static_cast<std::size_t>(timer)]; }
  const Timer& At(TimerId timer) const { return timers_[static_cast<std::size_t>(timer)]; }
  void Arm(Timer& timer);
  void AskWake(Timer& timer);
  void Wake(Timer& timer);
  void Fire(Timer& timer);

  platform::Scheduler& scheduler_;
  platform::FaultHandler onFault_;
  bool begun_ = false;
  std::array<Timer, kCount> timers_;
};

}  // namespace session
