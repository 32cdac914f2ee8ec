#include <gmock/gmock.h>

#include <random>

#include "memory_meter.h"
#include "session_fixture.h"
#include "thoroughness.h"

using namespace std::chrono_literals;
using platform::SocketState;
using testing::ElementsAre;
using testing::SizeIs;

namespace {

constexpr std::size_t kMegabyte = 1'000'000;
constexpr std::size_t kEndless = 100 * kMegabyte / kOneOf;

class HostileNode : public SessionFixture {
 protected:
  void ReceiveWithoutAnEnd(std::size_t bytes) {
    const std::string piece(50'000, 'x');
    for (std::size_t sent = 0; sent < bytes; sent += piece.size()) ReceiveBytes(piece);
  }

  void ReceiveShortLines(int count) {
    for (int i = 0; i < count; ++i) Receive("DX de K1ABC:     14025.0  K2DEF        CQ  2100Z");
  }

  std::size_t CostOfShortLines() {
    const auto before = MemoryMeter::Allocated();
    ReceiveShortLines(200);
    return MemoryMeter::Allocated() - before;
  }
};

TEST_F(HostileNode, TwentyMegabytesWithoutAnEndAreOneLineAndLaterLinesWork) {
  LogIn();
  std::size_t length = 0;
  log.on = false;
  on["First"] = [&](std::string_view line) {
    length = std::max(length, line.size());
    return Claim::None;
  };
  ReceiveWithoutAnEnd(20 * kMegabyte);
  Receive("");
  EXPECT_EQ(length, 20 * kMegabyte);
  log.on = true;
  Receive("hello");
  EXPECT_THAT(log.Of("Third"), ElementsAre("hello"));
  EXPECT_THAT(faults, testing::IsEmpty());
}

TEST_F(HostileNode, MemoryOfAnEndlessLineIsGivenBack) {
  LogIn();
  log.on = false;
  ReceiveShortLines(1000);
  const auto before = MemoryMeter::Live();
  ReceiveWithoutAnEnd(kEndless);
  EXPECT_GT(MemoryMeter::Live(), before + kEndless - kMegabyte);
  Receive("");
  ReceiveShortLines(1000);
  EXPECT_LT(MemoryMeter::Live(), before + kMegabyte);
}

TEST_F(HostileNode, MemoryOfAnEndlessLineIsGivenBackWithTheEndOfTheSession) {
  LogIn();
  log.on = false;
  ReceiveShortLines(1000);
  const auto before = MemoryMeter::Live();
  ReceiveWithoutAnEnd(20 * kMegabyte);
  NodeCloses();
  LetRetry();
  ReceiveShortLines(1000);
  EXPECT_LT(MemoryMeter::Live(), before + kMegabyte);
}

TEST_F(HostileNode, LinesBehindAnEndlessOneCostWhatShortLinesCost) {
  LogIn();
  log.on = false;
  ReceiveShortLines(1000);
  const auto usual = CostOfShortLines();
  ReceiveWithoutAnEnd(20 * kMegabyte);
  Receive("");
  ReceiveShortLines(1000);
  EXPECT_LT(CostOfShortLines(), usual + usual / 4);
}

TEST_F(HostileNode, TextThatWaitsWhileIntakeIsHeldDoesNotGrowWithoutBound) {
  LogIn();
  log.on = false;
  std::size_t largest = 0;
  auto hold = program.intake.Hold();
  const std::string piece(50'000, 'x');
  for (int i = 0; i < 400; ++i) {
    ReceiveBytes(piece);
    largest = std::max(largest, program.WinsockOut->BytesReceived());
  }
  EXPECT_LT(largest, 2 * kMegabyte);
}

TEST_F(HostileNode, EveryByteValueInAnyOrderLeavesTheSessionServed) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    Station station;
    station.LogIn();
    std::mt19937 random(seed);
    std::string noise(20'000, '\0');
    for (char& byte : noise) byte = static_cast<char>(random() & 0xFF);
    station.ReceiveBytes(noise);
    station.ReceiveBytes(std::string(3000, '.') + "\r");
    station.log.entries.clear();
    station.Receive("hello");
    EXPECT_THAT(station.log.Of("Third"), ElementsAre("hello")) << "seed " << seed;
    EXPECT_THAT(station.faults, testing::IsEmpty()) << "seed " << seed;
  }
}

TEST_F(HostileNode, NoiseBeforeTheLoginDoesNotPreventALaterLogin) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    Station station;
    station.Connect();
    std::mt19937 random(seed);
    std::string noise(5'000, '\0');
    for (char& byte : noise) byte = static_cast<char>(random() & 0xFF);
    station.ReceiveBytes(noise);
    station.NodeResets();
    station.LetRetry();
    station.Sent();
    station.ReceiveBytes("login: ");
    EXPECT_THAT(station.Sent(), ElementsAre("K1TST-2")) << "seed " << seed;
  }
}

TEST_F(HostileNode, MegabyteOfBlanksIsTakenLikeAnyOther) {
  Connect();
  const std::string piece(50'000, ' ');
  for (std::size_t sent = 0; sent < kMegabyte; sent += piece.size()) ReceiveBytes(piece);
  log.entries.clear();
  Receive("");
  EXPECT_THAT(log.Of("First"), ElementsAre(""));
}

TEST_F(HostileNode, MegabytesOfNulsAreCountedAndNothingElse) {
  LogIn();
  ReceiveBytes(std::string(2 * kMegabyte, '\0'));
  LetPass(10s);
  EXPECT_EQ(program.intake.NullsReceived, static_cast<int>(2 * kMegabyte));
  EXPECT_THAT(log.entries, SizeIs(0));
}

TEST_F(HostileNode, HundredThousandLinesInOneBurstAllArriveInOrder) {
  LogIn();
  log.on = false;
  int next = 0;
  int wrong = 0;
  on["Third"] = [&](std::string_view line) {
    if (line != "line " + std::to_string(next++)) ++wrong;
    return Claim::None;
  };
  std::string burst;
  for (int i = 0; i < 100'000; ++i) burst += "line " + std::to_string(i) + "\r\n";
  for (std::size_t at = 0; at < burst.size(); at += 50'000)
    ReceiveBytes(std::string_view(burst).substr(at, 50'000));
  LetPass(10s);
  EXPECT_EQ(next, 100'000);
  EXPECT_EQ(wrong, 0);
}

TEST_F(HostileNode, NodeThatClosesInTheMiddleOfAnythingIsLoggedIntoAgain) {
  const std::string session =
      "\xFF\xFB\x01login: \r\n password: \r\nHello %41\r\nK1TST-2 de N0NODE 2148Z dxspider >\r\n";
  for (std::size_t end = 0; end <= session.size(); ++end) {
    for (const bool reset : {false, true}) {
      Station station;
      station.program.outgoing.NodePassword = "secret";
      station.Connect();
      station.ReceiveBytes(session.substr(0, end));
      if (reset)
        station.NodeResets();
      else
        station.NodeCloses();
      EXPECT_NE(station.SocketState(), SocketState::Connected) << end;
      station.LetRetry();
      station.Sent();
      station.ReceiveBytes("login: ");
      EXPECT_THAT(station.Sent(), ElementsAre("K1TST-2")) << end << (reset ? " reset" : " closed");
    }
  }
}

TEST_F(HostileNode, NodeThatFlapsForADayIsTriedOnceAnInterval) {
  PressConnect();
  const auto end = world.scheduler.Now() + 24h;
  while (world.scheduler.Now() < end) {
    if (node.HasCaller()) node.Close();
    LetPass(10s);
  }
  EXPECT_GT(node.called.size(), 1000u);
  EXPECT_LT(node.called.size(), 24u * 3600 / 55 + 2);
  EXPECT_LE(program.outgoing.Text2.Characters(), 20'200u);
}

}  // namespace
