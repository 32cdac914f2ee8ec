#include "spots/spot_parts.h"

#include <gmock/gmock.h>

#include "cty_text.h"
#include "spot_desk.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// What hangs together by the parts' owner alone.
class SpotPartsTest : public SpotDesk {
 protected:
  SpotPartsTest() { table.EnterTab(); }

  // The CQ zone of a spot that a node says to be in Ohio.
  std::string ZoneOfOhio() {
    spots::Spot spot;
    spot.DxCall = "W8RIK";
    spot.DxCty = "K";
    spot.DxState = "OH";
    parts.corrections.FixDxSpot(spot, node, parts.display.Shown());
    return spot.DxCq;
  }
};

TEST_F(SpotPartsTest, EndOfTheSessionForgetsThatTheNodeSendsStates) {
  node.kind = session::NodeKind::Spider;
  Receive({.call = "W8RIK", .comment = "CW up 2                     OH"});
  node.kind = session::NodeKind::ArCluster;
  EXPECT_EQ(ZoneOfOhio(), " 4");
  parts.Disconnected();
  EXPECT_EQ(ZoneOfOhio(), "");
}

TEST_F(SpotPartsTest, EndOfTheSessionForgetsItsCountryWords) {
  parts.rejectLists.NoteCountryWord();
  parts.Disconnected();
  EXPECT_FALSE(parts.rejectLists.CountryWordSeen.Get());
}

TEST_F(SpotPartsTest, WordsOfLinesAreHeldAgainstTheTableOfCountries) {
  settings.LogDxSpots = true;
  world.files.content["/home/cty.dat"] = CtyText({Country{}.Line()});
  parts.reference.Read();
  Receive({.comment = "CW up 2                     GD"});
  Receive({.call = "K1ABC", .comment = "CW up 2                     XX"});
  parts.log.Close();
  const std::string& log = world.files.content["/home/2026/dx-20-Nov-2026.txt"];
  EXPECT_THAT(log, HasSubstr(",CW up 2, ,,,,,,,GD,"));
  EXPECT_THAT(log, HasSubstr(",CW up 2                     XX, ,,,,,,,,"));
}

TEST_F(SpotPartsTest, GridsAreRecordedWhereThereIsAListOfThem) {
  node.kind = session::NodeKind::Spider;
  parts.lines.list.ShDxDone = true;
  world.files.content["/home/data/grid/grid.dat"] = "K1ABC FN42\r\n";
  parts.lines.ZV11CarrotCounter(
      "ZV11^14025.0^3Y0J^20-Nov-2026^2116Z^CW^DL1ABC^^^W1A^67^38^28^14^^^3Y^DL^JD15AA^JN58");
  EXPECT_EQ(world.files.content["/home/grid.txt"], "DL1ABC JN58 261120\r\n3Y0J JD15 261120\r\n");
}

TEST_F(SpotPartsTest, HeadingIsThatOfPlaceThenGridThenStateThenCountry) {
  world.files.content["/home/cty.dat"] = CtyText({Country{}.Line()});
  world.files.content["/home/state.dat"] =
      "ID NAME                        NORTH    WEST\n"
      "AL ALABAMA                     32.78   86.83\n";
  parts.reference.Read();
  const spots::Home home = {.position = {42.28, 83.73}, .kilometres = true};
  parts.reference.SetHome(home);
  spots::Spot spot;
  const auto expectHeadingOf = [&](core::Coordinates place) {
    EXPECT_EQ(parts.reference.HeadingOf(spot), spots::Bearing(home, place));
  };
  spot.DxCty = "GD";
  expectHeadingOf({54.20, 4.53});
  spot.DxState = "ZZ";  // it is none
  expectHeadingOf({54.20, 4.53});
  spot.DxState = "AL";
  expectHeadingOf({32.78, 86.83});
  spot.DxGrid = "FN20";
  expectHeadingOf({40.5, 75});
  spot.OrigLocation = "50.7/-7.1";
  expectHeadingOf({50.7, -7.1});
}

TEST_F(SpotPartsTest, ShareOfSkimmersDuplicatesIsShownWithTheNextTick) {
  for (int report = 0; report < 2; ++report) Receive({.spotter = "DL1ABC-#", .time = "2100"});
  EXPECT_EQ(parts.duplicates.SkimmerDupes.Caption.Get(), "");
  parts.Tick();
  EXPECT_EQ(parts.duplicates.SkimmerDupes.Caption.Get(), "Skimmer Dupes =  50.00%");
}

TEST_F(SpotPartsTest, ListIsSortedAtItsEnd) {
  table.SortBy(2);
  parts.lines.CollectShDxLine(
      " 14025.0  3Y0J        20-Nov-2026 2100Z CW up 2                     <DL1ABC>");
  parts.lines.CollectShDxLine("arc >");
  EXPECT_THAT(CallsInTable(), ElementsAre("3Y0J"));
}

// Looking for an alarm takes that long.
class SlowSpotTest : public SpotPartsTest {
 protected:
  void Take(std::chrono::milliseconds time) {
    receivers.checking = [this, time] { world.scheduler.AdvanceTo(world.scheduler.Now() + time); };
  }
  const std::string& Shown() const { return parts.numbers.txtTime.Caption.Get(); }
};

TEST_F(SlowSpotTest, TimeToItsRowIsShownInSecondsWithTheNextTick) {
  Take(std::chrono::milliseconds{3});
  Receive(Line{});
  EXPECT_EQ(Shown(), "");
  parts.Tick();
  EXPECT_EQ(Shown(), " 0.003");
  Take(std::chrono::milliseconds{12'345});
  Receive({.call = "P5DX"});
  parts.Tick();
  EXPECT_EQ(Shown(), " 12.345");
}

TEST_F(SlowSpotTest, SpotThatReachesNoRowHasNoTime) {
  Take(std::chrono::milliseconds{3});
  Receive({.kHz = "16000.0"});
  parts.Tick();
  EXPECT_EQ(Shown(), "");
}

TEST_F(SlowSpotTest, InASortedViewNoTimeIsTaken) {
  table.SortBy(2);
  Take(std::chrono::milliseconds{3});
  Receive(Line{});
  parts.Tick();
  EXPECT_EQ(Shown(), "");
}

}  // namespace
