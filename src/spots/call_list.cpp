#include "spots/call_list.h"

#include <algorithm>
#include <utility>

#include "core/quoted.h"
#include "core/text.h"

namespace spots {

void CallList::Read(std::string text) {
  text_ = std::move(text);
  if (text_.size() > kMostBytes) text_.resize(kMostBytes);
  byCall_.clear();
  std::string_view rest = text_;
  for (std::uint32_t number = 1; !rest.empty(); ++number) {
    const auto start = static_cast<std::uint32_t>(text_.size() - rest.size());
    std::string_view line = core::TakeLine(rest);
    const std::string_view call = core::ExtractToCharacter(' ', line);
    if (!call.empty()) byCall_.push_back({start, static_cast<std::uint32_t>(call.size()), number});
  }
  std::stable_sort(byCall_.begin(), byCall_.end(),
                   [this](const Line& a, const Line& b) { return CallAt(a) < CallAt(b); });
}

std::size_t CallList::FindCall(std::string_view call) const {
  const auto at = std::lower_bound(
      byCall_.begin(), byCall_.end(), call,
      [this](const Line& line, std::string_view key) { return CallAt(line) < key; });
  return at != byCall_.end() && CallAt(*at) == call ? at->number : 0;
}

std::string_view CallList::CallAt(const Line& line) const {
  return std::string_view(text_).substr(line.start, line.length);
}

}  // namespace spots
