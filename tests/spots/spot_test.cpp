#include "spots/spot.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace spots {
namespace {

TEST(SameText, IsByteForByte) {
  EXPECT_TRUE(SameText("", ""));
  EXPECT_TRUE(SameText("K1ABC", "K1ABC"));
  EXPECT_FALSE(SameText("K1ABC", "K1AB"));
  EXPECT_FALSE(SameText("K1AB", "K1ABC"));
  EXPECT_FALSE(SameText("K1ABC", "k1abc"));
  EXPECT_FALSE(SameText("K1ABC", ""));
}

TEST(RoundHalfUp, WhatIsNoDecimalNumberStaysAsItIs) {
  EXPECT_TRUE(std::isnan(RoundHalfUp(std::nan(""), 1)));
  const double infinite = std::numeric_limits<double>::infinity();
  EXPECT_EQ(RoundHalfUp(infinite, 1), infinite);
  EXPECT_EQ(RoundHalfUp(-infinite, 1), -infinite);
}

TEST(RoundHalfUp, HalfGoesAwayFromZero) {
  EXPECT_EQ(RoundHalfUp(14025.25, 1), 14025.3);
  EXPECT_EQ(RoundHalfUp(14025.35, 1), 14025.4);
  EXPECT_EQ(RoundHalfUp(-14025.25, 1), -14025.3);
  EXPECT_EQ(RoundHalfUp(0.5, 0), 1);
  EXPECT_EQ(RoundHalfUp(1.5, 0), 2);
}

TEST(RoundHalfUp, BelowHalfGoesTowardsZero) {
  EXPECT_EQ(RoundHalfUp(14025.2499, 1), 14025.2);
  EXPECT_EQ(RoundHalfUp(-0.04, 1), 0);
  EXPECT_EQ(RoundHalfUp(1e-300, 1), 0);
  EXPECT_EQ(RoundHalfUp(std::numeric_limits<double>::denorm_min(), 9), 0);
}

TEST(RoundHalfUp, CountsTheDecimalDigitsNotTheBinaryOnes) {
  // As binary numbers all of these lie a little below the half.
  EXPECT_EQ(RoundHalfUp(1.005, 2), 1.01);
  EXPECT_EQ(RoundHalfUp(10489.05, 1), 10489.1);
  EXPECT_EQ(RoundHalfUp(0.15, 1), 0.2);
}

TEST(RoundHalfUp, CarryReachesTheWholeNumber) {
  EXPECT_EQ(RoundHalfUp(13999.95, 1), 14000);
  EXPECT_EQ(RoundHalfUp(9.99999, 4), 10);
}

TEST(RoundHalfUp, RoundNumbersStay) {
  for (const double value : {0.0, 0.1, 14025.0, 14025.3, 1296117.1, 1e15, 1e300, -7.7})
    EXPECT_EQ(RoundHalfUp(value, 1), value);
}

TEST(ClearSpotExtras, EmptiesTheAnnotationsAndNothingElse) {
  Spot spot;
  const auto extras = {&spot.DxCty,  &spot.DxCq,    &spot.DxItu,     &spot.OrigItu,
                       &spot.OrigCq, &spot.DxState, &spot.OrigState, &spot.OrigCty,
                       &spot.DxGrid, &spot.OrigGrid};
  const auto others = {&spot.DxCall,    &spot.SpotDate,    &spot.SpotTime, &spot.Comment,
                       &spot.Spotter,   &spot.Node,        &spot.LotwMark, &spot.RawLine,
                       &spot.SpotterIp, &spot.OrigLocation};
  for (const auto& fields : {extras, others})
    for (auto* field : fields) *field = "x";
  ClearSpotExtras(spot);
  for (const auto* extra : extras) EXPECT_EQ(*extra, "");
  for (const auto* other : others) EXPECT_EQ(*other, "x");
}

}  // namespace
}  // namespace spots
