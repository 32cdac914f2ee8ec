#include "spots/call_list.h"

#include <gtest/gtest.h>

#include <random>

namespace spots {
namespace {

class CallListTest : public testing::Test {
 protected:
  std::size_t Find(std::string text, std::string_view call) {
    list.Read(std::move(text));
    return list.FindCall(call);
  }

  CallList list;
};

TEST_F(CallListTest, AnEmptyOneFindsNothing) {
  EXPECT_EQ(list.FindCall("K1ABC"), 0u);
  EXPECT_EQ(Find("", "K1ABC"), 0u);
  EXPECT_EQ(Find("\r\n\r\n", ""), 0u);
}

TEST_F(CallListTest, GivesTheLineCountedFromOne) {
  EXPECT_EQ(Find("AA1A FN42\r\nK1ABC FN20\r\nW8RIK EN81\r\n", "AA1A"), 1u);
  EXPECT_EQ(list.FindCall("K1ABC"), 2u);
  EXPECT_EQ(list.FindCall("W8RIK"), 3u);
}

TEST_F(CallListTest, ComparesWholeCallsToTheLetter) {
  list.Read("K1ABC FN20\r\n");
  for (const std::string_view call : {"", "K1AB", "K1ABCD", "k1abc", "FN20", "K1ABC FN20"})
    EXPECT_EQ(list.FindCall(call), 0u) << call;
}

TEST_F(CallListTest, LinesMayEndEitherWayOrNotAtAll) {
  EXPECT_EQ(Find("AA1A FN42\nK1ABC FN20", "K1ABC"), 2u);
  EXPECT_EQ(Find("AA1A\r\nK1ABC", "AA1A"), 1u);
  EXPECT_EQ(Find("AA1A\nK1ABC\n", "AA1A"), 1u);
}

TEST_F(CallListTest, EmptyLinesCountAndAreNoCalls) {
  EXPECT_EQ(Find("\r\nAA1A FN42\r\n\r\nK1ABC FN20\r\n", "K1ABC"), 4u);
  EXPECT_EQ(list.FindCall(""), 0u);
}

TEST_F(CallListTest, OfEqualCallsTheFirstIsFound) {
  EXPECT_EQ(Find("AA1A FN42\nK1ABC FN20\nK1ABC FN42\n", "K1ABC"), 2u);
}

TEST_F(CallListTest, FindsAllInAnUnsortedList) {
  EXPECT_EQ(Find("W8RIK EN81\nK1ABC FN20\nAA1A FN42\n", "W8RIK"), 1u);
  EXPECT_EQ(list.FindCall("AA1A"), 3u);
}

TEST_F(CallListTest, FindsEachOfManyCalls) {
  std::string text;
  for (int i = 0; i < 5000; ++i) text += "K" + std::to_string(i * 7919 % 5000) + "A FN42\r\n";
  list.Read(text);
  for (int i = 0; i < 5000; ++i)
    EXPECT_EQ(list.FindCall("K" + std::to_string(i * 7919 % 5000) + "A"),
              static_cast<std::size_t>(i) + 1);
}

TEST_F(CallListTest, AnotherTextTakesThePlaceOfTheFirst) {
  EXPECT_EQ(Find("K1ABC FN20\n", "K1ABC"), 1u);
  EXPECT_EQ(Find("AA1A FN42\n", "K1ABC"), 0u);
}

TEST_F(CallListTest, AnyBytesAreHarmless) {
  std::mt19937 random(20261121);
  for (int round = 0; round < 200; ++round) {
    std::string text(random() % 4000, '\0');
    for (char& byte : text) byte = static_cast<char>(random());
    EXPECT_EQ(Find(text, "K1ABC"), 0u);
  }
}

TEST_F(CallListTest, AGiantIsReadUpToItsBound) {
  const std::string line = "AA1A" + std::string(1'000'000, '.') + "\n";
  std::string text = "K1ABC\n";
  while (text.size() < CallList::kMostBytes) text += line;
  EXPECT_EQ(Find(text + "W8RIK\n", "K1ABC"), 1u);
  EXPECT_EQ(list.FindCall("W8RIK"), 0u);
}

}  // namespace
}  // namespace spots
