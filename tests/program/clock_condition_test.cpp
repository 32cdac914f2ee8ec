#include <gtest/gtest.h>

#include "program/desk.h"

using namespace std::chrono_literals;

namespace {

class ClockConditionTest : public testing::Test {
 protected:
  ClockConditionTest() { desk.HasUsualConfiguration(); }

  // A spot of 21:16, fresh from the node.
  void Receive() {
    desk.program->spotParts.lines.ar17(
        "AR17^^14025.0^3Y0J^20-Nov-2026^2116Z^CW up 2^DL1ABC^W1A^3Y/B^^^38^67^^DL^BY^^");
  }
  std::string Text() { return desk.program->conditions.lblText.Caption.Get(); }

  Desk desk;
};

TEST_F(ClockConditionTest, ClockThatIsAnHourOutIsToldUntilItIsSetRight) {
  desk.Start();
  desk.world.Run(16min);
  Receive();
  EXPECT_EQ(Text(), "");
  desk.world.clock.Set(desk.world.clock.UtcNow() + 1h);
  Receive();
  EXPECT_EQ(Text(), "This computer's clock is about an hour away from the node's spots.");
  desk.world.clock.Set(desk.world.clock.UtcNow() - 1h);
  Receive();
  EXPECT_EQ(Text(), "");
}

}  // namespace
