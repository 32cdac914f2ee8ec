#include "session/port_names.h"

#include <gmock/gmock.h>

#include "platform/sim/sim_files.h"

namespace {

using Fault = platform::Files::Fault;
using testing::HasSubstr;

constexpr const char* kPortsCfg = "/home/op/molva/ports.cfg";

class PortNamesTest : public testing::Test {
 protected:
  std::string& Content() { return files.content[kPortsCfg]; }

  platform::sim::SimFiles files;
  session::PortNames names{files, kPortsCfg};
};

TEST_F(PortNamesTest, PortIsTheDeviceThatIsNamedForIt) {
  Content() = "\"3\",\"/dev/ttyUSB0\"\r\n\"17\",\"/dev/serial/by-id/usb-TNC-X\"\r\n";
  EXPECT_EQ(names.Path(3), "/dev/ttyUSB0");
  EXPECT_EQ(names.Path(17), "/dev/serial/by-id/usb-TNC-X");
}

TEST_F(PortNamesTest, PortWithoutAnEntryIsTheUsualDevice) {
  Content() = "\"3\",\"/dev/ttyUSB0\"\r\n";
  EXPECT_EQ(names.Path(1), "/dev/ttyS0");
  EXPECT_EQ(names.Path(16), "/dev/ttyS15");
  EXPECT_EQ(names.Path(17), "/dev/ttyUSB0");
  EXPECT_EQ(names.Path(32), "/dev/ttyUSB15");
}

TEST_F(PortNamesTest, WithoutTheFileAllAreTheUsualDevices) {
  EXPECT_EQ(names.Path(3), "/dev/ttyS2");
  EXPECT_EQ(names.Path(18), "/dev/ttyUSB1");
}

TEST_F(PortNamesTest, AnyOtherNumberIsNoPortWhateverTheFileSays) {
  Content() = "\"0\",\"/dev/a\"\r\n\"33\",\"/dev/b\"\r\n\"-1\",\"/dev/c\"\r\n";
  for (const int number : {0, 33, -1}) EXPECT_EQ(names.Path(number), "") << number;
}

TEST_F(PortNamesTest, OfTwoEntriesTheLastCounts) {
  Content() = "\"3\",\"/dev/ttyUSB0\"\r\n\"3\",\"/dev/ttyUSB1\"\r\n";
  EXPECT_EQ(names.Path(3), "/dev/ttyUSB1");
}

TEST_F(PortNamesTest, MalformedLinesAreSkipped) {
  for (const char* line :
       {"\"3\",\"ttyUSB0\"", "\"3\",\"\"", "\"3\"", "\"3x\",\"/dev/ttyUSB0\"",
        "\"three\",\"/dev/x\"", "\"\",\"/dev/x\"", "\"99999999999999999999\",\"/dev/x\"",
        "\"3\",\"../dev/x\"", "\"3\",\"/dev/tty\x01\"", ",", "", "\"3.0\",\"/dev/x\""}) {
    Content() = std::string(line) + "\r\n\"4\",\"/dev/ttyUSB7\"\r\n";
    EXPECT_EQ(names.Path(3), "/dev/ttyS2") << line;
    EXPECT_EQ(names.Path(4), "/dev/ttyUSB7") << line;
  }
}

TEST_F(PortNamesTest, BareFieldsBlanksAndOtherLineEndsAreReadToo) {
  Content() = " 3 , /dev/ttyUSB0 \n\"4\",\"/dev/ttyUSB1\"";
  EXPECT_EQ(names.Path(3), "/dev/ttyUSB0");
  EXPECT_EQ(names.Path(4), "/dev/ttyUSB1");
}

TEST_F(PortNamesTest, WhatAnotherCopyOrAnEditorHasWrittenHoldsAtOnce) {
  EXPECT_EQ(names.Path(3), "/dev/ttyS2");
  Content() = "\"3\",\"/dev/ttyUSB0\"\r\n";
  EXPECT_EQ(names.Path(3), "/dev/ttyUSB0");
}

TEST_F(PortNamesTest, AssigningWritesTheEntry) {
  EXPECT_EQ(names.Assign(3, "/dev/ttyUSB0"), Fault::None);
  EXPECT_EQ(Content(), "\"3\",\"/dev/ttyUSB0\"\r\n");
  EXPECT_EQ(names.Path(3), "/dev/ttyUSB0");
}

TEST_F(PortNamesTest, AssigningKeepsTheOtherLinesAndReplacesThoseOfThePort) {
  Content() = "my ports\n\"3\",\"/dev/a\"\n\"4\",\"/dev/b\"\n\"3\",\"/dev/c\"\n";
  EXPECT_EQ(names.Assign(3, "/dev/d"), Fault::None);
  EXPECT_EQ(Content(), "my ports\r\n\"4\",\"/dev/b\"\r\n\"3\",\"/dev/d\"\r\n");
}

TEST_F(PortNamesTest, FileThatCanNotBeWrittenStaysAsItIs) {
  Content() = "\"3\",\"/dev/ttyUSB0\"\r\n";
  files.denied.insert(kPortsCfg);
  EXPECT_EQ(names.Assign(3, "/dev/ttyUSB1"), Fault::Denied);
  files.denied.clear();
  EXPECT_EQ(names.Path(3), "/dev/ttyUSB0");
}

}  // namespace
