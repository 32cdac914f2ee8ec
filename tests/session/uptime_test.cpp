#include "session/uptime.h"

#include <gmock/gmock.h>

#include <cmath>

using session::UptimeMinutes;
using testing::FloatEq;
using testing::FloatNear;
using testing::Optional;

namespace {

TEST(Uptime, DaysHoursAndMinutesAsAClock) {
  EXPECT_THAT(UptimeMinutes("Uptime 0 00:00"), Optional(FloatEq(0)));
  EXPECT_THAT(UptimeMinutes("Uptime 0 00:29"), Optional(FloatEq(29)));
  EXPECT_THAT(UptimeMinutes("Uptime 2 03:05"), Optional(FloatEq(3065)));
  EXPECT_THAT(UptimeMinutes("Uptime 120 23:59"), Optional(FloatEq(174239)));
}

TEST(Uptime, NumbersWithTheirUnits) {
  EXPECT_THAT(UptimeMinutes("Uptime:  34s"), Optional(FloatNear(0.567F, 0.001F)));
  EXPECT_THAT(UptimeMinutes("Uptime:  3m 46s"), Optional(FloatNear(3.767F, 0.001F)));
  EXPECT_THAT(UptimeMinutes("Uptime: 2d 3h 5m"), Optional(FloatEq(3065)));
  EXPECT_THAT(UptimeMinutes("Uptime: 12h"), Optional(FloatEq(720)));
  EXPECT_THAT(UptimeMinutes("Uptime: 1d 0s"), Optional(FloatEq(1440)));
}

TEST(Uptime, StandsAtAnyColumnAndMoreMayFollow) {
  const std::string before = "Cluster: 1 nodes, 1 local / 1 total users  Max users 20  ";
  EXPECT_THAT(UptimeMinutes(before + "Uptime 2 03:05"), Optional(FloatEq(3065)));
  EXPECT_THAT(UptimeMinutes(before + "Uptime: 2d 3h 5m"), Optional(FloatEq(3065)));
  EXPECT_THAT(UptimeMinutes("Uptime: 2d 3h 5m  Max users 20"), Optional(FloatEq(3065)));
  EXPECT_THAT(UptimeMinutes("Uptime 2 03:05 Max users 20"), Optional(FloatEq(3065)));
  EXPECT_THAT(UptimeMinutes("7 users  Uptime:  34s   "), Optional(FloatNear(0.567F, 0.001F)));
}

TEST(Uptime, OtherLinesTellNothing) {
  for (const char* line : {"", "up since yesterday", "UPTIME 2 03:05", "Uptime",
                           "Uptime:", "Uptime unknown", "Uptimes 2 03:05"})
    EXPECT_EQ(UptimeMinutes(line), std::nullopt) << line;
}

TEST(Uptime, NumbersBeyondAllMeasureAreLongTimes) {
  for (const char* line :
       {"Uptime 0 99999999:00", "Uptime 99999999999999 00:00", "Uptime: 99999999999999d",
        "Uptime 9 99999999999999:99", "Uptime 0 99999999999999:00"}) {
    const auto minutes = UptimeMinutes(line);
    ASSERT_TRUE(minutes) << line;
    EXPECT_GT(*minutes, 30) << line;
    EXPECT_TRUE(std::isfinite(*minutes)) << line;
  }
}

}  // namespace
