#include "session/latency_meter.h"

#include <string>
#include <utility>

#include "core/dates.h"

namespace session {
namespace {

constexpr std::chrono::seconds kUsualInterval{10};

}  // namespace

void LatencyMeter::Begin() {
  sentAt_ = scheduler_.Now();
  Text3.Caption.Set({});
}

void LatencyMeter::Latency(std::string_view line) {
  if (!sentAt_ || !state_.RcvdPrompt(line)) return;
  const platform::Milliseconds now = scheduler_.Now();
  const bool soon = now - readAt_.value_or(*sentAt_) < kUsualInterval;
  last_ = now - *sentAt_;
  Text3.Caption.Set(core::Seconds(last_, 3, soon ? 2 : 1));
  readAt_ = now;
  sentAt_.reset();
}

}  // namespace session
