#include <gmock/gmock.h>

#include <memory>

#include "spot_desk.h"
#include "spots/band_numbers.h"

namespace {

using namespace std::chrono_literals;
using spots::RejectLists;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// What comes before what on the way of a spot, each time two steps would deal with it.
class RouteOrder : public SpotDesk {
 protected:
  RouteOrder() {
    settings.LogDxSpots = true;
    node.kind = session::NodeKind::Clx;
    table.EnterTab();
    parts.lines.list.ShDxDone = true;
    parts.localReject.CorrectErrors.UserSets(true);
  }

  // Corrections are made in the columns that are on show.
  void ShowCountries() {
    for (const auto check : {spots::DisplayChoice::kDxCty, spots::DisplayChoice::kOrigCty})
      parts.display.chkAr17[check].UserSets(true);
    parts.display.cmdApply.Press();
  }
  void Fix(const std::string& call, const std::string& country) {
    world.files.content["/home/fixspots.dat"] =
        "\"" + call + "\",\"" + country + "\",\"\",\"\",\"\",\"\",\"00\"\r\n";
    parts.ReadFiles();
  }
  std::string Log() {
    parts.log.Close();
    return world.files.content["/home/2026/dx-20-Nov-2026.txt"];
  }
  // Another run of the program, which begins with what the log holds.
  std::unique_ptr<spots::SpotParts> Restart() {
    parts.Close();
    auto again = std::make_unique<spots::SpotParts>(platform, calendar, settings, errorLog, "/home",
                                                    Needs());
    settings.LoadLogFileOnStartup = true;
    settings.GetMissedOnes = false;  // no list is awaited
    again->table.rail.optBand.UserSelects(k20m);
    again->BeginLog();
    world.Run(1s);
    return again;
  }
  bool FilterErrorIsShown() const { return parts.localReject.lblFilterErrors.Visible.Get(); }
};

TEST_F(RouteOrder, CountryThatTheNodeShouldHaveFilteredIsDropped) {
  receivers.limitsCountries = true;
  Receive({.tail = " DL"});
  EXPECT_THAT(CallsInTable(), IsEmpty());
  EXPECT_TRUE(FilterErrorIsShown());
}

TEST_F(RouteOrder, CountyGoesBeforeTheFilterOfCountriesCountsIt) {
  settings.RejectCounties = true;
  receivers.limitsCountries = true;
  Receive({.call = "N0CALL/ABC", .tail = " DL"});
  EXPECT_FALSE(FilterErrorIsShown());
  receivers.limitsCountries = false;
  Receive({.call = "N0CALL/ABC", .tail = " DL"});
  Receive({.call = "N0CALL/KH6", .tail = " DL"});
  EXPECT_THAT(CallsInTable(), ElementsAre("N0CALL/KH6"));
}

TEST_F(RouteOrder, FilterOfCountriesGoesByTheCorrectedDxAndTheSpotterAsTheNodeHasHim) {
  ShowCountries();
  receivers.limitsCountries = true;
  Fix("3Y0J", "3Y/B");
  Receive({.tail = " DL"});
  EXPECT_EQ(parts.localReject.lblFilterErrors.ToolTip.Get(), "3Y/B");
  Fix("DL1ABC", "DL");
  Receive({.call = "K1ABC"});
  EXPECT_THAT(CallsInTable(), ElementsAre("K1ABC"));
}

TEST_F(RouteOrder, SpotterIsCorrectedBeforeTheLog) {
  ShowCountries();
  Fix("DL1ABC", "DA");
  Receive({.tail = " DL"});
  EXPECT_THAT(Log(), HasSubstr(",DA,"));
  EXPECT_THAT(Log(), Not(HasSubstr(",DL,")));
}

TEST_F(RouteOrder, CountryOfTheOperatorsListIsNoWordOfTheNode) {
  ShowCountries();
  Fix("3Y0J", "3Y/B");
  Receive(Line{});
  EXPECT_FALSE(parts.rejectLists.CountryWordSeen.Get());
  Receive({.call = "K1ABC", .comment = "CW up 2                      K"});
  EXPECT_TRUE(parts.rejectLists.CountryWordSeen.Get());
}

TEST_F(RouteOrder, CallThatIsNoneIsNotCountedAsRejected) {
  settings.RejSpots = true;
  parts.rejectLists.Add(RejectLists::kDx, "K");
  Receive({.call = "K"});
  EXPECT_FALSE(parts.rejectLists.lblRejected.Visible.Get());
}

TEST_F(RouteOrder, RejectedSpotIsCountedWhetherMemberOrNot) {
  std::string& members = world.files.content["/home/lotw.txt"];
  members = "LOTW\r\n";
  for (int i = 0; i < 1100; ++i) members += "K1ABC         \r\n";
  settings.RejSpots = settings.ShLoTW = settings.RejectNotLoTWeQSL = true;
  parts.TakeSettings();
  parts.ReadFiles();
  parts.rejectLists.Add(RejectLists::kDx, "3Y0J");
  Receive({.call = "ZS1AA"});
  EXPECT_THAT(CallsInTable(), IsEmpty()) << "it is no member either";
  Receive(Line{});
  EXPECT_EQ(parts.rejectLists.lblRejected.Caption.Get(), "Dx Spots Rejected = 1");
}

TEST_F(RouteOrder, CallsThatAreTooShortAreNotRemembered) {
  for (const Line& line : {Line{.call = "K"}, Line{.spotter = "K1"}}) {
    Receive(line);
    EXPECT_FALSE(parts.duplicates.IsRepeated(parts.spot));
  }
  Receive(Line{});
  EXPECT_TRUE(parts.duplicates.IsRepeated(parts.spot));
}

TEST_F(RouteOrder, MissingDateIsInferredBeforeDuplicatesAreLookedFor) {
  for (int report = 0; report < 2; ++report)
    parts.lines.ar17("AR17^^14025.0^3Y0J^^2100Z^CW 20 dB^DL1ABC-#^W1A^3Y/B^^^38^67^^DL^BY^^");
  EXPECT_THAT(CallsInTable(), ElementsAre("3Y0J"));
}

TEST_F(RouteOrder, ListIsNotAnnounced) {
  parts.lines.list.AskedForMissed();
  parts.lines.CollectShDxLine(
      " 14000.0  3Y0J        20-Nov-2026 2100Z CW up 2                     <DL1ABC>");
  parts.lines.CollectShDxLine("arc >");
  EXPECT_THAT(CallsInTable(), IsEmpty());
  EXPECT_THAT(Log(), HasSubstr("3Y0J")) << "it came this far";
  EXPECT_THAT(receivers.announced, IsEmpty());
}

TEST_F(RouteOrder, BuddiesHearOfSpotsBetweenTheBandsToo) {
  receivers.hasBuddies = true;
  Receive({.kHz = "472.5"});
  Receive({.kHz = "14000.0", .call = "K1ABC"});
  EXPECT_THAT(receivers.buddies, ElementsAre("3Y0J", "K1ABC"));
}

TEST_F(RouteOrder, AlarmIsHeardOnAnyBand) {
  receivers.alarms = true;
  table.rail.optBand.UserSelects(k40m);
  Receive(Line{});
  EXPECT_THAT(receivers.sounds, ElementsAre("Alert"));
  table.rail.optBand.UserSelects(k20m);
  Receive({.call = "K1ABC"});
  EXPECT_THAT(receivers.sounds, ElementsAre("Alert", "Alert", "DxAlert"));
}

TEST_F(RouteOrder, SpotsOfTheLogAreHeardAnnouncedAndToldToNobody) {
  Receive(Line{});
  Receive({.kHz = "14000.0", .call = "K1ABC"});
  receivers = {};
  receivers.alarms = receivers.takesLines = receivers.hasBuddies = true;
  settings.SendToLog = 1 << 1;
  const auto again = Restart();
  EXPECT_THAT(CallsOf(again->table.RtbDx.Rows()), ElementsAre("3Y0J"));
  EXPECT_THAT(CallsOf(again->table.SpotStore(spots::kAlarmBand, 0).Rows()), Contains("3Y0J"));
  EXPECT_THAT(receivers.sounds, IsEmpty());
  EXPECT_THAT(receivers.announced, IsEmpty());
  EXPECT_THAT(receivers.buddies, IsEmpty());
  EXPECT_THAT(receivers.fed, IsEmpty());
  EXPECT_THAT(receivers.logWindow, IsEmpty());
}

TEST_F(RouteOrder, LoggersGetTheRowOfTheTableIfTheyWantItSo) {
  receivers.takesLines = true;
  settings.SendToLog = 1 << 1 | 1 << 19;
  parts.display.optFormat.UserSelects(spots::DisplayChoice::kExpanded);
  parts.display.cmdApply.Press();
  Receive(Line{});
  EXPECT_THAT(receivers.fed, ElementsAre(LastRow()));
  EXPECT_THAT(receivers.logWindow, ElementsAre(HasSubstr("DX de DL1ABC:")));
  EXPECT_NE(receivers.fed, receivers.logWindow);
}

}  // namespace
