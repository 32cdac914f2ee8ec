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
  EXPECT_THAT(line.substr(6), ::testing::MatchesRegex("[a-z0-9/#-]+: *[0-9].*"));
}

TEST_F(StreamTest, WinClusterEndsALineInTheZone) {
  const std::string line = Heard({"--dialect=wincluster", "--rate=1"}, 2s).front();
  EXPECT_THAT(line.substr(70), ::testing::MatchesRegex("....Z [0-9][0-9]"));
}

TEST_F(StreamTest, ASkimmerReportsCwWithStrengthAndSpeed) {
  for (const auto& line : Heard({"--dialect=skimmer", "--rate=10"}, 5s)) {
    EXPECT_THAT(line, HasSubstr("-#:"));
    EXPECT_THAT(line, ::testing::ContainsRegex(" CW +[0-9]+ dB +[0-9]+ WPM +CQ +[VQ?]? +....Z"));
  }
}

TEST_F(StreamTest, TheGridOfTheSpotterFollowsTheTimeOnRequest) {
  StartNode({"--rate=1"});
  auto visitor = LoggedIn();
  visitor->Type("set/dxgrid");
  visitor->Type("set/nobeep");
  world.Run(10s);
  EXPECT_THAT(visitor->SpotLines(), Contains(::testing::ContainsRegex("Z [A-R][A-R][0-9][0-9]$")));
  EXPECT_THAT(visitor->SpotLines(),
              Contains(::testing::ContainsRegex(" [A-R][A-R][0-9][0-9] ....Z")));
}

TEST_F(StreamTest, ZonesFillTheSlotsOnRequest) {
  StartNode({"--rate=1"});
  auto visitor = LoggedIn();
  visitor->Type("set/dxcq");
  visitor->Type("set/nobeep");
  world.Run(10s);
  for (const auto& line : visitor->SpotLines())
    EXPECT_THAT(line, ::testing::ContainsRegex(" [0-9]+ [0-9][0-9][0-9][0-9]Z [0-9]+$"));
}

TEST_F(StreamTest, ArClusterAddsTheCountryAndThePlaceOfTheSpotterOnRequest) {
  StartNode({"--dialect=ar", "--rate=1"});
  auto visitor = LoggedIn();
  visitor->Type("Set/dxscty");
  visitor->Type("Set/dxsqth");
  world.Run(20s);
  for (const auto& line : visitor->SpotLines())
    EXPECT_THAT(line, ::testing::ContainsRegex("  [+]?[A-Z0-9]+ [0-9][0-9][0-9][0-9]Z"));
  EXPECT_THAT(visitor->SpotLines(), Contains(::testing::ContainsRegex("Z [A-Z0-9()]+")));
}

TEST_F(StreamTest, ArClusterStreamsAr17LinesToThoseWhoAskedForThem) {
  StartNode({"--dialect=ar", "--rate=10"});
  auto asking = LoggedIn("K1TST-1");
  auto other = LoggedIn("K1TST-2");
  asking->Type("set/dx_arpc on");
  asking->heard.clear();
  other->heard.clear();
  world.Run(10s);
  EXPECT_EQ(asking->LinesWith("AR17^").size(), 100u);
  EXPECT_TRUE(asking->SpotLines().empty());
  EXPECT_EQ(other->SpotLines().size(), 100u);
  for (const auto& line : asking->LinesWith("AR17^"))
    EXPECT_EQ(std::count(line.begin(), line.end(), '^'), 18) << line;
}

TEST_F(StreamTest, ARefusedAr17LeavesThePlainLines) {
  for (const auto dialect : {"ar", "spider", "clx", "dxnet", "wincluster", "skimmer"}) {
    node.reset();
    StartNode({"--dialect", dialect, "--rate=1", "--refuse-arpc"});
    auto visitor = LoggedIn();
    EXPECT_THAT(visitor->Ask("set/dx_arpc on"), Not(HasSubstr("DX ArPc enabled"))) << dialect;
    world.Run(5s);
    EXPECT_EQ(visitor->SpotLines().size(), 5u) << dialect;
  }
}

TEST_F(StreamTest, ZelvaStreamsZv11Lines) {
  StartNode({"--dialect=zelva", "--rate=10"});
  auto visitor = LoggedIn();
  world.Run(10s);
  EXPECT_EQ(visitor->LinesWith("ZV11^").size(), 100u);
  EXPECT_TRUE(visitor->SpotLines().empty());
}

TEST_F(StreamTest, AUserOfZelvaCanDoWithoutSkimmersAndBottomsOfBands) {
  StartNode({"--dialect=zelva", "--rate=100"});
  auto visitor = LoggedIn();
  world.Run(20s);
  EXPECT_THAT(visitor->heard, HasSubstr("-#^"));
  EXPECT_THAT(visitor->heard, HasSubstr("ZV11^14000.0^"));
  visitor->Type("set/noskimmer");
  visitor->Type("set/nobob");
  visitor->heard.clear();
  world.Run(20s);
  EXPECT_THAT(visitor->heard, Not(HasSubstr("-#^")));
  EXPECT_THAT(visitor->heard, Not(HasSubstr("ZV11^14000.0^")));
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
