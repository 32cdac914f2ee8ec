#include "spots/sorted_view.h"

#include <gmock/gmock.h>

#include "core/text.h"
#include "row_maker.h"

namespace spots {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int At(int hhmm) { return hhmm / 100 * 60 + hhmm % 100; }

struct Heard {
  std::string call;
  double kHz = 14025;
  int hhmm = 2116;
  int band = 6;
  std::string spotter = "DL1ABC";
  std::string address{};
  std::string date = "20-Nov-2026";
  std::string grid{};
};

class SortedViewTest : public testing::Test {
 protected:
  TableRow Row(const Heard& heard) const {
    Spot spot = UsualSpot();
    spot.DxCall = heard.call;
    spot.Freq = heard.kHz;
    spot.SpotHHMM = heard.hhmm;
    spot.SpotTime = core::Digits(static_cast<unsigned>(heard.hhmm), 4);
    spot.Spotter = heard.spotter;
    spot.SpotterIp = heard.address;
    spot.SpotDate = heard.date;
    spot.DxGrid = heard.grid;
    return RowOf(spot, shape, heard.band);
  }
  // A row that comes into the selected store.
  void Receive(const Heard& heard) {
    store.push_back(Row(heard));
    view.Queue(store.back());
  }
  void Run() { view.Run(store, now); }
  void Sort(int button, bool folding = true) {
    view.Begin(button, folding);
    Run();
  }
  std::vector<std::string> Shown(bool reversed = false) const {
    std::vector<std::string> calls;
    for (const TableRow& row : view.Rows(reversed))
      calls.emplace_back(row.IsSpot() ? row.DxCall() : row.Text());
    return calls;
  }

