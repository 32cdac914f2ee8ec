#include "platform/qt/serial_draining.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace platform::qt {
namespace {

using Step = SerialDraining::Step;

TEST(SerialDrainingTest, APortThatHasTransmittedEverythingIsClosedAtOnce) {
  EXPECT_EQ(SerialDraining().Next(0, 0ms), Step::Close);
}

TEST(SerialDrainingTest, APortIsClosedOnceTheLastByteHasGone) {
  SerialDraining draining;
  EXPECT_EQ(draining.Next(16, 0ms), Step::Wait);
  EXPECT_EQ(draining.Next(1, 20ms), Step::Wait);
  EXPECT_EQ(draining.Next(0, 40ms), Step::Close);
}

TEST(SerialDrainingTest, WhatADeviceHasNotTakenWithinTwoSecondsIsDroppedOnce) {
  SerialDraining draining;
  EXPECT_EQ(draining.Next(16, 1999ms), Step::Wait);
  EXPECT_EQ(draining.Next(16, 2000ms), Step::Discard);
  EXPECT_EQ(draining.Next(16, 2020ms), Step::Wait);
  EXPECT_EQ(draining.Next(0, 2040ms), Step::Close);
}

TEST(SerialDrainingTest, APortWhoseDriverDropsNothingIsClosedAllTheSame) {
  SerialDraining draining;
  EXPECT_EQ(draining.Next(16, 2000ms), Step::Discard);
  EXPECT_EQ(draining.Next(16, 2999ms), Step::Wait);
  EXPECT_EQ(draining.Next(16, 3000ms), Step::Close);
}

}  // namespace
}  // namespace platform::qt
