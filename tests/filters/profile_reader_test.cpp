#include <gmock/gmock.h>

#include <utility>

#include "profile_station.h"

using namespace std::chrono_literals;
using filters::Switch;
using testing::Contains;
using testing::IsEmpty;
using testing::Not;

namespace {

class ProfileTest : public testing::Test, protected ProfileStation {};

// Switches.

struct SwitchRow {
  const char* label;
  Switch which;
};

constexpr SwitchRow kSwitches[] = {{"Req Announce", filters::kAnnounce},
                                   {"Show CQ Zone", filters::kCqZone},
                                   {"Show DX Grid", filters::kDxGrid},
                                   {"Show ITU Zone", filters::kItuZone},
                                   {"Req Beep", filters::kBell},
                                   {"Req BoB Spots", filters::kBottomOfBand},
                                   {"Req Self Spots", filters::kSelf},
                                   {"Req Beacon Spot", filters::kBeacon},
                                   {"Req SkimmerSpot", filters::kSkimmer},
                                   {"Req Skimmer Own", filters::kSkimmerOwn},
                                   {"Req SkimmerDupe", filters::kSkimmerDupes},
                                   {"Req Talk", filters::kTalk},
                                   {"Req WWV", filters::kWwv},
                                   {"Req WCY", filters::kWcy},
                                   {"Req WX", filters::kWx},
                                   {"Show US State", filters::kUsState},
                                   {"Dx 2 Digit Res", filters::kTwoDigits},
                                   {"Login Info Req", filters::kLogins}};

TEST_F(ProfileTest, EachSwitchFollowsItsLine) {
  for (const SwitchRow& row : kSwitches) {
    ReceiveReport({{row.label, "Yes"}});
    EXPECT_TRUE(Ticked(row.which)) << row.label;
    ReceiveReport({{row.label, "No"}});
    EXPECT_FALSE(Ticked(row.which)) << row.label;
  }
}

TEST_F(ProfileTest, SwitchesHaveTheirIndexes) {
  EXPECT_EQ(filters::kDxSpots, 0u);
  EXPECT_EQ(filters::kBottomOfBand, 1u);
  EXPECT_EQ(filters::kAnnounce, 5u);
  EXPECT_EQ(filters::kLogins, 9u);
  EXPECT_EQ(filters::kWcy, 12u);
  EXPECT_EQ(filters::kSkimmerDupes, 19u);
}

TEST_F(ProfileTest, BlanksInFrontOfALabelMeanNothing) {
  for (const std::size_t width : {0u, 11u, 14u, 15u, 16u, 30u}) {
    ProfileStation station;
    station.ReceiveRows({{"Callsign", "K1TST-2"},
                         {"Req WWV", "Yes"},
                         {"Name", "ANNA"},
                         {"Req Announce", "Yes"},
                         {"Type of User", "U"}},
                        width);
    EXPECT_TRUE(station.Ticked(filters::kWwv)) << width;
    EXPECT_TRUE(station.Ticked(filters::kAnnounce)) << width;
    EXPECT_EQ(station.Told(&filters::UserSettings::txtMyName), "ANNA") << width;
    EXPECT_THAT(station.Sent(), Contains(" ")) << width;
  }
}

TEST_F(ProfileTest, NobodyStaysWithoutSpots) {
  Receive("    Callsign: K1TST-2");
  Receive("Req DX Spots: No");
  ExpectSent({"set/dx"});
  EXPECT_TRUE(Ticked(filters::kDxSpots));
}

TEST_F(ProfileTest, SpotsThatAreOnNeedNoCommand) {
  Receive("    Callsign: K1TST-2");
  Receive("Req DX Spots: Yes");
  ExpectNothingSent();
  EXPECT_TRUE(Ticked(filters::kDxSpots));
}

// Fields.

TEST_F(ProfileTest, FieldsAreReadByTheirLabelsInEitherForm) {
  using filters::UserSettings;
  struct FieldRow {
    const char* line;
    UserSettings::Pair UserSettings::*field;
    const char* value;
  };
  const FieldRow rows[] = {
      {"           Name: Anna Bell", &UserSettings::txtMyName, "Anna Bell"},
      {"Name          : Bert", &UserSettings::txtMyName, "Bert"},
      {"Name            : Carl", &UserSettings::txtMyName, "Carl"},
      {"       Home QTH: Boston, MA", &UserSettings::txtMyQTH, "Boston, MA"},
      {"QTH           : Paris", &UserSettings::txtMyQTH, "Paris"},
      {"QTH             : Rome", &UserSettings::txtMyQTH, "Rome"},
      {"      Home Node: N1AAA", &UserSettings::txtMyHomeNode, "N1AAA"},
      {"Home Node       : N2AAA", &UserSettings::txtMyHomeNode, "N2AAA"},
      {"Home node     : N3AAA", &UserSettings::txtMyHomeNode, "N3AAA"},
      {"        Locator: FN31", &UserSettings::txtMyQRA, "FN31"},
      {"Locator       : JN18", &UserSettings::txtMyQRA, "JN18"},
      {"       Location: 41 42 N 72 43 W", &UserSettings::txtMyLocation, "41 42 N 72 43 W"},
      {"Geogr. Location : 48 51 N 2 21 E", &UserSettings::txtMyLocation, "48 51 N 2 21 E"}};
  Receive("       Callsign: K1TST-2");
  for (const FieldRow& row : rows) {
    Receive(row.line);
    EXPECT_EQ(Told(row.field), row.value) << row.line;
  }
  ExpectNothingSent();
}

TEST_F(ProfileTest, LatitudeAndLongitudeAreTheLocation) {
  ReceiveReport({{"Latitude", "41 42 N"}, {"Longitude", "72 43 W"}, {"Locator", "FN31"}});
  EXPECT_EQ(Told(&filters::UserSettings::txtMyLocation), "41 42 N 72 43 W");
  EXPECT_THAT(Sent(), Not(Contains("set/location 41 42 N 72 43 W")));
}

TEST_F(ProfileTest, HomeNodeThatTheNodeLacksIsSentAtOnce) {
  Receive(" Callsign: K1TST-2");
  Receive("Home Node:");
  ExpectSent({"set/home N0HOME"});
}

TEST_F(ProfileTest, HomeNodeThatIsNotStoredIsNotSent) {
  settings.HomeCluster.clear();
  Receive(" Callsign: K1TST-2");
  Receive("Home Node:");
  ExpectNothingSent();
}

// The beginning and the end of a report.

TEST_F(ProfileTest, ReportBeginsWithTheOwnCallOrTheBuddies) {
  for (const char* line : {"       Callsign: K1TST-2", "       Callsign: K1TST",
                           "     Callsign: K1TST-2", "Callsign        : k1tst",
                           "User          : K1TST", "        Buddies:", "        Buddies: K2AAA"}) {
    ProfileStation station;
    station.Receive(line);
    station.Receive("Req WWV: Yes");
    EXPECT_TRUE(station.Ticked(filters::kWwv)) << line;
  }
}

TEST_F(ProfileTest, ReportOfAnotherUserIsNotRead) {
  for (const char* line : {"       Callsign: K2AAA", "       Callsign: K1TSTX",
                           "User          : K1TS", "hello", "K1TST-2"}) {
    ProfileStation station;
    station.Receive(line);
    station.Receive("Req WWV: Yes");
    station.Receive("Name: Bert");
    EXPECT_FALSE(station.Ticked(filters::kWwv)) << line;
    EXPECT_EQ(station.Told(&filters::UserSettings::txtMyName), "") << line;
    EXPECT_THAT(station.Sent(), IsEmpty()) << line;
  }
}

TEST_F(ProfileTest, WhatANodeSaysOfTheOwnStationIsNoReport) {
  for (const char* line :
       {"User         : K1TST-2", "User: K1TST-2", " User: K1TST-2", "User            : K1TST-2",
        "Station:       K1TST-2", "Callsign : K1TST-2"}) {
    ProfileStation station;
    station.Receive(line);
    station.Receive("Name         : Bert");
    station.Receive("Home Node    : ");
    station.Receive(kSpiderPrompt);
    station.LetPass(2s);
    EXPECT_EQ(station.Told(&filters::UserSettings::txtMyName), "") << line;
    EXPECT_THAT(station.Sent(), IsEmpty()) << line;
  }
}

TEST_F(ProfileTest, CallWithAStrokeIsThatOfItsReport) {
  const std::pair<const char*, const char*> reports[] = {
      {"EA8/K1TST-2", "     Callsign: EA8/K1TST-2"},
      {"EA8/K1TST-2", "     Callsign: EA8/K1TST"},
      {"EA8/K1TST-2", "Callsign        : ea8/k1tst"},
      {"K1TST/P", "     Callsign: K1TST/P"},
      {"K1TST/P", "User          : K1TST/P"}};
  for (const auto& [call, line] : reports) {
    ProfileStation station;
    station.settings.MyCall = call;
    station.Receive(line);
    station.Receive("Req WWV: Yes");
    EXPECT_TRUE(station.Ticked(filters::kWwv)) << line;
  }
}

TEST_F(ProfileTest, CallWithAStrokeIsAnotherThanTheOneWithout) {
  const std::pair<const char*, const char*> reports[] = {{"EA8/K1TST-2", "Callsign: K1TST"},
                                                         {"K1TST/P", "Callsign: K1TST"},
                                                         {"K1TST", "Callsign: K1TST/P"},
                                                         {"K1TST", "Callsign: EA8/K1TST"}};
  for (const auto& [call, line] : reports) {
    ProfileStation station;
    station.settings.MyCall = call;
    station.Receive(line);
    station.Receive("Req WWV: Yes");
    EXPECT_FALSE(station.Ticked(filters::kWwv)) << line;
  }
}

// In a duel the login goes out under a call of the moment.
TEST_F(ProfileTest, ReportOfTheCallThatLoggedInIsTheUsers) {
  settings.MyCall = "EA8/K1TST-2";
  program.state.TempCall = "K1TST-7";
  Receive("     Callsign: K1TST-7");
  Receive("Req WWV: Yes");
  EXPECT_TRUE(Ticked(filters::kWwv));
}

TEST_F(ProfileTest, LinesOfAReportAreClaimed) {
  ReceiveReport(kComplete);
  EXPECT_THAT(program.loginText.rtbLoginMsg.Lines(), Not(Contains(testing::HasSubstr("Locator"))));
}

TEST_F(ProfileTest, LinesOfAReportAreForwardedIfTheUserWants) {
  ReceiveReport(kComplete);
  EXPECT_THAT(log.Of("forwarded"), Contains("        Locator: FN31"));
  log.entries.clear();
  settings.SendToLog &= ~(1 << 2);
  ReceiveReport(kComplete);
  EXPECT_THAT(log.Of("forwarded"), Not(Contains("        Locator: FN31")));
}

TEST_F(ProfileTest, EndOfTheReportIsShownWithTheNode) {
  page.fraUserInfo[0].ForeColour.Set(core::kRed);
  ReceiveReport(kComplete);
  EXPECT_EQ(page.fraUserInfo[0].Caption.Get(), "User Information @ N0NODE");
  EXPECT_EQ(page.fraUserInfo[0].ForeColour.Get(), core::kThemeColour);
}

TEST_F(ProfileTest, LinesBehindTheTypeOfUserAreReadAndCompleteNothingAgain) {
  ReceiveReport(kComplete);
  Sent();
  Receive("     Users Here: 1");
  Receive("        Req WWV: Yes");
  Receive(kSpiderPrompt);
  LetPass(2s);
  EXPECT_TRUE(Ticked(filters::kWwv));
  ExpectNothingSent();
}

TEST_F(ProfileTest, RequiredPromptInTheReportDoesNotEndIt) {
  Receive("       Callsign: K1TST-2");
  Receive("Required Prompt: %C  dxspider >");
  Receive("        Req WWV: Yes");
  LetPass(2s);
  ExpectNothingSent();
  EXPECT_TRUE(Ticked(filters::kWwv));
  EXPECT_FALSE(program.state.LoginTextDone);
}

TEST_F(ProfileTest, RowsBehindThePromptAreReadAndTheReaderIsShutThen) {
  Receive(kSpiderPrompt);
  ExpectNothingSent();
  ReceiveReport(kComplete);
  EXPECT_THAT(Sent(), Contains("SET/PAGE 9999"));
  EXPECT_TRUE(program.state.LoggedIn);
  Receive(kSpiderPrompt);
  Receive("Name: Bert");
  EXPECT_EQ(Told(&filters::UserSettings::txtMyName), "ANNA");
}

TEST_F(ProfileTest, PromptAmongTheRowsDoesNotEndTheReport) {
  Receive("       Callsign: K1TST-2");
  ReceiveRows({{"Language", "en"}, {"Location", "41 42 N 72 43 W"}}, 15);
  Receive(kSpiderPrompt);
  LetPass(400ms);
  ExpectNothingSent();
  ReceiveRows({{"Locator", "FN31"},
               {"Name", "ANNA"},
               {"Req Echo", "No"},
               {"Required Prompt", kOwnPrompt},
               {"Type of User", "U"}},
              15);
  LetPass(5s);
  ExpectSent({" ", "set/molva", "SET/PAGE 9999"});
}

TEST_F(ProfileTest, ReportThatIsNotToldToItsEndEndsHalfASecondBehindThePrompt) {
  ReceiveRows({{"Callsign", "K1TST-2"}, {"Name", "ANNA"}}, 15);
  Receive(kSpiderPrompt);
  LetPass(400ms);
  ExpectNothingSent();
  LetPass(200ms);
  EXPECT_THAT(Sent(), Contains(" "));
  LetPass(5s);
  EXPECT_THAT(Sent(), Contains("SET/PAGE 9999"));
  Receive("Name: Bert");
  EXPECT_EQ(Told(&filters::UserSettings::txtMyName), "ANNA");
}

TEST_F(ProfileTest, EachRowBehindAPromptPutsTheEndOff) {
  ReceiveRows({{"Callsign", "K1TST-2"}}, 15);
  Receive(kSpiderPrompt);
  for (const char* row : {"Name: ANNA", "Locator: FN31"}) {
    LetPass(400ms);
    Receive(row);
    ExpectNothingSent();
  }
  Receive("To ALL de K2AAA: this is none");
  LetPass(450ms);
  Receive("To ALL de K2AAA: nor is this");
  LetPass(100ms);
  EXPECT_THAT(Sent(), Contains(" "));
}

TEST_F(ProfileTest, FurtherPromptsDoNotPutTheEndOff) {
  ReceiveRows({{"Callsign", "K1TST-2"}}, 15);
  for (int i = 0; i < 3; ++i) {
    Receive(kSpiderPrompt);
    LetPass(200ms);
  }
  EXPECT_THAT(Sent(), Contains(" "));
}

TEST_F(ProfileTest, SessionThatEndsBehindSuchAPromptCompletesNothing) {
  ReceiveRows({{"Callsign", "K1TST-2"}}, 15);
  Receive(kSpiderPrompt);
  reader.Forget();
  LetPass(5s);
  ExpectNothingSent();
}

TEST_F(ProfileTest, PromptOfAnotherSoftwareEndsTheReportAtOnce) {
  ProfileStation station(kZelva, kZelvaPrompt);
  station.ReceiveRows({{"Callsign", "K1TST-2"}, {"Req Echo", "No"}}, 15);
  station.ExpectNothingSent();
  station.Receive(kZelvaPrompt);
  station.LetPass(20ms);
  station.ExpectSent({" "});
}

TEST_F(ProfileTest, RowsOfAnotherCommandBehindTheReportAreNotTakenForIt) {
  ReceiveReport(kComplete);
  Sent();
  program.outgoing.SendAsIs("sh/station K2AAA");
  Receive(kSpiderPrompt);  // comes first, the rows follow
  LetPass(400ms);
  ReceiveRows({{"User", "K2AAA"}, {"Name", "Bert"}, {"QTH", "Boston"}, {"Home Node", ""}}, 13);
  EXPECT_EQ(Told(&filters::UserSettings::txtMyName), "ANNA");
  ExpectSent({"sh/station K2AAA"});
}

TEST_F(ProfileTest, ReportsThatFollowEachOtherWithoutAPromptAreEachCompleted) {
  ReceiveReport(kComplete);
  Sent();
  ReceiveReport(With("Name", ""));
  ExpectSent({" ", "SET/PAGE 9999", "set/name ANNA"});
}

TEST_F(ProfileTest, PromptUnaskedForClosesAndCompletesNothing) {
  ReceiveReport(kComplete);
  Sent();
  for (int i = 0; i < 3; ++i) {
    LetPass(5min);
    Receive(kSpiderPrompt);
  }
  ExpectNothingSent();
}

TEST_F(ProfileTest, NothingIsReadWithoutALogin) {
  NodeCloses();
  Sent();
  LetRetry();
  ReceiveReport(Without("Required Prompt"));  // whose own end is a login prompt
  EXPECT_EQ(Told(&filters::UserSettings::txtMyName), "");
  ExpectNothingSent();
}

// What a DXSpider answers to changes of its filters, outside of any report.

TEST_F(ProfileTest, FilterAnswersTurnTheBottomOfBand) {
  auto& bottomOfBand = page.chkSettings[filters::kBottomOfBand].Value;
  for (const char* line :
       {"K1TST-2 filter4 reject on 1800/1800", "spots Filter 4 updated for K1TST-2"}) {
    bottomOfBand.Set(true);
    Receive(line);
    EXPECT_FALSE(bottomOfBand.Get()) << line;
  }
  Receive("spots Filter 4 deleted for K1TST-2");
  EXPECT_TRUE(bottomOfBand.Get());
  ExpectNothingSent();
}

TEST_F(ProfileTest, SpotsThatTheNodeTurnsOffAreUntickedWithoutACommand) {
  page.chkSettings[filters::kDxSpots].Value.Set(true);
  Receive("DX Spots disabled for K1TST-2");
  EXPECT_FALSE(Ticked(filters::kDxSpots));
  ExpectNothingSent();
}

TEST_F(ProfileTest, ThoseLinesCountOnADxSpiderOnly) {
  ProfileStation station("N0NODE running CLX 5.20");
  station.page.chkSettings[filters::kDxSpots].Value.Set(true);
  station.page.chkSettings[filters::kBottomOfBand].Value.Set(true);
  station.Receive("DX Spots disabled for K1TST-2");
  station.Receive("spots Filter 4 updated");
  EXPECT_TRUE(station.Ticked(filters::kDxSpots));
  EXPECT_TRUE(station.Ticked(filters::kBottomOfBand));
}

// The session's beginning and end.

TEST_F(ProfileTest, LoginTicksTheBottomOfBandOnADxSpiderAlone) {
  EXPECT_TRUE(Ticked(filters::kBottomOfBand));
  EXPECT_FALSE(ProfileStation(kZelva, kZelvaPrompt).Ticked(filters::kBottomOfBand));
}

TEST_F(ProfileTest, EndOfTheSessionUnticksTheFirstThreeSwitches) {
  for (auto& each : page.chkSettings) each.Value.Set(true);
  reader.Forget();
  for (std::size_t i = 0; i < page.chkSettings.size(); ++i)
    EXPECT_EQ(page.chkSettings[i].Value.Get(), i > 2) << i;
}

TEST_F(ProfileTest, EndOfTheSessionEndsTheReport) {
  Receive("Callsign: K1TST-2");
  reader.Forget();
  Receive("Req WWV: Yes");
  EXPECT_FALSE(Ticked(filters::kWwv));
}

TEST_F(ProfileTest, LatitudesAndLongitudesWithoutEndMakeOneLocation) {
  Receive("Callsign: K1TST-2");
  for (int i = 0; i < 100; ++i) Receive("Longitude: 72 43 W");
  EXPECT_EQ(Told(&filters::UserSettings::txtMyLocation), "72 43 W");
  Receive("Latitude: 41 42 N");
  EXPECT_EQ(Told(&filters::UserSettings::txtMyLocation), "41 42 N 72 43 W");
}

}  // namespace
