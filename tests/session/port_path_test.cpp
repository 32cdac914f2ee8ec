#include "session/port_path.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

using session::PortPath;

TEST(PortPath, NumbersUpTo16AreThePortsOfTheMachine) {
  EXPECT_EQ(PortPath(1), "/dev/ttyS0");
  EXPECT_EQ(PortPath(16), "/dev/ttyS15");
}

TEST(PortPath, NumbersUpTo32ArePortsThatArePluggedIn) {
  EXPECT_EQ(PortPath(17), "/dev/ttyUSB0");
  EXPECT_EQ(PortPath(32), "/dev/ttyUSB15");
}

TEST(PortPath, AnyOtherNumberIsNoPort) {
  for (const int number : {0, -1, 33, INT_MIN, INT_MAX}) EXPECT_EQ(PortPath(number), "") << number;
}

}  // namespace
