#include "platform/task.h"

#include <gmock/gmock.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "platform/sim/world.h"
#include "platform/tasks.h"

using namespace std::chrono_literals;
using platform::Delay;
using platform::Signal;
using platform::Task;
using testing::ElementsAre;
using Log = std::vector<std::string>;

namespace {

// Tells when a coroutine's frame is destroyed.
struct Guard {
  Log& log;
  const char* name;
  ~Guard() { log.push_back(std::string(name) + " gone"); }
};

Task<> Say(Log& log, const char* what) {
  log.push_back(what);
  co_return;
}

Task<> WaitAndSay(Log& log, platform::Milliseconds time, const char* what) {
  const Guard guard{log, what};
  co_await Delay(time);
  log.push_back(what);
}

Task<std::string> Answer(bool wait) {
  if (wait) co_await Delay(10ms);
  co_return "forty-two";
}

Task<> AskTwice(Log& log) {
  const std::string first = co_await Answer(false);
  log.push_back(first);
  const std::string second = co_await Answer(true);
  log.push_back(second);
}

Task<int> Throw(bool wait) {
  if (wait) co_await Delay(10ms);
  throw std::runtime_error("no such thing");
}

Task<> LetThrow(bool wait) {
  const int never = co_await Throw(wait);
  static_cast<void>(never);
}

Task<> WaitFor(Signal& signal, Log& log, const char* name) {
  co_await signal.Next();
  log.push_back(name);
}

Task<> CancelOwn(platform::Tasks& tasks, Log& log) {
  const Guard guard{log, "self"};
  tasks.CancelAll();
  log.push_back("still running");
  co_await Delay(0ms);
  log.push_back("never");
}

Task<> Parent(platform::Tasks& tasks, Log& log) {
  const Guard guard{log, "parent"};
  co_await Delay(5ms);
  Task<> child = CancelOwn(tasks, log);
  co_await std::move(child);
  log.push_back("never either");
}

Task<int> Deep(int depth) {
  if (depth == 0) co_return 0;
  const int below = co_await Deep(depth - 1);
  co_return below + 1;
}

Task<> Loop(int turns, int& done) {
  for (; done < turns; ++done) {
    const int depth = co_await Deep(1);
    if (depth != 1) co_return;
  }
}

class TaskTest : public testing::Test {
 protected:
  platform::sim::World world;
  Log log;
  Log faults;
  platform::Tasks tasks{world.scheduler, [this](std::string_view name, std::string_view what) {
                          faults.push_back(std::string(name) + ": " + std::string(what));
                        }};
};

TEST_F(TaskTest, DoesNothingUntilItIsStarted) {
  const Task<> task = Say(log, "hello");
  world.Run(1s);
  EXPECT_TRUE(log.empty());
}

TEST_F(TaskTest, RunsToItsFirstWaitAtOnceAndIsLetGoWhenItHasEnded) {
  tasks.Start("say", Say(log, "hello"));
  EXPECT_THAT(log, ElementsAre("hello"));
  world.Run(0ms);
  EXPECT_TRUE(tasks.Idle());
}

TEST_F(TaskTest, DelayEndsAtItsTimeAndNotBefore) {
  tasks.Start("wait", WaitAndSay(log, 250ms, "late"));
  world.Run(249ms);
  EXPECT_TRUE(log.empty());
  world.Run(1ms);
  EXPECT_THAT(log, ElementsAre("late", "late gone"));
}

TEST_F(TaskTest, ChildThatEndsWithoutWaitingLetsItsParentGoOnAtOnce) {
  tasks.Start("ask", AskTwice(log));
  EXPECT_THAT(log, ElementsAre("forty-two"));
  world.Run(10ms);
  EXPECT_THAT(log, ElementsAre("forty-two", "forty-two"));
}

TEST_F(TaskTest, ExceptionOfAChildReachesTheFaultHandlerUnderTheNameOfTheTask) {
  tasks.Start("at once", LetThrow(false));
  tasks.Start("later", LetThrow(true));
  world.Run(1s);
  EXPECT_THAT(faults, ElementsAre("at once: no such thing", "later: no such thing"));
  EXPECT_TRUE(tasks.Idle());
}

TEST_F(TaskTest, CancellingDestroysTheFrameAndItsTimer) {
  tasks.Start("wait", WaitAndSay(log, 250ms, "late"));
  tasks.CancelAll();
  EXPECT_THAT(log, ElementsAre("late gone"));
  EXPECT_TRUE(tasks.Idle());
  world.Run(1s);
  EXPECT_THAT(log, ElementsAre("late gone"));
}

TEST_F(TaskTest, CancellingFromInsideIsPostedAndTheRestNeverRuns) {
  tasks.Start("parent", Parent(tasks, log));
  world.Run(1s);
  EXPECT_THAT(log, ElementsAre("still running", "self gone", "parent gone"));
  EXPECT_TRUE(tasks.Idle());
}

TEST_F(TaskTest, SignalLetsAllGoOnWhoWaitedInTheirOrderAndInALaterTurn) {
  Signal signal;
  tasks.Start("a", WaitFor(signal, log, "a"));
  tasks.Start("b", WaitFor(signal, log, "b"));
  signal.Notify();
  EXPECT_TRUE(log.empty());
  world.Run(0ms);
  EXPECT_THAT(log, ElementsAre("a", "b"));
}

TEST_F(TaskTest, SignalForgetsWhoWasCancelledBeforeOrAfterTheNotice) {
  Signal signal;
  tasks.Start("a", WaitFor(signal, log, "a"));
  tasks.CancelAll();
  signal.Notify();
  tasks.Start("b", WaitFor(signal, log, "b"));
  signal.Notify();
  tasks.CancelAll();
  world.Run(1s);
  EXPECT_TRUE(log.empty());
}

TEST_F(TaskTest, ManyChildrenThatEndAtOnceDoNotGrowTheStack) {
  int done = 0;
  tasks.Start("loop", Loop(200000, done));
  EXPECT_EQ(done, 200000);
}

}  // namespace
