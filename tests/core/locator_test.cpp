#include "core/locator.h"

#include <gtest/gtest.h>

#include <string>

namespace core {
namespace {

std::string Centre(std::string_view locator) {
  const auto centre = CentreOfLocator(locator);
  return centre ? FormatLocation(*centre) : "";
}

TEST(CentreOfLocator, IsThatOfTheSquare) {
  EXPECT_EQ(Centre("EN82"), "42 30 N 83 0 W");
  EXPECT_EQ(Centre("JN58"), "48 30 N 11 0 E");
  EXPECT_EQ(Centre("QF56"), "33 30 S 151 0 E");
  EXPECT_EQ(Centre("AA00"), "89 30 S 179 0 W");
  EXPECT_EQ(Centre("RR99"), "89 30 N 179 0 E");
}

TEST(CentreOfLocator, IsThatOfThePartOfASquareToTheMinute) {
  EXPECT_EQ(Centre("EN82DG"), "42 16 N 83 43 W");
  EXPECT_EQ(Centre("JN58TD"), "48 9 N 11 38 E");
  EXPECT_EQ(Centre("AA00AA"), "89 59 S 179 58 W");
  EXPECT_EQ(Centre("RR99XX"), "89 59 N 179 58 E");
}

TEST(CentreOfLocator, AcrossTheEquatorAndGreenwichKeepsItsLetters) {
  EXPECT_EQ(Centre("JJ00AA"), "0 1 N 0 3 E");
  EXPECT_EQ(Centre("II99XX"), "0 1 S 0 3 W");
}

TEST(CentreOfLocator, LettersCountInEitherCase) { EXPECT_EQ(Centre("en82dg"), Centre("EN82DG")); }

TEST(CentreOfLocator, IsNoneForWhatIsNoLocator) {
  for (const std::string_view text :
       {"", "E", "EN", "EN8", "EN82D", "EN82DG1", "SN82", "ES82", "EN8A", "EN82YA", "EN82AY",
        "8282", " EN82", "EN82 ", "E\32182"})
    EXPECT_EQ(Centre(text), "") << text;
}

TEST(CentreOfLocator, IsWithinItsSquareEverywhere) {
  for (char field = 'A'; field <= 'R'; ++field)
    for (char digit = '0'; digit <= '9'; ++digit) {
      const std::string square = {field, field, digit, digit};
      const auto centre = CentreOfLocator(square);
      ASSERT_TRUE(centre) << square;
      const Coordinates at = CoordinatesOf(*centre);
      EXPECT_EQ(at.latitude, -90 + 10 * (field - 'A') + (digit - '0') + 0.5) << square;
      EXPECT_EQ(-at.longitude, -180 + 20 * (field - 'A') + 2 * (digit - '0') + 1) << square;
    }
}

TEST(LocatorStart, CountsTheGoodCharacters) {
  EXPECT_EQ(LocatorStart(""), 0u);
  EXPECT_EQ(LocatorStart("9"), 0u);
  EXPECT_EQ(LocatorStart("E9"), 1u);
  EXPECT_EQ(LocatorStart("ENA"), 2u);
  EXPECT_EQ(LocatorStart("EN82"), 4u);
  EXPECT_EQ(LocatorStart("EN82Z"), 4u);
  EXPECT_EQ(LocatorStart("en82dgx"), 6u);
}

}  // namespace
}  // namespace core
