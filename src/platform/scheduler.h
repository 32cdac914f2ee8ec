#pragma once

#include <chrono>
#include <functional>

#include "platform/registration.h"

namespace platform {

using Milliseconds = std::chrono::milliseconds;

// The one place where things happen later. Everything runs on the one thread.
class Scheduler {
 public:
  using Callback = std::function<void()>;

  virtual ~Scheduler() = default;

  // Time since an arbitrary start. Never steps, whatever happens to the wall clock.
  virtual Milliseconds Now() const = 0;

  // Calls back once, `delay` or more from now, in a later turn (never from inside this call).
  // Calls that are due at the same time come in the order in which they were asked for; what is
  // asked for during a turn comes in a later one. Releasing the result cancels the call.
  virtual Registration After(Milliseconds delay, Callback callback) = 0;

  // Calls back in the next turn.
  Registration Post(Callback callback) { return After(Milliseconds{0}, std::move(callback)); }
};

}  // namespace platform
