#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace spots {

// Finds texts in comments, without regard to case. They are found by their places, which count from
// 0 as they were added.
class RejectedWords {
 public:
  using Place = std::optional<std::size_t>;

  void Clear();
  // A text that isn't empty.
  void Add(std::string_view word);

  // The first of the words that stands anywhere in the comment. Looks at the comment once, however
  // many words there are.
  Place FirstIn(std::string_view comment);

 private:
  static std::size_t PairOf(char first, char second);

  std::vector<std::string> words_;                     // in lower case
  std::array<std::vector<std::size_t>, 256> byFirst_;  // places by the first byte
  std::bitset<65536> pairs_;                           // that a word can begin with
  std::string comment_;                                // in lower case
};

}  // namespace spots
