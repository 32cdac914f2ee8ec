#include "filters/profile_reader.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "session/session_fixture.h"

using namespace std::chrono_literals;
using filters::Switch;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

constexpr const char* kOwnPrompt = "%C de %M %D %T 2.4315  dxspider >";
constexpr const char* kSetPrompt = "set/prompt %C de %M %D %T 2.4315  dxspider >";
constexpr const char* kPrompt = "K1TST-2 de N0NODE 20-Nov-2026 2101Z dxspider >";

struct Row {
  std::string label;
  std::string value;
};
using Rows = std::vector<Row>;

// A station that has asked a node for the profile, and reads it in its row.
class Desk : public Station {
 public:
  explicit Desk(const std::string& greeting = "running DXSpider V1.57 build 441") {
    settings.MyName = "ANNA";
    settings.MyQth = "Newington, CT";
    settings.MyGrid = "FN31";
    settings.MyLocation = "41 42 N 72 43 W";
    settings.HomeCluster = "N0HOME";
    on["Third"] = [this](std::string_view line) {
      return reader.StatUser(line) ? Claim::Tail : Claim::None;
    };
    Connect();
    ReceiveBytes("login: ");
    Receive("");
    Receive("K1TST-2 de N0NODE 20-Nov-2026 2101Z");
    Receive(greeting);
    if (profileAsked > 0) reader.AskedByLogin();
    Sent();
    log.entries.clear();
  }

  // The rows as a node shows them, their labels right-aligned to that width.
  void ReceiveRows(const Rows& rows, std::size_t width) {
    for (const Row& row : rows) {
      const std::string blanks(width - std::min(width, row.label.size()), ' ');
      Receive(blanks + row.label + ": " + row.value);
    }
  }
  // A report whose labels are aligned to its longest one.
  void ReceiveReport(Rows rows) {
    rows.insert(rows.begin(), {"Callsign", "K1TST-2"});
    rows.push_back({"Type of User", "U"});
    std::size_t width = 0;
    for (const Row& row : rows) width = std::max(width, row.label.size());
    ReceiveRows(rows, width);
    LetPass(2s);
  }
  bool Ticked(Switch which) const { return page.chkSettings[which].Value.Get(); }
  std::string Told(filters::UserSettings::Pair filters::UserSettings::*field) const {
    return (page.*field)[0].Text.Get();
  }

  filters::UserSettings page;
  filters::ProfileReader reader{settings,
                                program.state,
                                program.outgoing,
                                program.intake,
                                program.profileHints,
                                program.keepAlive,
                                above,
                                page};
};

class ProfileTest : public testing::Test, protected Desk {};

// A profile that lacks nothing.
const Rows kComplete = {{"Home Node", "N0HOME"},
                        {"Language", "en"},
                        {"Location", "41 42 N 72 43 W"},
                        {"Locator", "FN31"},
                        {"Name", "ANNA"},
                        {"Req Echo", "No"},
                        {"Required Prompt", kOwnPrompt}};

Rows Without(const std::string& label) {
  Rows rows = kComplete;
  std::erase_if(rows, [&label](const Row& row) { return row.label == label; });
  return rows;
}

Rows With(const std::string& label, const std::string& value) {
  Rows rows = kComplete;
  for (Row& row : rows)
    if (row.label == label) row.value = value;
  return rows;
}

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
    Desk desk;
    desk.ReceiveRows({{"Callsign", "K1TST-2"},
                      {"Req WWV", "Yes"},
                      {"Name", "ANNA"},
                      {"Req Announce", "Yes"},
                      {"Type of User", "U"}},
                     width);
    EXPECT_TRUE(desk.Ticked(filters::kWwv)) << width;
    EXPECT_TRUE(desk.Ticked(filters::kAnnounce)) << width;
    EXPECT_EQ(desk.Told(&filters::UserSettings::txtMyName), "ANNA") << width;
    EXPECT_THAT(desk.Sent(), Contains(" ")) << width;
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
    Desk desk;
    desk.Receive(line);
    desk.Receive("Req WWV: Yes");
    EXPECT_TRUE(desk.Ticked(filters::kWwv)) << line;
  }
}

