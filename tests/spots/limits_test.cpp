#include <gmock/gmock.h>

#include "session/memory_meter.h"
#include "spot_desk.h"
#include "spots/band_numbers.h"
#include "thoroughness.h"

namespace {

using spots::kAllBands;

constexpr std::size_t kRow = 77;  // the usual row and its line end
constexpr int kViews = spots::SpotTable::kViews;

class Limits : public SpotDesk {
 protected:
  Limits() {
    settings.SpotMemoryAll = 20;
    settings.SpotMemorySingle = 10;
    table.EnterTab();
  }

  // Each of another station, so that none is a duplicate.
  void ReceiveMany(int count, Line line = {}) {
    for (int i = 0; i < count; ++i) {
      line.call = AnotherCall();
      Receive(line);
    }
  }
  void ReceiveAlternately(int count) {
    for (int i = 0; i < count; ++i) {
      ReceiveMany(1, {.spotter = "DL1ABC-#", .kHz = "7012.3"});
      ReceiveMany(1);
    }
  }
  std::string AnotherCall() {
    constexpr int kCalls = 100'000;
    return "K" + std::to_string(kCalls + ++stations_ % kCalls);
  }
  std::size_t Characters(int band, int view) const {
    return table.SpotStore(band, view).Characters();
  }

 private:
  int stations_ = 0;
};

TEST_F(Limits, FullStoreKeepsItsLastPartBeforeTheNextRow) {
  table.chkShSkm[spots::SpotTable::kSkimmer].UserSets(true);
  table
      .NoteSkimmer();  // all spots are on show: the view of others is cut by the store's limit only
  const auto rowsThatFit = static_cast<int>(22'000 / kRow);
  ReceiveMany(rowsThatFit);
  EXPECT_EQ(Characters(kAllBands, 2), rowsThatFit * kRow);
  ReceiveMany(1);
  EXPECT_EQ(Characters(kAllBands, 2), (rowsThatFit + 1) * kRow);
  ReceiveMany(1);
  EXPECT_EQ(Characters(kAllBands, 2), (20'200 / kRow + 1) * kRow);
}

TEST_F(Limits, ViewOnShowLosesAPieceAtItsFront) {
  const auto rowsThatFit = static_cast<int>(20'000 / kRow);
  ReceiveMany(rowsThatFit + 1);
  const std::size_t full = Characters(kAllBands, 0);
  EXPECT_GT(full, 20'000u);
  ReceiveMany(1);
  // As many whole rows as end within 4999 characters.
  EXPECT_EQ(Characters(kAllBands, 0), full + kRow - 4999 / kRow * kRow);
}

TEST_F(Limits, PieceLeavesTheTableToo) {
  std::vector<std::size_t> removed;
  int allNew = -1;  // without the one at once
  const auto watching = table.RtbDx.Observe([&](const spots::DxPane::Change& change) {
    if (change.removed > 0) removed.push_back(change.removed);
    if (change.allNew) ++allNew;
  });
  ReceiveMany(20'000 / kRow + 2);
  EXPECT_THAT(removed, testing::ElementsAre(4999 / kRow));
  EXPECT_EQ(allNew, 0);
  EXPECT_EQ(CallsInTable(), CallsInStore(kAllBands, 0));
}

TEST_F(Limits, SeparatorOfTheTabOutlivesTheCut) {
  table.LeaveTab();
  ReceiveMany(100);
  table.EnterTab();
  table.LeaveTab();
  ReceiveMany(20'000 / kRow + 2 - 100);
  const auto calls = CallsInTable();
  EXPECT_EQ(std::count(calls.begin(), calls.end(), "*"), 1);
  EXPECT_EQ(calls[100 - 4999 / kRow], "*");
}

TEST_F(Limits, EveryStoreOfEveryBandAndViewHasOne) {
  receivers.alarms = true;
  ReceiveAlternately(5'000);
  for (int band = 0; band < spots::kBandCount; ++band)
    for (int view = 0; view < kViews; ++view) {
      const std::size_t memory = band == kAllBands ? 20 : 10;
      EXPECT_LE(Characters(band, view), memory * 1100 + 100) << band << " view " << view;
    }
  EXPECT_GT(Characters(k20m, 2), 9'000u);
  EXPECT_GT(Characters(spots::kAlarmBand, 0), 4'000u);
}

TEST_F(Limits, QuietBandKeepsItsSpotsWhileABusyOneTurnsOver) {
  Receive({.kHz = "50110.0", .call = "VK9XX"});
  ReceiveMany(5'000);
  EXPECT_THAT(CallsInStore(11, 0), testing::Contains("VK9XX"));
  EXPECT_THAT(CallsInStore(kAllBands, 0), testing::Not(testing::Contains("VK9XX")));
}

TEST_F(Limits, TableStandsAsTheSelectedStoreWhateverIsSelected) {
  for (const int band : {k20m, 4, 0})
    for (const auto source : {spots::SpotTable::kDx, spots::SpotTable::kSkimmer}) {
      table.rail.optBand.UserSelects(band);
      table.chkShSkm[source].UserSets(!table.chkShSkm[source].Value.Get());
      ReceiveAlternately(1'000);
      EXPECT_EQ(CallsInTable(), CallsInStore(band, table.SelectedView())) << band;
    }
}

// With the stores, what is remembered of Skimmers is full: in this world no minute passes.
constexpr int kFull = spots::SkimmerRing::kMostSlots + 1'000;

TEST_F(Limits, MemoryStopsGrowing) {
  if (!kMeasuresMemory) GTEST_SKIP() << "memory is measured without the sanitizers";
  ReceiveAlternately(kFull);
  const auto before = MemoryMeter::Live();
  ReceiveAlternately(50'000);
  EXPECT_LT(MemoryMeter::Live(), before + 50'000);
}

TEST_F(Limits, SpotCostsNoMemoryButItsRowAndItsPlaces) {
  if (!kMeasuresMemory) GTEST_SKIP() << "memory is measured without the sanitizers";
  ReceiveAlternately(kFull);
  std::vector<std::string> lines;
  for (int i = 0; i < 5'000; ++i) {
    lines.push_back(Line{.spotter = "DL1ABC-#", .kHz = "7012.3", .call = AnotherCall()}.Text());
    lines.push_back(Line{.call = AnotherCall()}.Text());
  }
  const auto before = MemoryMeter::Allocated();
  for (const std::string& line : lines) Receive(line);
  EXPECT_LT((MemoryMeter::Allocated() - before) / lines.size(), 200u);
}

TEST_F(Limits, LastRowStaysHoweverSmallTheMemory) {
  settings.SpotMemoryAll = settings.SpotMemorySingle = 1;
  ReceiveMany(50);
  EXPECT_GE(CallsInTable().size(), 1u);
  EXPECT_GE(CallsInStore(k20m, 0).size(), 1u);
}

TEST_F(Limits, NewSettingsHoldFromTheNextSpotOn) {
  ReceiveMany(200);
  settings.SpotMemoryAll = 1;
  settings.SpotMemorySingle = 0;
  ReceiveMany(1);
  EXPECT_LE(Characters(kAllBands, 0), 1010 + kRow);
  EXPECT_EQ(Characters(k20m, 0), kRow);
}

}  // namespace
