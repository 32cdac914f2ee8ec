#include "spots/rejected_words.h"

#include <gtest/gtest.h>

#include <random>

#include "core/text.h"

namespace spots {
namespace {

class RejectedWordsTest : public testing::Test {
 protected:
  RejectedWords words;
};

TEST_F(RejectedWordsTest, NothingStandsInAnythingWithoutWords) {
  EXPECT_FALSE(words.FirstIn("CW up 2"));
}

TEST_F(RejectedWordsTest, WordIsFoundAnywhereWithoutRegardToCase) {
  words.Add("Ft8");
  for (const char* comment : {"FT8", "ft8 -12 dB", "was fT8", "xFT8x", "ffFT8"})
    EXPECT_EQ(words.FirstIn(comment), 0U) << comment;
  for (const char* comment : {"", "F", "FT", "FT 8", "FT"}) EXPECT_FALSE(words.FirstIn(comment));
}

TEST_F(RejectedWordsTest, FirstOfTheWordsIsTold) {
  words.Add("later");
  words.Add("test");
  words.Add("te");
  EXPECT_EQ(words.FirstIn("te test later"), 0U);
  EXPECT_EQ(words.FirstIn("te test"), 1U);
  EXPECT_EQ(words.FirstIn("te"), 2U);
}

TEST_F(RejectedWordsTest, OneLetterIsAWord) {
  words.Add("!");
  EXPECT_EQ(words.FirstIn("up!"), 0U);
  EXPECT_EQ(words.FirstIn("! up"), 0U);
  EXPECT_FALSE(words.FirstIn("up"));
}

TEST_F(RejectedWordsTest, BytesThatAreNoLettersStandForThemselves) {
  words.Add("gr\xC3\xBC\xC3\x9F");
  EXPECT_EQ(words.FirstIn("GR\xC3\xBC\xC3\x9F Gott"), 0U);
  EXPECT_FALSE(words.FirstIn("GR\xC3\x9C\xC3\x9F Gott"));
}

TEST_F(RejectedWordsTest, ClearedOnesAreGone) {
  words.Add("a");
  words.Add("bc");
  words.Clear();
  EXPECT_FALSE(words.FirstIn("abc"));
  words.Add("c");
  EXPECT_EQ(words.FirstIn("abc"), 0U);
}

TEST_F(RejectedWordsTest, EachCommentIsAnsweredAsASearchForEachWordWould) {
  std::mt19937 random(8);
  const auto text = [&](int most) {
    std::string made(
        std::uniform_int_distribution<std::size_t>(1, static_cast<std::size_t>(most))(random), ' ');
    for (char& byte : made) byte = "aAbBc \xFF"[std::uniform_int_distribution<int>(0, 6)(random)];
    return made;
  };
  std::vector<std::string> all;
  for (int i = 0; i < 60; ++i) {
    all.push_back(text(8));
    words.Add(all.back());
  }
  for (int i = 0; i < 5000; ++i) {
    const std::string comment = text(12);
    RejectedWords::Place expected;
    for (std::size_t place = 0; place < all.size() && !expected; ++place)
      if (core::InStrIgnoringCase(comment, all[place]) > 0) expected = place;
    ASSERT_EQ(words.FirstIn(comment), expected) << comment;
  }
}

}  // namespace
}  // namespace spots