TEST_F(ProfileTest, ReportOfAnotherUserIsNotRead) {
  for (const char* line : {"       Callsign: K2AAA", "       Callsign: K1TSTX",
                           "User          : K1TS", "hello", "K1TST-2"}) {
    Desk desk;
    desk.Receive(line);
    desk.Receive("Req WWV: Yes");
    desk.Receive("Name: Bert");
    EXPECT_FALSE(desk.Ticked(filters::kWwv)) << line;
    EXPECT_EQ(desk.Told(&filters::UserSettings::txtMyName), "") << line;
    EXPECT_THAT(desk.Sent(), IsEmpty()) << line;
  }
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
  Receive(kPrompt);
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
  Receive(kPrompt);
  ExpectNothingSent();
  ReceiveReport(kComplete);
  EXPECT_THAT(Sent(), Contains("SET/PAGE 9999"));
  EXPECT_TRUE(program.state.LoggedIn);
  Receive(kPrompt);
  Receive("Name: Bert");
  EXPECT_EQ(Told(&filters::UserSettings::txtMyName), "ANNA");
}

TEST_F(ProfileTest, RowsOfAnotherCommandBehindTheReportAreNotTakenForIt) {
  ReceiveReport(kComplete);
  Sent();
  program.outgoing.SendAsIs("sh/station K2AAA");
  Receive(kPrompt);  // comes first, the rows follow
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
    Receive(kPrompt);
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

// Completing the profile on a DXSpider.

TEST_F(ProfileTest, ProfileThatLacksNothingIsLeftAsItIs) {
  ReceiveReport(kComplete);
  ExpectSent({" ", "set/molva", "SET/PAGE 9999"});
}

TEST_F(ProfileTest, EmptyProfileIsCompletedInItsOrder) {
  settings.AutoFilter = true;
  ReceiveReport({});
  ExpectSent({" ", "unset/echo", kSetPrompt, "set/lang en", "set/qra FN31",
              "set/location 41 42 N 72 43 W", "set/molva", "sh/filter", "SET/PAGE 9999",
              "set/name ANNA"});
}

TEST(Completion, EachThatIsMissingIsSent) {
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
    Desk desk;
    desk.ReceiveReport(each.rows);
    EXPECT_EQ(desk.Sent(), each.answers) << (&each - cases);
  }
}

TEST(Completion, LocationOfAnEmptyLineIsSentOnce) {
  Desk desk;
  desk.ReceiveReport(With("Location", ""));
  const auto sent = desk.Sent();
  EXPECT_EQ(std::count(sent.begin(), sent.end(), "set/location 41 42 N 72 43 W"), 1);
}

TEST(Completion, WholeValueOfTheRequiredPromptMustBeRight) {
  for (const char* prompt :
       {"%C de %M %D %T  dxspider >", "%C de %M %D %T 2.4314  dxspider >",
        "%C de %M %D %T 2.4315 dxspider >", "x %C de %M %D %T 2.4315  dxspider >", ""}) {
    Desk desk;
    desk.ReceiveReport(With("Required Prompt", prompt));
    EXPECT_THAT(desk.Sent(), Contains(kSetPrompt)) << prompt;
  }
}

TEST(Completion, WhatIsNotStoredIsNotSent) {
  Desk desk;
  auto& own = desk.settings;
  own.MyName = own.MyQth = own.MyGrid = own.MyLocation = own.HomeCluster = "";
  desk.ReceiveReport({{"Home Node", ""}});
  EXPECT_THAT(desk.Sent(), ElementsAre(" ", "unset/echo", kSetPrompt, "set/lang en", "set/molva",
                                       "SET/PAGE 9999"));
}

TEST(Completion, WhatAHintGotIsNotSentAgain) {
  Desk desk;
  desk.Receive("Please enter your name, set/name <your name>");
  desk.Receive("Please enter your location with set/location or set/qra");
  desk.Receive("Please enter your Home Node, set/homenode <your home DX Cluster>");
  desk.Sent();
  desk.ReceiveReport({{"Home Node", ""}, {"Name", ""}});
  EXPECT_THAT(desk.Sent(), ElementsAre(" ", "unset/echo", kSetPrompt, "set/lang en", "set/molva",
                                       "SET/PAGE 9999"));
}

TEST(Completion, LaterReportDoesNotAskForFiltersNorRepeatAnUnknownCommand) {
  Desk desk;
  desk.settings.AutoFilter = true;
  desk.ReceiveReport(kComplete);
  desk.Receive("Invalid command");
  desk.Receive(kPrompt);
  desk.Sent();
  desk.ReceiveReport(kComplete);
  EXPECT_THAT(desk.Sent(), ElementsAre(" ", "SET/PAGE 9999"));
}

