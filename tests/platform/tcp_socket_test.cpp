#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "platform/sim/world.h"
#include "platform/tcp.h"

using namespace std::chrono_literals;
using platform::SocketFault;
using platform::SocketState;
using platform::TcpSocket;
using testing::ElementsAre;

namespace {

// A client and a peer that listens at node.example:7373.
class TcpSocketTest : public testing::Test {
 protected:
  TcpSocketTest() {
    world.network.AddHost("node.example", "10.1.2.3");
    listener->connectionRequest = [this] { peer->Accept(*listener); };
    EXPECT_EQ(listener->Listen("10.1.2.3", 7373), std::nullopt);
    client->RemoteHost = "node.example";
    client->RemotePort = 7373;
    client->connected = [this] { Log("connected"); };
    client->closed = [this] { Log("closed"); };
    client->error = [this](const SocketFault& fault) {
      Log("error " + std::to_string(fault.number));
    };
    client->dataArrival = [this] { Log(client->GetData(mostAtOnce)); };
  }

  void Log(const std::string& event) {
    events.push_back(event + " in " + std::to_string(static_cast<int>(client->State())));
  }

  void Connect() {
    client->Connect();
    world.Run(1s);
    events.clear();
  }

  platform::sim::World world;
  std::unique_ptr<platform::TcpListener> listener = world.network.MakeListener();
  std::unique_ptr<TcpSocket> peer = world.network.MakeSocket(TcpSocket::Protocol::Plain);
  std::unique_ptr<TcpSocket> client = world.network.MakeSocket(TcpSocket::Protocol::Telnet);
  std::size_t mostAtOnce = 1000;
  std::vector<std::string> events;
};

TEST_F(TcpSocketTest, StatesOfAnAttemptAreResolvingConnectingConnected) {
  EXPECT_EQ(client->State(), SocketState::Closed);
  client->Connect();
  EXPECT_EQ(client->State(), SocketState::Resolving);
  world.Run(1ms);
  EXPECT_EQ(client->State(), SocketState::Connecting);
  world.Run(1ms);
  EXPECT_EQ(client->State(), SocketState::Connected);
  EXPECT_EQ(client->RemoteHostIP(), "10.1.2.3");
  EXPECT_NE(client->LocalPort(), 0);
  EXPECT_THAT(events, ElementsAre("connected in 7"));
}

TEST_F(TcpSocketTest, FailedLookUpLeavesTheStateAtResolving) {
  client->RemoteHost = "nowhere.example";
  client->Connect();
  world.Run(1s);
  EXPECT_THAT(events, ElementsAre("error 11001 in 4"));
}

TEST_F(TcpSocketTest, RefusedConnectIsAnErrorInStateError) {
  client->RemotePort = 1;
  client->Connect();
  world.Run(1s);
  EXPECT_THAT(events, ElementsAre("error 10061 in 9"));
}

TEST_F(TcpSocketTest, PeersCloseComesAfterItsLastByte) {
  Connect();
  peer->SendData("last words");
  peer->Close();
  world.Run(1s);
  EXPECT_THAT(events, ElementsAre("last words in 7", "closed in 8"));
}

TEST_F(TcpSocketTest, ErrorComesAfterTheLastByte) {
  Connect();
  peer->SendData("last words");
  world.Run(world.network.latency);
  world.network.CutAll();
  world.Run(1s);
  EXPECT_THAT(events, ElementsAre("last words in 7", "error 10054 in 9"));
}

TEST_F(TcpSocketTest, BytesThatWaitAreToldAgainAndHoldBackTheClose) {
  mostAtOnce = 4;
  Connect();
  peer->SendData("0123456789");
  peer->Close();
  world.Run(1s);
  EXPECT_THAT(events, ElementsAre("0123 in 7", "4567 in 7", "89 in 7", "closed in 8"));
}

TEST_F(TcpSocketTest, HeldSocketTellsNothingAndStaysConnectedUntilItIsLetGo) {
  Connect();
  client->SetHeld(true);
  peer->SendData("later");
  peer->Close();
  world.Run(1h);
  EXPECT_TRUE(events.empty());
  EXPECT_EQ(client->State(), SocketState::Connected);
  EXPECT_EQ(client->BytesReceived(), 5u);
  EXPECT_TRUE(client->SendData("lost"));
  client->SetHeld(false);
  world.Run(1s);
  EXPECT_THAT(events, ElementsAre("later in 7", "closed in 8"));
}

TEST_F(TcpSocketTest, OwnCloseIsImmediateDropsTheUnreadAndTellsNothing) {
  Connect();
  client->SetHeld(true);
  peer->SendData("never seen");
  world.Run(1s);
  client->Close();
  EXPECT_EQ(client->State(), SocketState::Closed);
  EXPECT_EQ(client->BytesReceived(), 0u);
  client->SetHeld(false);
  world.Run(1s);
  EXPECT_TRUE(events.empty());
}

TEST_F(TcpSocketTest, OwnCloseInsideAnEventEndsTheEvents) {
  Connect();
  client->dataArrival = [this] {
    Log("closing");
    client->Close();
  };
  peer->SendData("0123456789");
  peer->Close();
  world.Run(1s);
  EXPECT_THAT(events, ElementsAre("closing in 7"));
}

TEST_F(TcpSocketTest, SendingIsRefusedUnlessConnected) {
  EXPECT_FALSE(client->SendData("x"));
  client->Connect();
  EXPECT_FALSE(client->SendData("x"));
  world.Run(1s);
  EXPECT_TRUE(client->SendData("x"));
  world.Run(1s);
  EXPECT_EQ(peer->GetData(10), "x");
}

TEST_F(TcpSocketTest, TelnetCommandsAreTakenOutAndAnswered) {
  Connect();
  peer->SendData("\xFF\xFD\x18login:");
  world.Run(1s);
  EXPECT_THAT(events, ElementsAre("login: in 7"));
  EXPECT_EQ(peer->GetData(10), "\xFF\xFC\x18");
}

TEST_F(TcpSocketTest, PieceOfTelnetCommandsAloneIsNoArrival) {
  Connect();
  peer->SendData("\xFF\xFD\x18");
  world.Run(1s);
  EXPECT_TRUE(events.empty());
}

TEST_F(TcpSocketTest, MegabytesGoThroughABoundedBuffer) {
  std::string all;
  std::size_t mostWaiting = 0;
  mostAtOnce = 10'000;
  Connect();
  client->dataArrival = [&] {
    mostWaiting = std::max(mostWaiting, client->BytesReceived());
    all += client->GetData(mostAtOnce);
  };
  const std::string sent(3'000'000, 'x');
  peer->SendData(sent);
  world.Run(1s);
  EXPECT_TRUE(all == sent);
  EXPECT_LT(mostWaiting, 100'000u);
}

TEST_F(TcpSocketTest, NewAttemptForgetsTheOldOne) {
  Connect();
  client->SetHeld(true);
  peer->SendData("old");
  world.Run(1s);
  client->SetHeld(false);
  client->Connect();
  EXPECT_EQ(client->BytesReceived(), 0u);
  world.Run(1s);
  EXPECT_THAT(events, ElementsAre("connected in 7"));
}

TEST_F(TcpSocketTest, PeerThatNobodyAcceptsIsRefused) {
  listener->connectionRequest = nullptr;
  client->Connect();
  world.Run(1s);
  EXPECT_THAT(events, ElementsAre("error 10061 in 9"));
}

TEST_F(TcpSocketTest, PortInUseIsAFaultOfListening) {
  const auto second = world.network.MakeListener();
  EXPECT_EQ(second->Listen("10.1.2.3", 7373)->number, SocketFault::AddressInUse);
  EXPECT_EQ(second->State(), SocketState::Closed);
}

}  // namespace
