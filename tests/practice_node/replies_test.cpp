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
  EXPECT_EQ(visitor->Lines().front().substr(22, 17), "20-Nov-2026 2020Z");
}

TEST_F(RepliesTest, SpotListsHaveTenRowsUnlessANumberSaysOtherwise) {
  StartNode({"--dialect=ar"});
  auto visitor = LoggedIn();
  visitor->Ask("show/dx");
  EXPECT_EQ(visitor->Lines().size(), 11u);
  visitor->Ask("sh/dx on 20m 25");
  EXPECT_EQ(visitor->Lines().size(), 26u);
  visitor->Ask("sh/dx/3");
  EXPECT_EQ(visitor->Lines().size(), 4u);
}

TEST_F(RepliesTest, WinClusterListsCallsAColumnEarlier) {
  StartNode({"--dialect=wincluster"});
  auto visitor = LoggedIn();
  visitor->Ask("sh/dx 20");
  for (int i = 0; i < 20; ++i)
    EXPECT_THAT(visitor->Lines()[static_cast<std::size_t>(i)],
                ::testing::MatchesRegex(" *[0-9]+[.][0-9] [A-Z0-9]+ .*"));
}

TEST_F(RepliesTest, HelpNamesTheCommandsOfTheDialect) {
  StartNode({"--dialect=skimmer"});
  auto visitor = LoggedIn();
  EXPECT_THAT(visitor->Ask("help"), HasSubstr(" sh/dx"));
  EXPECT_THAT(visitor->Ask("help"), Not(HasSubstr("stat/user")));
}

}  // namespace
}  // namespace practice_node
