#include "ui/frames.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/sim/world.h"

namespace gui {
namespace {

using namespace std::chrono_literals;
using platform::Milliseconds;
using ::testing::ElementsAre;

class FramesTest : public ::testing::Test {
 protected:
  void KeepChangingFor(Milliseconds time) {
    for (; time > 0ms; time -= 1ms) {
      item->Changed();
      world.Run(1ms);
    }
  }

  platform::sim::World world;
  ui::Frames frames{world.scheduler};
  std::vector<Milliseconds> painted;
  std::shared_ptr<ui::Frames::Item> item =
      frames.Add([this] { painted.push_back(world.scheduler.Now()); });
};

TEST_F(FramesTest, TheFirstChangeAfterAPauseIsPaintedAtOnce) {
  world.Run(10s);
  item->Changed();
  EXPECT_TRUE(painted.empty()) << "never inside the call that changes it";
  world.Run(0ms);
  EXPECT_THAT(painted, ElementsAre(10s));
}

TEST_F(FramesTest, TheNextOneWaitsForItsFrame) {
  world.Run(10s);
  frames.Touched();
  item->Changed();
  world.Run(5ms);
  item->Changed();
  world.Run(100ms);
  EXPECT_THAT(painted, ElementsAre(10s, 10033ms));
}

TEST_F(FramesTest, WhenNobodyIsAtItThereAreNoMoreThanSixASecond) {
  KeepChangingFor(1s);
  EXPECT_THAT(painted, ElementsAre(0ms, 170ms, 340ms, 510ms, 680ms, 850ms));
}

TEST_F(FramesTest, WhenNobodyIsAtItAChangeBetweenTwoBatchesIsPaintedWithTheNextBatch) {
  world.Run(10s);
  item->Changed();
  world.Run(50ms);
  item->Changed();
  world.Run(140ms);
  EXPECT_THAT(painted, ElementsAre(10s));
  item->Changed();
  world.Run(0ms);
  EXPECT_THAT(painted, ElementsAre(10s, 10s + 190ms));
}

TEST_F(FramesTest, WhenNobodyIsAtItAChangeSoonAfterAFrameIsPaintedAFifthOfASecondAfterIt) {
  world.Run(10s);
  item->Changed();
  world.Run(50ms);
  item->Changed();
  world.Run(1s);
  EXPECT_THAT(painted, ElementsAre(10s, 10s + 200ms));
}

TEST_F(FramesTest, ATouchBringsWhatIsDueSooner) {
  world.Run(10s);
  item->Changed();
  world.Run(10ms);
  item->Changed();
  world.Run(5ms);
  frames.Touched();
  world.Run(1s);
  EXPECT_THAT(painted, ElementsAre(10s, 10033ms));
}

TEST_F(FramesTest, ATouchThatComesLateBringsItAtOnce) {
  world.Run(10s);
  item->Changed();
  world.Run(10ms);
  item->Changed();
  world.Run(70ms);
  frames.Touched();
  world.Run(1s);
  EXPECT_THAT(painted, ElementsAre(10s, 10080ms));
}

TEST_F(FramesTest, ATouchCountsForTwoSeconds) {
  world.Run(10s);
  frames.Touched();
  KeepChangingFor(1s);
  EXPECT_GE(painted.size(), 30U);
  KeepChangingFor(1s);
  painted.clear();
  KeepChangingFor(1s);
  EXPECT_LE(painted.size(), 11U);
  painted.clear();
  frames.Touched();
  KeepChangingFor(1s);
  EXPECT_GE(painted.size(), 30U);
}

TEST_F(FramesTest, WithoutAChangeNothingIsPainted) {
  world.Run(10s);
  EXPECT_TRUE(painted.empty());
  EXPECT_FALSE(world.scheduler.Step(24h)) << "and nothing wakes up for it";
}

TEST_F(FramesTest, OneThatHasGoneIsNotPaintedAnyMore) {
  item->Changed();
  item.reset();
  world.Run(1s);
  EXPECT_TRUE(painted.empty());
}

TEST_F(FramesTest, WhatAPaintingChangesIsPaintedInTheNextFrame) {
  std::shared_ptr<ui::Frames::Item> endless;
  int paints = 0;
  endless = frames.Add([&] {
    ++paints;
    endless->Changed();
  });
  endless->Changed();
  world.Run(1s);
  EXPECT_EQ(paints, 6);
}

}  // namespace
}  // namespace gui
