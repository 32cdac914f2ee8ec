#include "session/local_network.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "platform/sim/world.h"

using namespace std::chrono_literals;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

using Lines = std::vector<std::string>;

constexpr const char* kNetworkPort = "/dev/ttyS1";

class LocalNetworkTest : public testing::Test {
 protected:
  LocalNetworkTest() {
    settings.NetworkPort = 2;
    settings.NetworkBaud = 1200;
  }

  static void Report(Lines& faults, std::string_view name, std::string_view what) {
    faults.push_back(std::string(name) + ": " + std::string(what));
  }
  // One reading of what the other computer has said.
  void Says(std::string_view bytes) {
    device.Feed(bytes);
    network.ReadNetwork();
  }

  platform::sim::World world;
  platform::sim::SimDevice& device = world.serialPorts.Plug(kNetworkPort);
  core::Settings settings;
  Lines faults;
  session::Timers timers{world.scheduler, [](std::string_view, std::string_view) {}};
  Lines asked;    // what the filter was asked about
  Lines claimed;  // what it claims
  Lines sent;
  int switchedOff = 0;
  session::LocalNetwork network{
      world.serialPorts,
      settings,
      timers,
      {.portPath = [](int number) { return number == 2 ? kNetworkPort : ""; },
       .claimedHere =
           [this](std::string_view line) {
             asked.emplace_back(line);
             return std::find(claimed.begin(), claimed.end(), line) != claimed.end();
           },
       .sendAsIs = [this](std::string_view line) { sent.emplace_back(line); },
       .switchedOff = [this] { ++switchedOff; },
       .onFault = [this](std::string_view name,
                         std::string_view what) { Report(faults, name, what); }}};
};

class LocalNetworkOpen : public LocalNetworkTest {
 protected:
  LocalNetworkOpen() { EXPECT_TRUE(network.OpenComm2()); }
};

TEST_F(LocalNetworkTest, OpensWithItsBaudRateAndEightBitsWithoutParity) {
  EXPECT_TRUE(network.OpenComm2());
  EXPECT_EQ(device.openedWith, (platform::SerialSettings{
                                   .baud = 1200, .parity = 'N', .dataBits = 8, .stopBits = "1"}));
  EXPECT_TRUE(timers.Enabled(session::TimerId::Tnc));
}

TEST_F(LocalNetworkTest, PortThatDoesNotOpenIsReportedAndNothingIsPolled) {
  device.busy = true;
  EXPECT_FALSE(network.OpenComm2());
  EXPECT_THAT(faults, ElementsAre("OpenComm2: busy"));
  EXPECT_FALSE(timers.Enabled(session::TimerId::Tnc));
}

TEST_F(LocalNetworkTest, NumberWithoutAPortDoesNotOpen) {
  settings.NetworkPort = 0;
  EXPECT_FALSE(network.OpenComm2());
  EXPECT_THAT(faults, ElementsAre("OpenComm2: no such device"));
}

TEST_F(LocalNetworkTest, ClosedPortIsNotReadAndLosesWhatIsWritten) {
  Says("sh/dx\r");
  network.SendRS232("text");
  EXPECT_THAT(asked, IsEmpty());
  EXPECT_EQ(device.written, "");
}

TEST_F(LocalNetworkOpen, OpeningItAgainChangesNothing) {
  settings.NetworkBaud = 300;
  EXPECT_TRUE(network.OpenComm2());
  EXPECT_EQ(device.openedWith.baud, 1200);
}

TEST_F(LocalNetworkOpen, CommandIsSentAsItIs) {
  Says("sh/Dx 10\r");
  EXPECT_THAT(sent, ElementsAre("sh/Dx 10"));
}

TEST_F(LocalNetworkOpen, LineFeedEndsACommandToo) {
  Says("sh/dx\n");
  EXPECT_THAT(sent, ElementsAre("sh/dx"));
}

TEST_F(LocalNetworkOpen, CommandMayComeInPieces) {
  Says("sh/");
  Says("d");
  EXPECT_THAT(asked, IsEmpty());
  Says("x\r");
  EXPECT_THAT(sent, ElementsAre("sh/dx"));
}

TEST_F(LocalNetworkOpen, EachCharacterBehindTheLineEndIsAnEmptyLine) {
  Says("sh/dx\r\n");
  EXPECT_THAT(sent, ElementsAre("sh/dx", ""));
  EXPECT_EQ(asked, sent);
}