  RowShape shape;
  SortMoment now{.minutes = At(2120), .day = 20};
  std::deque<TableRow> store;
  SortedView view;
};

using DxSortTest = SortedViewTest;
using AllSortTest = SortedViewTest;

TEST_F(DxSortTest, IsInTheOrderOfFrequenciesWithTheTitleAtTheEnd) {
  Receive({.call = "B", .kHz = 14025.1});
  Receive({.call = "A", .kHz = 7012, .band = 4});
  Receive({.call = "C", .kHz = 144300, .band = 12});
  Sort(kLastHour);
  EXPECT_THAT(Shown(), ElementsAre("A", "B", "C", "Last Hour"));
  EXPECT_THAT(Shown(true), ElementsAre("C", "B", "A", "Last Hour"));
}

TEST_F(DxSortTest, EmptyStoreShowsNothing) {
  Sort(kLastHour);
  EXPECT_THAT(Shown(), IsEmpty());
}

TEST_F(DxSortTest, SeparatorsAreLeftOut) {
  store.emplace_back(Stars(79), TableRow::Kind::Stars, 0);
  Sort(kLastHour);
  EXPECT_THAT(Shown(), IsEmpty());
}

TEST_F(DxSortTest, HourIsSixtyMinutesLong) {
  Receive({.call = "OLD", .hhmm = 2019});
  Receive({.call = "IN", .kHz = 14100, .hhmm = 2020});
  Sort(kLastHour);
  EXPECT_THAT(Shown(), ElementsAre("IN", "Last Hour"));
}

TEST_F(DxSortTest, NewerSpotOfAStationStaysWithinThirtyKilohertz) {
  Receive({.call = "A", .kHz = 14000, .hhmm = 2110});
  Receive({.call = "A", .kHz = 14029.9, .hhmm = 2105});
  Sort(kLastHour);
  ASSERT_EQ(view.Rows(false).size(), 2u);
  EXPECT_EQ(view.Rows(false).front().Freq(), 14000);
  Receive({.call = "A", .kHz = 14020, .hhmm = 2115});
  Run();
  ASSERT_EQ(view.Rows(false).size(), 2u);
  EXPECT_EQ(view.Rows(false).front().Freq(), 14020);
}

TEST_F(DxSortTest, ThirtyKilohertzOrAnotherBandAreAnotherSpot) {
  Receive({.call = "A", .kHz = 14000});
  Receive({.call = "A", .kHz = 14030});
  Sort(kLastHour);
  EXPECT_THAT(Shown(), ElementsAre("A", "A", "Last Hour"));
}

TEST_F(DxSortTest, StationInBetweenKeepsBothSpots) {
  Receive({.call = "A", .kHz = 14000});
  Receive({.call = "B", .kHz = 14001});
  Receive({.call = "A", .kHz = 14002});
  Sort(kLastHour);
  EXPECT_THAT(Shown(), ElementsAre("A", "B", "A", "Last Hour"));
}

TEST_F(DxSortTest, WholeCallTellsStationsApart) {
  Receive({.call = "VERYLONGCALL/1"});
  Receive({.call = "VERYLONGCALL/2"});
  Sort(kLastHour);
  EXPECT_EQ(Shown().size(), 3u);
}

TEST_F(DxSortTest, TimeALittleAheadCountsAsNow) {
  Receive({.call = "A", .kHz = 14000, .hhmm = 2120});
  Receive({.call = "A", .kHz = 14001, .hhmm = 2139});
  Sort(kLastHour);
  EXPECT_EQ(view.Rows(false).front().Freq(), 14001);  // no newer than the other: what came first
  EXPECT_EQ(Shown().size(), 2u);
}

TEST_F(DxSortTest, TimeTwentyMinutesAheadStaysAhead) {
  Receive({.call = "A", .kHz = 14000, .hhmm = 2140});
  Receive({.call = "A", .kHz = 14001, .hhmm = 2139});
  Sort(kLastHour);
  EXPECT_EQ(view.Rows(false).front().Freq(), 14000);
}

TEST_F(DxSortTest, GoesOnOverMidnight) {
  now.minutes = At(2259);
  Sort(kLastHour);
  now.minutes = At(2350);
  Receive({.call = "LATE", .kHz = 14000, .hhmm = 2345});
  Receive({.call = "AHEAD", .kHz = 14001, .hhmm = 5});
  Run();
  EXPECT_THAT(Shown(), ElementsAre("LATE", "AHEAD", "Last Hour"));
  now.minutes = At(10);
  Receive({.call = "EARLY", .kHz = 14002, .hhmm = 8});
  Run();
  EXPECT_THAT(Shown(), ElementsAre("LATE", "AHEAD", "EARLY", "Last Hour"));
  now.minutes = At(50);
  view.Refresh(store, now);
  EXPECT_THAT(Shown(), ElementsAre("AHEAD", "EARLY", "Last Hour"));
}

TEST_F(DxSortTest, FirstCallFrom2300OnCountsTheTimesAnewOnce) {
  now.minutes = At(2255);
  Receive({.call = "A", .hhmm = 2250});
  Sort(kLastHour);
  now.minutes = At(2300);
  Receive({.call = "B", .kHz = 14050, .hhmm = 2259});
  Run();
  EXPECT_THAT(Shown(), ElementsAre("A", "B", "Last Hour"));
  store.clear();  // a rebuild would find nothing
  now.minutes = At(2301);
  view.Queue(Row({.call = "C", .kHz = 14100, .hhmm = 2301}));
  Run();
  EXPECT_THAT(Shown(), ElementsAre("A", "B", "C", "Last Hour"));
  while (now.minutes < At(2351)) {
    ++now.minutes;
    view.Refresh(store, now);
  }
  EXPECT_THAT(Shown(), ElementsAre("B", "C", "Last Hour"));
}

TEST_F(DxSortTest, YesterdaysTimeAtTheSameHourIsTooOld) {
  Receive({.call = "A", .hhmm = 2150});  // 30 minutes ahead: of yesterday
  Receive({.call = "B", .kHz = 14050, .hhmm = 2149});
  Sort(kLastHour);
  EXPECT_THAT(Shown(), ElementsAre("B", "Last Hour"));
}

TEST_F(DxSortTest, OnlyAsManyStayAsThePaneHasRowsLessFour) {
  view.SetPaneRows(7);
  for (int i = 0; i < 6; ++i)
    Receive({.call = "A" + std::to_string(i), .kHz = 14000.0 + i, .hhmm = 2110 + i});
  Sort(kLastHour);
  EXPECT_THAT(Shown(), ElementsAre("A3", "A4", "A5", "Since 2113"));
}

TEST_F(DxSortTest, SmallPaneHasRoomForOne) {
  view.SetPaneRows(2);
  Receive({.call = "A", .hhmm = 2110});
  Receive({.call = "B", .hhmm = 2115});
  Sort(kLastHour);
  EXPECT_THAT(Shown(), ElementsAre("B", "Since 2115"));
}

TEST_F(DxSortTest, WindowGrowsByTwentyMinutesACall) {
  DxSort sort;
  sort.SetRoom(1);
  std::deque<TableRow> rows;
  rows.push_back(Row({.call = "A", .hhmm = 2035}));
  rows.push_back(Row({.call = "B", .kHz = 14100, .hhmm = 2120}));
  sort.Rebuild(rows, now);
  EXPECT_EQ(sort.SortWindow(), 44);
  EXPECT_EQ(sort.Title(), "Since 2120");
  sort.SetRoom(0);
  sort.Refresh(now);
  EXPECT_EQ(sort.SortWindow(), 60);
  sort.SetRoom(1);
  rows.push_back(Row({.call = "C", .kHz = 14200, .hhmm = 2120}));
  sort.Rebuild(rows, now);
  EXPECT_EQ(sort.SortWindow(), 0);  // two of this very minute: they don't go
  sort.SetRoom(0);
  sort.Refresh(now);
  EXPECT_EQ(sort.SortWindow(), 20);
  sort.Add({rows[0], rows[1]}, now);
  EXPECT_EQ(sort.SortWindow(), 60);
}

TEST_F(DxSortTest, WithDatesOnShowOtherDaysGoBetweenOneAnd2259) {
  shape = Classic({.Date = true});
  now.minutes = At(59);
  Receive({.call = "A", .hhmm = 50, .date = "19-Nov-2026"});
  Receive({.call = "B", .kHz = 14100, .hhmm = 50});
  Sort(kLastHour);
  EXPECT_THAT(Shown(), ElementsAre("A", "B", "Last Hour"));
  now.minutes = At(100);
  view.Refresh(store, now);
  EXPECT_THAT(Shown(), ElementsAre("B", "Last Hour"));
}

TEST_F(DxSortTest, WithoutDatesOnShowNothingIsKnownOfTheDay) {
  Receive({.call = "A", .date = "19-Nov-2026"});
  Sort(kLastHour);
  EXPECT_THAT(Shown(), ElementsAre("A", "Last Hour"));
}

TEST_F(AllSortTest, RowsStandByTheColumn) {
  Receive({.call = "C"});
  Receive({.call = "A"});
  Receive({.call = "B"});
  Sort(2);
  EXPECT_THAT(Shown(), ElementsAre("A", "B", "C"));
  EXPECT_THAT(Shown(true), ElementsAre("C", "B", "A"));
}

TEST_F(AllSortTest, EqualKeysStandByTimeThenByFrequency) {
  Receive({.call = "A", .kHz = 14030, .hhmm = 2110});
  Receive({.call = "A", .kHz = 7012, .hhmm = 2110});
  Receive({.call = "A", .kHz = 28010, .hhmm = 2105});
  Sort(2);
  std::vector<double> frequencies;
  for (const TableRow& row : view.Rows(false)) frequencies.push_back(row.Freq());
  EXPECT_THAT(frequencies, ElementsAre(28010, 7012, 14030));
}

TEST_F(AllSortTest, TimesOfTheNewDayStandBehindThoseOfTheOld) {
  now.minutes = At(10);
  Receive({.call = "A", .kHz = 14001, .hhmm = 5});
  Receive({.call = "A", .kHz = 14002, .hhmm = 2350});
  Receive({.call = "A", .kHz = 14003, .hhmm = 38});
  Receive({.call = "A", .kHz = 14004, .hhmm = 39});  // 29 ahead: of yesterday
  Sort(2);
  std::vector<double> frequencies;
  for (const TableRow& row : view.Rows(false)) frequencies.push_back(row.Freq());
  EXPECT_THAT(frequencies, ElementsAre(14004, 14002, 14001, 14003));
}

TEST_F(AllSortTest, From2300OnTimesStandAsTheyAre) {
  now.minutes = At(2300);
  Receive({.call = "A", .kHz = 14001, .hhmm = 2259});
  Receive({.call = "A", .kHz = 14002, .hhmm = 5});
  Receive({.call = "A", .kHz = 14003, .hhmm = 2340});
  Sort(2);
  std::vector<double> frequencies;
  for (const TableRow& row : view.Rows(false)) frequencies.push_back(row.Freq());
  EXPECT_THAT(frequencies, ElementsAre(14002, 14001, 14003));
}

TEST_F(AllSortTest, EmptyKeysAndSeparatorsAreLeftOut) {
  shape = Expanded({.DxGrid = true});
  Receive({.call = "A"});
  Receive({.call = "B", .grid = "JN58"});
  store.emplace_back(Stars(79), TableRow::Kind::Stars, 0);
  Sort(9);
  EXPECT_THAT(Shown(), ElementsAre("B"));
}

TEST_F(AllSortTest, RowsWithoutTheColumnAreLeftOut) {
  Receive({.call = "A"});
  Sort(9);
  EXPECT_THAT(Shown(), IsEmpty());
}

TEST_F(AllSortTest, ShortNumberInAColumnOfFourGetsAZero) {
  shape = Expanded({.DxGrid = true});
  Receive({.call = "A", .grid = "045"});
  Receive({.call = "B", .grid = "04"});
  Receive({.call = "C", .grid = "03"});
  Sort(9);
  EXPECT_THAT(Shown(), ElementsAre("C", "B", "A"));  // "030", "040", "045"
}

TEST_F(AllSortTest, SignBeforeTheKeyIsDropped) {
  shape = Expanded({.DxCty = true});
  const auto receive = [this](const std::string& call, const std::string& mark,
                              const std::string& country) {
    Spot spot = UsualSpot();
    spot.DxCall = call;
    spot.LotwMark = mark;
    spot.DxCty = country;
    store.push_back(RowOf(spot, shape));
  };
  receive("C", "+", "SM");
  receive("B", "=", "OH");
  receive("A", " ", "PA");
  receive("D", "-", "DL");
  Sort(5);
  EXPECT_THAT(Shown(), ElementsAre("D", "B", "A", "C"));
}

TEST_F(AllSortTest, FrequenciesOfAnyLengthStandInTheirOrder) {
  Receive({.call = "B", .kHz = 14025});
  Receive({.call = "A", .kHz = 144300});
  Sort(3);
  EXPECT_THAT(Shown(), ElementsAre("B", "A"));
}

class SpotterIpTest : public SortedViewTest {
 protected:
  SpotterIpTest() { shape = Expanded({.SpotterIp = true}); }
  std::vector<std::string> Heads() const {
    std::vector<std::string> heads;
    for (const TableRow& row : view.Rows(false)) heads.emplace_back(row.Text().substr(0, 20));
    return heads;
  }
};

TEST_F(SpotterIpTest, EachSpotterStandsOnceByAddress) {
  Receive({.call = "A", .spotter = "K1TST", .address = "20.0.0.1"});
  Receive({.call = "B", .spotter = "DL1ABC", .address = "30.0.0.1"});
  Receive({.call = "C", .spotter = "K1TST", .address = "20.0.0.1"});
  Sort(kSpotterIpOrder);
  EXPECT_THAT(Heads(), ElementsAre("K1TST       20.0.0.1", "DL1ABC      30.0.0.1"));
}

TEST_F(SpotterIpTest, RightButtonFoldsNothing) {
  Receive({.call = "A", .spotter = "K1TST", .address = "20.0.0.1"});
  Receive({.call = "C", .spotter = "K1TST", .address = "20.0.0.1"});
  Sort(kSpotterIpOrder, false);
  EXPECT_EQ(Shown().size(), 2u);
}

TEST_F(SpotterIpTest, AddressOfTheRowBeforeIsMarked) {
  Receive({.call = "A", .spotter = "K1TST", .address = "20.0.0.1"});
  Receive({.call = "B", .spotter = "K2TST", .address = "20.0.0.1"});
  Receive({.call = "C", .spotter = "K3TST", .address = "20.0.0.2"});
  Sort(kSpotterIpOrder);
  EXPECT_THAT(Heads(),
              ElementsAre("K1TST       20.0.0.1", "K2TST      #20.0.0.1", "K3TST       20.0.0.2"));
  EXPECT_THAT(Shown(), ElementsAre("A", "B", "C"));
}

TEST_F(SpotterIpTest, FoldingGoesByTheWholeSpotter) {
  Receive({.call = "A", .spotter = "VERYLONG/K1TST", .address = "20.0.0.1"});
  Receive({.call = "B", .spotter = "VERYLONG/K1TSU", .address = "20.0.0.2"});
  Sort(kSpotterIpOrder);
  EXPECT_EQ(Shown().size(), 2u);
}

TEST_F(SortedViewTest, RowsWaitAndAreTakenInOneGo) {
  for (const int button : {kLastHour, 2}) {
    Sort(button);
    const auto before = Shown();
    Receive({.call = "A" + std::to_string(button), .kHz = 14000.0 + button});
    Receive({.call = "B" + std::to_string(button), .kHz = 14100.0 + button});
    EXPECT_EQ(Shown(), before);
    EXPECT_TRUE(view.HasWork());
    Run();
    EXPECT_FALSE(view.HasWork());
    EXPECT_THAT(Shown(), testing::IsSupersetOf(
                             {"A" + std::to_string(button), "B" + std::to_string(button)}));
  }
}

TEST_F(SortedViewTest, FloodThatNobodyTakesIsBounded) {
  Sort(kLastHour);
  const TableRow row = Row({.call = "A"});
  for (int i = 0; i < 100'000; ++i) view.Queue(row);
  store.push_back(Row({.call = "B", .kHz = 14100}));
  Run();
  EXPECT_THAT(Shown(), ElementsAre("B", "Last Hour"));  // as the store has it
}

TEST_F(SortedViewTest, OrderOfTimesHasNoWork) {
  Sort(kTimeOrder);
  Receive({.call = "A"});
  EXPECT_FALSE(view.IsActive());
  EXPECT_FALSE(view.HasWork());
}

}  // namespace
}  // namespace spots
