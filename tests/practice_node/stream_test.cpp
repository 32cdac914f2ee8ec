#include "practice_node/spot_source.h"
#include "visit.h"

namespace practice_node {
namespace {

class StreamTest : public NodeTest {
 protected:
  std::vector<std::string> Heard(std::initializer_list<std::string_view> arguments,
                                 platform::Milliseconds duration) {
    node.reset();
    StartNode(arguments);
    auto visitor = LoggedIn();
    world.Run(duration);
    return visitor->SpotLines();
  }
};

Spot ASpot() {
  return {.tenths = 140250,
          .call = "3Y0J",
          .spotter = "DL1ABC",
          .comment = "CW up 2",
          .time = std::chrono::sys_days{std::chrono::year{2026} / 11 / 5} + 22h + 10min,
          .spotterGrid = "JN58",
          .dxZone = 9};
}

TEST(SpotLineTest, StandsInTheClassicColumns) {
  EXPECT_EQ(SpotLine(ASpot(), {}),
            "DX de DL1ABC:    14025.0  3Y0J         CW up 2                        2210Z");
}

TEST(SpotLineTest, TheTimeStandsAtColumn71WhateverTheComment) {
  Spot spot = ASpot();
  for (const std::size_t length : {0u, 29u, 30u, 31u, 80u}) {
    spot.comment = std::string(length, 'x');
    const std::string line = SpotLine(spot, {});
    EXPECT_EQ(line.size(), 75u);
    EXPECT_EQ(line.substr(69), " 2210Z");
  }
}

TEST(SpotLineTest, ALongSpotterIsGluedToTheFrequency) {
  Spot spot = ASpot();
  spot.spotter = "EA8/DF4UE-#";
  spot.tenths = 211490;
  EXPECT_THAT(SpotLine(spot, {}), StartsWith("DX de EA8/DF4UE-#:21149.0  3Y0J "));
}

TEST(SpotLineTest, GridAndZoneStandBehindTheTime) {
  EXPECT_THAT(SpotLine(ASpot(), {.grid = true}), EndsWith(" 2210Z JN58"));
  EXPECT_THAT(SpotLine(ASpot(), {.zone = true}), EndsWith(" 2210Z 09"));
}

TEST(ListRowTest, StandsInTheColumnsOfAList) {
  EXPECT_EQ(ListRow(ASpot(), {}),
            " 14025.0  3Y0J         5-Nov-2026 2210Z  CW up 2                     <DL1ABC>");
  EXPECT_EQ(ListRow(ASpot(), {.listCall = 10}),
            " 14025.0 3Y0J          5-Nov-2026 2210Z  CW up 2                     <DL1ABC>");
}

TEST(SpotSourceTest, TheSeedDecidesTheFirstSpotForGood) {
  SpotSource source(1, SpotSource::Taste::Mixed);
  const platform::UtcTime time = std::chrono::sys_days{std::chrono::year{2026} / 11 / 20} + 21h;
  const std::string first = SpotLine(source.Next(time), {});
  SpotSource again(1, SpotSource::Taste::Mixed);
  EXPECT_EQ(SpotLine(again.Next(time), {}), first);
}

TEST(SpotSourceTest, EverySpotLiesInABandAndHasAllItsParts) {
  constexpr std::pair<int, int> kBands[] = {
      {1800, 2000},   {3500, 4000},   {7000, 7300},   {10100, 10150}, {14000, 14350},
      {18068, 18168}, {21000, 21450}, {24890, 24990}, {28000, 29700}, {50000, 54000}};
  SpotSource source(5, SpotSource::Taste::Mixed);
  for (int i = 0; i < 20'000; ++i) {
    const Spot spot = source.Next({});
    EXPECT_TRUE(std::any_of(std::begin(kBands), std::end(kBands), [&](const auto& band) {
      return spot.tenths > band.first * 10 && spot.tenths <= band.second * 10;
    })) << spot.tenths;
    EXPECT_GE(spot.call.size(), 4u);
    EXPECT_GE(spot.spotter.size(), 4u);
    EXPECT_EQ(spot.spotterGrid.size(), 4u);
    EXPECT_LE(spot.comment.size(), 30u);
  }
}

TEST(SpotSourceTest, StationsAreSpottedBySeveral) {
  SpotSource source(5, SpotSource::Taste::Mixed);
  std::map<std::string, int> times;
  for (int i = 0; i < 200; ++i) ++times[source.Next({}).call];
  EXPECT_LT(times.size(), 180u);
  EXPECT_GT(times.size(), 100u);
}

TEST_F(StreamTest, TheSameSeedGivesTheSameStream) {
  const auto first = Heard({"--rate=5", "--seed=42"}, 10s);
  world.clock.Set(std::chrono::sys_days{std::chrono::year{2026} / 11 / 20} + 21h);
  const auto second = Heard({"--rate=5", "--seed=42"}, 10s);
  EXPECT_EQ(first.size(), 50u);
  EXPECT_EQ(first, second);
}

TEST_F(StreamTest, AnotherSeedGivesAnother) {
  EXPECT_NE(Heard({"--rate=5", "--seed=42"}, 1s), Heard({"--rate=5", "--seed=43"}, 1s));
}

TEST_F(StreamTest, TheRateIsKeptOverTime) {
  EXPECT_EQ(Heard({"--rate=1"}, 60s).size(), 60u);
  EXPECT_EQ(Heard({"--rate=0.25"}, 60s).size(), 15u);
  EXPECT_EQ(Heard({"--rate=7"}, 60s).size(), 420u);
  EXPECT_EQ(Heard({"--rate=3000"}, 2s).size(), 6000u);
  EXPECT_EQ(Heard({"--rate=0"}, 1h).size(), 0u);
}

TEST_F(StreamTest, SpotsBeginBehindTheFirstPrompt) {
  StartNode({"--rate=1000"});
  Visitor visitor(world);
  visitor.Type("K1TST-2");
  world.Run(1s);
  const auto lines = visitor.Lines();
  const auto prompt = std::find_if(lines.begin(), lines.end(),
                                   [](const auto& each) { return each.ends_with("dxspider >"); });
  const auto spot = std::find_if(lines.begin(), lines.end(),
                                 [](const auto& each) { return each.starts_with("DX de "); });
  ASSERT_NE(spot, lines.end());
  EXPECT_LT(prompt - lines.begin(), spot - lines.begin());
}

TEST_F(StreamTest, NothingIsStreamedBeforeTheLogin) {
  StartNode({"--rate=100"});
  Visitor visitor(world);
  world.Run(1min);
  EXPECT_EQ(visitor.heard, "login: ");
}

TEST_F(StreamTest, AllCallersHearTheSame) {
  StartNode({"--rate=2"});
  auto first = LoggedIn("K1TST-1");
  auto second = LoggedIn("K1TST-2");
  world.Run(10s);
  EXPECT_EQ(first->SpotLines().size(), 20u);
  EXPECT_EQ(first->SpotLines(), second->SpotLines());
}

TEST_F(StreamTest, SpotsRestWhileNobodyListens) {
  const auto expected = Heard({"--rate=1", "--version-string=1.55"}, 5s);
  node.reset();
  StartNode({"--rate=1", "--version-string=1.55"});
  world.Run(1h);
  auto visitor = LoggedIn();
  world.Run(5s);
  EXPECT_EQ(visitor->SpotLines().front().substr(0, 70), expected.front().substr(0, 70));
}

TEST_F(StreamTest, SpotsRestAgainWhenTheLastCallerHasLeft) {
  const auto expected = Heard({"--rate=1"}, 5500ms);
  node.reset();
  StartNode({"--rate=1"});
  auto first = LoggedIn();
  world.Run(2500ms);
  first->Leave();
  world.Run(1h);
  auto second = LoggedIn();
  world.Run(1500ms);
  EXPECT_EQ(second->SpotLines().front().substr(0, 70), expected[2].substr(0, 70));
}

TEST_F(StreamTest, DxSpiderRingsTwiceUntilNobeep) {
  StartNode({"--rate=1"});
  auto visitor = LoggedIn();
  world.Run(1500ms);
  EXPECT_THAT(visitor->SpotLines().back(), EndsWith("Z\a\a"));
  visitor->Type("set/nobeep");
  world.Run(1s);
  EXPECT_THAT(visitor->SpotLines().back(), EndsWith("Z"));
}

TEST_F(StreamTest, OthersDoNotRing) {
  EXPECT_THAT(Heard({"--dialect=ar", "--rate=1"}, 2s).back(), EndsWith("Z"));
}

TEST_F(StreamTest, AUserWithoutSpotsHearsNone) {
  StartNode({"--rate=1"});
  auto visitor = LoggedIn();
  visitor->Type("set/nodx");
  world.Run(10s);
  EXPECT_TRUE(visitor->SpotLines().empty());
}

TEST_F(StreamTest, ClxWritesSpottersInLowerCase) {
  const std::string line = Heard({"--dialect=clx", "--rate=1"}, 2s).front();
  EXPECT_THAT(line.substr(6), ::testing::MatchesRegex("[a-z0-9]+: .*"));
}

TEST_F(StreamTest, WinClusterEndsALineInTheZone) {
  const std::string line = Heard({"--dialect=wincluster", "--rate=1"}, 2s).front();
  EXPECT_THAT(line.substr(70), ::testing::MatchesRegex("....Z [0-9][0-9]"));
}

TEST_F(StreamTest, ASkimmerReportsCwWithStrengthAndSpeed) {
  for (const auto& line : Heard({"--dialect=skimmer", "--rate=10"}, 5s)) {
    EXPECT_THAT(line, HasSubstr("-#:"));
    EXPECT_THAT(line.substr(39), ::testing::MatchesRegex("CW +[0-9]+ dB +[0-9]+ WPM +CQ +....Z"));
  }
}

TEST_F(StreamTest, TheGridOfTheSpotterFollowsTheTimeOnRequest) {
  StartNode({"--rate=1"});
  auto visitor = LoggedIn();
  visitor->Type("set/dxgrid");
  visitor->Type("set/nobeep");
  world.Run(1s);
  EXPECT_THAT(visitor->SpotLines().back().substr(70),
              ::testing::MatchesRegex("....Z [A-R][A-R][0-9][0-9]"));
}

Options Playing(double rate, bool loop = false) {
  Options options;
  options.rate = rate;
  options.loop = loop;
  return options;
}

TEST_F(StreamTest, APlayedFileIsTheStream) {
  StartNode(Playing(2), {"first \xFC\xE4%41", "", "third\a\a"});
  auto visitor = LoggedIn();
  world.Run(490ms);
  EXPECT_EQ(visitor->heard, "first \xFC\xE4%41\r\n");
  world.Run(1min);
  EXPECT_EQ(visitor->heard, "first \xFC\xE4%41\r\n\r\nthird\a\a\r\n");
}

TEST_F(StreamTest, APlayedFileBeginsAgainWhenLooped) {
  StartNode(Playing(2, true), {"a", "b"});
  auto visitor = LoggedIn();
  world.Run(2500ms);
  EXPECT_EQ(visitor->heard, "a\r\nb\r\na\r\nb\r\na\r\n");
}

TEST_F(StreamTest, EachCallerHearsAPlayedFileFromItsBeginning) {
  StartNode(Playing(1), {"a", "b", "c"});
  auto first = LoggedIn("K1TST-1");
  world.Run(2s);
  auto second = LoggedIn("K1TST-2");
  world.Run(5s);
  EXPECT_EQ(first->heard, second->heard);
  EXPECT_EQ(second->heard, "a\r\nb\r\nc\r\n");
}

TEST(LinesOfTest, CutsAtEitherLineEnd) {
  EXPECT_EQ(LinesOf("a\r\nb\n\r\nc"), (std::vector<std::string>{"a", "b", "", "c"}));
  EXPECT_EQ(LinesOf("a\n"), (std::vector<std::string>{"a"}));
  EXPECT_TRUE(LinesOf("").empty());
}

}  // namespace
}  // namespace practice_node
