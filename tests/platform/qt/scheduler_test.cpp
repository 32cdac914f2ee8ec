#include "platform/qt/qt_scheduler.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <string>

#include "platform/qt/pump.h"

namespace platform::qt {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

struct QtSchedulerTest : testing::Test {
  QtScheduler scheduler;
  std::vector<std::string> calls;

  Scheduler::Callback Note(std::string name) {
    return [this, name] { calls.push_back(name); };
  }
  bool PumpUntilCalls(std::size_t count) {
    return PumpUntil([&] { return calls.size() >= count; });
  }
};

TEST_F(QtSchedulerTest, NothingIsCalledFromInsideTheAsking) {
  const auto call = scheduler.Post(Note("posted"));
  EXPECT_THAT(calls, ElementsAre());
  EXPECT_TRUE(PumpUntilCalls(1));
}

TEST_F(QtSchedulerTest, CallsComeByTheirTimeAndThenByTheirAsking) {
  const auto late = scheduler.After(30ms, Note("late"));
  const auto early = scheduler.After(10ms, Note("early"));
  const auto first = scheduler.Post(Note("first"));
  const auto second = scheduler.Post(Note("second"));
  ASSERT_TRUE(PumpUntilCalls(4));
  EXPECT_THAT(calls, ElementsAre("first", "second", "early", "late"));
}

TEST_F(QtSchedulerTest, ACallNeverComesBeforeItsDelayIsOver) {
  const Milliseconds start = scheduler.Now();
  Milliseconds called{0};
  const auto call = scheduler.After(25ms, [&] { called = scheduler.Now(); });
  ASSERT_TRUE(PumpUntil([&] { return called != Milliseconds{0}; }));
  EXPECT_GE(called - start, 25ms);
}

TEST_F(QtSchedulerTest, ANegativeDelayIsNone) {
  const auto first = scheduler.Post(Note("posted"));
  const auto second = scheduler.After(-1h, Note("negative"));
  ASSERT_TRUE(PumpUntilCalls(2));
  EXPECT_THAT(calls, ElementsAre("posted", "negative"));
}

TEST_F(QtSchedulerTest, AReleasedCallDoesNotCome) {
  auto dropped = scheduler.Post(Note("dropped"));
  const auto kept = scheduler.After(5ms, Note("kept"));
  dropped.Release();
  ASSERT_TRUE(PumpUntilCalls(1));
  EXPECT_THAT(calls, ElementsAre("kept"));
}

TEST_F(QtSchedulerTest, AWaitLongerThanATimerCountsDoesNotComeAtOnce) {
  const auto far = scheduler.After(std::chrono::hours(24 * 100), Note("far"));
  PumpTurns(scheduler);
  EXPECT_THAT(calls, ElementsAre());
}

// One iteration of the event loop, without waiting.
void Iterate() { QCoreApplication::processEvents(QEventLoop::AllEvents); }

TEST_F(QtSchedulerTest, WhatATurnPostsComesInALaterIterationOfTheEventLoop) {
  Registration inner;
  const auto outer = scheduler.Post([&] {
    calls.push_back("outer");
    inner = scheduler.Post(Note("inner"));
  });
  ASSERT_TRUE(PumpUntil([&] { return !calls.empty(); }));
  EXPECT_THAT(calls, ElementsAre("outer"));
  EXPECT_TRUE(PumpUntilCalls(2));
}

// What posts itself again and again, in each turn.
struct Restless {
  explicit Restless(Scheduler& given) : scheduler(given) { Again(); }
  void Again() {
    ++turns;
    next = scheduler.Post([this] { Again(); });
  }
  Scheduler& scheduler;
  int turns = 0;
  Registration next;
};

TEST_F(QtSchedulerTest, EventsOfTheWindowAreNotStarvedByPosts) {
  const Restless restless(scheduler);
  bool painted = false;
  QObject window;
  QMetaObject::invokeMethod(
      &window, [&] { painted = true; }, Qt::QueuedConnection);
  Iterate();
  EXPECT_TRUE(painted);
  EXPECT_LE(restless.turns, 3);
}

TEST_F(QtSchedulerTest, ALoopInsideATurnRunsNoFurtherTurn) {
  const auto outer = scheduler.Post([&] {
    const auto inner = scheduler.Post(Note("inner"));
    Iterate();
    Iterate();
    calls.push_back("outer");
  });
  ASSERT_TRUE(PumpUntilCalls(1));
  EXPECT_THAT(calls, ElementsAre("outer"));
}

TEST(QtSchedulerLifeTest, ARegistrationMayOutliveTheScheduler) {
  Registration call;
  {
    QtScheduler scheduler;
    call = scheduler.Post([] { FAIL(); });
  }
  call.Release();
}

}  // namespace
}  // namespace platform::qt
