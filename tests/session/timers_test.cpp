#include "session/timers.h"

#include <gmock/gmock.h>

#include <array>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/sim/world.h"

using namespace std::chrono_literals;
using platform::Milliseconds;
using session::TimerId;
using session::Timers;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr TimerId kTimer = TimerId::ConnectionTimeout;  // 15 s, off from the start

class TimersTest : public testing::Test {
 protected:
  TimersTest() {
    timers.SetDuty(kTimer, [this] { fired.push_back(world.scheduler.Now()); });
  }

  platform::sim::World world;
  std::vector<std::string> faults;
  std::vector<Milliseconds> fired;
  Timers timers{world.scheduler, [this](std::string_view name, std::string_view what) {
                  faults.push_back(std::string(name) + ": " + std::string(what));
                }};
};

TEST_F(TimersTest, NoneFiresBeforeTheEndOfLoading) {
  timers.Enable(kTimer);
  world.Run(1h);
  EXPECT_THAT(fired, IsEmpty());
  timers.Begin();
  world.Run(15s);
  EXPECT_THAT(fired, ElementsAre(1h + 15s));
}

TEST_F(TimersTest, TimerWithAnIntervalOfZeroNeverFires) {
  timers.Begin();
  timers.SetInterval(kTimer, 0ms);
  timers.Enable(kTimer);
  world.Run(1h);
  EXPECT_THAT(fired, IsEmpty());
}

TEST_F(TimersTest, IntervalThatBecomesZeroStopsARunningTimer) {
  timers.Begin();
  timers.Enable(kTimer);
  timers.SetInterval(kTimer, 0ms);
  world.Run(1h);
  EXPECT_THAT(fired, IsEmpty());
}

TEST_F(TimersTest, TimerFiresEachPeriodUntilItIsDisabled) {
  timers.Begin();
  timers.Enable(kTimer);
  EXPECT_TRUE(timers.Enabled(kTimer));
  world.Run(31s);
  timers.Disable(kTimer);
  world.Run(1h);
  EXPECT_THAT(fired, ElementsAre(15s, 30s));
  EXPECT_FALSE(timers.Enabled(kTimer));
}

TEST_F(TimersTest, EnablingARunningTimerChangesNothing) {
  timers.Begin();
  timers.Enable(kTimer);
  world.Run(10s);
  timers.Enable(kTimer);
  world.Run(6s);
  EXPECT_THAT(fired, ElementsAre(15s));
}

TEST_F(TimersTest, RestartBeginsAWholePeriod) {
  timers.Begin();
  timers.Enable(kTimer);
  world.Run(10s);
  timers.Restart(kTimer);
  EXPECT_EQ(timers.Remaining(kTimer), 15s);
  world.Run(16s);
  EXPECT_THAT(fired, ElementsAre(25s));
}

TEST_F(TimersTest, RestartStartsATimerThatIsOff) {
  timers.Begin();
  timers.Restart(kTimer);
  world.Run(15s);
  EXPECT_THAT(fired, ElementsAre(15s));
}

TEST_F(TimersTest, SeveralMissedPeriodsFireOnce) {
  timers.Begin();
  timers.Enable(kTimer);
  world.scheduler.AdvanceTo(100s);
  world.Run(1s);
  EXPECT_THAT(fired, ElementsAre(100s));
}

TEST_F(TimersTest, NewIntervalBeginsARunningPeriodAnew) {
  timers.Begin();
  timers.Enable(kTimer);
  world.Run(10s);
  timers.SetInterval(kTimer, 20s);
  world.Run(25s);
  EXPECT_THAT(fired, ElementsAre(30s));
}

TEST_F(TimersTest, DutyMayDisableItsOwnTimer) {
  timers.Begin();
  timers.SetDuty(kTimer, [this] {
    fired.push_back(world.scheduler.Now());
    timers.Disable(kTimer);
  });
  timers.Enable(kTimer);
  world.Run(1h);
  EXPECT_THAT(fired, ElementsAre(15s));
}

TEST_F(TimersTest, DutyMayRestartItsOwnTimer) {
  timers.Begin();
  timers.SetDuty(kTimer, [this] {
    fired.push_back(world.scheduler.Now());
    timers.Disable(kTimer);
    timers.Enable(kTimer);
  });
  timers.Enable(kTimer);
  world.Run(46s);
  EXPECT_THAT(fired, ElementsAre(15s, 30s, 45s));
}

TEST_F(TimersTest, DutyThatFailsIsReportedAndFiresAgain) {
  timers.Begin();
  timers.SetDuty(kTimer, [] { throw std::runtime_error("boom"); });
  timers.Enable(kTimer);
  world.Run(31s);
  EXPECT_THAT(faults, ElementsAre(testing::HasSubstr("boom"), testing::HasSubstr("boom")));
}

TEST_F(TimersTest, TimerWithoutADutyDoesNoHarm) {
  timers.Begin();
  timers.Enable(static_cast<TimerId>(33));
  timers.Enable(static_cast<TimerId>(28));
  world.Run(1h);
  EXPECT_THAT(faults, IsEmpty());
}

// An interval of -1 stands for one that is chosen elsewhere or means nothing.
struct TimerRow {
  std::size_t index;
  int interval;
  bool on;
};
constexpr TimerRow kTimerRows[] = {
    {0, 250, false},   {1, 1000, true},    {2, 5000, false},  {4, 15000, false},
    {5, 5000, false},  {6, 5000, false},   {7, 250, true},    {8, 500, false},
    {9, 2000, false},  {10, 60000, false}, {11, 2000, false}, {12, 60000, true},
    {13, -1, true},    {14, 10000, false}, {15, 60000, true}, {16, 1000, false},
    {17, 1000, true},  {18, 6000, false},  {19, 200, false},  {20, 2000, false},
    {21, 1000, false}, {22, 5000, false},  {23, 500, false},  {24, 1000, true},
    {25, 5000, true},  {26, -1, false},    {27, 60, true},    {28, 10000, true},
    {29, 1000, false}, {30, 100, true},    {31, 1000, false}, {32, 60000, false},
    {33, -1, false},   {34, 30000, false}, {3, -1, false},
};

TEST_F(TimersTest, EachHasTheIntervalAndTheSwitchOfItsRow) {
  static_assert(std::size(kTimerRows) == Timers::kCount);
  for (const TimerRow& row : kTimerRows) {
    const auto timer = static_cast<TimerId>(row.index);
    if (row.interval >= 0) {
      EXPECT_EQ(timers.Interval(timer), Milliseconds{row.interval}) << row.index;
    }
    EXPECT_EQ(timers.Enabled(timer), row.on) << row.index;
  }
}

}  // namespace
