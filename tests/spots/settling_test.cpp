#include "spots/settling.h"

#include <gtest/gtest.h>

#include "platform/sim/world.h"

namespace spots {
namespace {

using namespace std::chrono_literals;

class SettlingTest : public testing::Test {
 protected:
  platform::sim::World world;
  int sent = 0;
  Settling settling{world.scheduler, [this] { ++sent; }};
};

TEST_F(SettlingTest, NothingIsDroppedWithoutASession) {
  EXPECT_FALSE(settling.Drops({}));
  EXPECT_EQ(sent, 0);
}

TEST_F(SettlingTest, NothingIsDroppedOnceTheNodeHasAnswered) {
  EXPECT_FALSE(settling.Drops({.Ar17Active = true, .SessionUp = true}));
  EXPECT_FALSE(settling.Drops({.Ar17Refused = true, .SessionUp = true}));
  EXPECT_EQ(sent, 0);
}

TEST_F(SettlingTest, UntilThenEveryLineIsDroppedAndAnEmptyLineAsks) {
  EXPECT_TRUE(settling.Drops({.SessionUp = true}));
  EXPECT_EQ(sent, 1);
}

TEST_F(SettlingTest, EmptyLineGoesOutOnceASecondAtMost) {
  for (int i = 0; i < 100; ++i) EXPECT_TRUE(settling.Drops({.SessionUp = true}));
  EXPECT_EQ(sent, 1);
  world.Run(999ms);
  EXPECT_TRUE(settling.Drops({.SessionUp = true}));
  EXPECT_EQ(sent, 1);
  world.Run(1ms);
  EXPECT_TRUE(settling.Drops({.SessionUp = true}));
  EXPECT_EQ(sent, 2);
}

}  // namespace
}  // namespace spots
