#include "core/word_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <string>

namespace core {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Words = std::vector<std::string>;

TEST(FindMatchWord, CountsItsIndexFromOne) {
  const Words list = {"DL1AAA", "F5BBB", "N0CALL"};
  EXPECT_EQ(FindMatchWord("DL1AAA", list), (WordPlace{true, 1}));
  EXPECT_EQ(FindMatchWord("N0CALL", list), (WordPlace{true, 3}));
}

TEST(FindMatchWord, TellsWhereAMissingWordBelongs) {
  const Words list = {"DL1AAA", "F5BBB"};
  EXPECT_EQ(FindMatchWord("A", list), (WordPlace{false, 1}));
  EXPECT_EQ(FindMatchWord("E", list), (WordPlace{false, 2}));
  EXPECT_EQ(FindMatchWord("Z", list), (WordPlace{false, 3}));
}

TEST(FindMatchWord, FindsNothingAtIndexZeroForAnEmptyWordOrList) {
  EXPECT_EQ(FindMatchWord("A", {}), (WordPlace{false, 0}));
  EXPECT_EQ(FindMatchWord("", {"A"}), (WordPlace{false, 0}));
}

TEST(FindMatchWord, ComparesByteForByte) {
  const Words list = {"A", "AB", "a", "\xE4"};
  EXPECT_EQ(FindMatchWord("a", list), (WordPlace{true, 3}));
  EXPECT_EQ(FindMatchWord("b", list), (WordPlace{false, 4}));
  EXPECT_EQ(FindMatchWord("\xE4", list), (WordPlace{true, 4}));
  EXPECT_EQ(FindMatchWord("ABC", list), (WordPlace{false, 3}));
}

TEST(AddItemToArray, CreatesTheFirstEntryOfAnEmptyList) {
  Words list;
  EXPECT_TRUE(AddItemToArray("N0CALL", list));
  EXPECT_THAT(list, ElementsAre("N0CALL"));
}

TEST(AddItemToArray, KeepsTheListSorted) {
  Words list;
  for (const auto* word : {"M", "Z", "A", "N"}) AddItemToArray(word, list);
  EXPECT_THAT(list, ElementsAre("A", "M", "N", "Z"));
}

TEST(AddItemToArray, AddsNoWordTwice) {
  Words list = {"A"};
  EXPECT_FALSE(AddItemToArray("A", list));
  EXPECT_THAT(list, ElementsAre("A"));
}

TEST(AddItemToArray, AddsNoEmptyWord) {
  Words list;
  EXPECT_FALSE(AddItemToArray("", list));
  EXPECT_THAT(list, IsEmpty());
}

TEST(RemoveItemFromArray, TakesTheWordOut) {
  Words list = {"A", "M", "Z"};
  EXPECT_TRUE(RemoveItemFromArray("M", list));
  EXPECT_THAT(list, ElementsAre("A", "Z"));
  EXPECT_TRUE(RemoveItemFromArray("Z", list));
  EXPECT_TRUE(RemoveItemFromArray("A", list));
  EXPECT_THAT(list, IsEmpty());
}

TEST(RemoveItemFromArray, LeavesAListWithoutTheWord) {
  Words list = {"A", "Z"};
  EXPECT_FALSE(RemoveItemFromArray("M", list));
  EXPECT_FALSE(RemoveItemFromArray("", list));
  EXPECT_THAT(list, ElementsAre("A", "Z"));
}

TEST(WordList, HoldsWhatASetHoldsAfterRandomChanges) {
  constexpr unsigned kSeed = 17;
  SCOPED_TRACE("seed " + std::to_string(kSeed));
  std::mt19937 engine(kSeed);
  Words list;
  std::set<std::string> set;
  for (int change = 0; change < 5000; ++change) {
    const std::string word = std::to_string(engine() % 200);
    const bool adds = engine() % 2 == 0;
    const bool changed = adds ? AddItemToArray(word, list) : RemoveItemFromArray(word, list);
    EXPECT_EQ(changed, adds ? set.insert(word).second : set.erase(word) == 1);
    ASSERT_TRUE(std::equal(list.begin(), list.end(), set.begin(), set.end())) << change;
  }
}

}  // namespace
}  // namespace core
