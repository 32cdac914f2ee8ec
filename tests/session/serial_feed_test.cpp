#include <gmock/gmock.h>

#include "session_fixture.h"

using namespace std::chrono_literals;
using testing::ElementsAre;

namespace {

// Another computer at the local network port of a station that is logged in.
class SerialFeed : public SessionFixture {
 protected:
  SerialFeed() {
    settings.LocalNetwork = true;
    settings.NetworkPort = 1;
    settings.NetworkBaud = 9600;
    settings.SendToLog &= ~(1 << 20);
    LogIn();
    device.written.clear();
  }

  platform::sim::SimDevice& device = world.serialPorts.Plug("/dev/ttyS0");
};

TEST_F(SerialFeed, ConnectButtonOpensThePort) {
  EXPECT_TRUE(program.localNetwork.MSComm2->PortOpen());
}

TEST_F(SerialFeed, ConnectButtonLeavesThePortAloneWhileTheNetworkIsOff) {
  program.localNetwork.MSComm2->Close();
  settings.LocalNetwork = false;
  PressDisconnect();
  LetPass(5s);
  Connect();
  EXPECT_FALSE(program.localNetwork.MSComm2->PortOpen());
}

TEST_F(SerialFeed, CommandIsPolledAndSentToTheNode) {
  device.Feed("sh/dx\r");
  LetPass(250ms);
  ExpectSent({"sh/dx"});
  EXPECT_TRUE(program.state.LastSendWasUser);
}

TEST_F(SerialFeed, LineEndOfTwoCharactersIsFollowedByABareLineEnd) {
  device.Feed("sh/dx\r\n");
  LetPass(250ms);
  ExpectSent({"sh/dx", ""});
}

TEST_F(SerialFeed, CommandIsSentWhileIntakeIsHeld) {
  const auto hold = program.intake.Hold();
  device.Feed("sh/dx\r");
  LetPass(250ms);
  ExpectSent({"sh/dx"});
}

TEST_F(SerialFeed, LineThatNoRuleKeepsBackComesOutOfThePort) {
  Receive("DX de K1TST-#:  14025.0  N0CALL");
  Receive("73 de N0NODE");
  EXPECT_EQ(device.written, "DX de K1TST:    14025.0  N0CALL\r\n73 de N0NODE\r\n");
}

TEST_F(SerialFeed, LineThatIsKeptBackDoesNot) {
  program.intake.stopLists.Build("K1TST-2");
  Receive("Operation successful");
  EXPECT_EQ(device.written, "");
}

TEST_F(SerialFeed, PortThatVanishesDoesNotDisturbTheSession) {
  world.serialPorts.Unplug("/dev/ttyS0");
  Receive("one");
  LetPass(1s);
  Receive("two");
  EXPECT_THAT(log.Of("forwarded"), ElementsAre("one", "two"));
  EXPECT_THAT(faults, ElementsAre("MSComm2: the device has gone"));
}

TEST_F(SerialFeed, ComplaintAboutARunawayIsClaimedByNobodyAndNotFedBack) {
  Receive("Runaway problem!. Please contact MOLVA via email.");
  EXPECT_FALSE(settings.LocalNetwork);
  EXPECT_FALSE(program.localNetwork.MSComm2->PortOpen());
  EXPECT_EQ(localNetworkOff, 1);
  EXPECT_EQ(configurationWrites, 2) << "one of them at the connect";
  EXPECT_EQ(device.written, "");
  EXPECT_EQ(log.Of("First").back(), "Runaway problem!. Please contact MOLVA via email.");
}

}  // namespace
