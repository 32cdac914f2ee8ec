#include "session/echoes.h"

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

// One that has seen a prompt and did not come back may never do so: those behind it still can.
bool Echoes::IsEcho(std::string_view line) {
  const std::string_view trimmed = core::Trim(line);
  for (Text& text : pending_) {
    if (text.cameBack) continue;
    if (text.trimmed == trimmed) return text.cameBack = echoing_ = true;
    if (text.prompts == 0) return false;
  }
  return false;
}

void Echoes::Prompted() {
  if (!std::exchange(prompted_, true)) return;
  if (!pending_.empty()) pending_.pop_front();
  for (Text& text : pending_) ++text.prompts;
  if (!echoing_) std::erase_if(pending_, [](const Text& text) { return text.prompts > 1; });
}

void Echoes::Forget() {
  pending_.clear();
  prompted_ = false;
  echoing_ = false;
}

}  // namespace session
