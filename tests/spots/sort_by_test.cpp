#include <gmock/gmock.h>

#include <map>

#include "spot_desk.h"
#include "spots/band_numbers.h"
#include "spots/row_layout.h"

namespace {

using spots::kAllBands;
using spots::kLastHour;
using spots::kTimeOrder;
using testing::ElementsAre;
using testing::IsEmpty;
using Press = spots::SpotTable::Press;

constexpr int kByCall = 2;

class SortBy : public SpotDesk {
 protected:
  SortBy() { table.EnterTab(); }
  void Tick() { table.RunDxQue(); }
};

TEST_F(SortBy, ButtonIsMarked) {
  EXPECT_EQ(table.optSortBy.Get(), kTimeOrder);
  table.SortBy(kByCall);
  EXPECT_EQ(table.optSortBy.Get(), kByCall);
}

TEST_F(SortBy, RowsWaitForTheTimerInASortedView) {
  ReceiveCalls({"BB"});
  table.SortBy(kByCall);
  ReceiveCalls({"CC", "AA"});
  EXPECT_THAT(CallsInTable(), ElementsAre("BB"));
  Tick();
  EXPECT_THAT(CallsInTable(), ElementsAre("AA", "BB", "CC"));
}

TEST_F(SortBy, TimerWithoutNewRowsTellsNobody) {
  ReceiveCalls({"BB"});
  table.SortBy(kByCall);
  int told = -1;
  const auto watching = table.RtbDx.Observe([&](const auto&) { ++told; });
  Tick();
  EXPECT_EQ(told, 0);
}

TEST_F(SortBy, NewRowsAreToldAsTheSameList) {
  table.SortBy(kByCall);
  std::vector<spots::DxPane::Change> told;
  const auto watching =
      table.RtbDx.Observe([&](const spots::DxPane::Change& change) { told.push_back(change); });
  ReceiveCalls({"AA"});
  Tick();
  table.SortBy(kTimeOrder);
  ASSERT_EQ(told.size(), 3u);
  EXPECT_TRUE(told[1].allNew && told[1].sameList);
  EXPECT_TRUE(told[2].allNew && !told[2].sameList);
}

TEST_F(SortBy, TimeOrderComesBackWithAllRows) {
  ReceiveCalls({"BB"});
  table.SortBy(kByCall);
  ReceiveCalls({"AA"});
  table.SortBy(kTimeOrder);
  EXPECT_THAT(CallsInTable(), ElementsAre("BB", "AA"));
  ReceiveCalls({"CC"});
  EXPECT_THAT(CallsInTable(), ElementsAre("BB", "AA", "CC"));
}

TEST_F(SortBy, MiddleButtonReversesTheOrderOfTimes) {
  ReceiveCalls({"AA", "BB"});
  table.SortBy(kTimeOrder, Press::Middle);
  EXPECT_THAT(CallsInTable(), ElementsAre("BB", "AA"));
  ReceiveCalls({"CC"});
  EXPECT_THAT(CallsInTable(), ElementsAre("CC", "BB", "AA"));
  table.SortBy(kTimeOrder);
  EXPECT_THAT(CallsInTable(), ElementsAre("AA", "BB", "CC"));
}

TEST_F(SortBy, MiddleButtonReversesASortedView) {
  ReceiveCalls({"AA", "CC", "BB"});
  table.SortBy(kByCall, Press::Middle);
  EXPECT_THAT(CallsInTable(), ElementsAre("CC", "BB", "AA"));
}

TEST_F(SortBy, ReversedTableLosesItsOldestRowsToo) {
  settings.SpotMemoryAll = 20;
  table.SortBy(kTimeOrder, Press::Middle);
  for (int i = 0; i < 1'000; ++i) ReceiveCalls({"K" + std::to_string(i)});
  auto calls = CallsInTable();
  std::reverse(calls.begin(), calls.end());
  EXPECT_EQ(calls, CallsInStore(kAllBands, 0));
}

TEST_F(SortBy, SortedViewFollowsBandAndSource) {
  ReceiveCalls({"B20", "A20"}, "14025.0");
  ReceiveCalls({"A40"}, "7012.3");
  Receive({.spotter = "DL1ABC-#", .call = "S20"});
  table.SortBy(kByCall);
  table.rail.optBand.UserSelects(k20m);
  EXPECT_THAT(CallsInTable(), ElementsAre("A20", "B20", "S20"));
  table.chkShSkm[spots::SpotTable::kDx].UserSets(false);
  EXPECT_THAT(CallsInTable(), ElementsAre("S20"));
  ReceiveCalls({"C20"}, "14025.0");
  Tick();
  EXPECT_THAT(CallsInTable(), ElementsAre("S20"));
}

TEST_F(SortBy, SortedViewForgetsWithTheStore) {
  settings.SpotMemoryAll = 20;
  table.SortBy(kByCall);
  for (int i = 0; i < 5'000; ++i) {
    ReceiveCalls({"K" + std::to_string(i)});
    if (i % 100 == 0) Tick();
  }
  Tick();
  auto stored = CallsInStore(kAllBands, 0);
  std::sort(stored.begin(), stored.end());
  EXPECT_EQ(CallsInTable(), stored);
}

TEST_F(SortBy, NoSeparatorIsSetInASortedView) {
  table.SortBy(kByCall);
  table.LeaveTab();
  ReceiveCalls({"AA"}, "14025.0");
  EXPECT_THAT(CallsInTable(), IsEmpty());
  EXPECT_EQ(table.TabCaption.Get(), "DX = 1");
  EXPECT_THAT(CallsInStore(k20m, 0), ElementsAre("AA"));
}

TEST_F(SortBy, HiddenTableIsNotSortedUntilItIsEntered) {
  ReceiveCalls({"BB"});
  table.SortBy(kByCall);
  table.LeaveTab();
  int told = -1;
  const auto watching = table.RtbDx.Observe([&](const auto&) { ++told; });
  ReceiveCalls({"CC", "AA"});
  Tick();
  EXPECT_EQ(told, 0);
  table.EnterTab();
  EXPECT_EQ(told, 1);
  EXPECT_THAT(CallsInTable(), ElementsAre("AA", "BB", "CC"));
  ReceiveCalls({"AB"});
  Tick();
  EXPECT_THAT(CallsInTable(), ElementsAre("AA", "AB", "BB", "CC"));
}

TEST_F(SortBy, ReaderOfASortedViewFindsHisPlaceAgainWhenHeComesBack) {
  ReceiveCalls({"BB"});
  table.SortBy(kByCall);
  table.LeaveTab();
  std::vector<spots::DxPane::Change> told;
  const auto watching =
      table.RtbDx.Observe([&](const spots::DxPane::Change& change) { told.push_back(change); });
  table.EnterTab();
  ASSERT_EQ(told.size(), 2u);
  EXPECT_TRUE(told.back().sameList);
}

TEST_F(SortBy, HiddenTableTakesAnotherOrderOrBandWhenItIsEntered) {
  ReceiveCalls({"B20", "A20"}, "14025.0");
  ReceiveCalls({"A40"}, "7012.3");
  table.LeaveTab();
  table.SortBy(kByCall);
  table.rail.optBand.UserSelects(k20m);
  EXPECT_THAT(CallsInTable(), IsEmpty());
  table.EnterTab();
  EXPECT_THAT(CallsInTable(), ElementsAre("A20", "B20"));
}

TEST_F(SortBy, HiddenSummaryHasForgottenWhatIsTooOldWhenItIsEntered) {
  ReceiveCalls({"AA"});
  table.SortBy(kLastHour);
  table.LeaveTab();
  world.Run(std::chrono::hours(2));
  table.RefreshLastHour();
  EXPECT_THAT(CallsInTable(), ElementsAre("AA", ""));
  table.EnterTab();
  EXPECT_THAT(CallsInTable(), IsEmpty());
}

TEST_F(SortBy, ReloadBehindAnotherTabIsThereWhenTheTableIsEntered) {
  table.SortBy(kByCall);
  table.LeaveTab();
  table.BeginReload();
  ReceiveCalls({"BB", "AA"});
  table.EnterTab();
  EXPECT_THAT(CallsInTable(), IsEmpty());
  table.LeaveTab();
  table.EndReload();
  table.EnterTab();
  EXPECT_THAT(CallsInTable(), ElementsAre("AA", "BB"));
}

TEST_F(SortBy, LastHourFollowsTheClock) {
  ReceiveCalls({"AA"});  // at 21:16
  table.SortBy(kLastHour);
  EXPECT_THAT(CallsInTable(), ElementsAre("AA", ""));
  EXPECT_EQ(LastRow(), "Last Hour");
  world.Run(std::chrono::hours(2));
  table.RefreshLastHour();
  EXPECT_THAT(CallsInTable(), IsEmpty());
}

TEST_F(SortBy, ButtonPressedWhileOneIsBeingMarkedCountsForNothing) {
  const auto watching = table.optSortBy.Observe([this](int button) {
    if (button == kByCall) table.SortBy(kLastHour);
  });
  table.SortBy(kByCall);
  EXPECT_EQ(table.optSortBy.Get(), kByCall);
}

TEST_F(SortBy, ReloadDrawsAtItsEndOnly) {
  const std::map<int, std::string> spots = {{kTimeOrder, "AA"}, {kByCall, "BB"}};
  for (const auto& [button, call] : spots) {
    table.SortBy(button);
    const auto before = CallsInTable();
    table.BeginReload();
    ReceiveCalls({call});
    Tick();
    EXPECT_EQ(CallsInTable(), before);
    table.EndReload();
    EXPECT_EQ(CallsInTable().size(), before.size() + 1);
  }
}

}  // namespace
