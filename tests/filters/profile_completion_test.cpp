#include <gmock/gmock.h>

#include <algorithm>

#include "profile_station.h"

using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

class CompletionTest : public testing::Test, protected ProfileStation {};

// Completing the profile on a DXSpider.

TEST_F(CompletionTest, ProfileThatLacksNothingIsLeftAsItIs) {
  ReceiveReport(kComplete);
  ExpectSent({" ", "set/molva", "SET/PAGE 9999"});
}

TEST_F(CompletionTest, EmptyProfileIsCompletedInItsOrder) {
  settings.AutoFilter = true;
  ReceiveReport({});
  ExpectSent({" ", "unset/echo", kSetPrompt, "set/lang en", "set/qra FN31",
              "set/location 41 42 N 72 43 W", "set/molva", "sh/filter", "SET/PAGE 9999",
              "set/name ANNA"});
}

TEST_F(CompletionTest, EachThatIsMissingIsSent) {
  struct Case {
    Rows rows;
    Station::Lines answers;
  };
  const Case cases[] = {
      {Without("Req Echo"), {" ", "unset/echo", "set/molva", "SET/PAGE 9999"}},
      {With("Req Echo", "Yes"), {" ", "unset/echo", "set/molva", "SET/PAGE 9999"}},
      {Without("Required Prompt"), {" ", kSetPrompt, "set/molva", "SET/PAGE 9999"}},
      {Without("Language"), {" ", "set/lang en", "set/molva", "SET/PAGE 9999"}},
      {With("Language", "fr"), {" ", "set/lang en", "set/molva", "SET/PAGE 9999"}},
      {Without("Locator"), {" ", "set/qra FN31", "set/molva", "SET/PAGE 9999"}},
      {With("Locator", ""), {" ", "set/qra FN31", "set/molva", "SET/PAGE 9999"}},
      {Without("Location"), {" ", "set/location 41 42 N 72 43 W", "set/molva", "SET/PAGE 9999"}},
      {Without("Name"), {" ", "set/molva", "SET/PAGE 9999", "set/name ANNA"}},
      {With("Name", ""), {" ", "set/molva", "SET/PAGE 9999", "set/name ANNA"}},
  };
  for (const Case& each : cases) {
    ProfileStation station;
    station.ReceiveReport(each.rows);
    EXPECT_EQ(station.Sent(), each.answers) << (&each - cases);
  }
}

TEST_F(CompletionTest, LocationOfAnEmptyLineIsSentOnce) {
  ReceiveReport(With("Location", ""));
  const auto sent = Sent();
  EXPECT_EQ(std::count(sent.begin(), sent.end(), "set/location 41 42 N 72 43 W"), 1);
}

TEST_F(CompletionTest, WholeValueOfTheRequiredPromptMustBeRight) {
  for (const char* prompt :
       {"%C de %M %D %T  dxspider >", "%C de %M %D %T 2.4314  dxspider >",
        "%C de %M %D %T 2.4315 dxspider >", "x %C de %M %D %T 2.4315  dxspider >", ""}) {
    ProfileStation station;
    station.ReceiveReport(With("Required Prompt", prompt));
    EXPECT_THAT(station.Sent(), Contains(kSetPrompt)) << prompt;
  }
}

TEST_F(CompletionTest, WhatIsNotStoredIsNotSent) {
  auto& own = settings;
  own.MyName = own.MyQth = own.MyGrid = own.MyLocation = own.HomeCluster = "";
  ReceiveReport({{"Home Node", ""}});
  EXPECT_THAT(Sent(), ElementsAre(" ", "unset/echo", kSetPrompt, "set/lang en", "set/molva",
                                  "SET/PAGE 9999"));
}

TEST_F(CompletionTest, WhatAHintGotIsNotSentAgain) {
  Receive("Please enter your name, set/name <your name>");
  Receive("Please enter your location with set/location or set/qra");
  Receive("Please enter your Home Node, set/homenode <your home DX Cluster>");
  Sent();
  ReceiveReport({{"Home Node", ""}, {"Name", ""}});
  EXPECT_THAT(Sent(), ElementsAre(" ", "unset/echo", kSetPrompt, "set/lang en", "set/molva",
                                  "SET/PAGE 9999"));
}

