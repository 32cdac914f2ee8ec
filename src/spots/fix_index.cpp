#include "spots/fix_index.h"

#include <algorithm>

namespace spots {

void FixIndex::Clear() {
  calls_.clear();
  stems_.clear();
  lengths_.reset();
}

void FixIndex::Add(const FixEntry& entry, std::size_t index) {
  const std::string_view stem = entry.Stem();
  (entry.IsPrefix() ? stems_ : calls_).insert_or_assign(std::string(stem), index);
  if (entry.IsPrefix()) lengths_.set(stem.size());
}

std::optional<std::size_t> FixIndex::PlaceIn(const Places& places, std::string_view text) {
  const auto found = places.find(text);
  return found == places.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::size_t> FixIndex::Find(std::string_view call) const {
  if (call.empty()) return std::nullopt;
  auto last = PlaceIn(calls_, call);
  const std::size_t longest = std::min(call.size() - 1, kLongestStem);
  for (std::size_t length = 0; length <= longest; ++length)
    if (lengths_.test(length)) last = std::max(last, PlaceIn(stems_, call.substr(0, length)));
  return last;
}

std::optional<std::size_t> FixIndex::Of(const FixEntry& entry) const {
  return PlaceIn(entry.IsPrefix() ? stems_ : calls_, entry.Stem());
}

}  // namespace spots
