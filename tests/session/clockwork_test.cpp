#include "session/clockwork.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "session_fixture.h"

using namespace std::chrono_literals;
using session::TimerId;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// The clock begins at 21:00 UTC on 20 November 2026.
class ClockworkTest : public SessionFixture {
 protected:
  long TimesAsked(const std::string& what) const {
    return std::count(above.asked.begin(), above.asked.end(), what);
  }
};

TEST_F(ClockworkTest, HourlyWorkIsDoneAtEachNewHour) {
  LetPass(59min);
  const int before = above.hours;
  LetPass(59s);
  EXPECT_EQ(above.hours, before);
  LetPass(2s);
  EXPECT_EQ(above.hours, before + 1);
  LetPass(59min);
  EXPECT_EQ(above.hours, before + 1);
  LetPass(4h);
  EXPECT_EQ(above.hours, before + 5);
}

TEST_F(ClockworkTest, ClockThatJumpsAnHourEitherWayIsANewHourOnce) {
  LetPass(5s);
  for (const auto jump : {1h, -1h}) {
    const int before = above.hours;
    world.clock.Set(world.clock.UtcNow() + jump);
    LetPass(10min);
    EXPECT_EQ(above.hours, before + 1);
  }
  EXPECT_THAT(above.asked, IsEmpty());
}

TEST_F(ClockworkTest, ClockThatJumpsOverMidnightAndBackIsANewDayEachTime) {
  LetPass(2h + 55min);
  for (const auto jump : {1h, -1h}) {
    world.clock.Set(world.clock.UtcNow() + jump);
    LetPass(90s);
    EXPECT_THAT(above.asked, ElementsAre("DayChange", "EnableLoggingSpots"));
    above.asked.clear();
  }
}

TEST_F(ClockworkTest, SunIsServedEachMinute) {
  LetPass(10min + 5s);
  EXPECT_EQ(above.minutes, 10);
}

TEST_F(ClockworkTest, NewDayBeginsInTheMinuteBehindMidnightInUtc) {
  world.clock.localOffset = 5h;
  LetPass(2h + 59min);
  EXPECT_THAT(above.asked, IsEmpty());
  LetPass(2min);
  EXPECT_THAT(above.asked, ElementsAre("DayChange", "EnableLoggingSpots"));
  LetPass(23h);
  EXPECT_EQ(TimesAsked("DayChange"), 1);
  LetPass(1h);
  EXPECT_EQ(TimesAsked("DayChange"), 2);
  EXPECT_EQ(TimesAsked("EnableLoggingSpots"), 2);
}

TEST_F(ClockworkTest, DayThatTheOffsetOfTheUserMakesIsNoNewDay) {
  calendar.GmtOffset = "5";  // 02:00 on the next day
  LetPass(10min);
  EXPECT_THAT(above.asked, IsEmpty());
  LetPass(21h);
  EXPECT_THAT(above.asked, IsEmpty());
  LetPass(1h);
  EXPECT_THAT(above.asked, ElementsAre("DayChange", "EnableLoggingSpots"));
}

// Newer versions.

class UpdaterTest : public ClockworkTest {
 protected:
  UpdaterTest() {
    LogIn();
    program.timers.Enable(TimerId::Updater);
  }
};

TEST_F(UpdaterTest, FirstLookComesAfter59MinutesThenOneEachFive) {
  LetPass(58min + 59s);
  EXPECT_EQ(TimesAsked("GetLatestVersion"), 0);
  LetPass(2s);
  EXPECT_EQ(TimesAsked("GetLatestVersion"), 1);
  LetPass(4min + 57s);
  EXPECT_EQ(TimesAsked("GetLatestVersion"), 1);
  LetPass(3s);
  EXPECT_EQ(TimesAsked("GetLatestVersion"), 2);
  LetPass(50min);
  EXPECT_EQ(TimesAsked("GetLatestVersion"), 12);
}

TEST_F(UpdaterTest, NobodyLooksWithoutALogin) {
  program.state.LoggedIn = false;
  LetPass(59min + 1s);
  EXPECT_EQ(TimesAsked("GetLatestVersion"), 0);
  program.state.LoggedIn = true;
  LetPass(5min);
  EXPECT_EQ(TimesAsked("GetLatestVersion"), 1);
}

TEST_F(UpdaterTest, NothingHappensWhileTheTimerIsOff) {
  program.timers.Disable(TimerId::Updater);
  LetPass(3h);
  EXPECT_EQ(TimesAsked("GetLatestVersion"), 0);
}

// Requests that are put off.

class PutOff : public ClockworkTest {
 protected:
  PutOff() { LogIn(); }
};

TEST_F(PutOff, BareLineEndGoesOutOnceASecondLater) {
  program.timers.Enable(TimerId::BareLineEnd);
  LetPass(990ms);
  ExpectNothingSent();
  LetPass(1min);
  ExpectSent({""});
}

TEST_F(PutOff, UsersAreAskedForByTheCommandOfTheLink) {
  program.timers.Enable(TimerId::AskWho);
  LetPass(1min);
  ExpectSent({"SH/TNC"});
  program.state.SysopLink = program.state.NodeSentPassword = true;
  program.timers.Enable(TimerId::AskWho);
  LetPass(1min);
  ExpectSent({"WHO"});
}

TEST_F(PutOff, ConfigurationIsAskedForOfEachKnownNode) {
  program.state.KnownNodes = {"N0NODE", "N1NODE"};
  program.timers.Enable(TimerId::AskConfig);
  LetPass(1min);
  ExpectSent({"SHOW/CONFIG N0NODE", "SHOW/CONFIG N1NODE"});
}

TEST_F(PutOff, DirectoryIsAskedForEachHourByASysop) {
  program.state.SysopLink = program.clockwork.SysopEnabled = true;
  LetPass(59min + 58s);
  ExpectNothingSent();
  EXPECT_FALSE(program.clockwork.MailPoll);
  LetPass(3s);
  ExpectSent({"DIR/100"});
  EXPECT_TRUE(program.clockwork.MailPoll);
  EXPECT_LE(program.clockwork.DirTicks, 3);
  LetPass(1h);
  ExpectSent({"DIR/100"});
}

TEST_F(PutOff, DirectoryIsNotAskedForByOthers) {
  LetPass(3h);
  ExpectNothingSent();
}

}  // namespace
