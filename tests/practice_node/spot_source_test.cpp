#include "practice_node/spot_source.h"

#include <algorithm>
#include <map>

#include "practice_node/bands.h"
#include "practice_node/spot_lines.h"
#include "visit.h"

namespace practice_node {
namespace {

constexpr int kMany = 20'000;

bool InABand(const Spot& spot) {
  return std::any_of(kBands.begin(), kBands.end(), [&](const Band& band) {
    return spot.tenths >= band.low * 10 && spot.tenths <= band.high * 10;
  });
}

class SpotSourceTest : public ::testing::Test {
 protected:
  static constexpr platform::UtcTime kNow =
      std::chrono::sys_days{std::chrono::year{2026} / 11 / 20} + 21h;

  static std::vector<Spot> Spots(std::size_t skimmersPercent, int count = kMany) {
    SpotSource source(5, skimmersPercent);
    std::vector<Spot> spots;
    while (count-- > 0) spots.push_back(source.Next(kNow));
    return spots;
  }
  template <class Test>
  static auto Percent(const std::vector<Spot>& spots, Test test) {
    return 100.0 * static_cast<double>(std::ranges::count_if(spots, test)) /
           static_cast<double>(spots.size());
  }
};

TEST_F(SpotSourceTest, TheSeedDecidesTheSpotsForGood) {
  SpotSource source(1, 25);
  SpotSource again(1, 25);
  for (int i = 0; i < kMany; ++i) {
    const SpotStyle style = {.shape = Shape::Zv11};
    ASSERT_EQ(SpotLine(source.Next(kNow), style), SpotLine(again.Next(kNow), style));
  }
}

TEST_F(SpotSourceTest, EverySpotHasAllItsParts) {
  for (const Spot& spot : Spots(25)) {
    ASSERT_GE(spot.dx.call.size(), 4u);
    ASSERT_LE(spot.dx.call.size(), 12u);
    ASSERT_GE(spot.spotter.call.size(), 4u);
    ASSERT_TRUE(spot.spotter.grid.empty() || spot.spotter.grid.size() == 4);
    ASSERT_FALSE(spot.dx.area.country.empty());
    ASSERT_GT(spot.tenths, 0);
    ASSERT_EQ(spot.comment.find_first_of(std::string_view("\0\r\n", 3)), std::string::npos);
  }
}

TEST_F(SpotSourceTest, AFewSpotsLieOutsideTheBandsOrOnTheirEdges) {
  const auto spots = Spots(0);
  EXPECT_THAT(Percent(spots, InABand), ::testing::AllOf(::testing::Gt(97), ::testing::Lt(99.5)));
  EXPECT_GT(std::ranges::count_if(spots, IsBottomOfBand), 50);
  EXPECT_GT(std::ranges::count_if(spots, [](const Spot& s) { return s.tenths < 18000; }), 10);
  EXPECT_GT(std::ranges::count_if(spots, [](const Spot& s) { return s.tenths == 297000; }), 5);
}

TEST_F(SpotSourceTest, StationsAreSpottedBySeveral) {
  std::map<std::string, int> times;
  for (const Spot& spot : Spots(0, 200)) ++times[spot.dx.call];
  EXPECT_LT(times.size(), 180u);
  EXPECT_GT(times.size(), 100u);
}

TEST_F(SpotSourceTest, SkimmersSendSoManyPercent) {
  EXPECT_EQ(Percent(Spots(0), IsSkimmer), 0);
  EXPECT_NEAR(Percent(Spots(25), IsSkimmer), 25, 2);
  EXPECT_EQ(Percent(Spots(100), IsSkimmer), 100);
}

TEST_F(SpotSourceTest, SomeSkimmersHaveLongCalls) {
  const auto spots = Spots(100);
  EXPECT_GT(Percent(spots, [](const Spot& s) { return s.spotter.call.starts_with("EA8/"); }), 5);
  const auto longest = std::ranges::max_element(
      spots, {}, [](const Spot& spot) { return spot.spotter.call.size(); });
  EXPECT_THAT(SpotLine(*longest, {}), ::testing::ContainsRegex("-#:[0-9]"));
}

TEST_F(SpotSourceTest, SomeReportsOfSkimmersEndInAQualityMark) {
  EXPECT_NEAR(Percent(Spots(100), [](const Spot& spot) { return !spot.comment.ends_with("CQ"); }),
              50, 3);
}

TEST_F(SpotSourceTest, SeveralSkimmersHearAStationWithinAHundredHertz) {
  const auto spots = Spots(100, 200);
  int near = 0;
  for (std::size_t i = 1; i < spots.size(); ++i)
    for (std::size_t j = 0; j < i; ++j)
      if (spots[i].dx.call == spots[j].dx.call && spots[i].spotter.call != spots[j].spotter.call) {
        EXPECT_LE(std::abs(spots[i].tenths - spots[j].tenths), 2);
        ++near;
      }
  EXPECT_GT(near, 20);
}

TEST_F(SpotSourceTest, SomeSpotsComeAgainWordForWord) {
  const auto spots = Spots(25, 1000);
  const auto line = [](const Spot& spot) { return SpotLine(spot, {.shape = Shape::Zv11}); };
  int repeats = 0;
  for (std::size_t i = 8; i < spots.size(); ++i)
    repeats += std::any_of(spots.begin() + static_cast<std::ptrdiff_t>(i) - 8,
                           spots.begin() + static_cast<std::ptrdiff_t>(i),
                           [&](const Spot& each) { return line(each) == line(spots[i]); })
                   ? 1
                   : 0;
  EXPECT_GT(repeats, 25);
  EXPECT_LT(repeats, 100);
}

TEST_F(SpotSourceTest, CommentsHoldEveryKindOfCharacter) {
  const auto spots = Spots(25);
  for (const auto part : {"\xFC", "\xC3\xBC", "\xF0\x9F", "%25", "%41", "100% ", "^", "\"", ",",
                          "<", "#", "\\", "2200Z"})
    EXPECT_TRUE(std::ranges::any_of(spots, [&](const Spot& spot) {
      return spot.comment.find(part) != std::string::npos;
    })) << part;
}

TEST_F(SpotSourceTest, SomeCallsHaveMoreThanTheCall) {
  const auto spots = Spots(0);
  for (const auto end : {"/P", "/MM", "/QRP", "/WAY"})
    EXPECT_TRUE(std::ranges::any_of(spots, [&](const Spot& spot) {
      return spot.dx.call.ends_with(end);
    })) << end;
}

TEST_F(SpotSourceTest, SomeClocksAreMinutesOff) {
  SpotSource source(5, 25);
  std::map<std::string, int> dates;
  const platform::UtcTime midnight = std::chrono::sys_days{std::chrono::year{2026} / 11 / 20};
  for (int i = 0; i < 500; ++i) ++dates[SpotLine(source.Next(midnight), {}).substr(70, 5)];
  EXPECT_GT(dates["0000Z"], 450);
  EXPECT_GT(dates["2359Z"], 0);
  EXPECT_GT(dates["0001Z"], 0);
}

}  // namespace
}  // namespace practice_node
