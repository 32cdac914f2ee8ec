#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "spots/fix_entry.h"

namespace spots {

// Finds the entry for a call, whatever the number of entries.
class FixIndex {
 public:
  void Clear();
  // An entry that is added later wins over those before it, another of the same call replaces it.
  void Add(const FixEntry& entry, std::size_t index);

  // The last entry that fits the call: of the same text, or a prefix that it begins with and is at
  // least as long as, the "*" included.
  std::optional<std::size_t> Find(std::string_view call) const;
  // The last entry of exactly this call, a prefix with its "*".
  std::optional<std::size_t> Of(const FixEntry& entry) const;

 private:
  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };
  using Places = std::unordered_map<std::string, std::size_t, Hash, std::equal_to<>>;

  static constexpr std::size_t kLongestStem = 17;

  static std::optional<std::size_t> PlaceIn(const Places& places, std::string_view text);

  Places calls_;
  Places stems_;
  std::bitset<kLongestStem + 1> lengths_;  // of stems that there are
};

}  // namespace spots
