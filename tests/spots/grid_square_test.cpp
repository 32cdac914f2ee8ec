#include "spots/grid_square.h"

#include <gtest/gtest.h>

namespace spots {
namespace {

TEST(GridSquare, GoesByTheFirstFourCharacters) {
  for (const std::string_view grid : {"FN20", "AA00", "RR99", "FN20AB", "FN20??"})
    EXPECT_TRUE(ValidGrid4(grid)) << grid;
}

TEST(GridSquare, IsNoneBeyondItsLettersAndDigits) {
  for (const std::string_view grid :
       {"", "F", "FN2", "FS20", "SN20", "fn20", "FN2A", "F220", "2020", "FN:0", "@N20", "FN 0"})
    EXPECT_FALSE(ValidGrid4(grid)) << grid;
}

TEST(GridSquare, CountsByItsCentre) {
  EXPECT_EQ(CentreOfGrid("FN20"), (core::Coordinates{40.5, 75}));
  EXPECT_EQ(CentreOfGrid("JN58TD"), (core::Coordinates{48.5, -11}));
  EXPECT_EQ(CentreOfGrid("AA00"), (core::Coordinates{-89.5, 179}));
  EXPECT_EQ(CentreOfGrid("RR99"), (core::Coordinates{89.5, -179}));
}

TEST(GridSquare, HasTheHeadingOfItsCentre) {
  const Home home{{42.28, 83.73}, true};
  EXPECT_EQ(FindHeadingGrid(home, "FN20"), Bearing(home, {40.5, 75}));
  EXPECT_NE(FindHeadingGrid(home, "FN20"), Heading{});
}

TEST(GridSquare, WhatIsNoneHasNoHeading) {
  const Home home{{42.28, 83.73}, true};
  for (const std::string_view grid : {"", "FN2", "FS20", "XX99"})
    EXPECT_EQ(FindHeadingGrid(home, grid), Heading{}) << grid;
}

}  // namespace
}  // namespace spots
