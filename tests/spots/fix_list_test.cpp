#include "spots/fix_list.h"

#include <gmock/gmock.h>

#include <array>
#include <string>
#include <vector>

#include "platform/sim/world.h"
#include "spots/spot.h"

namespace spots {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr auto kListFile = "/f/fixspots.dat";
constexpr auto kBadFile = "/f/fixspots.dat.bad";

class FixListTest : public testing::Test {
 protected:
  FixListTest() {
    columns.DxCty = columns.DxState = columns.DxCq = columns.DxItu = columns.DxGrid = true;
    node.kind = session::NodeKind::Spider;
  }

  void Have(const std::string& text) {
    world.files.content[kListFile] = text;
    list.ReadFixSpots();
  }
  FileState State() const { return list.file.State.Get(); }
  bool Apply(const std::string& call) {
    return list.ApplySpotFix(call, {spot.DxCty, spot.DxState, spot.DxCq, spot.DxItu, spot.DxGrid},
                             {.shown = columns,
                              .node = node,
                              .ShDxCollecting = collecting,
                              .MultiNode = multiNode,
                              .DdeOutput = ddeOutput});
  }
  // The country that the list gives a call; "none" without an entry.
  std::string CtyOf(const std::string& call) {
    spot = {};
    return Apply(call) ? spot.DxCty : "none";
  }
  std::array<std::string, kFixFields> Fields() const {
    return {spot.DxCty, spot.DxState, spot.DxCq, spot.DxItu, spot.DxGrid};
  }
  std::string File() { return world.files.content[kListFile]; }
  std::string Errors() { return world.files.content["/f/error.log"]; }

