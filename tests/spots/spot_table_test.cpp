#include "spots/spot_table.h"

#include <gmock/gmock.h>

#include "spot_desk.h"
#include "spots/band_numbers.h"

namespace {

using spots::kAllBands;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto kDx = spots::SpotTable::kDx;
constexpr auto kSkimmer = spots::SpotTable::kSkimmer;

class SpotTable : public SpotDesk {
 protected:
  void Select(int band) { table.rail.optBand.UserSelects(band); }
  // A Skimmer's spot and another's, on 20 and on 40.
  void ReceiveFour() {
    Receive({.spotter = "DL1ABC-#", .kHz = "14025.0", .call = "S20"});
    Receive({.kHz = "14025.0", .call = "O20"});
    Receive({.spotter = "DL1ABC-#", .kHz = "7012.3", .call = "S40"});
    Receive({.kHz = "7012.3", .call = "O40"});
  }
};

TEST_F(SpotTable, RowIsStoredForAllBandsAndItsOwnByItsKind) {
  ReceiveFour();
  EXPECT_THAT(CallsInStore(kAllBands, 0), ElementsAre("S20", "O20", "S40", "O40"));
  EXPECT_THAT(CallsInStore(kAllBands, 1), ElementsAre("S20", "S40"));
  EXPECT_THAT(CallsInStore(kAllBands, 2), ElementsAre("O20", "O40"));
  EXPECT_THAT(CallsInStore(k40m, 0), ElementsAre("*", "S40", "O40"));
  EXPECT_THAT(CallsInStore(k40m, 1), ElementsAre("S40"));
  EXPECT_THAT(CallsInStore(k40m, 2), ElementsAre("O40"));
}

TEST_F(SpotTable, RowIsStoredOnceForAllItsPlaces) {
  Receive(Line{});
  const char* text = table.RtbDx.Rows().back().Text().data();
  EXPECT_EQ(table.SpotStore(kAllBands, 0).Rows().back().Text().data(), text);
  EXPECT_EQ(table.SpotStore(kAllBands, 2).Rows().back().Text().data(), text);
  EXPECT_EQ(table.SpotStore(k20m, 0).Rows().back().Text().data(), text);
  EXPECT_EQ(table.SpotStore(k20m, 2).Rows().back().Text().data(), text);
}

TEST_F(SpotTable, SelectedBandShowsItsSpotsAndNoOthers) {
  table.EnterTab();
  ReceiveFour();
  Select(k40m);
  EXPECT_THAT(CallsInTable(), ElementsAre("*", "S40", "O40"));
  ReceiveCalls({"PY2AA"}, "14025.0");
  ReceiveCalls({"PY2BB"}, "7012.3");
  EXPECT_THAT(CallsInTable(), ElementsAre("*", "S40", "O40", "PY2BB"));
  Select(kAllBands);
  EXPECT_THAT(CallsInTable(), ElementsAre("S20", "O20", "S40", "O40", "*", "PY2AA", "PY2BB"));
}

TEST_F(SpotTable, BandWithoutSpotsShowsNothing) {
  ReceiveFour();
  Select(spots::kAlarmBand);
  EXPECT_THAT(CallsInTable(), IsEmpty());
}

TEST_F(SpotTable, SourcesChooseTheView) {
  ReceiveFour();
  const auto tick = [&](bool dx, bool skimmer) {
    table.chkShSkm[kDx].UserSets(dx);
    table.chkShSkm[kSkimmer].UserSets(skimmer);
    return table.SelectedView();
  };
  EXPECT_EQ(tick(false, true), spots::SpotTable::kSkimmerSpots);
  EXPECT_THAT(CallsInTable(), ElementsAre("S20", "S40"));
  EXPECT_EQ(tick(true, false), spots::SpotTable::kOtherSpots);
  EXPECT_THAT(CallsInTable(), ElementsAre("O20", "O40"));
  EXPECT_EQ(tick(true, true), spots::SpotTable::kAllSpots);
  EXPECT_THAT(CallsInTable(), ElementsAre("S20", "O20", "S40", "O40"));
  EXPECT_EQ(tick(false, false), spots::SpotTable::kAllSpots);
  EXPECT_THAT(CallsInTable(), ElementsAre("S20", "O20", "S40", "O40"));
}

TEST_F(SpotTable, ViewShowsNewRowsOfItsKindOnly) {
  table.chkShSkm[kSkimmer].UserSets(true);
  table.NoteSkimmer();
  table.EnterTab();
  ReceiveFour();
  EXPECT_THAT(CallsInTable(), ElementsAre("S20", "O20", "S40", "O40"));
  table.chkShSkm[kDx].UserSets(false);
  ReceiveFour();
  EXPECT_THAT(CallsInTable(), ElementsAre("S20", "S40", "S20", "S40"));
  Select(k20m);
  EXPECT_THAT(CallsInTable(), ElementsAre("S20", "S20"));
}

TEST_F(SpotTable, FirstSkimmersSpotOnShowTicksBothSources) {
  Receive({.spotter = "DL1ABC-#"});
  EXPECT_FALSE(table.chkShSkm[kDx].Value.Get());
  table.EnterTab();
  Receive(Line{});
  EXPECT_FALSE(table.chkShSkm[kSkimmer].Value.Get());
  Receive({.spotter = "DL1ABC-#", .kHz = "3000.0"});  // on no band
  EXPECT_TRUE(table.chkShSkm[kDx].Value.Get());
  EXPECT_TRUE(table.chkShSkm[kSkimmer].Value.Get());
}

TEST_F(SpotTable, SourcesAreTickedByThemselvesOnceOnly) {
  table.EnterTab();
  Receive({.spotter = "DL1ABC-#", .call = "S20"});
  table.chkShSkm[kSkimmer].UserSets(false);
  Receive({.spotter = "DL1ABC-#", .call = "S20"});
  EXPECT_FALSE(table.chkShSkm[kSkimmer].Value.Get());
}

TEST_F(SpotTable, TickingBothSourcesShowsAllSpots) {
  table.EnterTab();
  table.chkShSkm[kSkimmer].UserSets(true);
  Receive({.call = "O20"});
  EXPECT_THAT(CallsInTable(), IsEmpty());
  Receive({.spotter = "DL1ABC-#", .call = "S20"});
  EXPECT_THAT(CallsInTable(), ElementsAre("O20", "S20"));
}

TEST_F(SpotTable, SeparatorIsAsWideAsTheTable) {
  table.SetTableWidth(45);
  Receive(Line{});
  EXPECT_EQ(table.RtbDx.Rows().front().Text(), std::string(45, '*'));
}

TEST_F(SpotTable, MarkOfASkimmerInACommentMakesNoSkimmer) {
  Receive({.call = "O20", .comment = "heard by DL1ABC-#"});
  EXPECT_THAT(CallsInStore(kAllBands, 2), ElementsAre("O20"));
  EXPECT_THAT(CallsInStore(kAllBands, 1), IsEmpty());
}

TEST_F(SpotTable, ObserverIsToldOfEachRowAndOfANewBand) {
  table.EnterTab();
  std::vector<std::size_t> added;
  int allNew = 0;
  const auto watching = table.RtbDx.Observe([&](const spots::DxPane::Change& change) {
    added.push_back(change.added);
    if (change.allNew) ++allNew;
  });
  ReceiveCalls({"PY2AA", "PY2BB"});
  EXPECT_THAT(added, ElementsAre(0, 1, 1));
  Select(k20m);
  EXPECT_THAT(added, ElementsAre(0, 1, 1, 3));
  EXPECT_EQ(allNew, 2);
}

}  // namespace
