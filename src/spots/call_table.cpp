#include "spots/call_table.h"

#include <bit>
#include <functional>
#include <limits>

#include "core/text.h"

namespace spots {
namespace {

constexpr char kEnd = '\n';
constexpr std::size_t kMostText = std::numeric_limits<std::uint32_t>::max();

}  // namespace

CallTable::CallTable(const std::vector<std::string_view>& calls) {
  std::size_t size = 0;
  for (const std::string_view call : calls) {
    if (size + call.size() + 1 > kMostText) break;
    size += call.size() + 1;
    ++count_;
  }
  text_.reserve(size);
  for (std::size_t i = 0; i < count_; ++i) text_.append(calls[i]).push_back(kEnd);
  if (count_ > 0) Index();
}

// A third of the slots at least stays free, so that a run of taken ones is short.
void CallTable::Index() {
  slots_.assign(std::bit_ceil(count_ + count_ / 2 + 1), 0);
  std::string_view rest = text_;
  while (!rest.empty()) {
    const auto offset = static_cast<std::uint32_t>(text_.size() - rest.size());
    std::uint32_t& slot = slots_[SlotOf(core::ExtractToCharacter(kEnd, rest))];
    if (slot == 0) slot = offset + 1;
  }
}

// The call's own slot, or the free one where it belongs.
std::size_t CallTable::SlotOf(std::string_view call) const {
  const std::size_t mask = slots_.size() - 1;
  std::size_t at = std::hash<std::string_view>{}(call)&mask;
  while (slots_[at] != 0 && !IsAt(slots_[at] - 1, call)) at = (at + 1) & mask;
  return at;
}

bool CallTable::IsAt(std::uint32_t offset, std::string_view call) const {
  const std::string_view from = std::string_view(text_).substr(offset);
  return from.size() > call.size() && from.starts_with(call) && from[call.size()] == kEnd;
}

bool CallTable::Contains(std::string_view call) const {
  return !call.empty() && count_ > 0 && slots_[SlotOf(call)] != 0;
}

std::string CallTable::Lines(std::string_view lineEnd) const {
  std::string lines;
  lines.reserve(text_.size() + count_ * lineEnd.size());
  std::string_view rest = text_;
  while (!rest.empty()) lines.append(core::ExtractToCharacter(kEnd, rest)).append(lineEnd);
  return lines;
}

std::size_t CallTable::Memory() const {
  return text_.capacity() + slots_.capacity() * sizeof(slots_[0]);
}

}  // namespace spots
