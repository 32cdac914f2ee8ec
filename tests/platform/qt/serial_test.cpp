#include "platform/qt/qt_serial.h"

#include <gmock/gmock.h>
#include <termios.h>

#include <QTemporaryFile>
#include <algorithm>

#include "platform/qt/pseudo_terminal.h"
#include "platform/qt/pump.h"
#include "platform/qt/qt_scheduler.h"

namespace platform::qt {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct QtSerialDeviceTest : testing::Test {
  QtScheduler scheduler;
  PseudoTerminal line;
  QtClosingPorts closing{scheduler};
  QtSerialDevice device{scheduler, closing};
  std::vector<std::string> lost;

  QtSerialDeviceTest() {
    device.lost = [this](const std::string& why) { lost.push_back(why); };
  }
  std::string ReadUntil(const std::string& wanted) {
    std::string all;
    PumpUntil([&] { return (all += device.Read()).size() >= wanted.size(); });
    return all;
  }
};

TEST_F(QtSerialDeviceTest, BytesGoBothWaysUnchanged) {
  ASSERT_EQ(device.Open(line.Path(), {}), "");
  const std::string bytes("\0\r\n\x11\x13\xFF\x03", 7);
  device.Write(bytes);
  std::string received;
  EXPECT_TRUE(PumpUntil([&] { return (received += line.Read()).size() >= bytes.size(); }));
  EXPECT_EQ(received, bytes);
  ASSERT_TRUE(line.Write(bytes));
  EXPECT_EQ(ReadUntil(bytes), bytes);
}

TEST_F(QtSerialDeviceTest, ADeviceThatVanishesIsLostOnceAndInATurnOfItsOwn) {
  ASSERT_EQ(device.Open(line.Path(), {}), "");
  line.Vanish();
  device.Read();
  device.Write("x");
  EXPECT_THAT(lost, IsEmpty());
  ASSERT_TRUE(PumpUntil([&] { return !lost.empty(); }));
  PumpTurns(scheduler);
  EXPECT_THAT(lost, ElementsAre("the device has gone"));
  EXPECT_EQ(device.Read(), "");
}

TEST_F(QtSerialDeviceTest, ADeviceThatVanishesWhileNobodyUsesItIsLost) {
  ASSERT_EQ(device.Open(line.Path(), {}), "");
  PumpTurns(scheduler);
  line.Vanish();
  EXPECT_TRUE(PumpUntil([&] { return !lost.empty(); }));
}

TEST_F(QtSerialDeviceTest, ALostDeviceOpensAgain) {
  ASSERT_EQ(device.Open(line.Path(), {}), "");
  line.Vanish();
  ASSERT_TRUE(PumpUntil([&] { return !lost.empty(); }));
  const PseudoTerminal another;
  ASSERT_EQ(device.Open(another.Path(), {}), "");
  ASSERT_TRUE(another.Write("back"));
  EXPECT_EQ(ReadUntil("back"), "back");
}

TEST_F(QtSerialDeviceTest, ADeviceThatIsNotReadFillsABoundedBuffer) {
  ASSERT_EQ(device.Open(line.Path(), {}), "");
  const std::string piece(1000, 'x');
  std::size_t sent = 0;
  for (int turn = 0; turn < 500; ++turn) {
    if (line.Write(piece)) sent += piece.size();
    PumpTurns(scheduler, 1);
  }
  EXPECT_GT(sent, 50'000U);
  EXPECT_LT(sent, 150'000U);
}

TEST_F(QtSerialDeviceTest, NothingIsToldAfterClose) {
  ASSERT_EQ(device.Open(line.Path(), {}), "");
  line.Vanish();
  device.Close();
  PumpTurns(scheduler);
  EXPECT_THAT(lost, IsEmpty());
}

TEST_F(QtSerialDeviceTest, AClosedDeviceGivesAndTakesNothing) {
  device.Write("x");
  EXPECT_EQ(device.Read(), "");
  device.Close();
  EXPECT_THAT(lost, IsEmpty());
}

TEST_F(QtSerialDeviceTest, AMissingDeviceIsToldInPlainWords) {
  EXPECT_EQ(device.Open("/dev/no-such-port", {}), "no such device");
  EXPECT_EQ(device.Open("", {}), "no such device");
}

TEST_F(QtSerialDeviceTest, ADeviceThatIsOpenElsewhereIsBusy) {
  QtSerialDevice other(scheduler, closing);
  ASSERT_EQ(other.Open(line.Path(), {}), "");
  EXPECT_EQ(device.Open(line.Path(), {}), "busy");
}

TEST_F(QtSerialDeviceTest, WhatIsNoSerialPortIsToldInPlainWords) {
  QTemporaryFile file;
  ASSERT_TRUE(file.open());
  EXPECT_EQ(device.Open(file.fileName().toStdString(), {}),
            "not a serial port, or it does not take these settings");
}

TEST_F(QtSerialDeviceTest, AFailedOpeningIsNoLoss) {
  device.Open("/dev/no-such-port", {});
  PumpTurns(scheduler);
  EXPECT_THAT(lost, IsEmpty());
}

TEST_F(QtSerialDeviceTest, SpeedAndStopBitsReachTheDevice) {
  ASSERT_EQ(device.Open(line.Path(), {.baud = 4800, .stopBits = "2"}), "");
  const termios settings = line.Settings();
  EXPECT_EQ(cfgetospeed(&settings), speed_t{B4800});
  EXPECT_TRUE(settings.c_cflag & CSTOPB);
}

tcflag_t Software(const PseudoTerminal& line) { return line.Settings().c_iflag & (IXON | IXOFF); }
tcflag_t Hardware(const PseudoTerminal& line) { return line.Settings().c_cflag & CRTSCTS; }

TEST_F(QtSerialDeviceTest, EveryFlowControlReachesTheDevice) {
  ASSERT_EQ(device.Open(line.Path(), {.flow = FlowControl::Both}), "");
  EXPECT_EQ(Software(line), tcflag_t{IXON | IXOFF});
  EXPECT_EQ(Hardware(line), tcflag_t{CRTSCTS});
  ASSERT_EQ(device.Open(line.Path(), {.flow = FlowControl::XonXoff}), "");
  EXPECT_EQ(Software(line), tcflag_t{IXON | IXOFF});
  EXPECT_EQ(Hardware(line), tcflag_t{0});
  ASSERT_EQ(device.Open(line.Path(), {.flow = FlowControl::Hardware}), "");
  EXPECT_EQ(Software(line), tcflag_t{0});
  EXPECT_EQ(Hardware(line), tcflag_t{CRTSCTS});
  ASSERT_EQ(device.Open(line.Path(), {}), "");
  EXPECT_EQ(Software(line), tcflag_t{0});
  EXPECT_EQ(Hardware(line), tcflag_t{0});
}

TEST(SerialSettingsTest, EachIsSetOnThePort) {
  QSerialPort port;
  ASSERT_EQ(ApplySettings(port, {.baud = 19200, .parity = 'E', .dataBits = 7, .stopBits = "2"}),
            "");
  EXPECT_EQ(port.baudRate(), 19200);
  EXPECT_EQ(port.parity(), QSerialPort::EvenParity);
  EXPECT_EQ(port.dataBits(), QSerialPort::Data7);
  EXPECT_EQ(port.stopBits(), QSerialPort::TwoStop);
  EXPECT_EQ(port.flowControl(), QSerialPort::NoFlowControl);
}

TEST(SerialSettingsTest, EachParityHasItsLetter) {
  QSerialPort port;
  const std::pair<char, QSerialPort::Parity> letters[] = {{'N', QSerialPort::NoParity},
                                                          {'E', QSerialPort::EvenParity},
                                                          {'O', QSerialPort::OddParity},
                                                          {'M', QSerialPort::MarkParity},
                                                          {'S', QSerialPort::SpaceParity}};
  for (const auto& [letter, parity] : letters) {
    EXPECT_EQ(ApplySettings(port, {.parity = letter}), "");
    EXPECT_EQ(port.parity(), parity) << letter;
  }
}

TEST(SerialSettingsTest, WhatCannotBeHadIsToldInPlainWords) {
  QSerialPort port;
  EXPECT_EQ(ApplySettings(port, {.stopBits = "1.5"}), "1.5 stop bits are not possible");
  EXPECT_EQ(ApplySettings(port, {.dataBits = 4}), "4 data bits are not possible");
  EXPECT_EQ(ApplySettings(port, {.baud = 0}), "a speed of 0 is not possible");
  EXPECT_EQ(ApplySettings(port, {.parity = 'x'}), "this parity is not possible");
}

TEST(QtSerialPortsTest, APortIsPolledThroughTheRules) {
  QtScheduler scheduler;
  QtSerialPorts ports(scheduler);
  const PseudoTerminal line;
  const auto port = ports.MakePort();
  port->CommPort = line.Path();
  ASSERT_EQ(port->Open(), "");
  ASSERT_TRUE(line.Write("hello"));
  EXPECT_TRUE(PumpUntil([&] { return port->InBufferCount() == 5; }));
  EXPECT_EQ(port->Input(), "hello");
}

TEST(QtSerialPortsTest, PortsAreListedByTheirPaths) {
  QtScheduler scheduler;
  const auto present = QtSerialPorts(scheduler).List();
  EXPECT_TRUE(std::ranges::is_sorted(present, {}, &SerialPorts::Present::path));
  for (const auto& port : present) EXPECT_THAT(port.path, HasSubstr("/dev/"));
}

}  // namespace
}  // namespace platform::qt
