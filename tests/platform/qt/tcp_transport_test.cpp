#include "platform/qt/qt_tcp_transport.h"

#include <gmock/gmock.h>
#include <sys/socket.h>

#include <QTcpServer>
#include <QTimer>

#include "platform/qt/event_log.h"
#include "platform/qt/pump.h"
#include "platform/qt/qt_scheduler.h"

namespace platform::qt {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

// Bytes that show it if one is lost or comes twice.
std::string Counting(std::size_t size) {
  std::string bytes;
  while (bytes.size() < size) bytes += std::to_string(bytes.size()) + "\n";
  bytes.resize(size);
  return bytes;
}

struct QtTcpTransportTest : testing::Test {
  QtScheduler scheduler;
  QObject leaving;
  EventLog log;
  QtTcpTransport transport{scheduler, leaving};
  QTcpServer server;
  QTcpSocket* peer = nullptr;

  QtTcpTransportTest() {
    transport.events = &log;
    server.listen(QHostAddress::LocalHost);
  }
  void Open() { transport.Open("127.0.0.1", server.serverPort()); }
  void Connect() {
    Open();
    ASSERT_TRUE(PumpUntil([&] { return log.Has("connected") && server.hasPendingConnections(); }));
    peer = server.nextPendingConnection();
  }
  bool PumpUntilTold(const std::string& event) {
    return PumpUntil([&] { return log.Has(event); });
  }
  bool PumpUntilPeerHas(std::size_t size) {
    return PumpUntil([&] { return static_cast<std::size_t>(peer->bytesAvailable()) >= size; });
  }
  bool PumpUntilPeerSeesTheEnd() {
    return PumpUntil([&] { return peer->state() == QAbstractSocket::UnconnectedState; });
  }
  // The whole is with the system, in front of our full buffer, and so is the peer's end.
  void PeerSendsAndLeaves(const std::string& bytes) {
    peer->write(bytes.data(), static_cast<qint64>(bytes.size()));
    peer->disconnectFromHost();
    ASSERT_TRUE(PumpUntilPeerSeesTheEnd());
  }
  std::string ReadToTheEnd() {
    std::string all;
    EXPECT_TRUE(PumpUntil([&] {
      all += ReadAll(transport);
      return log.Has("closed") || log.Has("failed");
    }));
    return all + ReadAll(transport);
  }
};

TEST_F(QtTcpTransportTest, AConnectionIsResolvedThenConnected) {
  Open();
  EXPECT_THAT(log.told, IsEmpty());
  ASSERT_TRUE(PumpUntilTold("connected"));
  EXPECT_THAT(log.told, ElementsAre("resolved", "connected"));
}

TEST_F(QtTcpTransportTest, AHostMayBeAName) {
  transport.Open("localhost", server.serverPort());
  ASSERT_TRUE(PumpUntilTold("connected"));
  EXPECT_THAT(log.told, ElementsAre("resolved", "connected"));
}

TEST_F(QtTcpTransportTest, AddressesAreKnownWhileConnectedOnly) {
  EXPECT_EQ(transport.PeerAddress(), "");
  EXPECT_EQ(transport.LocalPort(), 0);
  Connect();
  EXPECT_EQ(transport.PeerAddress(), "127.0.0.1");
  EXPECT_EQ(transport.LocalPort(), peer->peerPort());
  transport.Close();
  EXPECT_EQ(transport.PeerAddress(), "");
  EXPECT_EQ(transport.LocalPort(), 0);
}

TEST_F(QtTcpTransportTest, BytesGoBothWays) {
  Connect();
  transport.Write("to the peer");
  ASSERT_TRUE(PumpUntilPeerHas(11));
  EXPECT_EQ(peer->readAll(), "to the peer");
  peer->write("from it");
  ASSERT_TRUE(PumpUntil([&] { return log.readable > 0; }));
  EXPECT_EQ(ReadAll(transport), "from it");
}

TEST_F(QtTcpTransportTest, WhatIsNotTakenIsKept) {
  Connect();
  peer->write("abcdef");
  ASSERT_TRUE(PumpUntil([&] { return log.readable > 0; }));
  char piece[4];
  EXPECT_EQ(transport.Read(piece, sizeof piece), 4U);
  EXPECT_EQ(ReadAll(transport), "ef");
}

TEST_F(QtTcpTransportTest, APortNobodyListensAtIsRefused) {
  server.close();
  server.listen(QHostAddress::LocalHost);
  const std::uint16_t port = server.serverPort();
  server.close();
  transport.Open("127.0.0.1", port);
  EXPECT_THAT(log.told, IsEmpty());
  ASSERT_TRUE(PumpUntilTold("failed"));
  EXPECT_THAT(log.told, ElementsAre("resolved", "failed"));
  EXPECT_EQ(log.faults.front().number, SocketFault::Refused);
  EXPECT_NE(log.faults.front().text, "");
}

TEST_F(QtTcpTransportTest, AnUnknownHostFailsUnresolved) {
  transport.Open("no..host", 23);
  ASSERT_TRUE(PumpUntilTold("failed"));
  EXPECT_THAT(log.told, ElementsAre("failed"));
  EXPECT_EQ(log.faults.front().number, SocketFault::HostNotFound);
}

TEST_F(QtTcpTransportTest, AllThatCameBeforeThePeersEndCanBeReadAndTheEndComesOnce) {
  Connect();
  const std::string bytes = Counting(300'000);
  PeerSendsAndLeaves(bytes);
  EXPECT_TRUE(ReadToTheEnd() == bytes);
  PumpTurns(scheduler);
  EXPECT_THAT(log.told, ElementsAre("resolved", "connected", "closed"));
}

TEST_F(QtTcpTransportTest, WhatThePeerSentLastIsReadableAfterItsEnd) {
  Connect();
  PeerSendsAndLeaves("73 de node");
  ASSERT_TRUE(PumpUntilTold("closed"));
  EXPECT_EQ(ReadAll(transport), "73 de node");
}

TEST_F(QtTcpTransportTest, WritingToAPeerThatHasLeftLosesNothingOfIt) {
  Connect();
  // More than our buffer, and yet with this system as a whole: what a peer that has left still
  // had to send is lost by any write.
  const std::string bytes = Counting(100'000);
  PeerSendsAndLeaves(bytes);
  ASSERT_TRUE(PumpUntil([&] { return log.readable > 0; }));
  for (int i = 0; i < 5; ++i) {
    transport.Write("are you there?");
    PumpTurns(scheduler);
  }
  EXPECT_TRUE(ReadToTheEnd() == bytes);
}

TEST_F(QtTcpTransportTest, AWriteThatFailsLosesNothingOfAFullBuffer) {
  Connect();
  const std::string bytes = Counting(40'000);
  PeerSendsAndLeaves(bytes);
  transport.Write("one");
  transport.Write("two");
  ASSERT_TRUE(PumpUntilTold("closed"));
  transport.Write("three");
  EXPECT_TRUE(ReadAll(transport) == bytes);
}

TEST_F(QtTcpTransportTest, APeerWhoseBytesAreNotTakenIsMadeToWait) {
  Connect();
  const QByteArray bytes(20'000'000, 'x');
  peer->write(bytes);
  ASSERT_TRUE(PumpUntil([&] { return log.readable > 0; }));
  PumpTurns(scheduler, 200);
  EXPECT_GT(peer->bytesToWrite(), 0);
  std::size_t taken = 0;
  EXPECT_TRUE(PumpUntil([&] {
    taken += ReadAll(transport).size();
    return taken == 20'000'000;
  }));
}

TEST_F(QtTcpTransportTest, AResetIsAnEndToo) {
  Connect();
  const linger atOnce{.l_onoff = 1, .l_linger = 0};
  setsockopt(static_cast<int>(peer->socketDescriptor()), SOL_SOCKET, SO_LINGER, &atOnce,
             sizeof atOnce);
  peer->abort();
  ASSERT_TRUE(PumpUntilTold("closed"));
  PumpTurns(scheduler);
  EXPECT_THAT(log.told, ElementsAre("resolved", "connected", "closed"));
}

TEST_F(QtTcpTransportTest, WhatWasWrittenStillGoesOutAfterClose) {
  Connect();
  const std::string bytes = Counting(3'000'000);
  transport.Write(bytes);
  transport.Close();
  QByteArray received;
  ASSERT_TRUE(PumpUntil([&] {
    received += peer->readAll();
    return peer->state() == QAbstractSocket::UnconnectedState;
  }));
  EXPECT_TRUE(received + peer->readAll() == QByteArray::fromStdString(bytes));
}

TEST_F(QtTcpTransportTest, NoEventFollowsACloseWhoseLastBytesThePeerRefuses) {
  Connect();
  transport.Write(Counting(20'000'000));
  transport.Close();
  peer->abort();
  ASSERT_TRUE(PumpUntil([&] { return leaving.children().isEmpty(); }));
  PumpTurns(scheduler);
  EXPECT_THAT(log.told, ElementsAre("resolved", "connected"));
}

TEST_F(QtTcpTransportTest, ASocketThatEndedBeforeItWasTakenOverStillGivesItsBytes) {
  Connect();
  transport.Write("early");
  transport.Close();
  ASSERT_TRUE(PumpUntilPeerSeesTheEnd());
  QtTcpTransport taken(scheduler, leaving, peer);
  EventLog takenLog;
  taken.events = &takenLog;
  EXPECT_EQ(ReadAll(taken), "early");
  ASSERT_TRUE(PumpUntil([&] { return takenLog.Has("closed"); }));
}

TEST_F(QtTcpTransportTest, ASocketThatIsClosedIsLetGo) {
  Connect();
  transport.Write("bye");
  transport.Close();
  EXPECT_TRUE(PumpUntil([&] { return leaving.children().isEmpty(); }));
}

TEST_F(QtTcpTransportTest, NoEventFollowsACloseWhileLookingUp) {
  transport.Open("localhost", server.serverPort());
  transport.Close();
  ASSERT_TRUE(PumpUntil([&] { return leaving.children().isEmpty(); }));
  PumpTurns(scheduler);
  EXPECT_THAT(log.told, IsEmpty());
}

TEST_F(QtTcpTransportTest, NoEventFollowsACloseWhileConnecting) {
  Open();
  transport.Close();
  ASSERT_TRUE(PumpUntil([&] { return leaving.children().isEmpty(); }));
  PumpTurns(scheduler);
  EXPECT_THAT(log.told, IsEmpty());
}

TEST_F(QtTcpTransportTest, NoEventFollowsACloseWhileEventsWait) {
  Connect();
  PeerSendsAndLeaves("last words");
  // Qt's signal is out as soon as its notifier ran; ours waits for a turn.
  bool closed = false;
  QObject::connect(
      qobject_cast<QTcpSocket*>(leaving.children().front()), &QTcpSocket::readyRead, &leaving,
      [&] {
        transport.Close();
        closed = true;
      },
      Qt::QueuedConnection);
  ASSERT_TRUE(PumpUntil([&] { return closed; }));
  const int readable = log.readable;
  PumpTurns(scheduler);
  EXPECT_THAT(log.told, ElementsAre("resolved", "connected"));
  EXPECT_EQ(log.readable, readable);
  EXPECT_EQ(ReadAll(transport), "");
}

TEST_F(QtTcpTransportTest, AClosedTransportOpensAgain) {
  Connect();
  peer->write("old");
  ASSERT_TRUE(PumpUntil([&] { return log.readable > 0; }));
  transport.Close();
  log = {};
  Connect();
  EXPECT_THAT(log.told, ElementsAre("resolved", "connected"));
  peer->write("new");
  ASSERT_TRUE(PumpUntil([&] { return log.readable > 0; }));
  EXPECT_EQ(ReadAll(transport), "new");
}

TEST_F(QtTcpTransportTest, AfterThePeersEndItOpensAgain) {
  Connect();
  PeerSendsAndLeaves("unread");
  ASSERT_TRUE(PumpUntilTold("closed"));
  log = {};
  Connect();
  EXPECT_EQ(ReadAll(transport), "");
  transport.Write("x");
  EXPECT_TRUE(PumpUntilPeerHas(1));
}

TEST_F(QtTcpTransportTest, SmallPiecesAreNotHeldBackAndADeadPeerIsNoticed) {
  Connect();
  const auto* socket = qobject_cast<QTcpSocket*>(leaving.children().front());
  EXPECT_EQ(const_cast<QTcpSocket*>(socket)->socketOption(QAbstractSocket::LowDelayOption), 1);
  EXPECT_EQ(const_cast<QTcpSocket*>(socket)->socketOption(QAbstractSocket::KeepAliveOption), 1);
}

TEST_F(QtTcpTransportTest, NothingHappensWithoutAConnection) {
  transport.Write("x");
  transport.Close();
  char piece[4];
  EXPECT_EQ(transport.Read(piece, sizeof piece), 0U);
}

// Writes down how long its transport waits before it does something. Its clock goes on when it is
// told to, so that no stall of the machine makes a wait shorter.
struct NotingScheduler final : Scheduler {
  explicit NotingScheduler(Scheduler& scheduler) : real(scheduler) {}
  Milliseconds Now() const override { return now; }
  Registration After(Milliseconds delay, Callback callback) override {
    waits.push_back(delay);
    return real.After(delay, std::move(callback));
  }

  Scheduler& real;
  Milliseconds now = 1s;
  std::vector<Milliseconds> waits;
};

struct BatchTest : QtTcpTransportTest {
  NotingScheduler noting{scheduler};
  QtTcpTransport batching{noting, leaving};

  BatchTest() {
    batching.events = &log;
    log.onReadable = [this] { received += ReadAll(batching); };
    batching.Open("127.0.0.1", server.serverPort());
    EXPECT_TRUE(PumpUntil([&] { return log.Has("connected") && server.hasPendingConnections(); }));
    peer = server.nextPendingConnection();
    noting.waits.clear();
  }

  void Say(const std::string& text) {
    const std::size_t before = received.size();
    peer->write(text.data(), static_cast<qint64>(text.size()));
    ASSERT_TRUE(PumpUntil([&] { return received.size() == before + text.size(); }));
  }
  // What the peer wrote is with this system, and whoever looks for it has had his turns.
  void SayWithoutWaiting(const std::string& text) {
    peer->write(text.data(), static_cast<qint64>(text.size()));
    ASSERT_TRUE(PumpUntil([&] { return peer->bytesToWrite() == 0; }));
    PumpTurns(scheduler);
  }

  std::string received;
};

TEST_F(BatchTest, FirstLineIsToldAtOnceAndTheNextWithItsBatch) {
  Say("first");
  Say("next");
  EXPECT_THAT(noting.waits, ElementsAre(0ms, 190ms, 0ms, 190ms));
}

TEST_F(BatchTest, WhenNothingCameUntilTheBatchWasDueTheNextLineIsToldAtOnce) {
  Say("first");
  bool due = false;
  const Registration wait = scheduler.After(300ms, [&] { due = true; });
  ASSERT_TRUE(PumpUntil([&] { return due; }));
  SayWithoutWaiting("next");
  EXPECT_EQ(received, "firstnext");
}

TEST_F(BatchTest, AnAnswerIsToldAtOnce) {
  Say("login:");
  batching.Write("K1TST\r\n");
  SayWithoutWaiting("Hello");
  EXPECT_EQ(received, "login:Hello");
}

TEST_F(BatchTest, WhatFollowsAnAnswerWaitsForAShorterBatch) {
  batching.Write("sh/dx\r\n");
  Say("first rows");
  EXPECT_EQ(noting.waits.back(), 100ms);
  noting.now += 1999ms;
  Say("more");
  EXPECT_EQ(noting.waits.back(), 100ms);
  noting.now += 1ms;
  Say("spots again");
  EXPECT_EQ(noting.waits.back(), 190ms);
}

// Each packet that is looked at wakes the program.
TEST_F(BatchTest, NothingIsReadBeforeItsBatchIsDue) {
  Say("first");
  SayWithoutWaiting("next");
  EXPECT_EQ(ReadAll(batching), "");
  EXPECT_EQ(log.readable, 1);
  ASSERT_TRUE(PumpUntil([&] { return received == "firstnext"; }));
}

TEST_F(BatchTest, MuchAtOnceDoesNotWait) {
  constexpr std::size_t kMuch = 16384;
  Say("first");
  SayWithoutWaiting(std::string(kMuch, 'x'));
  EXPECT_EQ(received.size(), 5u + kMuch);
}

TEST_F(BatchTest, ThePeersEndDoesNotWaitAndComesBehindItsLastWords) {
  Say("first");
  peer->write("73");
  peer->disconnectFromHost();
  ASSERT_TRUE(PumpUntilPeerSeesTheEnd());
  PumpTurns(scheduler);
  EXPECT_TRUE(log.Has("closed"));
  EXPECT_EQ(received + ReadAll(batching), "first73");
}

TEST_F(BatchTest, AWriteToAPeerThatHasLeftLosesNothingOfTheBatch) {
  Say("first");
  peer->write("73");
  peer->disconnectFromHost();
  ASSERT_TRUE(PumpUntil([&] { return peer->bytesToWrite() == 0; }));
  batching.Write("one");
  batching.Write("two");
  ASSERT_TRUE(PumpUntilTold("closed"));
  EXPECT_EQ(received + ReadAll(batching), "first73");
}

TEST_F(BatchTest, WhatComesMeanwhileIsOneBatch) {
  constexpr int kLines = 40;
  QTimer sending;
  int sent = 0;
  QObject::connect(&sending, &QTimer::timeout, &leaving, [&] {
    if (sent++ < kLines) peer->write("line\n");
  });
  sending.start(10);
  ASSERT_TRUE(PumpUntil([&] { return received.size() == std::size_t{kLines} * 5; }));
  EXPECT_LE(log.readable, kLines / 6);
}

struct HeldSocketTest : QtTcpTransportTest {
  TcpSocket socket{scheduler, std::make_unique<QtTcpTransport>(scheduler, leaving),
                   TcpSocket::Protocol::Plain};
};

TEST_F(HeldSocketTest, AHeldSocketGetsAllOfALongStreamAndThenItsEndOnce) {
  std::string received;
  int ends = 0;
  bool connected = false;
  socket.connected = [&] { connected = true; };
  socket.dataArrival = [&] { received += socket.GetData(1000); };
  socket.closed = [&] { ++ends; };
  socket.RemoteHost = "127.0.0.1";
  socket.RemotePort = server.serverPort();
  socket.Connect();
  ASSERT_TRUE(PumpUntil([&] { return connected && server.hasPendingConnections(); }));
  peer = server.nextPendingConnection();
  socket.SetHeld(true);
  const std::string bytes = Counting(300'000);
  PeerSendsAndLeaves(bytes);
  PumpTurns(scheduler);
  EXPECT_EQ(received, "");
  socket.SetHeld(false);
  ASSERT_TRUE(PumpUntil([&] { return ends > 0; }));
  EXPECT_TRUE(received == bytes);
  PumpTurns(scheduler);
  EXPECT_EQ(ends, 1);
}

TEST(QtSocketFaultTest, ErrorsHaveTheirNumbers) {
  const auto number = [](QAbstractSocket::SocketError error, const char* text = "") {
    return FaultOf(error, QString::fromUtf8(text)).number;
  };
  EXPECT_EQ(number(QAbstractSocket::ConnectionRefusedError), SocketFault::Refused);
  EXPECT_EQ(number(QAbstractSocket::SocketTimeoutError), SocketFault::TimedOut);
  EXPECT_EQ(number(QAbstractSocket::SocketAccessError), SocketFault::AccessDenied);
  EXPECT_EQ(number(QAbstractSocket::AddressInUseError), SocketFault::AddressInUse);
  EXPECT_EQ(number(QAbstractSocket::HostNotFoundError), SocketFault::HostNotFound);
  EXPECT_EQ(number(QAbstractSocket::NetworkError, "Host unreachable"),
            SocketFault::HostUnreachable);
  EXPECT_EQ(number(QAbstractSocket::NetworkError, "Connection timed out"), SocketFault::TimedOut);
  EXPECT_EQ(number(QAbstractSocket::NetworkError, "Network unreachable"), SocketFault::NetworkDown);
  EXPECT_EQ(number(QAbstractSocket::UnknownSocketError), SocketFault::Other);
}

TEST(DottedTest, AnIpv4AddressIsDottedHoweverItIsWritten) {
  EXPECT_EQ(Dotted(QHostAddress("::ffff:192.0.2.1")), "192.0.2.1");
  EXPECT_EQ(Dotted(QHostAddress("192.0.2.1")), "192.0.2.1");
  EXPECT_EQ(Dotted(QHostAddress("2001:db8::1")), "2001:db8::1");
}

}  // namespace
}  // namespace platform::qt