TEST(Completion, UnknownCommandStopsNothing) {
  Desk desk;
  desk.ReceiveRows({{"Callsign", "K1TST-2"}, {"Type of User", "U"}}, 14);
  desk.Receive("Invalid command");
  desk.Receive(kPrompt);
  desk.LetPass(2s);
  EXPECT_THAT(desk.Sent(), testing::IsSupersetOf({"set/molva", "SET/PAGE 9999", "set/name ANNA"}));
}

TEST(Completion, ReportThatTheUserAsksForIsNotTheLoginsOne) {
  Desk desk;
  desk.reader.Forget();
  desk.ReceiveReport(kComplete);
  EXPECT_THAT(desk.Sent(), ElementsAre(" ", "SET/PAGE 9999"));
}

TEST(Completion, MissedSpotsAreAskedForAtItsEnd) {
  Desk desk;
  desk.program.state.WantMissedSpots = desk.program.state.FirstConnect = true;
  desk.ReceiveReport(kComplete);
  EXPECT_THAT(desk.above.asked, ElementsAre("GetEm"));
}

TEST(Completion, NoMissedSpotsAreAskedForIfNobodyWantsThem) {
  Desk desk;
  desk.ReceiveReport(kComplete);
  EXPECT_THAT(desk.above.asked, IsEmpty());
}

TEST(Completion, TextOfTheNodeWaitsUntilItIsThrough) {
  Desk desk;
  desk.node.Say("Callsign: K1TST-2\r\nType of User: U\r\nbehind\r\n");
  desk.LetPass(90ms);
  EXPECT_THAT(desk.log.Of("First"), Not(Contains("behind")));
  desk.LetPass(2s);
  EXPECT_THAT(desk.log.Of("raw view").back(), "behind");
}

TEST(Completion, SessionThatEndsInTheMiddleIsSentNothingMore) {
  Desk desk;
  desk.node.Say("Callsign: K1TST-2\r\nType of User: U\r\n");
  desk.LetPass(50ms);
  desk.program.connection.ForceClose();
  desk.LetPass(2s);
  EXPECT_EQ(desk.CountInRawView("SET/PAGE 9999"), 0);
}

// Zelva Cluster.

TEST(ZelvaProfile, IsCompletedInItsOwnWay) {
  Desk desk("N0NODE, a Zelva Cluster");
  desk.settings.AutoFilter = true;
  desk.program.keepAlive.KeepAliveMinutes = 7;
  desk.ReceiveReport({});
  EXPECT_THAT(desk.Sent(),
              ElementsAre(" ", "unset/echo", "set/qra FN31", "set/location 41 42 N 72 43 W",
                          "sh/filter", "set/name ANNA", "KeepAlive Rx 7  V2.4315"));
}

TEST(ZelvaProfile, VersionIsToldOnceASession) {
  Desk desk("N0NODE, a Zelva Cluster");
  desk.program.keepAlive.KeepAliveRx = false;
  desk.program.keepAlive.KeepAliveMinutes = 5;
  for (int i = 0; i < 2; ++i) desk.ReceiveReport(kComplete);
  EXPECT_THAT(desk.Sent(), ElementsAre(" ", "KeepAlive Tx 5  V2.4315", " "));
}

TEST(ZelvaProfile, MissedSpotsAreAskedForAtTheEnd) {
  Desk desk("N0NODE, a Zelva Cluster");
  desk.program.state.WantMissedSpots = desk.program.state.FirstConnect = true;
  desk.ReceiveReport(kComplete);
  EXPECT_THAT(desk.above.asked, ElementsAre("GetEm"));
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
  Desk desk("N0NODE running CLX 5.20");
  desk.page.chkSettings[filters::kDxSpots].Value.Set(true);
  desk.page.chkSettings[filters::kBottomOfBand].Value.Set(true);
  desk.Receive("DX Spots disabled for K1TST-2");
  desk.Receive("spots Filter 4 updated");
  EXPECT_TRUE(desk.Ticked(filters::kDxSpots));
  EXPECT_TRUE(desk.Ticked(filters::kBottomOfBand));
}

// The session's beginning and end.

TEST_F(ProfileTest, LoginTicksTheBottomOfBand) { EXPECT_TRUE(Ticked(filters::kBottomOfBand)); }

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

}  // namespace
