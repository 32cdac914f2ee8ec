#include "session/latency_meter.h"

#include <gtest/gtest.h>

#include "platform/sim/world.h"

using namespace std::chrono_literals;

namespace {

class LatencyMeterTest : public testing::Test {
 protected:
  // A timed command whose answer ends after that long.
  void Answered(platform::Milliseconds after) {
    meter.Begin();
    world.Run(after);
    meter.Latency("K1TST de N0NODE arc >");
  }
  std::string Shown() const { return meter.Text3.Caption.Get(); }

  platform::sim::World world;
  session::SessionState state;
  session::LatencyMeter meter{world.scheduler, state};
};

TEST_F(LatencyMeterTest, PromptWithoutATimedCommandShowsNothing) {
  meter.Latency("K1TST de N0NODE arc >");
  EXPECT_EQ(Shown(), "");
}

TEST_F(LatencyMeterTest, NewCommandClearsTheLastReading) {
  Answered(1s);
  ASSERT_NE(Shown(), "");
  meter.Begin();
  EXPECT_EQ(Shown(), "");
  EXPECT_EQ(meter.Last(), 1s) << "what it is subtracted from may still come";
}

TEST_F(LatencyMeterTest, LineThatIsNoPromptLeavesTheMark) {
  meter.Begin();
  world.Run(1s);
  meter.Latency("DX de K1TST");
  EXPECT_EQ(Shown(), "");
  world.Run(1s);
  meter.Latency("K1TST de N0NODE arc >");
  EXPECT_EQ(Shown(), "002.00");
}

TEST_F(LatencyMeterTest, SecondsHaveThreeDigitsAndTwoDecimals) {
  Answered(1234ms);
  EXPECT_EQ(Shown(), "001.23");
  Answered(4995ms);
  EXPECT_EQ(Shown(), "005.00");
  Answered(0ms);
  EXPECT_EQ(Shown(), "000.00");
}

TEST_F(LatencyMeterTest, PromptClearsTheMark) {
  Answered(1s);
  world.Run(5s);
  meter.Latency("K1TST de N0NODE arc >");
  EXPECT_EQ(Shown(), "001.00");
}

TEST_F(LatencyMeterTest, OneDecimalIsShownTenSecondsAndMoreAfterThePreviousReading) {
  Answered(1s);
  world.Run(8750ms);
  Answered(1250ms);
  EXPECT_EQ(Shown(), "001.3");
}

TEST_F(LatencyMeterTest, TwoDecimalsAreShownLessThanTenSecondsAfterThePreviousReading) {
  Answered(1s);
  world.Run(8749ms);
  Answered(1250ms);
  EXPECT_EQ(Shown(), "001.25");
}

TEST_F(LatencyMeterTest, FirstReadingOfTenSecondsAndMoreHasOneDecimal) {
  Answered(12340ms);
  EXPECT_EQ(Shown(), "012.3");
}

TEST_F(LatencyMeterTest, AnswerThatTakesHoursKeepsItsDigits) {
  Answered(2h);
  EXPECT_EQ(Shown(), "7200.0");
}

TEST_F(LatencyMeterTest, PromptOfTheNextSessionIsNoAnswer) {
  meter.Begin();
  meter.Disconnected();
  meter.Latency("K1TST de N0NODE arc >");
  EXPECT_EQ(Shown(), "");
}

}  // namespace
