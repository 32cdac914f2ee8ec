#include "spots/settling.h"

#include <utility>

namespace spots {

namespace {

constexpr platform::Milliseconds kPause{1000};

}  // namespace

Settling::Settling(const platform::Scheduler& scheduler, std::function<void()> sendSettlingLine)
    : scheduler_(scheduler), sendSettlingLine_(std::move(sendSettlingLine)) {}

bool Settling::Drops(const NodeFacts& node) {
  if (node.Ar17Active || node.Ar17Refused || !node.SessionUp) return false;
  const platform::Milliseconds now = scheduler_.Now();
  if (!sentAt_ || now - *sentAt_ >= kPause) {
    sentAt_ = now;
    sendSettlingLine_();
  }
  return true;
}

}  // namespace spots
