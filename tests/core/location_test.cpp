#include "core/location.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace core {
namespace {

TEST(ParseLocation, ReadsDegreesMinutesAndLetters) {
  EXPECT_EQ(ParseLocation("42 17 N 83 44 W"), (Location{42, 17, 'N', 83, 44, 'W'}));
  EXPECT_EQ(ParseLocation("33 52 S 151 12 E"), (Location{33, 52, 'S', 151, 12, 'E'}));
}

TEST(ParseLocation, TakesOtherWaysOfWritingIt) {
  const Location annArbor{42, 17, 'N', 83, 44, 'W'};
  EXPECT_EQ(ParseLocation("42-17n,083-44w"), annArbor);
  EXPECT_EQ(ParseLocation("  42\xC2\xB0 17' N 83\xC2\xB0 44' W"), annArbor);
  EXPECT_EQ(ParseLocation("42 16 45 N 83 43 30 W"), annArbor);
  EXPECT_EQ(ParseLocation("42.28 N 83.74 W"), annArbor);
  EXPECT_EQ(ParseLocation("42 N 83 W"), (Location{42, 0, 'N', 83, 0, 'W'}));
}

TEST(ParseLocation, RoundingCarriesIntoTheDegrees) {
  EXPECT_EQ(ParseLocation("42 59.6 N 83 44 W"), (Location{43, 0, 'N', 83, 44, 'W'}));
}

TEST(ParseLocation, GivesNothingForWhatIsNoPlace) {
  for (const char* text :
       {"", "here", "42 17 N", "42 17 N 83 44", "N W", "42 17 E 83 44 N", "91 0 N 83 44 W",
        "90 0.6 N 83 44 W", "42 60 N 83 44 W", "42 17 N 180 1 W", "42 17 X 83 44 W",
        "42 17 1 1 N 83 44 W", "99999999999999999999 N 1 W", "1e300 N 1 W"})
    EXPECT_EQ(ParseLocation(text), std::nullopt) << text;
}

TEST(ParseLocation, TakesThePolesAndTheDateLine) {
  EXPECT_EQ(ParseLocation("90 0 S 180 0 E"), (Location{90, 0, 'S', 180, 0, 'E'}));
  EXPECT_EQ(ParseLocation("0 0 N 0 0 W"), (Location{0, 0, 'N', 0, 0, 'W'}));
}

TEST(FormatLocation, ReadsBackAsItWas) {
  for (int latitude = 0; latitude <= 90 * 60; latitude += 7) {
    const int longitude = latitude * 2;
    const Location location{latitude / 60,  latitude % 60,  latitude % 2 ? 'N' : 'S',
                            longitude / 60, longitude % 60, latitude % 3 ? 'E' : 'W'};
    ASSERT_EQ(ParseLocation(FormatLocation(location)), location) << FormatLocation(location);
  }
}

TEST(LatitudeLongitude, IsDegreesAndSixtiethsOfThem) {
  EXPECT_EQ(LatitudeLongitude("42 15 N 83 45 W"), (Coordinates{42.25, 83.75}));
}

TEST(LatitudeLongitude, IsNegativeForSouthAndForEast) {
  EXPECT_EQ(LatitudeLongitude("33 30 S 151 15 E"), (Coordinates{-33.5, -151.25}));
}

TEST(LatitudeLongitude, IsZeroForALocationThatCannotBeRead) {
  EXPECT_EQ(LatitudeLongitude(""), (Coordinates{0, 0}));
  EXPECT_EQ(LatitudeLongitude("42 15 N"), (Coordinates{0, 0}));
}

TEST(ParseLocation, SurvivesAnyBytesAndGivesOnlyPlacesOnEarth) {
  std::mt19937 engine(20260105);
  constexpr std::string_view kLikely = "0123456789.. NSEWnsew-,\xB0'x";
  for (int round = 0; round < 50'000; ++round) {
    std::string text(engine() % 24, '\0');
    for (char& byte : text)
      byte = engine() % 16 ? kLikely[engine() % kLikely.size()] : static_cast<char>(engine());
    const auto location = ParseLocation(text);
    if (!location) continue;
    const Coordinates at = CoordinatesOf(*location);
    ASSERT_TRUE(at.latitude >= -90 && at.latitude <= 90) << text;
    ASSERT_TRUE(at.longitude >= -180 && at.longitude <= 180) << text;
    ASSERT_EQ(ParseLocation(FormatLocation(*location)), location) << text;
  }
}

}  // namespace
}  // namespace core
