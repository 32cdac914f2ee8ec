#include "spots/clock_check.h"

#include <gtest/gtest.h>

#include "platform/sim/world.h"

namespace spots {
namespace {

using namespace std::chrono_literals;

class ClockCheckTest : public testing::Test {
 protected:
  // Whether a spot of that time, seen at `now`, has the offset read.
  bool Reads(const std::string& hhmm, std::chrono::minutes now) {
    world.clock.Set(std::chrono::sys_days{2026y / 11 / 20} + now);
    reads = 0;
    Spot spot;
    spot.SpotTime = hhmm;
    spot.SpotHHMM = std::atoi(hhmm.c_str());
    check.Check(spot);
    return reads > 0;
  }

  platform::sim::World world;
  core::Calendar calendar{world.clock};
  int reads = 0;
  ClockCheck check{calendar, [this] { ++reads; }};
};

TEST_F(ClockCheckTest, TimeThatIsNoneIsLeftAlone) {
  for (const std::string time : {"", "1", "ABCD", "2060", "2460", "-959", "20000"})
    EXPECT_FALSE(Reads(time, 21h)) << time;
}

TEST_F(ClockCheckTest, From56To64MinutesOffTheOffsetIsRead) {
  EXPECT_FALSE(Reads("2005", 21h));
  EXPECT_TRUE(Reads("2004", 21h));
  EXPECT_TRUE(Reads("2000", 21h));
  EXPECT_TRUE(Reads("1956", 21h));
  EXPECT_FALSE(Reads("1955", 21h));
  EXPECT_FALSE(Reads("2155", 21h));
  EXPECT_TRUE(Reads("2156", 21h));
  EXPECT_TRUE(Reads("2204", 21h));
  EXPECT_FALSE(Reads("2205", 21h));
  EXPECT_FALSE(Reads("2100", 21h));
}

TEST_F(ClockCheckTest, MidnightMayLieBetween) {
  EXPECT_TRUE(Reads("2330", 30min));
  EXPECT_TRUE(Reads("0030", 23h + 30min));
}

TEST_F(ClockCheckTest, OffsetThatTheOperatorHasSetStays) {
  calendar.GmtOffset = "5";
  world.clock.localOffset = -5h;
  EXPECT_FALSE(Reads("2000", 21h));
  calendar.GmtOffset = "OK";
  EXPECT_TRUE(Reads("2000", 21h));
}

}  // namespace
}  // namespace spots
