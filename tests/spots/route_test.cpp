#include <gmock/gmock.h>

#include <algorithm>

#include "cty_text.h"
#include "spot_desk.h"
#include "spots/band_numbers.h"

namespace {

using namespace std::chrono_literals;
using spots::kAlarmBand;
using spots::RejectLists;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

constexpr auto kLog = "/home/2026/dx-20-Nov-2026.txt";

// A spot meets every step on its way, with their files and their switches.
class Route : public SpotDesk {
 protected:
  Route() {
    settings.LogDxSpots = true;
    node.kind = session::NodeKind::Spider;
    table.EnterTab();
    parts.lines.list.ShDxDone = true;
  }

  void Apply(const std::vector<spots::DisplayChoice::Check>& checks, bool expanded) {
    parts.display.optFormat.UserSelects(expanded ? spots::DisplayChoice::kExpanded
                                                 : spots::DisplayChoice::kClassic);
    for (const auto check : checks) parts.display.chkAr17[check].UserSets(true);
    parts.display.cmdApply.Press();
  }
  std::string Log() {
    parts.log.Close();
    return world.files.content[kLog];
  }
  void Fix(const std::string& entry) {
    world.files.content["/home/fixspots.dat"] = entry;
    parts.ReadFiles();
  }
};

TEST_F(Route, AcceptedSpotGoesToTheTableTheLogAndTheLoggers) {
  receivers.takesLines = true;
  settings.SendToLog = 1 << 1;
  Receive(Line{});
  EXPECT_THAT(CallsInTable(), ElementsAre("3Y0J"));
  EXPECT_THAT(Log(), HasSubstr("2116,14025.0,3Y0J,DL1ABC,"));
  EXPECT_THAT(receivers.fed, ElementsAre(HasSubstr("14025.0  3Y0J")));
  EXPECT_THAT(receivers.sounds, ElementsAre());  // another band is on show: all of them
}

TEST_F(Route, SpotOnTheSelectedBandIsHeard) {
  table.rail.optBand.UserSelects(k20m);
  Receive(Line{});
  EXPECT_THAT(receivers.sounds, ElementsAre("DxAlert"));
}

TEST_F(Route, NothingIsHeardUntilTheStartListIsDone) {
  parts.lines.list.ShDxDone = false;
  table.rail.optBand.UserSelects(k20m);
  Receive(Line{});
  EXPECT_THAT(receivers.sounds, IsEmpty());
}

TEST_F(Route, CorrectionComesBeforeTheRejection) {
  Apply({spots::DisplayChoice::kDxCty}, false);
  Fix("\"3Y0J\",\"3Y/B\",\"\",\"\",\"\",\"\",\"00\"\r\n");
  settings.RejSpots = settings.RejectInvalidCountry = true;
  parts.rejectLists.NoteCountryWord();
  Receive(Line{});
  Receive({.call = "K1ABC"});
  EXPECT_THAT(CallsInTable(), ElementsAre("3Y0J"));
}

TEST_F(Route, RejectedSpotIsNeitherLoggedNorCountedNorFed) {
  receivers.takesLines = true;
  settings.SendToLog = 1 << 1;
  settings.RejSpots = true;
  parts.rejectLists.Add(RejectLists::kDx, "3Y*");
  Receive(Line{});
  EXPECT_THAT(CallsInTable(), IsEmpty());
  EXPECT_THAT(Log(), Not(HasSubstr("3Y0J")));
  EXPECT_THAT(receivers.fed, IsEmpty());
  EXPECT_EQ(table.rail.lblTotal[k20m].Caption.Get(), "0");
}

TEST_F(Route, DuplicateIsDroppedAndNotLogged) {
  Receive(Line{});
  Receive(Line{});
  EXPECT_THAT(CallsInTable(), SizeIs(1));
  const std::string log = Log();
  EXPECT_EQ(std::count(log.begin(), log.end(), '\n'), 1);
}

TEST_F(Route, DuplicateIsFedToLoggersWhileAListThatWasAskedForRuns) {
  receivers.takesLines = true;
  settings.SendToLog = 1 << 1;
  Receive(Line{});
  parts.lines.list.AskedForSpots();
  Receive(Line{});
  EXPECT_THAT(CallsInTable(), SizeIs(1));
  ASSERT_THAT(receivers.fed, SizeIs(2));
  EXPECT_THAT(receivers.fed[1], HasSubstr("<DL1ABC>"));
}

TEST_F(Route, ListReachesLoggersAsLiveLinesIfTheyWantThemSo) {
  receivers.takesLines = true;
  settings.SendToLog = 1 << 1 | 1 << 12;
  parts.lines.list.AskedForSpots();
  Receive(Line{});
  EXPECT_THAT(receivers.fed, ElementsAre(HasSubstr("DX de DL1ABC:")));
}

TEST_F(Route, MembersOnlyDropsTheOthersBeforeTheyAreRemembered) {
  std::string list = "LOTW\r\n";
  for (int i = 0; i < 1100; ++i) list += "3Y0J          \r\n";
  world.files.content["/home/lotw.txt"] = list;
  settings.ShLoTW = settings.RejectNotLoTWeQSL = true;
  parts.TakeSettings();
  parts.ReadFiles();
  Receive(Line{});
  Receive({.call = "K1ABC"});
  EXPECT_THAT(CallsInTable(), ElementsAre("3Y0J"));
  EXPECT_THAT(LastRow(), HasSubstr(" +3Y0J"));
  EXPECT_THAT(Log(), Not(HasSubstr("K1ABC")));
}

TEST_F(Route, AlarmIsKeptAmongTheAlarmsToo) {
  receivers.alarms = true;
  Receive(Line{});
  EXPECT_THAT(CallsInStore(kAlarmBand, 0), Contains("3Y0J"));
  EXPECT_THAT(CallsInStore(k20m, 0), Contains("3Y0J"));
  EXPECT_EQ(table.rail.lblTotal[0].Caption.Get(), "1");
}

TEST_F(Route, BottomOfABandIsAnnouncedUnlessItIsToStayASpot) {
  Receive({.kHz = "14000.0"});
  EXPECT_THAT(CallsInTable(), IsEmpty());
  EXPECT_THAT(receivers.announced, ElementsAre(HasSubstr("BoB Dx< DL1ABC:")));
  settings.BobDx = true;
  Receive({.kHz = "14000.0", .call = "K1ABC"});
  EXPECT_THAT(CallsInTable(), ElementsAre("K1ABC"));
}

TEST_F(Route, BottomOfABandIsNotAnnouncedWhileAListComes) {
  parts.requests.cmdGetSpots("20", "");
  parts.lines.list.CollectShDxLine(
      " 14025.0  3Y0J        20-Nov-2026 2055Z  CW                                 <DL1ABC>");
  ASSERT_TRUE(parts.lines.list.ShDxCollecting());
  Receive({.kHz = "14000.0"});
  EXPECT_THAT(CallsInTable(), IsEmpty());
  EXPECT_THAT(receivers.announced, IsEmpty());
}

TEST_F(Route, SkimmerOnTheBottomOfABandStaysASpot) {
  Receive({.spotter = "DL1ABC-#", .kHz = "14000.0"});
  EXPECT_THAT(CallsInTable(), ElementsAre("3Y0J"));
  EXPECT_THAT(receivers.announced, IsEmpty());
}

TEST_F(Route, BetweenTheBandsASpotIsLoggedAndReachesNobodyElse) {
  receivers.takesLines = receivers.alarms = true;
  settings.SendToLog = 1 << 1;
  Receive({.kHz = "472.5"});
  Receive({.kHz = "17999.9", .call = "K1ABC"});
  EXPECT_THAT(Log(), HasSubstr("472.5,3Y0J"));
  EXPECT_THAT(Log(), HasSubstr("17999.9,K1ABC"));
  EXPECT_THAT(CallsInTable(), IsEmpty());
  EXPECT_THAT(CallsInStore(kAlarmBand, 0), IsEmpty());
  EXPECT_THAT(receivers.fed, IsEmpty());
}

TEST_F(Route, ExpandedRowHasHeadingAndCountry) {
  settings.MyLocation = "42 17 N 83 44 W";
  settings.MyCall = "K1TST";
  world.files.content["/home/cty.dat"] = CtyText({Country{}.Line()});
  parts.reference.Read();
  Apply({spots::DisplayChoice::kBearing, spots::DisplayChoice::kDistance,
         spots::DisplayChoice::kCountryName, spots::DisplayChoice::kComments},
        true);
  Fix("\"GD4ABC\",\"GD\",\"\",\"\",\"\",\"\",\"00\"\r\n");
  Apply({spots::DisplayChoice::kDxCty}, true);
  Receive({.call = "GD4ABC"});
  EXPECT_THAT(LastRow(), HasSubstr("ISLE OF MAN: CW up 2"));
  EXPECT_THAT(LastRow(), testing::ContainsRegex(" 4[0-9] "));
}

TEST_F(Route, PercentTwentyTwoOfANodeIsAQuoteInTheTable) {
  Receive({.comment = "%22up%22 2 %2C"});
  EXPECT_THAT(LastRow(), HasSubstr("\"up\" 2 ,"));
}

TEST_F(Route, LogComesBackAfterARestart) {
  Receive({.comment = "a, \"b\" ^"});
  Receive({.spotter = "DL1ABC-#", .call = "K1ABC", .comment = "CW 12 dB"});
  parts.Close();
  spots::SpotParts again(platform, calendar, settings, errorLog, "/home", Needs());
  settings.LoadLogFileOnStartup = true;
  again.BeginLog();
  world.Run(1s);
  EXPECT_THAT(CallsOf(again.table.RtbDx.Rows()), ElementsAre("3Y0J", "K1ABC"));
  EXPECT_THAT(std::string(again.table.RtbDx.Rows().front().Text()), HasSubstr("a, \"b\" ^"));
  EXPECT_EQ(again.table.RtbDx.Rows().back().RowKind(), spots::TableRow::Kind::Skimmer);
  EXPECT_THAT(receivers.sounds, IsEmpty());
}

TEST_F(Route, ReloadTellsNobodyElse) {
  Receive(Line{});
  parts.Close();
  parts.ClearSpots();
  receivers.takesLines = true;
  settings.SendToLog = 1 << 1;
  table.rail.optBand.UserSelects(k20m);
  parts.reload.ReloadSpots();
  world.Run(1s);
  EXPECT_THAT(CallsInTable(), Contains("3Y0J"));
  EXPECT_THAT(receivers.fed, IsEmpty());
  EXPECT_THAT(receivers.logWindow, IsEmpty());
  EXPECT_THAT(receivers.sounds, IsEmpty());
}

TEST_F(Route, ReloadAtAnyTimeShowsWhatIsLoggedOnce) {
  for (int i = 0; i < 300; ++i) Receive({.call = "K" + std::to_string(i) + "ABC"});
  for (const bool again : {false, true}) {
    parts.reload.ReloadSpots();
    world.Run(1s);
    EXPECT_THAT(CallsInTable(), SizeIs(300)) << again;
  }
}

TEST_F(Route, ReloadCountsEverySpotOnce) {
  const auto total = [this](std::size_t band) { return table.rail.lblTotal[band].Caption.Get(); };
  const auto unseen = [this](std::size_t band) { return table.rail.lblUnseen[band].Caption.Get(); };
  table.LeaveTab();
  for (int i = 0; i < 30; ++i) Receive({.call = "K" + std::to_string(i) + "ABC"});
  parts.reload.ReloadSpots();
  world.Run(1s);
  EXPECT_EQ(total(k20m), "30");
  EXPECT_EQ(total(spots::kAllBands), "30");
  EXPECT_EQ(unseen(k20m), "30");
  EXPECT_EQ(table.TabCaption.Get(), "DX = 30");
  Receive({.call = "3Y0J"});
  EXPECT_EQ(total(k20m), "31");
}

TEST_F(Route, ReloadForgetsTheCountOfWhatItDoesNotBringBack) {
  ReceiveCalls({"K1ABC"}, "7012.0");
  parts.log.Close();
  world.files.content.erase(kLog);
  Receive(Line{});
  parts.reload.ReloadSpots();
  world.Run(1s);
  EXPECT_EQ(table.rail.lblTotal[k40m].Caption.Get(), "0");
  EXPECT_FALSE(table.rail.lblUnseen[k40m].Visible.Get());
}

TEST_F(Route, ReloadKeepsTheCountOfWhatWasNotLogged) {
  settings.LogDxSpots = false;
  Receive(Line{});
  parts.reload.ReloadSpots();
  world.Run(1s);
  EXPECT_EQ(table.rail.lblTotal[k20m].Caption.Get(), "1");
}

TEST_F(Route, ReloadKeepsWhatWasNotLogged) {
  settings.LogDxSpots = false;
  Receive(Line{});
  parts.reload.ReloadSpots();
  world.Run(1s);
  EXPECT_THAT(CallsInTable(), ElementsAre("3Y0J"));
}

TEST_F(Route, StartReloadsOnlyIfTheLogIsKeptToo) {
  settings.LoadLogFileOnStartup = true;
  for (const bool kept : {false, true}) {
    settings.LogDxSpots = kept;
    parts.BeginLog();
    EXPECT_EQ(parts.spotsForm.Open.Get(), kept);
    EXPECT_EQ(std::ranges::count(rawText, "Reloading Dx Spots From Log File"), kept);
  }
}

TEST_F(Route, OldLogsAreDeletedAtTheStartIfTheyAreToBe) {
  const std::string old = "/home/2026/dx-12-Nov-2026.txt";
  for (const bool deletes : {false, true}) {
    world.files.content[old] = "x";
    settings.DeleteDxLogs = deletes;
    parts.BeginLog();
    EXPECT_EQ(world.files.content.contains(old), !deletes);
  }
}

TEST_F(Route, OldLogThatTheReloadOfTheStartWantsIsDeletedBehindIt) {
  const std::string yesterday = "/home/2026/dx-19-Nov-2026.txt";
  world.files.content[yesterday] = "2350,14025.0,3Y0J,DL1ABC,,up,,,,,,,,,,,,,~\r\n";
  settings.LoadLogFileOnStartup = settings.DeleteDxLogs = true;
  settings.ReloadHours = 24;
  settings.KeepSpotsDays = 1;
  parts.BeginLog();
  world.Run(1s);
  EXPECT_THAT(CallsInTable(), ElementsAre("3Y0J"));
  EXPECT_FALSE(world.files.content.contains(yesterday));
}

TEST_F(Route, SpotsThatTheUserAsksForAreAListThatRuns) {
  parts.requests.cmdGetSpots("20", "");
  EXPECT_TRUE(parts.lines.list.SpotListBusy());
  EXPECT_FALSE(parts.lines.list.ShDxDone);
}

TEST_F(Route, SortedViewFollowsTenTimesASecond) {
  table.SortBy(2);
  Receive({.call = "ZZ1ZZ"});
  Receive({.call = "AA1AA"});
  EXPECT_THAT(CallsInTable(), IsEmpty());
  parts.Tick();
  EXPECT_THAT(CallsInTable(), ElementsAre("AA1AA", "ZZ1ZZ"));
}

TEST_F(Route, ClearedSpotsLeaveEveryStoreAndTheTable) {
  Receive(Line{});
  table.ClearSpots();
  EXPECT_THAT(CallsInTable(), IsEmpty());
  EXPECT_THAT(CallsInStore(k20m, 0), IsEmpty());
  EXPECT_EQ(table.SpotStore(0, 0).Characters(), 0u);
  Receive({.call = "K1ABC"});
  EXPECT_THAT(CallsInTable(), ElementsAre("K1ABC"));
}

TEST_F(Route, WhatWasClearedMayComeAgain) {
  Receive(Line{});
  Receive({.spotter = "DL1ABC-#", .call = "K1ABC", .time = "2100"});
  parts.ClearSpots();
  Receive(Line{});
  Receive({.spotter = "DL1ABC-#", .call = "K1ABC", .time = "2100"});
  EXPECT_THAT(CallsInTable(), ElementsAre("3Y0J", "K1ABC"));
}

TEST_F(Route, AnotherBandDuringAReloadIsEmptyUntilItsEnd) {
  Receive(Line{});
  table.BeginReload();
  table.rail.optBand.UserSelects(k20m);
  EXPECT_THAT(CallsInTable(), IsEmpty());
  table.EndReload();
  EXPECT_THAT(CallsInTable(), ElementsAre("3Y0J"));
}

TEST_F(Route, LastHourLosesWhatHasBecomeOldWithoutNewSpots) {
  Receive({.time = "2059"});
  table.SortBy(spots::kLastHour);
  for (int minutes = 0; minutes < 90; ++minutes) {
    world.Run(1min);
    parts.Tick();
  }
  EXPECT_THAT(CallsInTable(), Not(Contains("3Y0J")));
}

TEST_F(Route, RawLineGoesToLoggersOnceAndWithNoOtherSpot) {
  parts.lines.ZV11CarrotCounter(
      "ZV11^14025.0^3Y0J^20-Nov-2026^2116Z^CW up^DL1ABC^^^N0NODE^28^14^28^14^^^3Y/B^DL^^^");
  EXPECT_THAT(receivers.raw, SizeIs(1));
  parts.Disconnected();
  Receive({.call = "K1ABC"});
  EXPECT_THAT(CallsInTable(), ElementsAre("3Y0J", "K1ABC"));
  EXPECT_THAT(receivers.raw, SizeIs(1));
}

TEST_F(Route, StateNamesTheCountryToo) {
  settings.RejSpots = settings.RejectInvalidCountry = true;
  parts.rejectLists.NoteCountryWord();
  node.kind = session::NodeKind::ArCluster;
  world.files.content["/home/cty.dat"] = CtyText({Country{}.Line()});
  parts.reference.Read();
  Receive({.call = "W8RIK", .comment = "CW up 2                     OH"});
  Receive({.call = "K1ABC"});
  EXPECT_THAT(CallsInTable(), ElementsAre("W8RIK"));
}

TEST_F(Route, SkimmersCallThatMustBeConfirmedIsShownAndLoggedAtItsSecondReport) {
  parts.duplicates.SkimmerConfirm = true;
  const Line report = {.spotter = "DL1ABC-#", .time = "2100"};
  Receive(report);
  EXPECT_THAT(CallsInTable(), IsEmpty());
  EXPECT_THAT(Log(), Not(HasSubstr("3Y0J")));
  Receive(report);
  EXPECT_THAT(CallsInTable(), ElementsAre("3Y0J"));
  Receive(report);
  EXPECT_THAT(CallsInTable(), ElementsAre("3Y0J"));
  EXPECT_THAT(rawText, ElementsAre(" **** New One ****", " **** Dupe ****"));
}

TEST_F(Route, UnknownCountryIsNotTheFirstCountryWord) {
  settings.RejSpots = settings.RejectInvalidCountry = true;
  parts.lines.ZV11CarrotCounter(
      "ZV11^14025.0^3Y0J^20-Nov-2026^2116Z^CW up^DL1ABC^^^N0NODE^28^14^28^14^^^??^DL^^^");
  EXPECT_FALSE(parts.rejectLists.CountryWordSeen.Get());
}

TEST_F(Route, ListOfTheStartIsAwaitedOnlyIfMissedSpotsAreAskedFor) {
  for (const bool asked : {true, false}) {
    settings.GetMissedOnes = asked;
    parts.BeginLog();
    EXPECT_EQ(parts.lines.list.ShDxDone, !asked);
    parts.Disconnected();
    EXPECT_EQ(parts.lines.list.ShDxDone, !asked);
  }
}

TEST_F(Route, ChoiceOfMembersIsKept) {
  for (core::Check* check :
       {&parts.membership.showlotw, &parts.membership.RejectNot, &parts.membership.LotwChecker}) {
    const int before = writes;
    check->UserSets(!check->Value.Get());
    EXPECT_EQ(writes, before + 1);
  }
}

TEST_F(Route, LogWindowIsFedWhateverTheLoggersWant) {
  receivers.takesLines = true;
  settings.SendToLog = 0;
  Receive(Line{});
  EXPECT_THAT(receivers.logWindow, ElementsAre(HasSubstr("DX de DL1ABC:")));
  EXPECT_THAT(receivers.fed, IsEmpty());
}

TEST_F(Route, EndOfTheSessionForgetsWhatTheNodeSends) {
  parts.rejectLists.NoteCountryWord();
  parts.lines.ZV11CarrotCounter("ZV11^1");
  EXPECT_FALSE(Receive(Line{}));
  parts.Disconnected();
  EXPECT_FALSE(parts.rejectLists.CountryWordSeen.Get());
  EXPECT_TRUE(Receive(Line{}));
}

}  // namespace
