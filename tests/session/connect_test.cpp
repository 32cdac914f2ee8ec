#include <gmock/gmock.h>

#include "session_fixture.h"

using namespace std::chrono_literals;
using platform::SocketState;
using session::LinkPhase;
using session::TimerId;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

namespace {

class Connecting : public SessionFixture {
 protected:
  // What the next attempt goes to.
  std::string HostOfNextAttempt() {
    const auto before = node.called.size();
    EXPECT_TRUE(world.RunUntil([&] { return node.called.size() > before; }, 70s));
    return program.state.ConnectHost;
  }
};

TEST_F(Connecting, NothingIsTriedBeforeTheOperatorAsksForIt) {
  LetPass(1h);
  EXPECT_THAT(node.called, IsEmpty());
  EXPECT_EQ(SocketState(), SocketState::Closed);
}

TEST_F(Connecting, LinkThatIsUpWaitsForTheLoginText) {
  Connect();
  EXPECT_THAT(node.called, SizeIs(1));
  EXPECT_EQ(SocketState(), SocketState::Connected);
  EXPECT_TRUE(program.state.SocketConnected);
  EXPECT_TRUE(program.state.LoginMsgActive);
  EXPECT_FALSE(program.state.LoggedIn);
  EXPECT_EQ(txtNode(), "Connected & Waiting for Std Login Msg @ N0NODE");
  ExpectNothingSent();
}

TEST_F(Connecting, StatesOfASlowAttemptShowWithTheNodesCall) {
  world.network.latency = 5s;
  PressConnect();
  EXPECT_EQ(program.state.Phase.Get(), LinkPhase::Trying);
  LetPassUntil(4s);
  EXPECT_EQ(txtNode(), "Resolving     N0NODE");
  LetPassUntil(9s);
  EXPECT_EQ(txtNode(), "Connecting    N0NODE");
  EXPECT_EQ(program.state.Phase.Get(), LinkPhase::Trying);
}

TEST_F(Connecting, AttemptBeginsHalfASecondBehindThePress) {
  PressConnect();
  LetPassUntil(490ms);
  EXPECT_EQ(SocketState(), SocketState::Closed);
  LetPassUntil(550ms);
  EXPECT_THAT(node.called, SizeIs(1));
}

TEST_F(Connecting, RefusedConnectShowsItsFailure) {
  node.refuses = true;
  Connect();
  EXPECT_EQ(txtNode(), "Failure with : IP =  :7300");
  EXPECT_EQ(program.state.Phase.Get(), LinkPhase::Disconnected);
  EXPECT_THAT(RawView(),
              testing::Contains(StartsWith("node.example  Winsock Error: 10061: Connection "
                                           "refused: 2100Z>")));
}

TEST_F(Connecting, NameThatDoesNotResolveIsADnsFailure) {
  world.network.RemoveHost("node.example");
  Connect();
  EXPECT_EQ(txtNode(), "DNS Failure");
  EXPECT_EQ(CountInRawView("  DNS Failure - Is Firewall blocking this program from the Internet?"),
            1);
  EXPECT_EQ(program.state.Phase.Get(), LinkPhase::Disconnected);
}

TEST_F(Connecting, NameThatResolvesLaterIsReachedThen) {
  world.network.RemoveHost("node.example");
  Connect();
  LetPass(1h);
  EXPECT_THAT(node.called, IsEmpty());
  EXPECT_EQ(CountInRawView("DNS Failure"), 1);
  EXPECT_EQ(CountInRawView("Winsock Error: 11001"), 1);
  world.network.AddHost("node.example", "10.1.2.3");
  LetRetry();
  EXPECT_EQ(SocketState(), SocketState::Connected);
}

TEST_F(Connecting, AttemptThatNobodyAnswersEndsWithTheSystemsTimeOutAndIsTriedAgain) {
  world.network.silentAddresses = {"10.1.2.3"};
  PressConnect();
  LetPassUntil(120s);
  EXPECT_EQ(SocketState(), SocketState::Connecting);
  LetPassUntil(130s);
  EXPECT_EQ(CountInRawView("Winsock Error: 10060"), 1);
  world.network.silentAddresses.clear();
  LetRetry();
  EXPECT_EQ(SocketState(), SocketState::Connected);
  ExpectNothingSent();
}

TEST_F(Connecting, NodePortThatIsNoNumberDoesNoHarm) {
  for (const char* port : {"", "abc", "-1", "99999999999999999999", "7300x"}) {
    settings.NodePort = port;
    PressConnect();
    LetPass(3s);
    EXPECT_TRUE(program.timers.Enabled(TimerId::Reconnect) || node.HasCaller()) << port;
    PressDisconnect();
    LetPass(70s);
  }
}

// The choice between the numbered address and the name.

TEST_F(Connecting, NumberedAddressWithoutFourNumericPartsIsNotUsed) {
  for (const char* address : {"10.1.2", "10.1.2.3.4", "10.1.2.x", "node.other.example.org",
                              "10.1..3", "10.1.2.", "...", "x", "10.1.2.3a"}) {
    Station station;
    station.settings.NodeNumberedAddress = address;
    station.Connect();
    EXPECT_EQ(station.program.state.ConnectHost, "node.example") << address;
    EXPECT_THAT(station.node.called, SizeIs(1)) << address;
  }
}

TEST_F(Connecting, TriesAlternateBetweenNumberedAddressAndNameWithoutARecognisedGreeting) {
  settings.NodeNumberedAddress = "10.1.2.3";
  node.refuses = true;
  PressConnect();
  EXPECT_EQ(HostOfNextAttempt(), "10.1.2.3");
  EXPECT_EQ(HostOfNextAttempt(), "node.example");
  EXPECT_EQ(HostOfNextAttempt(), "10.1.2.3");
  EXPECT_EQ(HostOfNextAttempt(), "node.example");
}

TEST_F(Connecting, WithoutANumberedAddressEveryTryGoesToTheName) {
  node.refuses = true;
  PressConnect();
  for (int i = 0; i < 3; ++i) EXPECT_EQ(HostOfNextAttempt(), "node.example");
}

TEST_F(Connecting, NumberedAddressThatIsOutdatedCostsOneTry) {
  settings.NodeNumberedAddress = "10.9.9.9";
  Connect();
  EXPECT_THAT(node.called, IsEmpty());
  EXPECT_EQ(txtNode(), "Failure with : IP = 10.9.9.9 :7300");
  LetRetry();
  EXPECT_THAT(node.called, SizeIs(1));
}

TEST_F(Connecting, RecognisedGreetingMakesTheNextTryGoToTheNumberedAddress) {
  LogIn();
  EXPECT_EQ(settings.NodeNumberedAddress, "10.1.2.3");
  NodeCloses();
  EXPECT_EQ(HostOfNextAttempt(), "10.1.2.3");
}

TEST_F(Connecting, GreetingOfAnotherNodeForgetsTheNumberedAddress) {
  settings.NodeNumberedAddress = "10.1.2.3";
  Connect();
  Receive("K1TST-2 de K9OTHER 20-Nov-2026 2148Z dxspider >");
  EXPECT_EQ(settings.NodeNumberedAddress, "");
  EXPECT_EQ(program.state.ConnectedNodeCall, "K9OTHER");
}

TEST_F(Connecting, AddressOfMolvaStandsForAnyNodeWhoseCallBeginsSo) {
  settings.NodeCall = "MOLVA-3";
  settings.MolvaNumberedAddress = "10.1.2.3";
  Connect();
  EXPECT_EQ(program.state.ConnectHost, "10.1.2.3");
  EXPECT_EQ(settings.NodeNumberedAddress, "10.1.2.3");
}

TEST_F(Connecting, AddressOfMolvaIsNothingToOtherNodes) {
  settings.MolvaNumberedAddress = "10.9.9.9";
  Connect();
  EXPECT_EQ(program.state.ConnectHost, "node.example");
}

TEST_F(Connecting, GreetingOfMolvaKeepsItsAddress) {
  settings.NodeCall = "MOLVA-1";
  Connect();
  Receive("K1TST-2 de MOLVA-1 20-Nov-2026 2148Z");
  EXPECT_EQ(settings.MolvaNumberedAddress, "10.1.2.3");
  EXPECT_EQ(settings.NodeNumberedAddress, "10.1.2.3");
}

TEST_F(Connecting, WithoutANodeTheDefaultOneIsTaken) {
  for (const char* call : {"", "N"}) {
    Station station;
    FakeNode practiceNode(station.world, "127.0.0.1", 7373);
    station.settings.NodeCall = call;
    station.Connect();
    EXPECT_EQ(station.settings.NodeCall, "N0DE-1");
    EXPECT_EQ(station.settings.NodePort, "7373");
    EXPECT_THAT(practiceNode.called, SizeIs(1));
  }
}

TEST_F(Connecting, AddressOfMolva1IsLookedUpWhenItCantBeReached) {
  settings.NodeCall = "MOLVA-1";
  node.refuses = true;
  Connect();
  EXPECT_THAT(above.asked, testing::Contains("address of MOLVA-1"));
}

TEST_F(Connecting, AddressOfAnotherNodeIsNotLookedUp) {
  node.refuses = true;
  Connect();
  EXPECT_THAT(above.asked, testing::IsEmpty());
}

}  // namespace
