#include "spots/bearing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

#include "core/text.h"

namespace spots {
namespace {

using core::Coordinates;

constexpr Heading Texts(const char* bearing, const char* distance) { return {bearing, distance}; }

// From Ann Arbor, west positive.
constexpr Coordinates kHome{42.28, 83.73};

Heading InKilometres(Coordinates from, Coordinates to) { return Bearing({from, true}, to); }
Heading InMiles(Coordinates from, Coordinates to) { return Bearing({from, false}, to); }

TEST(Bearing, WithoutAHomeIsEmpty) {
  EXPECT_EQ(InKilometres({}, {51.5, 0.13}), Heading{});
  EXPECT_EQ(InMiles({}, {}), Heading{});
}

TEST(Bearing, HomeMayBeOnTheEquatorOrOnTheMeridian) {
  EXPECT_NE(InKilometres({0, 10}, kHome), Heading{});
  EXPECT_NE(InKilometres({51.48, 0}, kHome), Heading{});
}

TEST(Bearing, IsThatOfTheGreatCircle) {
  EXPECT_EQ(InKilometres({51.4775, 0.4614}, {40.6398, 73.7789}), Texts("288", " 5541"));
  EXPECT_EQ(InMiles({51.4775, 0.4614}, {40.6398, 73.7789}), Texts("288", " 3443"));
  EXPECT_EQ(InMiles(kHome, {35.67, -139.77}), Texts("326", " 6393"));
  EXPECT_EQ(InKilometres(kHome, {-33.92, -18.42}), Texts("110", "13381"));
  EXPECT_EQ(InKilometres({-33.87, -151.21}, {51.51, 0.13}), Texts("319", "16999"));
}

// A quarter of the equator is 10010.4 km; the two places are taken 0.6 km off each other.
TEST(Bearing, AlongTheEquatorIsWestOrEast) {
  EXPECT_EQ(InKilometres({0, 10}, {0, 100}), Texts("270", "10011"));
  EXPECT_EQ(InKilometres({0, 100}, {0, 10}), Texts(" 90", "10010"));
}

TEST(Bearing, ThatRoundsTo360ShowsAs0) {
  EXPECT_EQ(InKilometres({40, 75}, {60, 75}), Texts("  0", " 2225"));
}

TEST(Bearing, DueSouthIsTheArcTangentsOwn) {
  EXPECT_EQ(InKilometres({60, 75}, {40, 75}), Texts("288", " 2225"));
}

TEST(Bearing, OfHomeItselfIsOneKilometreAtMost) {
  EXPECT_EQ(InKilometres({20, 75}, {20, 75}).CurDistance, "    1");
  EXPECT_EQ(InKilometres({60, 75}, {60, 75}).CurDistance, "    0");
}

TEST(Bearing, WhereTheSumsFailIsEmpty) {
  EXPECT_EQ(InKilometres(kHome, {std::numeric_limits<double>::infinity(), 0}), Heading{});
  EXPECT_EQ(InKilometres(kHome, {0, std::nan("")}), Heading{});
}

TEST(Bearing, OfPlacesThatAreNoneIsHarmless) {
  for (const double far : {91.0, 1000.0, -1e6, 1e300, -1e300})
    for (const Coordinates there :
         {Coordinates{far, 0}, Coordinates{0, far}, Coordinates{far, far}}) {
      const Heading heading = InKilometres(kHome, there);
      EXPECT_LE(heading.CurBearing.size(), 3u);
      EXPECT_LE(heading.CurDistance.size(), 5u);
    }
}

constexpr double kDegree = std::numbers::pi / 180;

double HaversineKilometres(Coordinates a, Coordinates b) {
  const double lat = std::sin((a.latitude - b.latitude) * kDegree / 2);
  const double lon = std::sin((a.longitude - b.longitude) * kDegree / 2);
  const double square =
      lat * lat + std::cos(a.latitude * kDegree) * std::cos(b.latitude * kDegree) * lon * lon;
  return 2 * 6372.8 * std::asin(std::sqrt(std::min(square, 1.0)));
}

double Azimuth(Coordinates a, Coordinates b) {
  const double east = (a.longitude - b.longitude) * kDegree;
  const double lat1 = a.latitude * kDegree;
  const double lat2 = b.latitude * kDegree;
  const double y = std::sin(east) * std::cos(lat2);
  const double x =
      std::cos(lat1) * std::sin(lat2) - std::sin(lat1) * std::cos(lat2) * std::cos(east);
  return std::atan2(y, x) / kDegree;
}

TEST(Bearing, AgreesWithAnotherFormulaAllOverTheWorld) {
  for (double lat = -64.3; lat < 70; lat += 9.7)
    for (double lon = -171.7; lon < 180; lon += 13.3) {
      const Coordinates there{lat, lon};
      if (HaversineKilometres(kHome, there) < 300) continue;
      const Heading heading = InKilometres(kHome, there);
      EXPECT_NEAR(core::Val(heading.CurDistance), HaversineKilometres(kHome, there), 1.5);
      const double off = core::Val(heading.CurBearing) - Azimuth(kHome, there);
      EXPECT_NEAR(std::remainder(off, 360), 0, 0.7) << lat << " " << lon;
    }
}

}  // namespace
}  // namespace spots
