#include "spots/spot_list.h"

#include <gmock/gmock.h>

#include <vector>

#include "platform/sim/world.h"

namespace spots {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::string_view kListPrompt = "N0CALL de K1TST 20-Nov-2026 2116Z arc >";
constexpr std::string_view kNotFound = "sh/dx: '99 NB0DY' not found";

std::string FoundRow(const std::string& comment) {
  return " 14025.0  3Y0J        20-Nov-2026 2116Z " + comment + "<DL1ABC>";
}

class SpotListTest : public testing::Test {
 protected:
  bool Receive(std::string_view line) { return list.CollectShDxLine(line); }
  void ReceiveRows(int count) {
    for (int i = 1; i <= count; ++i) EXPECT_TRUE(Receive(FoundRow(std::to_string(i))));
  }
  bool Ended() const { return list.ShDxDone && !list.ShDxCollecting() && !list.SpotListBusy(); }

  platform::sim::World world;
  bool sessionUp = true;
  bool directoryRuns = false;
  bool newestFirst = false;
  int begun = 0;
  int sorted = 0;
  bool collectedDuringReplay = true;
  std::vector<std::string> replayed;
  SpotList list{world.scheduler,
                {
                    .RcvdPrompt = [](auto line) { return line.ends_with("arc >"); },
                    .sessionUp = [this] { return sessionUp; },
                    .directoryRuns = [this] { return directoryRuns; },
                    .latency = [] { return 250ms; },
                    .newestFirst = [this] { return newestFirst; },
                    .replayBegins = [this] { ++begun; },
                    .replay =
                        [this](std::string_view row) {
                          collectedDuringReplay &= list.ShDxCollecting();
                          replayed.emplace_back(row);
                        },
                    .sort = [this] { ++sorted; },
                }};
};

TEST_F(SpotListTest, LinesThatAreNoRowsAreNotClaimed) {
  for (const std::string_view line :
       {std::string_view(), std::string_view("ZV11^14025.0^3Y0J"), kListPrompt, kNotFound,
        std::string_view("To ALL de K1A: 14025 2026 2116Z"), std::string_view("14025 Z")})
    EXPECT_FALSE(Receive(line)) << line;
  EXPECT_FALSE(list.ShDxCollecting());
}

TEST_F(SpotListTest, RowsAreClaimedAndKeptUntilThePrompt) {
  list.AskedForMissed();
  ReceiveRows(2);
  EXPECT_TRUE(list.ShDxCollecting());
  EXPECT_FALSE(list.ShDxDone);
  EXPECT_THAT(replayed, IsEmpty());
  EXPECT_FALSE(Receive(kListPrompt));
  EXPECT_THAT(replayed, ElementsAre(FoundRow("1"), FoundRow("2")));
  EXPECT_TRUE(Ended());
  EXPECT_EQ(begun, 1);
  EXPECT_EQ(sorted, 1);
  EXPECT_EQ(list.lblCount.Caption.Get(), "2");
}

TEST_F(SpotListTest, IsBeingCollectedUntilTheReplayIsOver) {
  ReceiveRows(2);
  Receive(kListPrompt);
  EXPECT_THAT(replayed, SizeIs(2));
  EXPECT_TRUE(collectedDuringReplay);
}

TEST_F(SpotListTest, NewestFirstIsReplayedFromItsEnd) {
  newestFirst = true;
  ReceiveRows(3);
  Receive(kListPrompt);
  EXPECT_THAT(replayed, ElementsAre(FoundRow("3"), FoundRow("2"), FoundRow("1")));
}

TEST_F(SpotListTest, KeepsTheFirstHundredRowsAndCountsAll) {
  ReceiveRows(150);
  Receive(kListPrompt);
  ASSERT_THAT(replayed, SizeIs(100));
  EXPECT_EQ(replayed.front(), FoundRow("1"));
  EXPECT_EQ(replayed.back(), FoundRow("100"));
  EXPECT_EQ(list.lblCount.Caption.Get(), "150");
}

TEST_F(SpotListTest, RowsOfAFinishedListAreClaimedAndNotKept) {
  list.ShDxDone = true;
  ReceiveRows(2);
  EXPECT_FALSE(list.ShDxCollecting());
  EXPECT_FALSE(Receive(kListPrompt));
  EXPECT_THAT(replayed, IsEmpty());
  EXPECT_EQ(sorted, 0);
}

TEST_F(SpotListTest, NothingOfTheListBeforeIsReplayedAgain) {
  ReceiveRows(3);
  Receive(kListPrompt);
  replayed.clear();
  list.AskedForSpots();
  ReceiveRows(1);
  Receive(kListPrompt);
  EXPECT_THAT(replayed, ElementsAre(FoundRow("1")));
}

TEST_F(SpotListTest, RowsOfADirectoryAreNotItsOwn) {
  directoryRuns = true;
  EXPECT_FALSE(Receive(FoundRow("1")));
}

TEST_F(SpotListTest, GiantRowIsCountedAndNotKept) {
  EXPECT_TRUE(Receive(FoundRow(std::string(1'000'000, 'x'))));
  Receive(kListPrompt);
  EXPECT_THAT(replayed, IsEmpty());
  EXPECT_EQ(list.lblCount.Caption.Get(), "1");
}

TEST_F(SpotListTest, WithoutRecordsEndsAtTheNextPrompt) {
  list.AskedForSpots();
  EXPECT_TRUE(list.SpotListBusy());
  EXPECT_TRUE(Receive("*** no records found"));
  EXPECT_TRUE(list.ShDxCollecting());
  EXPECT_FALSE(Ended());
  Receive(kListPrompt);
  EXPECT_TRUE(Ended());
  EXPECT_THAT(replayed, IsEmpty());
  EXPECT_EQ(sorted, 1);
}

TEST_F(SpotListTest, WithoutRecordsAndWithoutAPromptEndsByItself) {
  list.AskedForSpots();
  Receive("*** no records found");
  world.Run(9999ms);
  EXPECT_FALSE(Ended());
  world.Run(1ms);
  EXPECT_TRUE(Ended());
  list.AskedForSpots();
  Receive(kListPrompt);
  Receive("*** no records found");
  world.Run(1s);
  EXPECT_TRUE(Ended());
}

TEST_F(SpotListTest, NoRecordsAmongRowsIsNotClaimed) {
  ReceiveRows(1);
  EXPECT_FALSE(Receive("*** no records found"));
  Receive(kListPrompt);
  EXPECT_THAT(replayed, SizeIs(1));
}

TEST_F(SpotListTest, WithoutAPromptBeforeItAPauseBelongsToIt) {
  ReceiveRows(1);
  world.Run(9s);
  Receive(FoundRow("2"));
  EXPECT_FALSE(Ended());
  Receive(kListPrompt);
  EXPECT_THAT(replayed, SizeIs(2));
}

TEST_F(SpotListTest, OneWhosePromptNobodyKnowsEndsAfterTenSecondsOfSilence) {
  ReceiveRows(2);
  Receive("K1TST de N0NODE #");
  world.Run(9999ms);
  EXPECT_FALSE(Ended());
  world.Run(1ms);
  EXPECT_TRUE(Ended());
  EXPECT_THAT(replayed, SizeIs(2));
}

TEST_F(SpotListTest, RowsThatComeLateBehindAnotherCommandsPromptAreTheList) {
  list.AskedForSpots();
  Receive(kListPrompt);
  world.Run(3s);
  ASSERT_TRUE(Ended());
  Receive(FoundRow("1"));
  Receive(FoundRow("2"));
  EXPECT_THAT(replayed, IsEmpty());
  world.Run(1s);
  EXPECT_TRUE(Ended());
  EXPECT_THAT(replayed, ElementsAre(FoundRow("1"), FoundRow("2")));
}

TEST_F(SpotListTest, RowsLongAfterAnEmptyListAreNone) {
  list.AskedForSpots();
  Receive(kListPrompt);
  world.Run(12s);
  EXPECT_TRUE(Receive(FoundRow("1")));
  world.Run(12s);
  EXPECT_THAT(replayed, IsEmpty());
}

TEST_F(SpotListTest, BehindAPromptEndsASecondAfterItsLastRow) {
  list.AskedForSpots();
  Receive(kListPrompt);
  world.Run(500ms);
  Receive(FoundRow("1"));
  world.Run(999ms);
  Receive(FoundRow("2"));
  world.Run(999ms);
  EXPECT_FALSE(Ended());
  world.Run(1ms);
  EXPECT_TRUE(Ended());
  EXPECT_THAT(replayed, ElementsAre(FoundRow("1"), FoundRow("2")));
  EXPECT_EQ(sorted, 1);
}

TEST_F(SpotListTest, BehindAPromptNothingElseEndsOrProlongsIt) {
  list.AskedForSpots();
  Receive(kListPrompt);
  Receive(FoundRow("1"));
  for (int i = 0; i < 9; ++i) {
    world.Run(100ms);
    for (const std::string_view line : {kListPrompt, kNotFound, std::string_view("hello")})
      Receive(line);
    EXPECT_FALSE(Ended());
  }
  Receive(FoundRow("2"));
  world.Run(999ms);
  EXPECT_FALSE(Ended());
  world.Run(1ms);
  EXPECT_THAT(replayed, SizeIs(2));
}

TEST_F(SpotListTest, BarePromptIsAnEmptyList) {
  list.AskedForSpots();
  Receive(kListPrompt);
  world.Run(900ms);
  Receive(kListPrompt);
  EXPECT_FALSE(Ended());
  world.Run(100ms);
  EXPECT_TRUE(Ended());
  EXPECT_THAT(replayed, IsEmpty());
  EXPECT_EQ(list.lblCount.Caption.Get(), "0");
}

TEST_F(SpotListTest, NothingFoundIsAnEmptyList) {
  for (const std::string_view line :
       {kNotFound, std::string_view("sh/mydx: '99 NB0DY' not found")}) {
    list.AskedForSpots();
    EXPECT_FALSE(Receive(line));
    world.Run(999ms);
    EXPECT_FALSE(Ended());
    world.Run(1ms);
    EXPECT_TRUE(Ended()) << line;
  }
}

TEST_F(SpotListTest, EmptyListAfterAFullOneReplaysNothing) {
  ReceiveRows(3);
  Receive(kListPrompt);
  replayed.clear();
  list.AskedForSpots();
  Receive(kNotFound);
  world.Run(1s);
  EXPECT_TRUE(Ended());
  EXPECT_THAT(replayed, IsEmpty());
}

TEST_F(SpotListTest, RequestForgetsThePromptBeforeIt) {
  Receive(kListPrompt);
  world.Run(500ms);
  list.AskedForSpots();
  world.Run(10s);
  EXPECT_FALSE(Ended());
  ReceiveRows(1);
  Receive(kListPrompt);
  EXPECT_TRUE(Ended());
}

TEST_F(SpotListTest, ExtendedLinesAreRowsWhileASessionIsUp) {
  list.ZV11_SpotsOthers("ZV11^1");
  list.ZV11_SpotsOthers("ZV11^2");
  EXPECT_TRUE(list.ShDxCollecting());
  Receive(kListPrompt);
  EXPECT_THAT(replayed, ElementsAre("ZV11^1", "ZV11^2"));
  EXPECT_TRUE(Ended());
}

TEST_F(SpotListTest, ExtendedLinesAreNoRowsOfAFinishedListOrWithoutASession) {
  list.ShDxDone = true;
  list.ZV11_SpotsOthers("ZV11^1");
  EXPECT_FALSE(list.ShDxCollecting());
  list.ShDxDone = false;
  sessionUp = false;
  list.ZV11_SpotsOthers("ZV11^1");
  EXPECT_FALSE(list.ShDxCollecting());
}

TEST_F(SpotListTest, ExtendedRowsBehindAPromptEndWithTheNext) {
  Receive(kListPrompt);
  list.ZV11_SpotsOthers("ZV11^1");
  Receive(kListPrompt);
  EXPECT_THAT(replayed, ElementsAre("ZV11^1"));
}

TEST_F(SpotListTest, StreamOfExtendedLinesDoesNotKeepAListOpen) {
  Receive(kListPrompt);
  for (int i = 0; i < 150; ++i) {
    list.ZV11_SpotsOthers("ZV11^");
    world.Run(20ms);
  }
  EXPECT_TRUE(list.ShDxDone);
  EXPECT_THAT(replayed, SizeIs(100));
}

TEST_F(SpotListTest, TimeToTheFirstRowIsShown) {
  list.AskedForMissed();
  world.Run(1254ms);
  ReceiveRows(1);
  world.Run(1s);
  ReceiveRows(1);
  EXPECT_EQ(list.lblSeconds.Caption.Get(), "001.25");
  EXPECT_EQ(list.lblBeyondLatency.Caption.Get(), "1.00");
}

TEST_F(SpotListTest, LongTimeIsShownInTenths) {
  list.AskedForMissed();
  world.Run(9994ms);
  ReceiveRows(1);
  EXPECT_EQ(list.lblSeconds.Caption.Get(), "009.99");
  Receive(kListPrompt);
  list.AskedForMissed();
  EXPECT_EQ(list.lblSeconds.Caption.Get(), "");
  EXPECT_EQ(list.lblBeyondLatency.Caption.Get(), "");
  EXPECT_EQ(list.lblCount.Caption.Get(), "");
  world.Run(12'250ms);
  ReceiveRows(1);
  EXPECT_EQ(list.lblSeconds.Caption.Get(), "012.3");
  EXPECT_EQ(list.lblBeyondLatency.Caption.Get(), "12.00");
}

TEST_F(SpotListTest, AnswerFasterThanTheLinkIsShownAsLess) {
  list.AskedForMissed();
  ReceiveRows(1);
  EXPECT_EQ(list.lblSeconds.Caption.Get(), "000.00");
  EXPECT_EQ(list.lblBeyondLatency.Caption.Get(), "-0.25");
}

TEST_F(SpotListTest, EndsWithTheSessionAndLeavesNothing) {
  list.AskedForSpots();
  Receive(kListPrompt);
  ReceiveRows(3);
  list.Disconnected();
  EXPECT_FALSE(list.ShDxCollecting() || list.ShDxDone || list.SpotListBusy());
  world.Run(10s);
  EXPECT_EQ(sorted, 0);
  ReceiveRows(1);
  Receive(kListPrompt);
  EXPECT_THAT(replayed, ElementsAre(FoundRow("1")));
}

}  // namespace
}  // namespace spots
