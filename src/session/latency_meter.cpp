#include "session/latency_meter.h"

#include <string>
#include <utility>

#include "core/text.h"

namespace session {
namespace {

constexpr std::chrono::seconds kUsualInterval{10};

// Seconds with three digits before the point and one or two behind it, rounded half up.
std::string Seconds(platform::Milliseconds span, std::size_t decimals) {
  const unsigned unit = decimals == 1 ? 100 : 10;
  const unsigned perSecond = 1000 / unit;
  const unsigned units = (static_cast<unsigned>(span.count()) + unit / 2) / unit;
  return core::Digits(units / perSecond, 3) + "." + core::Digits(units % perSecond, decimals);
}

}  // namespace

void LatencyMeter::Begin() { sentAt_ = scheduler_.Now(); }

void LatencyMeter::Latency(std::string_view line) {
  if (!sentAt_ || !state_.RcvdPrompt(line)) return;
  const platform::Milliseconds now = scheduler_.Now();
  const bool soon = now - readAt_.value_or(*sentAt_) < kUsualInterval;
  last_ = now - *sentAt_;
  Text3.Caption.Set(Seconds(last_, soon ? 2 : 1));
  readAt_ = now;
  sentAt_.reset();
}

}  // namespace session
