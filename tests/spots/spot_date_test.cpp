#include "spots/spot_date.h"

#include <gtest/gtest.h>

#include "platform/sim/world.h"

namespace spots {
namespace {

using namespace std::chrono_literals;

class SpotDate : public testing::Test {
 protected:
  // The date of a spot of that time that comes in so long behind midnight.
  std::string Of(int hhmm, std::chrono::minutes now) {
    world.clock.Set(std::chrono::sys_days{2026y / 11 / 21} + now);
    std::string date;
    InferDate(hhmm, MomentNow(calendar), {.late = 2345, .early = 15}, date);
    return date;
  }

  platform::sim::World world;
  core::Calendar calendar{world.clock};
};

TEST_F(SpotDate, IsTodaysInTheCourseOfTheDay) {
  EXPECT_EQ(Of(2359, 15min), "21-Nov-2026");
  EXPECT_EQ(Of(2359, 12h), "21-Nov-2026");
  EXPECT_EQ(Of(1200, 12h), "21-Nov-2026");
}

TEST_F(SpotDate, IsYesterdaysForALateTimeRightBehindMidnight) {
  EXPECT_EQ(Of(2346, 0min), "20-Nov-2026");
  EXPECT_EQ(Of(2359, 14min), "20-Nov-2026");
  EXPECT_EQ(Of(2345, 0min), "21-Nov-2026");
  EXPECT_EQ(Of(5, 14min), "21-Nov-2026");
}

TEST_F(SpotDate, NeverStepsForward) { EXPECT_EQ(Of(1, 23h + 59min), "21-Nov-2026"); }

TEST_F(SpotDate, StepsBackOverTheYear) {
  world.clock.Set(std::chrono::sys_days{2027y / 1 / 1} + 3min);
  std::string date;
  InferDate(2355, MomentNow(calendar), {.late = 2345, .early = 15}, date);
  EXPECT_EQ(date, "31-Dec-2026");
}

TEST_F(SpotDate, CountsInUtcAsTheOffsetSaysNotTheSystem) {
  world.clock.Set(std::chrono::sys_days{2026y / 11 / 21} + 3min);
  world.clock.localOffset = 60min;
  calendar.GmtOffset = "-2";
  EXPECT_EQ(MomentNow(calendar).date, "20-Nov-2026");
  EXPECT_EQ(MomentNow(calendar).minutes, 23 * 60 + 3);
}

}  // namespace
}  // namespace spots
