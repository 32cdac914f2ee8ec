#include <gmock/gmock.h>

#include "session/memory_meter.h"
#include "spot_desk.h"
#include "spots/skimmer_ring.h"
#include "thoroughness.h"

namespace {

using namespace std::chrono_literals;

constexpr int kMillion = 1'000'000;
constexpr std::size_t kUnnoticed = 100'000;  // bytes

// A node that never sends the same call twice.
class EndlessCalls : public SpotDesk {
 protected:
  EndlessCalls() {
    node.kind = session::NodeKind::Spider;
    settings.SpotMemoryAll = 20;
    settings.SpotMemorySingle = 10;
    settings.LogDxSpots = true;
    world.files.denied.insert("/home/2026");  // the file would grow, and not the program
    world.files.content["/home/data/grid/grid.dat"] = "AA1A FN42\r\n";
    table.EnterTab();
  }

  static std::string CallNumber(int number) { return "K" + std::to_string(kMillion + number); }
  // A normal spot with its grid and a Skimmer's, of two stations.
  void ReceiveBoth() {
    Receive({.call = CallNumber(next_++), .tail = " FN42"});
    Receive({.spotter = "DL1ABC-#", .kHz = "7012.3", .call = CallNumber(next_++)});
  }
  void Fill(int calls) {
    while (next_ < calls) {
      ReceiveBoth();
      if (next_ % 1000 == 0) parts.Tick();
    }
  }

 private:
  int next_ = 0;
};

TEST_F(EndlessCalls, TakeNoMoreMemoryOnceTheRingsAreFull) {
  if (!kMeasuresMemory) GTEST_SKIP() << "memory is measured without the sanitizers";
  Fill(2 * spots::SkimmerRing::kMostSlots + 10'000);
  const std::size_t before = MemoryMeter::Live();
  Fill(2 * spots::SkimmerRing::kMostSlots + 60'000);
  EXPECT_LT(MemoryMeter::Live(), before + kUnnoticed);
  EXPECT_LE(world.files.content["/home/grid.txt"].size(), spots::GridRecorder::kMostBytes + 100);
}

TEST_F(EndlessCalls, MillionOfThemFitIntoTheRings) {
  spots::Spot heard;
  heard.SpotDate = "20-Nov-2026";
  heard.SpotHHMM = 2100;
  std::size_t full = 0;
  for (int i = 0; i < kMillion; ++i) {
    heard.DxCall = CallNumber(i);
    heard.Spotter = i % 2 == 0 ? "DL1ABC-#" : "DL1ABC";
    ASSERT_FALSE(parts.duplicates.IsDupe(heard));
    parts.duplicates.Admit(heard);
    if (i == kMillion / 4) full = MemoryMeter::Live();
  }
  EXPECT_LT(MemoryMeter::Live(), full + kUnnoticed);
}

TEST_F(EndlessCalls, MillionOfThemLeaveTheRecordOfGridsWithinItsBound) {
  spots::GridRecorder recorder(world.files, world.scheduler, calendar, "/home");
  std::size_t full = 0;
  for (int i = 0; i < kMillion; ++i) {
    recorder.RecordGrid("FN42", CallNumber(i), node);
    if (i == kMillion / 2) full = MemoryMeter::Live();
  }
  EXPECT_LE(world.files.content["/home/grid.txt"].size(), spots::GridRecorder::kMostBytes + 100);
  EXPECT_LT(MemoryMeter::Live(), full + kUnnoticed);
}

TEST_F(EndlessCalls, LengthOfACallIsBoundedEverywhere) {
  for (int i = 0; i < 50; ++i)
    Receive({.call = CallNumber(i) + std::string(1'000'000, 'A'), .tail = " FN42"});
  EXPECT_TRUE(CallsInTable().empty());
  EXPECT_LT(world.files.content["/home/grid.txt"].size(), 100u);
}

}  // namespace
