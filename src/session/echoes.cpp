#include "session/echoes.h"

#include <algorithm>
#include <utility>

#include "core/text.h"

namespace session {
namespace {

// A node that never prompts never deals with anything.
constexpr std::size_t kMostPending = 100;

}  // namespace

void Echoes::Sent(std::string_view text) {
  if (pending_.size() >= kMostPending) pending_.pop_front();
  pending_.push_back({std::string(core::Trim(text))});
}

bool Echoes::IsEcho(std::string_view line) {
  const auto oldest = std::find_if(pending_.begin(), pending_.end(),
                                   [](const Text& text) { return !text.cameBack; });
  if (oldest == pending_.end() || oldest->trimmed != core::Trim(line)) return false;
  oldest->cameBack = true;
  return true;
}

void Echoes::Prompted() {
  if (std::exchange(prompted_, true) && !pending_.empty()) pending_.pop_front();
}

void Echoes::Forget() {
  pending_.clear();
  prompted_ = false;
}

}  // namespace session
