#include "spots/row_store.h"

#include <gtest/gtest.h>

#include <string>

namespace spots {
namespace {

class RowStoreTest : public testing::Test {
 protected:
  // A spot that takes that many characters with its line end.
  void Add(char letter, std::size_t characters) {
    store.Append({std::string(characters - 2, letter), TableRow::Kind::Other, 6});
  }
  void AddStars() { store.Append({std::string(18, '*'), TableRow::Kind::Stars, 0}); }

  std::string Letters() const {
    std::string letters;
    for (const TableRow& row : store.Rows()) letters += row.Text().front();
    return letters;
  }

  RowStore store;
};

TEST_F(RowStoreTest, NothingIsTakenFromAnEmptyOne) {
  EXPECT_EQ(store.KeepLast(0), 0u);
  EXPECT_EQ(store.CutBefore(5000), 0u);
  store.ClearStars();
  EXPECT_EQ(store.Characters(), 0u);
}

TEST_F(RowStoreTest, EachRowCountsTwoCharactersMore) {
  store.Append({"", TableRow::Kind::Other, 6});
  EXPECT_EQ(store.Characters(), 2u);
  store.Append({"abc", TableRow::Kind::Other, 6});
  EXPECT_EQ(store.Characters(), 7u);
}

TEST_F(RowStoreTest, WholeRowsThatFitIntoTheLastCharactersAreKept) {
  for (const char letter : {'a', 'b', 'c', 'd'}) Add(letter, 100);
  EXPECT_EQ(store.KeepLast(400), 0u);
  EXPECT_EQ(store.KeepLast(200), 2u);
  EXPECT_EQ(Letters(), "cd");
  EXPECT_EQ(store.KeepLast(199), 1u);
  EXPECT_EQ(Letters(), "d");
  EXPECT_EQ(store.Characters(), 100u);
  EXPECT_EQ(store.KeepLast(0), 1u);
  EXPECT_EQ(store.Characters(), 0u);
}

TEST_F(RowStoreTest, CutTakesWhatStandsBeforeTheLastRowThatBeginsAtThePositionOrBefore) {
  Add('a', 2500);
  Add('b', 2499);
  Add('c', 100);
  Add('d', 100);
  EXPECT_EQ(store.CutBefore(5000), 2u);  // "c" begins at 5000
  EXPECT_EQ(Letters(), "cd");
}

TEST_F(RowStoreTest, RowThatBeginsBehindThePositionDoesNotCount) {
  Add('a', 2500);
  Add('b', 2500);
  Add('c', 100);
  EXPECT_EQ(store.CutBefore(5000), 1u);  // "c" begins at 5001
  EXPECT_EQ(Letters(), "bc");
}

TEST_F(RowStoreTest, FirstRowThatReachesBeyondThePositionStays) {
  Add('a', 6000);
  Add('b', 100);
  EXPECT_EQ(store.CutBefore(5000), 0u);
  EXPECT_EQ(Letters(), "ab");
}

TEST_F(RowStoreTest, SeparatorsAreNotCountedAmongTheSpotsThatLeave) {
  Add('a', 100);
  AddStars();
  Add('b', 100);
  EXPECT_EQ(store.KeepLast(100), 1u);
  EXPECT_EQ(Letters(), "b");
}

TEST_F(RowStoreTest, ClearStarsTakesTheSeparatorsAlone) {
  AddStars();
  Add('a', 100);
  AddStars();
  AddStars();
  store.Append({"DX de ******************** in a comment", TableRow::Kind::Other, 6});
  store.ClearStars();
  EXPECT_EQ(Letters(), "aD");
  EXPECT_EQ(store.Characters(), 100u + 41u);
}

}  // namespace
}  // namespace spots
