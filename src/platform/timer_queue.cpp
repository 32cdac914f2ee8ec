#include "platform/timer_queue.h"

#include <algorithm>
#include <limits>

namespace platform {

Registration TimerQueue::Add(Milliseconds due, Callback callback) {
  const Key key{due, nextSequence_++};
  calls_->emplace(key, std::move(callback));
  return Registration([calls = std::weak_ptr(calls_), key] {
    // The node is taken out first: destroying a callback may release further registrations.
    if (const auto alive = calls.lock()) const auto dropped = alive->extract(key);
  });
}

std::optional<Milliseconds> TimerQueue::NextDue() const {
  if (calls_->empty()) return std::nullopt;
  return calls_->begin()->first.due;
}

void TimerQueue::RunDue(Milliseconds now) {
  const std::uint64_t turnEnd = nextSequence_;
  while (RunFirstBefore(now, turnEnd)) {
  }
}

bool TimerQueue::RunFirst(Milliseconds now) {
  return RunFirstBefore(now, std::numeric_limits<std::uint64_t>::max());
}

bool TimerQueue::RunFirstBefore(Milliseconds now, std::uint64_t sequence) {
  const auto ready = std::find_if(calls_->begin(), calls_->end(), [&](const auto& call) {
    return call.first.due > now || call.first.sequence < sequence;
  });
  if (ready == calls_->end() || ready->first.due > now) return false;
  auto call = calls_->extract(ready);
  call.mapped()();
  return true;
}

}  // namespace platform
