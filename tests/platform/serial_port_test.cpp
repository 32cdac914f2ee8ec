#include <gmock/gmock.h>

#include "platform/serial.h"
#include "platform/sim/world.h"

using namespace std::chrono_literals;

namespace {

class SerialPortTest : public testing::Test {
 protected:
  SerialPortTest() {
    port->CommPort = "/dev/ttyUSB0";
    port->lost = [this](const std::string& why) { lost = why; };
  }

  platform::sim::World world;
  platform::sim::SimDevice& device = world.serialPorts.Plug("/dev/ttyUSB0", "TNC-X");
  std::unique_ptr<platform::SerialPort> port = world.serialPorts.MakePort();
  std::string lost;
};

TEST_F(SerialPortTest, OpensWithItsSettings) {
  port->Settings.baud = 1200;
  EXPECT_EQ(port->Open(), "");
  EXPECT_TRUE(port->PortOpen());
  EXPECT_EQ(device.openedWith.baud, 1200);
}

TEST_F(SerialPortTest, SaysWhyItCannotOpen) {
  device.busy = true;
  EXPECT_EQ(port->Open(), "busy");
  port->CommPort = "/dev/none";
  EXPECT_EQ(port->Open(), "no such device");
  EXPECT_FALSE(port->PortOpen());
}

TEST_F(SerialPortTest, InputTakesAllThatHasComeIn) {
  device.Feed("before it was open");
  port->Open();
  device.Feed("cmd");
  device.Feed(":");
  EXPECT_EQ(port->InBufferCount(), 4u);
  EXPECT_EQ(port->Input(), "cmd:");
  EXPECT_EQ(port->InBufferCount(), 0u);
}

TEST_F(SerialPortTest, PiecesAndGapsStayInOrder) {
  port->Open();
  port->Output("!");
  port->Output("rest", 250ms);
  port->Output("\r");
  EXPECT_EQ(device.written, "!");
  world.Run(249ms);
  EXPECT_EQ(device.written, "!");
  world.Run(1ms);
  EXPECT_EQ(device.written, "!rest\r");
}

TEST_F(SerialPortTest, CloseDropsWhatWasNotWritten) {
  port->Open();
  port->Output("x", 250ms);
  port->Close();
  world.Run(1s);
  EXPECT_EQ(device.written, "");
}

TEST_F(SerialPortTest, VanishedDeviceIsToldAndThePortIsClosed) {
  port->Open();
  world.serialPorts.Unplug("/dev/ttyUSB0");
  EXPECT_EQ(lost, "");
  world.Run(0ms);
  EXPECT_EQ(lost, "the device has gone");
  EXPECT_FALSE(port->PortOpen());
  port->Output("into the void");
}

}  // namespace
