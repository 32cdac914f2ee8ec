#include "spots/grid_recorder.h"

#include <gtest/gtest.h>

#include "platform/sim/world.h"

namespace spots {
namespace {

using namespace std::chrono_literals;

constexpr NodeFacts kSpider{.kind = session::NodeKind::Spider};

class GridRecorderTest : public testing::Test {
 protected:
  void SetList(std::string text) { world.files.content[listPath] = std::move(text); }
  const std::string& Recorded() { return world.files.content["/molva/grid.txt"]; }

  platform::sim::World world;
  core::Calendar calendar{world.clock};
  GridRecorder recorder{world.files, world.scheduler, calendar, "/molva"};
  const std::string listPath = "/molva/data/grid/grid.dat";
};

TEST_F(GridRecorderTest, WritesCallGridAndDate) {
  SetList("AA1A FN42\r\n");
  recorder.RecordGrid("FN20", "K1ABC", kSpider);
  EXPECT_EQ(Recorded(), "K1ABC FN20 261120\r\n");
}

TEST_F(GridRecorderTest, ACallOfTheListIsKnown) {
  SetList("AA1A FN42\r\nK1ABC FN20\r\n");
  recorder.RecordGrid("EM48", "K1ABC", kSpider);
  EXPECT_EQ(Recorded(), "");
}

TEST_F(GridRecorderTest, TheSameTwiceIsTwoLines) {
  SetList("AA1A FN42\r\n");
  recorder.RecordGrid("FN20", "K1ABC", kSpider);
  recorder.RecordGrid("FN20", "K1ABC", kSpider);
  EXPECT_EQ(Recorded(), "K1ABC FN20 261120\r\nK1ABC FN20 261120\r\n");
}

TEST_F(GridRecorderTest, WithoutAListNothingIsRecorded) {
  recorder.RecordGrid("FN20", "K1ABC", kSpider);
  EXPECT_FALSE(world.files.Exists("/molva/grid.txt"));
}

TEST_F(GridRecorderTest, OtherNodesGiveNoGrids) {
  SetList("AA1A FN42\r\n");
  recorder.RecordGrid("FN20", "K1ABC", {.kind = session::NodeKind::Zelva});
  recorder.RecordGrid("FN20", "K1ABC", {});
  EXPECT_EQ(Recorded(), "");
}

TEST_F(GridRecorderTest, AListOfAnotherLengthIsReadAnew) {
  SetList("AA1A FN42\r\n");
  recorder.RecordGrid("FN20", "K1ABC", kSpider);
  SetList("AA1A FN42\r\nK1ABC FN20\r\n");
  world.Run(1s);
  recorder.RecordGrid("FN20", "K1ABC", kSpider);
  EXPECT_EQ(Recorded(), "K1ABC FN20 261120\r\n");
}

TEST_F(GridRecorderTest, AListThatAppearsIsRead) {
  recorder.RecordGrid("FN20", "K1ABC", kSpider);
  SetList("AA1A FN42\r\n");
  world.Run(1s);
  recorder.RecordGrid("FN20", "K1ABC", kSpider);
  EXPECT_EQ(Recorded(), "K1ABC FN20 261120\r\n");
}

TEST_F(GridRecorderTest, ANodeCannotFillTheDisk) {
  SetList("AA1A FN42\r\n");
  const std::string call(100'000, 'K');
  for (int i = 0; i < 100; ++i) recorder.RecordGrid("FN20", call, kSpider);
  EXPECT_GE(Recorded().size(), GridRecorder::kMostBytes);
  EXPECT_LT(Recorded().size(), GridRecorder::kMostBytes + call.size() + 20);
}

TEST_F(GridRecorderTest, AFullDiskIsHarmless) {
  SetList("AA1A FN42\r\n");
  world.files.bytesFree = 5;
  recorder.RecordGrid("FN20", "K1ABC", kSpider);
  EXPECT_LE(Recorded().size(), 5u);
}

}  // namespace
}  // namespace spots
