#include "practice_node/pacer.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace practice_node {

using platform::Milliseconds;

Pacer::Pacer(platform::Scheduler& scheduler, double beatsPerSecond, std::function<void()> beat)
    : scheduler_(scheduler), rate_(beatsPerSecond), beat_(std::move(beat)) {}

void Pacer::Start() {
  if (running_ || rate_ <= 0) return;
  running_ = true;
  start_ = scheduler_.Now();
  beats_ = 0;
  Wait();
}

void Pacer::Stop() {
  running_ = false;
  timer_.Release();
}

Milliseconds Pacer::Due() const {
  const double sinceStart = std::ceil(static_cast<double>(beats_ + 1) * 1000.0 / rate_);
  return start_ + Milliseconds(static_cast<Milliseconds::rep>(sinceStart));
}

void Pacer::Wait() {
  timer_ =
      scheduler_.After(std::max(Due() - scheduler_.Now(), Milliseconds{1}), [this] { Beat(); });
}

void Pacer::Beat() {
  const Milliseconds now = scheduler_.Now();
  auto left = static_cast<std::int64_t>(std::max(1.0, rate_));
  while (running_ && Due() <= now && left-- > 0) {
    ++beats_;
    beat_();
  }
  if (!running_) return;
  if (Due() <= now) {
    start_ = now;
    beats_ = 0;
  }
  Wait();
}

}  // namespace practice_node