  platform::sim::World world;
  core::Calendar calendar{world.clock};
  core::ErrorLog errorLog{world.files, world.dialogs, calendar, "/f"};
  ShownColumns columns;
  NodeFacts node;
  bool collecting = false;
  bool multiNode = false;
  bool ddeOutput = true;
  Spot spot;
  FixList list{world.files, world.scheduler, errorLog, "/f"};
};

TEST_F(FixListTest, WithoutAListNothingMatches) {
  list.ReadFixSpots();
  EXPECT_FALSE(Apply("K1ABC"));
  EXPECT_FALSE(Apply(""));
  EXPECT_EQ(list.FixCount(), 0u);
  EXPECT_EQ(Errors(), "");
}

TEST_F(FixListTest, EntryCorrectsTheFieldsOfItsCall) {
  Have("K1ABC,K,MA,05,08,FN42,0\r\n");
  spot.DxCty = "DL";
  EXPECT_TRUE(Apply("K1ABC"));
  EXPECT_THAT(Fields(), ElementsAre("K", "MA", "05", "08", "FN42"));
}

TEST_F(FixListTest, CallsAreTheSameByteForByteAndInLength) {
  Have("K1ABC,K\r\n");
  for (const char* call : {"K1AB", "K1ABCD", "k1abc", "K1ABC/P", "K1ABC*", ""})
    EXPECT_EQ(CtyOf(call), "none") << call;
}

TEST_F(FixListTest, LaterOfAPrefixAndACallWins) {
  Have("K1*,A\r\nK1ABC,B\r\n");
  EXPECT_EQ(CtyOf("K1ABC"), "B");
  EXPECT_EQ(CtyOf("K1ABD"), "A");
  Have("K1ABC,B\r\nK1*,A\r\n");
  EXPECT_EQ(CtyOf("K1ABC"), "A");
}

TEST_F(FixListTest, LaterOfTwoPrefixesWinsWhateverTheirLengths) {
  Have("K1*,A\r\nK1A*,B\r\n");
  EXPECT_EQ(CtyOf("K1ABC"), "B");
  Have("K1A*,B\r\nK1*,A\r\n*,C\r\nDL*,D\r\n");
  EXPECT_EQ(CtyOf("K1ABC"), "C");
  EXPECT_EQ(CtyOf("DL1XX"), "D");
}

TEST_F(FixListTest, LaterOfTwoEntriesOfACallWins) {
  Have("K1ABC,A\r\nK1ABC,B\r\nK1*,C\r\nK1ABC,D\r\n");
  EXPECT_EQ(CtyOf("K1ABC"), "D");
}

TEST_F(FixListTest, CallIsAtLeastAsLongAsThePrefixWithItsStar) {
  Have("K1*,A\r\n");
  EXPECT_EQ(CtyOf("K1"), "none");
  EXPECT_EQ(CtyOf("K"), "none");
  EXPECT_EQ(CtyOf("K1A"), "A");
  EXPECT_EQ(CtyOf("K2ABC"), "none");
}

TEST_F(FixListTest, LongestPrefixAndLongCallsMatch) {
  Have("K1ABCDEFGHIJKLMNO*,A\r\n");
  EXPECT_EQ(CtyOf("K1ABCDEFGHIJKLMNO"), "none");
  EXPECT_EQ(CtyOf("K1ABCDEFGHIJKLMNOP"), "A");
  EXPECT_EQ(CtyOf("K1ABCDEFGHIJKLMNO" + std::string(10'000, 'X')), "A");
}

TEST_F(FixListTest, EmptyFieldNeverBlanksAValue) {
  Have("K1ABC,K\r\n");
  spot.DxState = "NH";
  spot.DxCq = " 4";
  spot.DxItu = " 7";
  spot.DxGrid = "EM12";
  EXPECT_TRUE(Apply("K1ABC"));
  EXPECT_THAT(Fields(), ElementsAre("K", "NH", " 4", " 7", "EM12"));
}

TEST_F(FixListTest, StateAppliesOnADxSpiderOnly) {
  Have("K1ABC,K,MA\r\n");
  for (const auto kind : {session::NodeKind::ArCluster, session::NodeKind::Zelva,
                          session::NodeKind::Clx, session::NodeKind::Unknown}) {
    node.kind = kind;
    spot = {};
    spot.DxState = "NH";
    EXPECT_TRUE(Apply("K1ABC"));
    EXPECT_EQ(spot.DxState, "NH");
    EXPECT_EQ(spot.DxCty, "K");
  }
}

TEST_F(FixListTest, FieldThatIsNotOnShowStays) {
  Have("K1ABC,K,MA,05,08,FN42,0\r\n");
  const std::array<bool ShownColumns::*, kFixFields> each = {
      &ShownColumns::DxCty, &ShownColumns::DxState, &ShownColumns::DxCq, &ShownColumns::DxItu,
      &ShownColumns::DxGrid};
  for (std::size_t i = 0; i < each.size(); ++i) {
    columns.*each[i] = false;
    spot = {};
    EXPECT_TRUE(Apply("K1ABC"));
    for (std::size_t field = 0; field < kFixFields; ++field)
      EXPECT_EQ(Fields()[field].empty(), field == i) << field;
    columns.*each[i] = true;
  }
}

TEST_F(FixListTest, EntryThatChangesNothingMatchesAllTheSame) {
  Have("K1ABC,K\r\n");
  spot.DxCty = "K";
  EXPECT_TRUE(Apply("K1ABC"));
  EXPECT_EQ(list.lblFixes.Caption.Get(), "");
  EXPECT_FALSE(list.Entries()[0].used);
}

TEST_F(FixListTest, EachCorrectedSpotCounts) {
  Have("K1ABC,K,MA\r\n");
  for (int i = 0; i < 3; ++i) CtyOf("K1ABC");
  EXPECT_EQ(list.lblFixes.Caption.Get(), "3");
}

TEST_F(FixListTest, WhileAListIsStoredTheCounterStandsAndEveryMatchIsNoted) {
  Have("K1ABC,K\r\nG0AA,G\r\n");
  collecting = true;
  CtyOf("K1ABC");
  spot.DxCty = "G";
  Apply("G0AA");
  EXPECT_EQ(list.lblFixes.Caption.Get(), "");
  EXPECT_EQ(list.Entries()[0].FixMask, 1u);
  EXPECT_EQ(list.Entries()[1].FixMask, 0u);
  EXPECT_TRUE(list.Entries()[1].used);
}

TEST_F(FixListTest, MaskTakesTheBitsOfWhatApplied) {
  Have("K1ABC,K,MA,05,08,FN42,0\r\n");
  const std::array<std::string, kFixFields> right = {"K", "MA", "05", "08", "FN42"};
  for (std::size_t i = 0; i < kFixFields; ++i) {
    Have("K1ABC,K,MA,05,08,FN42,0\r\n");
    spot.DxCty = i == kFixCty ? "" : right[kFixCty];
    spot.DxState = i == kFixState ? "" : right[kFixState];
    spot.DxCq = i == kFixCq ? "" : right[kFixCq];
    spot.DxItu = i == kFixItu ? "" : right[kFixItu];
    spot.DxGrid = i == kFixGrid ? "" : right[kFixGrid];
    Apply("K1ABC");
    EXPECT_EQ(list.Entries()[0].FixMask, 1u << i);
    EXPECT_EQ(list.Entries()[0].changed, 1u << i);
  }
}

TEST_F(FixListTest, LinkedCopyMarksAndCountsButWritesNothing) {
  Have("\"K1ABC\",\"K\"\r\n");
  multiNode = true;
  EXPECT_EQ(CtyOf("K1ABC"), "K");
  world.Run(1min);
  EXPECT_EQ(list.lblFixes.Caption.Get(), "1");
  EXPECT_EQ(list.Entries()[0].changed, 1u);
  EXPECT_EQ(list.Entries()[0].FixMask, 0u);
  EXPECT_EQ(File(), "\"K1ABC\",\"K\"\r\n");
  ddeOutput = false;
  CtyOf("K1ABC");
  EXPECT_EQ(list.Entries()[0].FixMask, 1u);
}

TEST_F(FixListTest, BurstCostsOneWriteThatNothingPutsOff) {
  Have("K1ABC,K\r\nG0AA,G\r\n");
  world.Run(10s);
  CtyOf("K1ABC");
  world.Run(4s);
  CtyOf("G0AA");
  EXPECT_THAT(File(), Not(HasSubstr("01")));
  world.Run(1s);
  EXPECT_EQ(File(),
            "\"K1ABC\",\"K\",\"\",\"\",\"\",\"\",\"01\"\r\n\"G0AA\",\"G\",\"\",\"\",\"\",\"\","
            "\"01\"\r\n");
}

TEST_F(FixListTest, WhatIsKnownAlreadyWritesNothing) {
  Have("K1ABC,K\r\n");
  CtyOf("K1ABC");
  world.Run(10s);
  world.files.content[kListFile] = "untouched";
  CtyOf("K1ABC");
  world.Run(10s);
  EXPECT_EQ(File(), "untouched");
}

TEST_F(FixListTest, RowsOfTheOldFormAreConverted) {
  Have(
      "CALL                CTY   ST CQ IT GRID\r\n"
      "\r\n"
      "oldcall\r\n"
      "K1ABC             5 K     MA 05 08 FN42         19\r\n");
  EXPECT_EQ(list.FixCount(), 1u);
  world.Run(FixList::kWriteDelay);
  EXPECT_EQ(File(), "\"K1ABC\",\"K\",\"MA\",\"05\",\"08\",\"FN42\",\"19\"\r\n");
}

TEST_F(FixListTest, FileOfTheNewFormIsNotRewritten) {
  Have("\"K1ABC\" , \"K\"\n");
  world.Run(1min);
  EXPECT_EQ(File(), "\"K1ABC\" , \"K\"\n");
  EXPECT_EQ(CtyOf("K1ABC"), "K");
}

TEST_F(FixListTest, MalformedLinesAreSkipped) {
  Have("<html>\r\n\"K1 ABC\",\"K\"\r\nG0AA,G\r\n" + "\0\xFF,K\r\n"s + std::string(100'000, 'X') +
       ",K\r\n\"DL1\",\"DL");
  EXPECT_EQ(list.FixCount(), 2u);
  EXPECT_EQ(CtyOf("G0AA"), "G");
  EXPECT_EQ(CtyOf("DL1"), "DL");
}

TEST_F(FixListTest, ReadingEmptiesTheOlderList) {
  Have("K1ABC,K\r\n");
  world.files.content.erase(kListFile);
  list.ReadFixSpots();
  EXPECT_EQ(list.FixCount(), 0u);
  EXPECT_FALSE(Apply("K1ABC"));
}

TEST_F(FixListTest, FileThatMayNotBeReadIsReportedAndNotWrittenOver) {
  world.files.content[kListFile] = "K1ABC,K\r\n";
  world.files.denied.insert(kListFile);
  list.ReadFixSpots();
  EXPECT_THAT(Errors(), HasSubstr("Form_load - Error #70 Permission denied"));
  world.files.denied.clear();
  list.WriteFix();
  EXPECT_EQ(File(), "K1ABC,K\r\n");
  EXPECT_THAT(Errors(), HasSubstr("writefix"));
}

TEST_F(FixListTest, FileThatHoldsNoEntryIsDamagedAndSetAsideWhenItIsWritten) {
  for (const std::string text : {"<html>\r\n", "K1 ABC", "\x01\x02\xFF"}) {
    world.files.content.clear();
    Have(text);
    EXPECT_EQ(State(), FileState::Damaged) << text;
    list.Add(*ParseFixLine("G0AA,G"));
    list.WriteFix();
    EXPECT_EQ(world.files.content[kBadFile], text);
    list.ReadFixSpots();
    EXPECT_EQ(State(), FileState::Read) << text;
    EXPECT_EQ(list.FixCount(), 1u);
  }
}

TEST_F(FixListTest, LineThatCannotBeReadIsSetAsideWhenTheFileIsWritten) {
  const std::string text = "K1ABC,K\r\nmy own words\r\n";
  Have(text);
  EXPECT_EQ(State(), FileState::Read);
  list.WriteFix();
  EXPECT_EQ(world.files.content[kBadFile], text);
  EXPECT_EQ(State(), FileState::SetAside);
}

TEST_F(FixListTest, GoodFileLeavesNothingAside) {
  Have("CALL                CTY\r\n\r\n\"oldcall\",\"\"\r\nK1ABC,K\r\n");
  list.WriteFix();
  EXPECT_FALSE(world.files.content.contains(kBadFile));
  EXPECT_EQ(State(), FileState::Read);
}

TEST_F(FixListTest, FileThatIsCutIsDamagedUntilItIsWrittenAndItsEntriesHold) {
  const std::string text = "\"K1ABC\",\"K\"\r\n\"G0AA\",\"G";
  Have(text);
  EXPECT_EQ(State(), FileState::Damaged);
  EXPECT_EQ(CtyOf("K1ABC"), "K");
  list.WriteFix();
  EXPECT_EQ(world.files.content[kBadFile], text);
  list.ReadFixSpots();
  EXPECT_EQ(State(), FileState::Read);
}

TEST_F(FixListTest, EmptyListUnderItsHeadingIsGood) {
  for (const char* text : {"", "\r\n", "CALL                CTY\r\n", "\"oldcall\",\"\"\r\n",
                           "K1ABC,K\r\n<html>\r\n"}) {
    Have(text);
    EXPECT_EQ(State(), FileState::Read) << text;
  }
}

TEST_F(FixListTest, FileBeyondMeasureIsReadInPartAndSetAsideWhenItIsWritten) {
  std::string text;
  for (std::size_t i = 0; i <= FixList::kMostEntries; ++i) text += "K" + std::to_string(i) + ",K\n";
  Have(text);
  EXPECT_EQ(list.FixCount(), FixList::kMostEntries);
  EXPECT_EQ(State(), FileState::TooLong);
  list.WriteFix();
  EXPECT_EQ(world.files.content[kBadFile], text);
  EXPECT_EQ(State(), FileState::SetAside);
  EXPECT_FALSE(list.Add(*ParseFixLine("G0AA,G")));
}

TEST_F(FixListTest, FullDiskIsReportedAndTriedAgainAtTheEnd) {
  Have("K1ABC,K\r\n");
  CtyOf("K1ABC");
  world.files.bytesFree = 10;
  list.WriteFix();
  EXPECT_EQ(File(), "K1ABC,K\r\n");
  EXPECT_EQ(CtyOf("K1ABC"), "K");
  world.files.bytesFree = 10'000;
  list.Flush();
  EXPECT_THAT(File(), HasSubstr("\"01\""));
}

TEST_F(FixListTest, FlushWritesWhatIsStillDelayed) {
  Have("\"K1ABC\",\"K\"\r\n");
  list.Flush();
  EXPECT_EQ(File(), "\"K1ABC\",\"K\"\r\n");
  CtyOf("K1ABC");
  list.Flush();
  EXPECT_THAT(File(), HasSubstr("\"01\""));
}

TEST_F(FixListTest, NewDataIsAppendedAsARow) {
  Have("\"G0AA\",\"G\"");
  list.SaveNewData(*ParseFixLine("K1ABC,K,MA"));
  EXPECT_EQ(File(), "\"G0AA\",\"G\"\r\nK1ABC               K     MA                    00\r\n");
  list.SaveNewData(*ParseFixLine("K2*,K"));
  list.ReadFixSpots();
  EXPECT_EQ(list.FixCount(), 3u);
}

TEST_F(FixListTest, NewDataThatCannotBeSavedIsReported) {
  Have("K1ABC,K\r\n");
  world.files.denied.insert(kListFile);
  list.SaveNewData(*ParseFixLine("G0AA,G"));
  EXPECT_THAT(Errors(), HasSubstr("SaveNewData - Error #70"));
  EXPECT_EQ(list.FixCount(), 1u);
}

TEST_F(FixListTest, AddedEntryTakesThePlaceOfTheOlderAtTheEnd) {
  Have("K1ABC,A\r\nK1*,B\r\n");
  EXPECT_TRUE(list.Add(*ParseFixLine("K1ABC,C")));
  EXPECT_EQ(list.FixCount(), 2u);
  EXPECT_EQ(CtyOf("K1ABC"), "C");
  EXPECT_EQ(CtyOf("K1ABD"), "B");
}

TEST_F(FixListTest, RemovedEntryMatchesNoMore) {
  Have("K1ABC,A\r\nK1*,B\r\nG0AA,G\r\n");
  list.Remove(1);
  list.Remove(7);
  EXPECT_EQ(CtyOf("K1ABC"), "A");
  EXPECT_EQ(CtyOf("K1ABD"), "none");
  EXPECT_EQ(CtyOf("G0AA"), "G");
}

TEST_F(FixListTest, ImportOverwritesAndAddsAndKeepsWhatHasApplied) {
  Have("K1ABC,A,,,,,4\r\nG0AA,G\r\n");
  list.Import({*ParseFixLine("K1ABC,B"), *ParseFixLine("DL*,DL")}, false);
  EXPECT_EQ(list.FixCount(), 3u);
  EXPECT_EQ(CtyOf("K1ABC"), "B");
  EXPECT_EQ(CtyOf("G0AA"), "G");
  EXPECT_EQ(CtyOf("DL1XX"), "DL");
  EXPECT_THAT(File(), HasSubstr("\"K1ABC\",\"B\",\"\",\"\",\"\",\"\",\"04\""));
}

TEST_F(FixListTest, ReplacingImportEmptiesTheListFirst) {
  Have("K1ABC,A\r\nG0AA,G\r\n");
  list.Import({*ParseFixLine("DL*,DL")}, true);
  EXPECT_EQ(CtyOf("K1ABC"), "none");
  EXPECT_EQ(File(), "\"DL*\",\"DL\",\"\",\"\",\"\",\"\",\"00\"\r\n");
}

TEST_F(FixListTest, ChangesOfABurstAreToldOnce) {
  Have("K1ABC,K,MA\r\nG0AA,G\r\n");
  world.Run(10s);
  int told = 0;
  const auto observer = list.Changed.Add([&] { ++told; });
  for (int i = 0; i < 100; ++i) CtyOf(i % 2 == 0 ? "K1ABC" : "G0AA");
  EXPECT_EQ(told, 0);
  world.Run(1min);
  EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace spots
