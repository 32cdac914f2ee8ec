#include "core/text_page.h"

#include <gtest/gtest.h>

#include <string>

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

TEST(TextPage, OnceItIsFullTheOldestGoUpToTheEndOfALine) {
  TextPage page;
  while (page.Characters() <= TextPage::kMostCharacters) page.Append(std::string(98, 'x'));
  const std::size_t full = page.Characters();
  page.Append(std::string(98, 'y'));
  EXPECT_EQ(page.Characters(), full - TextPage::kCutFrom + 100);
}

}  // namespace
