#include "spots/call_list.h"

#include <algorithm>
#include <utility>

#include "core/quoted.h"

namespace spots {

void CallList::Read(std::string text) {
  text_ = std::move(text);
  if (text_.size() > kMostBytes) text_.resize(kMostBytes);
  byCall_.clear();
  std::string_view rest = text_;
  for (std::uint32_t number = 1; !rest.empty(); ++number) {
    const auto start = static_cast<std::uint32_t>(text_.size() - rest.size());
    if (!core::TakeLine(rest).empty()) byCall_.push_back({start, number});
  }
  std::stable_sort(byCall_.begin(), byCall_.end(),
                   [this](const Line& a, const Line& b) { return CallAt(a) < CallAt(b); });
}

std::size_t CallList::FindCall(std::string_view call) const {
  if (call.empty()) return 0;
  const auto at = std::lower_bound(
      byCall_.begin(), byCall_.end(), call,
      [this](const Line& line, std::string_view key) { return CallAt(line) < key; });
  return at != byCall_.end() && CallAt(*at) == call ? at->number : 0;
}

std::string_view CallList::CallAt(const Line& line) const {
  const std::string_view rest = std::string_view(text_).substr(line.start);
  return rest.substr(0, rest.find_first_of(" \r\n"));
}

}  // namespace spots
