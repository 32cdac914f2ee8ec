#include "spots/dx_sort.h"

#include <gmock/gmock.h>

#include "row_maker.h"

namespace spots {
namespace {

class DxSortRoom : public testing::Test {
 protected:
  struct Spotted {
    const char* call;
    double kHz;
    int hour;
    int minute;
  };
  static TableRow Row(const Spotted& spotted) {
    Spot spot = UsualSpot();
    spot.DxCall = spotted.call;
    spot.Freq = spotted.kHz;
    spot.SpotHHMM = spotted.hour * 100 + spotted.minute;
    return RowOf(spot);
  }
  // Of the last hour, its oldest at neither end of the order.
  std::deque<TableRow> FourRows() const {
    return {Row({"A", 14000, 21, 5}), Row({"B", 14100, 20, 30}), Row({"C", 14200, 21, 19}),
            Row({"D", 14300, 20, 50})};
  }
  std::string Calls() const {
    std::string calls;
    sort.ForEach([&](const TableRow& row) { calls += row.DxCall(); });
    return calls;
  }

  SortMoment now{.minutes = 21 * 60 + 20, .day = 20};
  DxSort sort;
};

TEST_F(DxSortRoom, OldestFallOutFirstAndTheTitleNamesTheOldestThatIsLeft) {
  const struct {
    std::size_t room;
    const char* calls;
    const char* title;
    int window;
  } kRooms[] = {{4, "ABCD", "Last Hour", 60},
                {3, "ACD", "Since 2050", 49},
                {2, "AC", "Since 2105", 29},
                {1, "C", "Since 2119", 14}};
  for (const auto& [room, calls, title, window] : kRooms) {
    sort = {};
    sort.SetRoom(room);
    sort.Rebuild(FourRows(), now);
    EXPECT_EQ(Calls(), calls) << room;
    EXPECT_EQ(sort.Title(), title) << room;
    EXPECT_EQ(sort.SortWindow(), window) << room;
  }
}

TEST_F(DxSortRoom, ThoseOfOneMinuteFallOutTogether) {
  sort.SetRoom(3);
  auto rows = FourRows();
  rows.push_back(Row({"E", 14400, 20, 50}));
  sort.Rebuild(rows, now);
  EXPECT_EQ(Calls(), "AC");
  EXPECT_EQ(sort.Title(), "Since 2105");
}

TEST_F(DxSortRoom, EachNewRowPushesTheOldestOut) {
  sort.SetRoom(4);
  sort.Rebuild(FourRows(), now);
  sort.Add({Row({"E", 14150, 21, 20})}, now);
  EXPECT_EQ(Calls(), "AECD");
  EXPECT_EQ(sort.Title(), "Since 2050");
  sort.Add({Row({"F", 14350, 21, 20})}, now);
  EXPECT_EQ(Calls(), "AECF");
  EXPECT_EQ(sort.Title(), "Since 2105");
}

TEST_F(DxSortRoom, TitleIsThatOfAWholeHourOnceNothingOfItIsMissing) {
  sort.SetRoom(3);
  sort.Rebuild(FourRows(), now);
  sort.Refresh(now);
  EXPECT_EQ(sort.SortWindow(), 60);
  EXPECT_EQ(sort.Title(), "Since 2050") << "what was let go is not back";
  now.minutes = 21 * 60 + 31;  // 2030 is over an hour ago
  sort.Refresh(now);
  EXPECT_EQ(sort.Title(), "Last Hour");
  EXPECT_EQ(Calls(), "ACD");
}

TEST_F(DxSortRoom, TitleOverMidnightNamesTheTimeOfDay) {
  now.minutes = 10;
  sort.SetRoom(1);
  sort.Rebuild({Row({"A", 14025, 23, 55}), Row({"B", 14100, 0, 8}), Row({"C", 14200, 23, 50})},
               now);
  EXPECT_EQ(Calls(), "B");
  EXPECT_EQ(sort.Title(), "Since 0008");
}

TEST_F(DxSortRoom, LessRoomLeavesTheNewest) {
  sort.SetRoom(4);
  sort.Rebuild(FourRows(), now);
  sort.SetRoom(2);
  sort.Refresh(now);
  EXPECT_EQ(Calls(), "AC");
  EXPECT_EQ(sort.Title(), "Since 2105");
}

}  // namespace
}  // namespace spots
