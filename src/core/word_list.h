#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Lists of words, sorted by their bytes, no word twice.
namespace core {

// Where a word is, or where it belongs. The index counts from 1; it is 0 for an empty word or an
// empty list.
struct WordPlace {
  bool found = false;
  std::size_t index = 0;

  bool operator==(const WordPlace&) const = default;
};

WordPlace FindMatchWord(std::string_view word, const std::vector<std::string>& list);

// Puts the word in its place. False if it is there already, or is empty.
bool AddItemToArray(std::string_view word, std::vector<std::string>& list);

// False if the word is not there.
bool RemoveItemFromArray(std::string_view word, std::vector<std::string>& list);

}  // namespace core
