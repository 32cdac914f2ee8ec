#include "platform/timer_queue.h"

#include <gmock/gmock.h>

#include <string>

using namespace std::chrono_literals;
using platform::Registration;

namespace {

class TimerQueueTest : public testing::Test {
 protected:
  Registration Say(platform::Milliseconds due, char what) {
    return queue.Add(due, [this, what] { said += what; });
  }

  platform::TimerQueue queue;
  std::string said;
};

TEST_F(TimerQueueTest, CallsInOrderOfTimeAndThenOfAsking) {
  const Registration c = Say(20ms, 'c'), a = Say(10ms, 'a'), b = Say(10ms, 'b');
  EXPECT_EQ(queue.NextDue(), 10ms);
  queue.RunDue(9ms);
  EXPECT_EQ(said, "");
  queue.RunDue(20ms);
  EXPECT_EQ(said, "abc");
  EXPECT_EQ(queue.NextDue(), std::nullopt);
}

TEST_F(TimerQueueTest, WhatIsAskedForDuringATurnComesInALaterOne) {
  Registration inner;
  const Registration outer = queue.Add(10ms, [&] { inner = Say(5ms, 'i'); });
  const Registration other = Say(10ms, 'o');
  queue.RunDue(10ms);
  EXPECT_EQ(said, "o");
  queue.RunDue(10ms);
  EXPECT_EQ(said, "oi");
}

TEST_F(TimerQueueTest, ReleasedCallNeverComes) {
  Registration a = Say(10ms, 'a');
  Registration b = Say(10ms, 'b');
  a.Release();
  b = Registration();
  queue.RunDue(10ms);
  EXPECT_EQ(said, "");
}

TEST_F(TimerQueueTest, CallMayReleaseAnotherOfTheSameTurnAndItself) {
  Registration second;
  Registration first = queue.Add(10ms, [&] {
    second.Release();
    first.Release();
    said += '1';
  });
  second = Say(10ms, '2');
  queue.RunDue(10ms);
  EXPECT_EQ(said, "1");
}

TEST_F(TimerQueueTest, KeptCallComesWithoutItsRegistration) {
  Say(10ms, 'k').Keep();
  queue.RunDue(10ms);
  EXPECT_EQ(said, "k");
}

TEST(Registration, MayOutliveTheQueue) {
  Registration late;
  {
    platform::TimerQueue queue;
    late = queue.Add(10ms, [] {});
  }
  late.Release();
  SUCCEED();
}

}  // namespace
