#include "core/word_list.h"

#include <algorithm>

namespace core {
namespace {

auto Place(const std::vector<std::string>& list, std::size_t index) {
  return list.begin() + static_cast<std::ptrdiff_t>(index - 1);
}

}  // namespace

WordPlace FindMatchWord(std::string_view word, const std::vector<std::string>& list) {
  if (word.empty() || list.empty()) return {};
  const auto at = std::lower_bound(list.begin(), list.end(), word);
  return {at != list.end() && *at == word, static_cast<std::size_t>(at - list.begin()) + 1};
}

bool AddItemToArray(std::string_view word, std::vector<std::string>& list) {
  if (word.empty()) return false;
  const WordPlace place = FindMatchWord(word, list);
  if (place.found) return false;
  list.emplace(Place(list, std::max<std::size_t>(place.index, 1)), word);
  return true;
}

bool RemoveItemFromArray(std::string_view word, std::vector<std::string>& list) {
  const WordPlace place = FindMatchWord(word, list);
  if (place.found) list.erase(Place(list, place.index));
  return place.found;
}

}  // namespace core