TEST_F(CompletionTest, LaterReportDoesNotAskForFiltersNorRepeatAnUnknownCommand) {
  settings.AutoFilter = true;
  ReceiveReport(kComplete);
  Receive("Invalid command");
  Receive(kSpiderPrompt);
  Sent();
  ReceiveReport(kComplete);
  EXPECT_THAT(Sent(), ElementsAre(" ", "SET/PAGE 9999"));
}

TEST_F(CompletionTest, UnknownCommandStopsNothing) {
  ReceiveRows({{"Callsign", "K1TST-2"}, {"Type of User", "U"}}, 14);
  Receive("Invalid command");
  Receive(kSpiderPrompt);
  LetPass(2s);
  EXPECT_THAT(Sent(), testing::IsSupersetOf({"set/molva", "SET/PAGE 9999", "set/name ANNA"}));
}

TEST_F(CompletionTest, ReportThatTheUserAsksForIsNotTheLoginsOne) {
  reader.Forget();
  ReceiveReport(kComplete);
  EXPECT_THAT(Sent(), ElementsAre(" ", "SET/PAGE 9999"));
}

TEST_F(CompletionTest, MissedSpotsAreAskedForAtItsEnd) {
  program.state.WantMissedSpots = program.state.FirstConnect = true;
  ReceiveReport(kComplete);
  EXPECT_THAT(above.asked, ElementsAre("GetEm"));
}

TEST_F(CompletionTest, NoMissedSpotsAreAskedForIfNobodyWantsThem) {
  ReceiveReport(kComplete);
  EXPECT_THAT(above.asked, IsEmpty());
}

TEST_F(CompletionTest, TextOfTheNodeWaitsUntilItIsThrough) {
  node.Say("Callsign: K1TST-2\r\nType of User: U\r\nbehind\r\n");
  LetPass(90ms);
  EXPECT_THAT(log.Of("First"), Not(Contains("behind")));
  LetPass(2s);
  EXPECT_THAT(log.Of("raw view").back(), "behind");
}

TEST_F(CompletionTest, SessionThatEndsInTheMiddleIsSentNothingMore) {
  node.Say("Callsign: K1TST-2\r\nType of User: U\r\n");
  LetPass(50ms);
  program.connection.ForceClose();
  LetPass(2s);
  EXPECT_EQ(CountInRawView("SET/PAGE 9999"), 0);
}

// Zelva Cluster.

TEST(ZelvaProfile, IsCompletedInItsOwnWay) {
  ProfileStation station(kZelva, kZelvaPrompt);
  station.settings.AutoFilter = true;
  station.program.keepAlive.KeepAliveMinutes = 7;
  station.ReceiveReport({});
  EXPECT_THAT(station.Sent(),
              ElementsAre(" ", "unset/echo", "set/qra FN31", "set/location 41 42 N 72 43 W",
                          "set/molva", "sh/filter", "set/name ANNA", "KeepAlive Rx 7  V2.4315"));
}

TEST(ZelvaProfile, MolvaAndTheVersionAreToldOnceASession) {
  ProfileStation station(kZelva, kZelvaPrompt);
  station.program.keepAlive.KeepAliveRx = false;
  station.program.keepAlive.KeepAliveMinutes = 5;
  for (int i = 0; i < 2; ++i) station.ReceiveReport(kComplete);
  EXPECT_THAT(station.Sent(), ElementsAre(" ", "set/molva", "KeepAlive Tx 5  V2.4315", " "));
}

TEST(ZelvaProfile, MissedSpotsAreAskedForAtTheEnd) {
  ProfileStation station(kZelva, kZelvaPrompt);
  station.program.state.WantMissedSpots = station.program.state.FirstConnect = true;
  station.ReceiveReport(kComplete);
  EXPECT_THAT(station.above.asked, ElementsAre("GetEm"));
}

TEST_F(CompletionTest, EndsWithItsSession) {
  program.state.WantMissedSpots = program.state.FirstConnect = settings.GetMissedOnes = true;
  Receive("Callsign: K1TST-2");
  Receive("Type of User: U");
  ASSERT_TRUE(world.RunUntil([this] { return CountInRawView("set/name") > 0; }, 5s));
  program.connection.ForceClose();
  LetPass(2s);
  EXPECT_THAT(above.asked, IsEmpty());
  EXPECT_TRUE(program.state.FirstConnect) << "the next session still has to ask";
}

}  // namespace
