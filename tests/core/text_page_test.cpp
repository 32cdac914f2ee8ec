#include "core/text_page.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

using core::TextPage;

TEST(TextPage, OfALineLongerThanThePageOnlyTheBeginningIsKept) {
  TextPage page;
  page.Append("begun " + std::string(1'000'000, 'x'));
  ASSERT_EQ(page.Lines().size(), 1u);
  EXPECT_EQ(page.Lines().front().size(), TextPage::kMostCharacters);
  EXPECT_TRUE(page.Lines().front().starts_with("begun x"));
  page.Append("next");
  EXPECT_EQ(page.Lines().back(), "next");
}

// A page with so many lines of that many characters each, without their ends, that goes on until it
// is full. Gives how many lines the next one takes out.
std::size_t CutFromAPageOf(const std::vector<std::pair<int, std::size_t>>& lines) {
  TextPage page;
  for (const auto& [count, size] : lines)
    for (int i = 0; i < count; ++i) page.Append(std::string(size, 'x'));
  while (page.Characters() <= TextPage::kMostCharacters) page.Append(std::string(98, 'x'));
  std::size_t removed = 0;
  const auto watching =
      page.Observe([&](const TextPage::Change& change) { removed = change.removed; });
  page.Append("next");
  return removed;
}

TEST(TextPage, OnceItIsFullTheOldestGoUpToTheFirstLineEndAtTheCutOrBehindIt) {
  EXPECT_EQ(CutFromAPageOf({{49, 98}, {1, 97}}), 51u) << "its CR stands at 4998";
  EXPECT_EQ(CutFromAPageOf({{50, 98}}), 51u) << "at 4999";
  EXPECT_EQ(CutFromAPageOf({{49, 98}, {1, 99}}), 50u) << "at 5000";
  EXPECT_EQ(CutFromAPageOf({{49, 98}, {1, 100}}), 50u) << "at 5001";
}

TEST(TextPage, LinesOfAnyLengthGoWhole) {
  EXPECT_EQ(CutFromAPageOf({{1, 19999}}), 1u);
  EXPECT_EQ(CutFromAPageOf({{1, 4998}, {1, 0}}), 2u);
  EXPECT_EQ(CutFromAPageOf({{1, 4998}, {1, 9000}}), 2u);
  EXPECT_EQ(CutFromAPageOf({{2500, 0}}), 2501u);
}

TEST(TextPage, WhatIsLeftOfAFullPageIsCounted) {
  TextPage page;
  for (int i = 0; i <= 200; ++i) page.Append(std::string(98, 'x'));
  EXPECT_EQ(page.Characters(), 20100u);
  page.Append(std::string(98, 'y'));
  EXPECT_EQ(page.Characters(), 15100u);
  EXPECT_EQ(page.Lines().size(), 151u);
}

TEST(TextPage, APageIsFullAboveItsMostCharacters) {
  TextPage page;
  for (int i = 0; i < 200; ++i) page.Append(std::string(98, 'x'));
  page.Append("the page held 20000");
  EXPECT_EQ(page.Lines().size(), 201u);
}

}  // namespace
