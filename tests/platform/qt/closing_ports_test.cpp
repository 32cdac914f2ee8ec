#include "platform/qt/qt_closing_ports.h"

#include <gmock/gmock.h>

#include <chrono>
#include <optional>

#include "platform/qt/pseudo_terminal.h"
#include "platform/qt/pump.h"
#include "platform/qt/qt_serial.h"
#include "platform/sim/world.h"

using namespace std::chrono_literals;

namespace platform::qt {
namespace {

// More than a pseudo-terminal holds while nobody reads its other end.
const std::string kTooMuch(200'000, 'x');

// Qt's part runs on its own event loop, the program's on a time that the test moves.
struct QtClosingPortsTest : testing::Test {
  sim::World world;
  PseudoTerminal line;
  std::optional<QtClosingPorts> closing{std::in_place, world.scheduler};
  QtClosingPorts closingElsewhere{world.scheduler};
  QtSerialDevice device{world.scheduler, *closing};

  void CloseBehind(std::string_view written) {
    ASSERT_EQ(device.Open(line.Path(), {}), "");
    device.Write(written);
    device.Close();
  }
  // Another program's attempt.
  bool IsBusy() {
    return QtSerialDevice(world.scheduler, closingElsewhere).Open(line.Path(), {}) == "busy";
  }
  bool SomethingWaits() { return world.scheduler.Step(world.scheduler.Now() + 50ms); }
  std::string ReadAll() {
    std::string all;
    for (std::string more = line.Read(); !more.empty(); more = line.Read()) all += more;
    return all;
  }
  std::string ReadUntilItHolds(std::size_t count) {
    std::string all;
    EXPECT_TRUE(PumpUntil([&] { return (all += ReadAll()).size() >= count; }));
    return all;
  }
};

TEST_F(QtClosingPortsTest, WhatWasWrittenJustBeforeTheClosingGoesOut) {
  CloseBehind("DISC\r");
  EXPECT_FALSE(IsBusy());
  EXPECT_EQ(line.Read(), "DISC\r");
}

TEST_F(QtClosingPortsTest, APortWhoseDeviceIsSlowIsClosedOnceEverythingIsTaken) {
  CloseBehind(kTooMuch + "DISC\r");
  EXPECT_TRUE(IsBusy());
  EXPECT_EQ(ReadUntilItHolds(kTooMuch.size() + 5), kTooMuch + "DISC\r");
  world.Run(100ms);
  EXPECT_FALSE(IsBusy());
}

TEST_F(QtClosingPortsTest, APortWhoseDeviceTakesNothingIsClosedAfterTwoSeconds) {
  CloseBehind(kTooMuch);
  world.Run(1990ms);
  EXPECT_TRUE(IsBusy());
  world.Run(50ms);
  EXPECT_FALSE(IsBusy());
  EXPECT_LT(ReadAll().size(), kTooMuch.size());
}

TEST_F(QtClosingPortsTest, APortThatHasGoneWithItsOwnerStillDrains) {
  {
    QtSerialDevice shortLived(world.scheduler, *closing);
    ASSERT_EQ(shortLived.Open(line.Path(), {}), "");
    shortLived.Write(kTooMuch);
  }
  EXPECT_TRUE(IsBusy());
  EXPECT_EQ(ReadUntilItHolds(kTooMuch.size()), kTooMuch);
}

TEST_F(QtClosingPortsTest, APortThatIsOpenedAgainStopsDraining) {
  CloseBehind(kTooMuch);
  ASSERT_EQ(device.Open(line.Path(), {}), "");
  device.Write("again");
  std::string all;
  EXPECT_TRUE(PumpUntil([&] { return (all += ReadAll()).ends_with("again"); }));
  EXPECT_LT(all.size(), kTooMuch.size());
}

TEST_F(QtClosingPortsTest, TheOpeningOfAnotherPortLeavesItDraining) {
  CloseBehind(kTooMuch);
  const PseudoTerminal another;
  ASSERT_EQ(device.Open(another.Path(), {}), "");
  EXPECT_TRUE(IsBusy());
  EXPECT_EQ(ReadUntilItHolds(kTooMuch.size()), kTooMuch);
}

TEST_F(QtClosingPortsTest, ADeviceThatVanishesWhileItDrainsIsLetGo) {
  CloseBehind(kTooMuch);
  line.Vanish();
  EXPECT_TRUE(SomethingWaits());
  world.Run(100ms);
  EXPECT_FALSE(SomethingWaits());
}

TEST_F(QtClosingPortsTest, TheEndOfTheProgramDropsWhatWasNotTaken) {
  CloseBehind(kTooMuch);
  closing.reset();
  EXPECT_FALSE(IsBusy());
  EXPECT_LT(ReadAll().size(), kTooMuch.size());
}

}  // namespace
}  // namespace platform::qt
