#include <gmock/gmock.h>

#include "spot_desk.h"
#include "spots/row_layout.h"

namespace {

using spots::kAllBands;
using spots::kLastHour;
using spots::kTimeOrder;
using testing::ElementsAre;
using testing::IsEmpty;
using Press = spots::SpotTable::Press;

constexpr int k20 = 6;
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
  ReceiveCalls({"B"});
  table.SortBy(kByCall);
  ReceiveCalls({"C", "A"});
  EXPECT_THAT(CallsInTable(), ElementsAre("B"));
  Tick();
  EXPECT_THAT(CallsInTable(), ElementsAre("A", "B", "C"));
}

TEST_F(SortBy, TimerWithoutNewRowsTellsNobody) {
  ReceiveCalls({"B"});
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
  ReceiveCalls({"A"});
  Tick();
  table.SortBy(kTimeOrder);
  ASSERT_EQ(told.size(), 3u);
  EXPECT_TRUE(told[1].allNew && told[1].sameList);
  EXPECT_TRUE(told[2].allNew && !told[2].sameList);
}

TEST_F(SortBy, TimeOrderComesBackWithAllRows) {
  ReceiveCalls({"B"});
  table.SortBy(kByCall);
  ReceiveCalls({"A"});
  table.SortBy(kTimeOrder);
  EXPECT_THAT(CallsInTable(), ElementsAre("B", "A"));
  ReceiveCalls({"C"});
  EXPECT_THAT(CallsInTable(), ElementsAre("B", "A", "C"));
}

TEST_F(SortBy, MiddleButtonReversesTheOrderOfTimes) {
  ReceiveCalls({"A", "B"});
  table.SortBy(kTimeOrder, Press::Middle);
  EXPECT_THAT(CallsInTable(), ElementsAre("B", "A"));
  ReceiveCalls({"C"});
  EXPECT_THAT(CallsInTable(), ElementsAre("C", "B", "A"));
  table.SortBy(kTimeOrder);
  EXPECT_THAT(CallsInTable(), ElementsAre("A", "B", "C"));
}

TEST_F(SortBy, MiddleButtonReversesASortedView) {
  ReceiveCalls({"A", "C", "B"});
  table.SortBy(kByCall, Press::Middle);
  EXPECT_THAT(CallsInTable(), ElementsAre("C", "B", "A"));
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
  table.rail.optBand.UserSelects(k20);
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
  ReceiveCalls({"A"}, "14025.0");
  EXPECT_THAT(CallsInTable(), IsEmpty());
  EXPECT_EQ(table.TabCaption.Get(), "DX = 1");
  EXPECT_THAT(CallsInStore(k20, 0), ElementsAre("A"));
}

TEST_F(SortBy, LastHourFollowsTheClock) {
  ReceiveCalls({"A"});  // at 21:16
  table.SortBy(kLastHour);
  EXPECT_THAT(CallsInTable(), ElementsAre("A", ""));
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
  for (const int button : {kTimeOrder, kByCall}) {
    table.SortBy(button);
    const auto before = CallsInTable();
    table.BeginReload();
    ReceiveCalls({"A"});
    Tick();
    EXPECT_EQ(CallsInTable(), before);
    table.EndReload();
    EXPECT_EQ(CallsInTable().size(), before.size() + 1);
  }
}

}  // namespace
