#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <utility>

#include "platform/scheduler.h"

namespace platform {

// Calls waiting for their time, in order of that time and then of their asking. Both schedulers
// keep theirs in one of these, so that the order of events is the same in the program and in tests.
class TimerQueue {
 public:
  using Callback = Scheduler::Callback;

  // The result may outlive the queue.
  Registration Add(Milliseconds due, Callback callback);

  // When the first waiting call is due, or nothing.
  std::optional<Milliseconds> NextDue() const;

  // One turn: calls what is due at `now`, but nothing that is added meanwhile.
  void RunDue(Milliseconds now);

  // Calls the first waiting call if it is due at `now`. False if there was none.
  bool RunFirst(Milliseconds now);

 private:
  struct Key {
    Milliseconds due;
    std::uint64_t sequence;
    auto operator<=>(const Key&) const = default;
  };
  using Calls = std::map<Key, Callback>;

  bool RunFirstBefore(Milliseconds now, std::uint64_t sequence);

  std::shared_ptr<Calls> calls_ = std::make_shared<Calls>();
  std::uint64_t nextSequence_ = 0;
};

}  // namespace platform
