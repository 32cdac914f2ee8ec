#include "platform/qt/qt_tcp_listener.h"

#include <gmock/gmock.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include "platform/qt/pump.h"
#include "platform/qt/qt_network.h"
#include "platform/qt/qt_scheduler.h"

namespace platform::qt {
namespace {

// A peer that comes and goes while the event loop stands.
void ConnectSendAndLeave(std::uint16_t port, std::string_view bytes) {
  const int peer = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in where = {};
  where.sin_family = AF_INET;
  where.sin_port = htons(port);
  where.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  ASSERT_EQ(connect(peer, reinterpret_cast<const sockaddr*>(&where), sizeof where), 0);
  ASSERT_EQ(send(peer, bytes.data(), bytes.size(), 0), static_cast<ssize_t>(bytes.size()));
  close(peer);
}

struct QtTcpListenerTest : testing::Test {
  QtScheduler scheduler;
  QtNetwork network{scheduler};
  std::unique_ptr<TcpListener> listener = network.MakeListener();
  std::vector<std::unique_ptr<TcpSocket>> accepted;

  void Listen() { ASSERT_EQ(listener->Listen("127.0.0.1", 0), std::nullopt); }
  void AcceptPeers() {
    listener->connectionRequest = [this] {
      accepted.push_back(network.MakeSocket(TcpSocket::Protocol::Plain));
      accepted.back()->Accept(*listener);
    };
  }
  bool PumpUntilAccepted(std::size_t count) {
    return PumpUntil([&] { return accepted.size() == count; });
  }
  void Connect(QTcpSocket& peer) { peer.connectToHost("127.0.0.1", listener->LocalPort()); }
  static bool PumpUntilEnded(const QTcpSocket& peer) {
    return PumpUntil([&] { return peer.error() == QAbstractSocket::RemoteHostClosedError; });
  }
};

TEST_F(QtTcpListenerTest, ItListensUntilItIsClosed) {
  EXPECT_EQ(listener->State(), SocketState::Closed);
  EXPECT_EQ(listener->LocalPort(), 0);
  Listen();
  EXPECT_EQ(listener->State(), SocketState::Listening);
  EXPECT_NE(listener->LocalPort(), 0);
  listener->Close();
  EXPECT_EQ(listener->State(), SocketState::Closed);
  EXPECT_EQ(listener->LocalPort(), 0);
}

TEST_F(QtTcpListenerTest, APortThatIsTakenIsInUse) {
  Listen();
  const auto second = network.MakeListener();
  const auto fault = second->Listen("127.0.0.1", listener->LocalPort());
  ASSERT_TRUE(fault.has_value());
  EXPECT_EQ(fault->number, SocketFault::AddressInUse);
  EXPECT_EQ(second->State(), SocketState::Closed);
}

TEST_F(QtTcpListenerTest, AForbiddenPortIsDenied) {
  if (geteuid() == 0) GTEST_SKIP() << "no port is forbidden to root";
  const auto fault = listener->Listen("127.0.0.1", 1);
  ASSERT_TRUE(fault.has_value());
  EXPECT_EQ(fault->number, SocketFault::AccessDenied);
}

TEST_F(QtTcpListenerTest, WhatIsNoAddressIsAFault) {
  EXPECT_TRUE(listener->Listen("everywhere", 0).has_value());
  EXPECT_EQ(listener->State(), SocketState::Closed);
}

TEST_F(QtTcpListenerTest, AnAcceptedPeerIsConnected) {
  Listen();
  AcceptPeers();
  QTcpSocket peer;
  Connect(peer);
  ASSERT_TRUE(PumpUntilAccepted(1));
  EXPECT_EQ(accepted[0]->State(), SocketState::Connected);
  EXPECT_EQ(accepted[0]->RemoteHostIP(), "127.0.0.1");
  EXPECT_EQ(accepted[0]->LocalPort(), listener->LocalPort());
  accepted[0]->SendData("hello");
  EXPECT_TRUE(PumpUntil([&] { return peer.bytesAvailable() == 5; }));
}

TEST_F(QtTcpListenerTest, APeerThatIsNotAcceptedIsRefused) {
  Listen();
  int requests = 0;
  listener->connectionRequest = [&] { ++requests; };
  QTcpSocket peer;
  Connect(peer);
  EXPECT_TRUE(PumpUntilEnded(peer));
  EXPECT_EQ(requests, 1);
}

TEST_F(QtTcpListenerTest, EveryPeerIsToldHoweverManyComeAtOnce) {
  Listen();
  AcceptPeers();
  std::vector<std::unique_ptr<QTcpSocket>> peers;
  for (int i = 0; i < 25; ++i) {
    peers.push_back(std::make_unique<QTcpSocket>());
    Connect(*peers.back());
  }
  EXPECT_TRUE(PumpUntilAccepted(25));
}

TEST_F(QtTcpListenerTest, WhatAPeerSaidBeforeItWasAcceptedIsNotLost) {
  Listen();
  ConnectSendAndLeave(listener->LocalPort(), "early");
  std::string received;
  bool closed = false;
  listener->connectionRequest = [&] {
    accepted.push_back(network.MakeSocket(TcpSocket::Protocol::Plain));
    accepted.back()->Accept(*listener);
    accepted.back()->dataArrival = [&] { received += accepted.back()->GetData(100); };
    accepted.back()->closed = [&] { closed = true; };
  };
  ASSERT_TRUE(PumpUntil([&] { return closed; }));
  EXPECT_EQ(received, "early");
}

TEST_F(QtTcpListenerTest, AnAcceptedPeerOutlivesTheListener) {
  Listen();
  AcceptPeers();
  QTcpSocket peer;
  Connect(peer);
  ASSERT_TRUE(PumpUntilAccepted(1));
  listener.reset();
  accepted[0]->SendData("hello");
  EXPECT_TRUE(PumpUntil([&] { return peer.bytesAvailable() == 5; }));
}

TEST_F(QtTcpListenerTest, ClosingRefusesThoseNotYetToldAbout) {
  Listen();
  AcceptPeers();
  QTcpSocket first;
  QTcpSocket second;
  Connect(first);
  Connect(second);
  listener->connectionRequest = [&] { listener->Close(); };
  EXPECT_TRUE(PumpUntilEnded(first));
  EXPECT_TRUE(PumpUntilEnded(second));
  PumpTurns(scheduler);
  EXPECT_EQ(accepted.size(), 0U);
}

TEST_F(QtTcpListenerTest, AClosedListenerListensAgain) {
  Listen();
  const std::uint16_t port = listener->LocalPort();
  listener->Close();
  ASSERT_EQ(listener->Listen("127.0.0.1", port), std::nullopt);
  AcceptPeers();
  QTcpSocket peer;
  Connect(peer);
  EXPECT_TRUE(PumpUntilAccepted(1));
}

}  // namespace
}  // namespace platform::qt