TEST_F(LocalNetworkOpen, OfOneReadingOnlyTheFirstCommandIsTaken) {
  Says("a\rbc");
  EXPECT_THAT(sent, ElementsAre("a", "", ""));
  Says("d\r");
  EXPECT_THAT(sent, ElementsAre("a", "", "", "d"));
}

TEST_F(LocalNetworkOpen, CommandThatIsForThisProgramIsNotSent) {
  claimed = {"bye"};
  Says("bye\r");
  EXPECT_THAT(asked, ElementsAre("bye"));
  EXPECT_THAT(sent, IsEmpty());
  Says("sh/dx\r");
  EXPECT_THAT(sent, ElementsAre("sh/dx"));
}

TEST_F(LocalNetworkOpen, InputIsEchoedByTheSetting) {
  Says("one\r");
  EXPECT_EQ(device.written, "");
  settings.Echo = true;
  Says("two\r\n");
  EXPECT_EQ(device.written, "two\r\n");
}

TEST_F(LocalNetworkOpen, TextIsWrittenWithItsLineEnd) {
  network.SendRS232("DX de K1TST");
  network.SendRS232("");
  EXPECT_EQ(device.written, "DX de K1TST\r\n\r\n");
}

TEST_F(LocalNetworkOpen, EveryByteButTheLineEndsIsPartOfTheCommand) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte)
    if (byte != '\r' && byte != '\n') all += static_cast<char>(byte);
  Says(all + "\r");
  EXPECT_THAT(sent, ElementsAre(all));
}

TEST_F(LocalNetworkOpen, CommandWithoutEndStopsGrowing) {
  const std::string piece(10000, 'x');
  for (int i = 0; i < 100; ++i) Says(piece);
  Says("\r");
  ASSERT_THAT(sent, SizeIs(1));
  EXPECT_THAT(sent[0], SizeIs(65536));
  Says("sh/dx\r");
  EXPECT_EQ(sent.back(), "sh/dx");
}

TEST_F(LocalNetworkOpen, NothingButLineEndsAreEmptyCommands) {
  Says("\r\n\r\n");
  EXPECT_THAT(sent, SizeIs(4));
  EXPECT_THAT(sent, Each(""));
}

TEST_F(LocalNetworkOpen, PortThatVanishesIsReportedAndItsHalfCommandForgotten) {
  Says("sh/");
  world.serialPorts.Unplug(kNetworkPort);
  network.SendRS232("into the void");
  world.Run(0ms);
  EXPECT_THAT(faults, ElementsAre("MSComm2: the device has gone"));
  platform::sim::SimDevice& again = world.serialPorts.Plug(kNetworkPort);
  EXPECT_TRUE(network.OpenComm2());
  again.Feed("dx\r");
  network.ReadNetwork();
  EXPECT_THAT(sent, ElementsAre("dx"));
}

constexpr const char* kComplaint = "Runaway!  Runaway problem!. Please contact MOLVA via email. 73";

TEST_F(LocalNetworkOpen, ComplaintAboutARunawaySwitchesTheNetworkOffAndForgetsItsPort) {
  settings.LocalNetwork = true;
  Says("half a comm");
  network.RunawayNotice(kComplaint);
  EXPECT_FALSE(settings.LocalNetwork);
  EXPECT_EQ(settings.NetworkPort, 0);
  EXPECT_EQ(switchedOff, 1);
  device.Feed("and\r");
  network.ReadNetwork();
  EXPECT_THAT(sent, IsEmpty());
}

TEST_F(LocalNetworkOpen, ComplaintCountsWhileTheNetworkIsOnAlone) {
  network.RunawayNotice(kComplaint);
  EXPECT_EQ(switchedOff, 0);
  EXPECT_EQ(settings.NetworkPort, 2);
}

TEST_F(LocalNetworkOpen, ComplaintCountsInFullAlone) {
  settings.LocalNetwork = true;
  network.RunawayNotice("Runaway problem!. Please contact MOLVA");
  network.RunawayNotice("Runaway PROBLEM!. Please contact MOLVA via email.");
  network.RunawayNotice("A Runaway problem!. Please contact MOLVA via email.");
  network.RunawayNotice("Runa");
  EXPECT_TRUE(settings.LocalNetwork);
}

}  // namespace
