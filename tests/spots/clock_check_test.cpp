#include "spots/clock_check.h"

#include <gtest/gtest.h>

#include "platform/sim/world.h"

namespace spots {
namespace {

using namespace std::chrono_literals;

class ClockCheckTest : public testing::Test {
 protected:
  // Whether a spot of that time, seen at `now`, makes the clock seem to be an hour out.
  bool IsOut(const std::string& hhmm, std::chrono::minutes now) {
    world.clock.Set(std::chrono::sys_days{2026y / 11 / 20} + now);
    Spot spot;
    spot.SpotTime = hhmm;
    spot.SpotHHMM = std::atoi(hhmm.c_str());
    check.Check(spot);
    return check.HourOut.Get();
  }

  platform::sim::World world;
  core::Calendar calendar{world.clock};
  ClockCheck check{calendar};
};

TEST_F(ClockCheckTest, TimeThatIsNoneIsLeftAlone) {
  for (const std::string time : {"", "1", "ABCD", "2060", "2460", "-959", "20000"})
    EXPECT_FALSE(IsOut(time, 21h)) << time;
}

TEST_F(ClockCheckTest, From56To64MinutesOffTheClockIsOut) {
  EXPECT_FALSE(IsOut("2005", 21h));
  EXPECT_TRUE(IsOut("2004", 21h));
  EXPECT_TRUE(IsOut("2000", 21h));
  EXPECT_TRUE(IsOut("1956", 21h));
  EXPECT_FALSE(IsOut("1955", 21h));
  EXPECT_FALSE(IsOut("2155", 21h));
  EXPECT_TRUE(IsOut("2156", 21h));
  EXPECT_TRUE(IsOut("2204", 21h));
  EXPECT_FALSE(IsOut("2205", 21h));
  EXPECT_FALSE(IsOut("2100", 21h));
}

TEST_F(ClockCheckTest, MidnightMayLieBetween) {
  EXPECT_TRUE(IsOut("2330", 30min));
  EXPECT_TRUE(IsOut("0030", 23h + 30min));
}

TEST_F(ClockCheckTest, NextSpotInTimeSetsItRight) {
  EXPECT_TRUE(IsOut("2000", 21h));
  EXPECT_TRUE(IsOut("junk", 21h)) << "it says nothing of the clock";
  EXPECT_FALSE(IsOut("2059", 21h));
}

TEST_F(ClockCheckTest, EndOfTheSessionForgetsIt) {
  EXPECT_TRUE(IsOut("2000", 21h));
  check.Forget();
  EXPECT_FALSE(check.HourOut.Get());
}

TEST_F(ClockCheckTest, OffsetThatTheOperatorHasSetIsHisOwnAffair) {
  calendar.GmtOffset = "5";
  world.clock.localOffset = -5h;
  EXPECT_FALSE(IsOut("2000", 21h));
  calendar.GmtOffset = "OK";
  EXPECT_TRUE(IsOut("2000", 21h));
}

}  // namespace
}  // namespace spots
