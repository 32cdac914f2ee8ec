#include "practice_node/spot_search.h"

#include "visit.h"

namespace practice_node {
namespace {

bool Finds(std::string_view argument, int tenths, std::string_view call = "3Y0J",
           bool takesDash = true) {
  Spot spot;
  spot.tenths = tenths;
  spot.dx.call = call;
  spot.spotter.call = "DL1ABC-#";
  return Matches(spot, ReadSearch(argument, takesDash));
}

TEST(SpotSearchTest, WithoutWordsItFindsTheLatestTen) {
  EXPECT_EQ(ReadSearch("", true).count, 10u);
  EXPECT_TRUE(Finds("", 140250));
}

TEST(SpotSearchTest, TheFirstNumberIsTheCount) {
  EXPECT_EQ(ReadSearch("25", true).count, 25u);
  EXPECT_EQ(ReadSearch("20 80", true).count, 20u);
  EXPECT_EQ(ReadSearch("on 20m 7", true).count, 7u);
  EXPECT_EQ(ReadSearch("0", true).count, 10u);
  EXPECT_EQ(ReadSearch("99999999999", true).count, 500u);
}

TEST(SpotSearchTest, ABandIsNamedInMetresOrAsASecondNumber) {
  for (const auto band : {"20 on 20m", "on 20m", "20M", "20 20"}) {
    EXPECT_TRUE(Finds(band, 140000)) << band;
    EXPECT_TRUE(Finds(band, 143500)) << band;
    EXPECT_FALSE(Finds(band, 143501)) << band;
    EXPECT_FALSE(Finds(band, 139999)) << band;
  }
}

TEST(SpotSearchTest, SomeBandsHaveOtherWords) {
  EXPECT_TRUE(Finds("20 3", 35000));
  EXPECT_TRUE(Finds("20 4", 702000));
  EXPECT_TRUE(Finds("20 70", 4322000));
  EXPECT_TRUE(Finds("20 220", 2221000));
  EXPECT_TRUE(Finds("20 2000", 12962000));
}

TEST(SpotSearchTest, ARangeIsOneInKilohertz) {
  EXPECT_TRUE(Finds("20 on 420000-450000", 4322000));
  EXPECT_TRUE(Finds("20 5200/5500", 53570));
  EXPECT_FALSE(Finds("20 5200-5500", 55001));
}

TEST(SpotSearchTest, TheRangeWithADashFindsNothingWhereItIsNotTaken) {
  EXPECT_FALSE(Finds("20 on 5200-5500", 53570, "3Y0J", false));
  EXPECT_TRUE(Finds("20 on 5200/5500", 53570, "3Y0J", false));
}

TEST(SpotSearchTest, ABandThatIsNoneFindsNothing) {
  EXPECT_FALSE(Finds("on 33m", 140250));
  EXPECT_FALSE(Finds("20 33", 140250));
}

TEST(SpotSearchTest, AnythingElseIsTheBeginningOfACall) {
  EXPECT_TRUE(Finds("99 3y0j", 140250));
  EXPECT_TRUE(Finds("3Y0*", 140250));
  EXPECT_FALSE(Finds("99 NB0DY", 140250));
  EXPECT_TRUE(Finds("EA8/3Y0J", 140250, "EA8/3Y0J"));
  EXPECT_FALSE(Finds("3Y0J on 40m", 140250));
}

TEST(SpotSearchTest, TheSpotterStandsBehindBy) {
  EXPECT_TRUE(Finds("by dl1abc", 140250));
  EXPECT_FALSE(Finds("by K1TST", 140250));
  EXPECT_EQ(ReadSearch("20 by K1TST", true).call, "");
}

TEST(SpotSearchTest, AnExpressionLimitsTheFrequencies) {
  constexpr auto kExpression =
      "30 where (freq>7000and freq<7300) or (FREQ>14000and freq<14350) and (spottercty<>'K')";
  EXPECT_EQ(ReadSearch(kExpression, true).count, 30u);
  EXPECT_TRUE(Finds(kExpression, 70100));
  EXPECT_TRUE(Finds(kExpression, 140250));
  EXPECT_FALSE(Finds(kExpression, 101100));
  EXPECT_TRUE(Finds("where freq>", 101100));
}

}  // namespace
}  // namespace practice_node
