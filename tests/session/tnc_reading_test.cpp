#include <gmock/gmock.h>

#include <stdexcept>

#include "session/tnc_link.h"
#include "session_fixture.h"

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

constexpr const char* kReadPort = "/dev/ttyS0";

class TncReading : public SessionFixture {
 protected:
  TncReading() {
    settings.TncPort = 1;
    settings.TncBaud = 9600;
    program.state.TncMode = true;
    EXPECT_TRUE(program.tncLink.OpenComm1());
  }

  // The TNC says so, and is polled.
  void Says(std::string_view bytes) {
    device.Feed(bytes);
    LetPass(250ms);
  }
  Lines Heard() const { return log.Of("First"); }

  platform::sim::SimDevice& device = world.serialPorts.Plug(kReadPort, "TNC-X");
};

TEST_F(TncReading, PortIsPolledEvery250Milliseconds) {
  LetPass(1ms);
  device.Feed("one\r");
  LetPass(248ms);
  EXPECT_THAT(Heard(), IsEmpty());
  LetPass(1ms);
  EXPECT_THAT(Heard(), ElementsAre("one"));
}

TEST_F(TncReading, LinesMayComeInPieces) {
  Says("on");
  Says("e\rtw");
  Says("o\r\n");
  EXPECT_THAT(Heard(), ElementsAre("one", "two"));
}

TEST_F(TncReading, PromptOfTheTncEndsALine) {
  Says("CMD:");
  EXPECT_THAT(Heard(), ElementsAre("CMD:"));
}

TEST_F(TncReading, BytesStayUnreadInTelnetMode) {
  program.state.TncMode = false;
  Says("one\r");
  EXPECT_THAT(Heard(), IsEmpty());
  program.state.TncMode = true;
  LetPass(250ms);
  EXPECT_THAT(Heard(), ElementsAre("one"));
}

TEST_F(TncReading, BytesStayUnreadWhileIntakeIsHeld) {
  auto hold = program.intake.Hold();
  Says("one\r");
  Says("two\r");
  EXPECT_THAT(Heard(), IsEmpty());
  hold.Release();
  LetPass(250ms);
  EXPECT_THAT(Heard(), ElementsAre("one", "two"));
}

TEST_F(TncReading, RestOfTheBatchWaitsWhenALineHoldsIntake) {
  on["First"] = [this](std::string_view line) {
    if (line == "wait") program.intake.PushStep("a step", Step("a step", 1s));
    return Claim::None;
  };
  Says("wait\rtwo\rthr");
  Says("ee\r");
  EXPECT_THAT(Heard(), ElementsAre("wait"));
  LetPass(2s);
  EXPECT_THAT(Heard(), ElementsAre("wait", "two", "three"));
}

TEST_F(TncReading, OwnCloseInTheMiddleOfABatchDropsItsRest) {
  on["First"] = [this](std::string_view line) {
    if (line == "one") program.intake.Drop();
    return Claim::None;
  };
  Says("one\rtwo\r");
  EXPECT_THAT(Heard(), ElementsAre("one"));
  Says("three\r");
  EXPECT_THAT(Heard(), ElementsAre("one", "three"));
}

TEST_F(TncReading, FaultInOneLineDoesNotLoseTheNext) {
  on["First"] = [](std::string_view) { return Claim::Tail; };
  program.intake.onClaimed = [](int, std::string_view line) {
    if (line == "one") throw std::runtime_error("boom");
  };
  Says("one\rtwo\r");
  EXPECT_THAT(faults, ElementsAre("InputCharacter: boom"));
  EXPECT_THAT(Heard(), ElementsAre("one", "two"));
}

TEST_F(TncReading, RowsForASessionSeeNothingBeforeTheLogin) {
  Says("one\r");
  EXPECT_THAT(log.Of("Second"), IsEmpty());
  program.state.LoggedIn = true;
  Says("two\r");
  EXPECT_THAT(log.Of("Second"), ElementsAre("two"));
}

TEST_F(TncReading, EveryByteIsTaken) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  Says(all + "\rnext\r");
  EXPECT_EQ(program.intake.NullsReceived, 1);
  ASSERT_THAT(Heard(), SizeIs(3));
  EXPECT_THAT(Heard()[1], SizeIs(242));
  EXPECT_EQ(Heard()[2], "next");
  EXPECT_THAT(faults, IsEmpty());
}

TEST_F(TncReading, LineBehindAnEndlessOneIsServed) {
  const std::string piece(100000, 'x');
  for (int i = 0; i < 100; ++i) Says(piece);
  EXPECT_THAT(Heard(), IsEmpty());
  Says("\rnext\r");
  ASSERT_THAT(Heard(), SizeIs(2));
  EXPECT_EQ(Heard()[1], "next");
}

TEST_F(TncReading, WhatWasReadBeforeThePortVanishedIsStillServed) {
  auto hold = program.intake.Hold();
  on["First"] = [&](std::string_view line) {
    if (line == "one") hold = program.intake.Hold();
    return Claim::None;
  };
  hold.Release();
  Says("one\rtwo\r");
  world.serialPorts.Unplug(kReadPort);
  LetPass(1s);
  EXPECT_THAT(Heard(), ElementsAre("one"));
  hold.Release();
  LetPass(250ms);
  EXPECT_THAT(Heard(), ElementsAre("one", "two"));
  EXPECT_THAT(faults, ElementsAre("MSComm1: the device has gone"));
}

}  // namespace
