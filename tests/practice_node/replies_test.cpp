#include "visit.h"

namespace practice_node {
namespace {

using RepliesTest = NodeTest;

TEST_F(RepliesTest, ArClusterEnablesArpc) {
  StartNode({"--dialect=ar"});
  auto visitor = LoggedIn();
  EXPECT_THAT(visitor->Ask("set/dx_arpc on"), StartsWith("DX ArPc enabled\r\n"));
}

TEST_F(RepliesTest, ArClusterRefusesArpcWhenToldTo) {
  StartNode({"--dialect=ar", "--refuse-arpc"});
  auto visitor = LoggedIn();
  EXPECT_THAT(visitor->Ask("set/dx_arpc on"), StartsWith("SET/DX_ARPC command error\r\n"));
}

TEST_F(RepliesTest, ArClusterNamesTheCommandItDoesNotKnow) {
  StartNode({"--dialect=ar"});
  auto visitor = LoggedIn();
  EXPECT_THAT(visitor->Ask("dont_set/dx_arpc on"),
              StartsWith("DONT_SET/DX_ARPC command error\r\n"));
}

TEST_F(RepliesTest, SwitchesAreReportedAsEnabledOrInhibited) {
  for (const auto dialect : {"ar", "dxnet", "wincluster"}) {
    StartNode({"--dialect", dialect});
    auto visitor = LoggedIn();
    visitor->Type("set/nodx_ann");
    visitor->Ask("SH/SETTINGS");
    const auto lines = visitor->Lines();
    EXPECT_EQ(lines[0], "Current switch settings for K1TST-2:") << dialect;
    EXPECT_EQ(lines[1], "DX Spots - Inhibited") << dialect;
    EXPECT_EQ(lines[2], "DX Bottom of Band Spots - Enabled") << dialect;
    EXPECT_THAT(lines, Contains("Login - Inhibited")) << dialect;
    node.reset();
  }
}

TEST_F(RepliesTest, ClxReportsSwitchesInARowOfATable) {
  StartNode({"--dialect=clx"});
  auto visitor = LoggedIn();
  visitor->Ask("sh/settings");
  const auto lines = visitor->Lines();
  EXPECT_THAT(lines[0], HasSubstr("Ann   Ansi Beep   DX  DXdeDX  Login"));
  EXPECT_EQ(lines[1].substr(2, 2), "ON");
  EXPECT_EQ(lines[1].substr(14, 2), "ON");
  EXPECT_EQ(lines[1].substr(19, 2), "ON");
  EXPECT_EQ(lines[1].substr(34), "OFF");
  visitor->Type("set/login");
  visitor->Ask("sh/settings");
  EXPECT_EQ(visitor->Lines()[1].substr(34), "ON");
}

TEST_F(RepliesTest, ZelvaReportsSwitchesLikeAUsersStatus) {
  StartNode({"--dialect=zelva"});
  auto visitor = LoggedIn();
  visitor->Ask("sh/settings");
  EXPECT_EQ(visitor->Lines().front(), "       Callsign: K1TST-2");
  EXPECT_THAT(visitor->Lines(), Contains("  Req BoB Spots: Yes"));
  EXPECT_THAT(visitor->Lines(), Contains(" Req Self Spots: Yes"));
  EXPECT_THAT(visitor->Lines(), Contains("Req SkimmerDupe: No"));
  EXPECT_THAT(visitor->Lines(), Contains(" Dx 2 Digit Res: No"));
  EXPECT_THAT(visitor->Lines(), Contains("   Type of User: U"));
}

TEST_F(RepliesTest, PersonalDataComesBackInTheReportOnTheStation) {
  struct Expected {
    std::string_view dialect;
    std::string station;
    std::string name;
  };
  for (const auto& [dialect, station, name] :
       {Expected{"ar", "Station:       K1TST-2", "Name:          Anna"},
        Expected{"spider", "User         : K1TST-2", "Name         : Anna"},
        Expected{"clx", "Callsign        : k1tst", "Name            : Anna"},
        Expected{"dxnet", "User          : K1TST-2", "Name          : Anna"}}) {
    StartNode({"--dialect", dialect});
    auto visitor = LoggedIn();
    visitor->Type("SET/NAME Anna");
    visitor->Ask(dialect == "clx" ? "SH/STATION K1TST" : "SH/STATION K1TST-2");
    EXPECT_EQ(visitor->Lines()[0], station);
    EXPECT_EQ(visitor->Lines()[1], name);
    node.reset();
  }
}

TEST_F(RepliesTest, ALocationThatIsNoneIsAnError) {
  StartNode({"--dialect=ar"});
  auto visitor = LoggedIn();
  EXPECT_THAT(visitor->Ask("SET/LOCATION nowhere"), StartsWith("SET/LOCATION command error\r\n"));
  EXPECT_THAT(visitor->Ask("SET/LOCATION 0 30 N 9 30 E"),
              StartsWith("Lat/Lon set to 0 30 N 9 30 E\r\n"));
}

TEST_F(RepliesTest, ArClusterTellsThatItsFiltersAreOff) {
  StartNode({"--dialect=ar"});
  auto visitor = LoggedIn();
  EXPECT_THAT(visitor->Ask("sh/filter"), StartsWith("DX Spot Bandmode Filter set Off\r\n"));
}

TEST_F(RepliesTest, SpotListsBeginWithTheLatest) {
  StartNode({"--dialect=ar"});
  auto visitor = LoggedIn();
  visitor->Ask("sh/dx 60");
  EXPECT_EQ(visitor->Lines().front().substr(22, 17), "20-Nov-2026 2059Z");
  EXPECT_EQ(visitor->Lines()[59].substr(22, 17), "20-Nov-2026 2020Z");
}

TEST_F(RepliesTest, ZelvaListsBeginWithTheOldest) {
  StartNode({"--dialect=zelva"});
  auto visitor = LoggedIn();
  visitor->Ask("sh/mydx 60");
  EXPECT_THAT(visitor->Lines().front(), HasSubstr("^20-Nov-2026^2020^"));
}

TEST_F(RepliesTest, SpotListsHaveTenRowsUnlessANumberSaysOtherwise) {
  StartNode({"--dialect=ar"});
  auto visitor = LoggedIn();
  visitor->Ask("show/dx");
  EXPECT_EQ(visitor->Lines().size(), 11u);
  visitor->Ask("sh/dx 25");
  EXPECT_EQ(visitor->Lines().size(), 26u);
  visitor->Ask("sh/dx/3");
  EXPECT_EQ(visitor->Lines().size(), 4u);
}

TEST_F(RepliesTest, SpotListsHoldWhatIsAskedFor) {
  StartNode({"--dialect=ar"});
  auto visitor = LoggedIn();
  for (const auto request : {"sh/dx/20 on 20m", "show/dx 20 14000-14350"}) {
    visitor->Ask(request);
    auto lines = visitor->Lines();
    EXPECT_THAT(lines.back(), EndsWith("arc >"));
    lines.pop_back();
    EXPECT_GT(lines.size(), 3u);
    for (const auto& line : lines) EXPECT_THAT(line, StartsWith(" 14")) << request;
  }
}

TEST_F(RepliesTest, ACallFindsItsLatestSpots) {
  StartNode({"--dialect=ar"});
  auto visitor = LoggedIn();
  visitor->Ask("sh/dx/1");
  const std::string row = visitor->Lines().front();
  const std::string call = row.substr(10, row.find(' ', 10) - 10);
  visitor->Ask("sh/dx/99 " + call);
  EXPECT_EQ(visitor->Lines().front(), row);
  EXPECT_LT(visitor->Lines().size(), 20u);
}

TEST_F(RepliesTest, WhatIsStreamedCanBeListed) {
  StartNode({"--dialect=ar", "--rate=1"});
  auto visitor = LoggedIn();
  world.Run(1500ms);
  const std::string call = visitor->SpotLines().front().substr(26, 12);
  visitor->Ask("sh/dx/1");
  EXPECT_EQ(visitor->Lines().front().substr(10, 12), call);
}

TEST_F(RepliesTest, ZelvaListsSpotsInItsOwnLines) {
  StartNode({"--dialect=zelva"});
  auto visitor = LoggedIn();
  for (const auto request : {"sh/mydx/30", "sh/dx/30"}) {
    visitor->Ask(request);
    EXPECT_EQ(visitor->LinesWith("ZV11^").size(), 30u) << request;
    EXPECT_THAT(visitor->heard, EndsWith("ZLV >\r\n")) << request;
  }
}

TEST_F(RepliesTest, EachDialectHasItsWordsForNoSpotsFound) {
  constexpr std::pair<std::string_view, std::string_view> kWords[] = {
      {"ar", "*** no records found\r\n"},           {"clx", "*** no records found\r\n"},
      {"dxnet", "*** no records found\r\n"},        {"wincluster", "*** no records found\r\n"},
      {"zelva", "*** no records found\r\n"},        {"skimmer", "K1TST-2 de "},
      {"spider", "sh/dx: '99 NB0DY' not found\r\n"}};
  for (const auto& [dialect, words] : kWords) {
    node.reset();
    StartNode({"--dialect", dialect, "--version-string=1.55"});
    auto visitor = LoggedIn();
    visitor->Type("unset/echo");
    EXPECT_THAT(visitor->Ask("sh/dx/99 NB0DY"), StartsWith(std::string(words))) << dialect;
  }
}

TEST_F(RepliesTest, ListsComeBehindThePromptOnRequest) {
  StartNode({"--dialect=ar", "--prompt-first"});
  auto visitor = LoggedIn();
  for (const auto& [request, rows] :
       {std::pair<std::string_view, std::size_t>{"sh/dx/5", 5}, {"sh/dx NB0DY", 1}}) {
    visitor->Ask(request);
    ASSERT_EQ(visitor->Lines().size(), 1u);
    EXPECT_THAT(visitor->heard, EndsWith("arc >\r\n"));
    world.Run(500ms);
    EXPECT_EQ(visitor->Lines().size(), 1 + rows);
    EXPECT_THAT(visitor->heard, Not(EndsWith("arc >\r\n")));
  }
}

TEST_F(RepliesTest, WinClusterListsCallsAColumnEarlier) {
  StartNode({"--dialect=wincluster"});
  auto visitor = LoggedIn();
  visitor->Ask("sh/dx 20");
  for (int i = 0; i < 20; ++i)
    EXPECT_THAT(visitor->Lines()[static_cast<std::size_t>(i)],
                ::testing::MatchesRegex(" *[0-9]+[.][0-9] [A-Z0-9/]+ .*"));
}

TEST_F(RepliesTest, HelpNamesTheCommandsOfTheDialect) {
  StartNode({"--dialect=skimmer"});
  auto visitor = LoggedIn();
  EXPECT_THAT(visitor->Ask("help"), HasSubstr(" sh/dx"));
  EXPECT_THAT(visitor->Ask("help"), Not(HasSubstr("stat/user")));
}

}  // namespace
}  // namespace practice_node
