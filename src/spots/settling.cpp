#include "spots/settling.h"

#include <utility>

namespace spots {

using std::chrono_literals::operator""s;

Settling::Settling(const platform::Scheduler& scheduler, std::function<void()> sendSettlingLine)
    : scheduler_(scheduler), sendSettlingLine_(std::move(sendSettlingLine)) {}

bool Settling::Drops(const NodeFacts& node) {
  if (node.Ar17Active || node.Ar17Refused || !node.SessionUp) return false;
  const platform::Milliseconds now = scheduler_.Now();
  if (!sentAt_ || now - *sentAt_ >= 1s) {
    sentAt_ = now;
    sendSettlingLine_();
  }
  return true;
}

}  // namespace spots
