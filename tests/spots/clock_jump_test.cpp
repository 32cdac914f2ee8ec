#include <gmock/gmock.h>

#include "spot_desk.h"
#include "spots/row_layout.h"

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

// The clock stands at 21:00 UTC on 20 November 2026 and jumps by an hour, and back again.
class SpotClockJump : public SpotDesk, public testing::WithParamInterface<std::chrono::minutes> {
 protected:
  SpotClockJump() { table.EnterTab(); }

  void Jump() { world.clock.Set(world.clock.UtcNow() + GetParam()); }
  void JumpBack() { world.clock.Set(world.clock.UtcNow() - GetParam()); }
  // A minute of the program: what it does with each tick is done.
  void Tick() {
    world.Run(1min);
    parts.Tick();
  }
  Texts LastHour() {
    Texts calls = CallsInTable();
    if (!calls.empty()) calls.pop_back();  // the title
    return calls;
  }
};

TEST_P(SpotClockJump, SecondReportIsADuplicateAllTheSame) {
  Receive({.call = "K1A", .time = "2100"});
  Jump();
  Receive({.call = "K1A", .time = "2101"});
  Receive({.call = "K1B", .time = "2101"});
  JumpBack();
  Receive({.call = "K1B", .time = "2102"});
  EXPECT_THAT(CallsInTable(), ElementsAre("K1A", "K1B"));
}

TEST_P(SpotClockJump, SkimmersSpotsAreDuplicatesAgainOnceTheClockIsRight) {
  const auto report = [this](const char* spotter) {
    const auto before = pipeline.SpotsShown;
    Receive({.spotter = spotter, .call = "K1A", .comment = "CW 20 dB", .time = "2100"});
    return pipeline.SpotsShown > before;
  };
  EXPECT_TRUE(report("DL1ABC-#"));
  EXPECT_FALSE(report("DL2ABC-#"));
  Jump();
  EXPECT_TRUE(report("DL3ABC-#")) << "by this clock its time is long past";
  JumpBack();
  EXPECT_FALSE(report("DL4ABC-#"));
}

TEST_P(SpotClockJump, LastHourHasItsSpotsBackOnceTheClockIsRight) {
  Receive({.call = "K1A", .time = "2059"});
  table.SortBy(spots::kLastHour);
  Tick();
  EXPECT_THAT(LastHour(), ElementsAre("K1A"));
  Jump();
  Tick();
  EXPECT_THAT(LastHour(), IsEmpty());
  JumpBack();
  Tick();
  EXPECT_THAT(LastHour(), ElementsAre("K1A"));
}

TEST_P(SpotClockJump, SpotsGoOnInEveryOrder) {
  int station = 0;
  for (const int button : {spots::kTimeOrder, spots::kLastHour, 2, spots::kSpotterIpOrder}) {
    table.SortBy(button);
    for (int i = 0; i < 20; ++i) {
      i % 2 == 0 ? Jump() : JumpBack();
      Receive({.call = "K1A" + std::to_string(++station), .time = "2100"});
      Tick();
    }
  }
  table.SortBy(spots::kTimeOrder);
  EXPECT_EQ(CallsInTable().size(), 80u);
}

// The time of a spot is of the day that the clock shows, or of the day before just behind midnight.
TEST_P(SpotClockJump, DaysAreRightAgainOnceTheClockIs) {
  world.clock.Set(std::chrono::sys_days{2026y / 11 / 20} + 23h + 30min);
  Jump();
  Receive({.call = "K1A", .time = "2330"});
  JumpBack();
  Receive({.call = "K1B", .time = "2331"});
  EXPECT_EQ(parts.spot.SpotDate, "20-Nov-2026");
  EXPECT_THAT(CallsInTable(), ElementsAre("K1A", "K1B"));
}

INSTANTIATE_TEST_SUITE_P(Of, SpotClockJump, testing::Values(60min, -60min), [](const auto& each) {
  return each.param > 0min ? "AnHourAhead" : "AnHourBack";
});

}  // namespace
