#include <gmock/gmock.h>

#include <string>

#include "session_fixture.h"

using namespace std::chrono_literals;
using namespace std::string_literals;
using testing::Contains;
using testing::HasSubstr;

namespace {

struct Recorded {
  const char* name;
  std::string bytes;
};

// Everything that became of a session.
struct Outcome {
  Station::Lines log;
  Station::Lines sent;
  Station::Lines loginText;
  std::string txtNode;
  int nuls = 0;
  int escapes = 0;
  bool loggedIn = false;

  bool operator==(const Outcome&) const = default;
};

Outcome OutcomeOf(Station& station) {
  const auto& loginText = station.program.loginText.rtbLoginMsg.Lines();
  return {.log = station.log.entries,
          .sent = station.Sent(),
          .loginText = {loginText.begin(), loginText.end()},
          .txtNode = station.txtNode(),
          .nuls = station.program.intake.NullsReceived,
          .escapes = station.program.intake.EscapedErrors,
          .loggedIn = station.program.state.LoggedIn};
}

// A row claims, one keeps back, one waits and one fails.
void SetRows(Station& station) {
  using Claim = Station::Claim;
  station.on["First"] = [&station](std::string_view line) {
    if (line.starts_with("wait")) station.program.intake.PushStep("w", station.Step("w", 300ms));
    return line.starts_with("DX de") ? Claim::Quiet : Claim::None;
  };
  station.on["Second"] = [&station](std::string_view line) -> Claim {
    if (line.starts_with("fail")) throw std::runtime_error("boom");
    station.program.intake.ForwardSuppressed = line.starts_with("Oper");
    return line.starts_with("WWV de") ? Claim::Tail : Claim::None;
  };
}

Outcome Play(const Station::Lines& pieces) {
  Station station;
  station.program.outgoing.NodePassword = "secret";
  SetRows(station);
  station.Connect();
  for (const auto& piece : pieces) {
    station.node.Say(piece);
    station.LetPass(3ms);
  }
  station.LetPass(2s);
  return OutcomeOf(station);
}

class Replay : public testing::TestWithParam<Recorded> {};

TEST_P(Replay, SplitAtEveryByteGivesTheSameResult) {
  const std::string& bytes = GetParam().bytes;
  const Outcome whole = Play({bytes});
  ASSERT_TRUE(whole.loggedIn);
  ASSERT_THAT(whole.log, Contains(HasSubstr("forwarded: the end")));
  for (std::size_t at = 1; at < bytes.size(); ++at) {
    const Outcome split = Play({bytes.substr(0, at), bytes.substr(at)});
    EXPECT_EQ(split.log, whole.log) << "split at " << at;
    ASSERT_TRUE(split == whole) << "split at " << at;
  }
}

TEST_P(Replay, SingleBytesGiveTheSameResult) {
  Station::Lines bytes;
  for (const char byte : GetParam().bytes) bytes.emplace_back(1, byte);
  const Outcome whole = Play({GetParam().bytes});
  const Outcome single = Play(bytes);
  EXPECT_EQ(single.log, whole.log);
  EXPECT_TRUE(single == whole);
}

TEST_P(Replay, RaggedPiecesGiveTheSameResult) {
  const Outcome whole = Play({GetParam().bytes});
  for (unsigned seed = 1; seed <= 20; ++seed) {
    Station station;
    station.program.outgoing.NodePassword = "secret";
    SetRows(station);
    station.Connect();
    station.world.network.largestPiece = 7;
    station.world.network.raggedSeed = seed;
    station.node.Say(GetParam().bytes);
    station.LetPass(3s);
    EXPECT_TRUE(OutcomeOf(station) == whole) << "seed " << seed;
  }
}

const Recorded kRecorded[] = {
    {"Spider",
     "\xFF\xFD\x18\xFF\xFB\x01\xFF\xFA\x18\x01\xFF\xF0login: \r\n password: \r\n"
     "Hello Anna, this is N0NODE in Newington\r\n"
     "running DXSpider V1.57 build 441\r\n\r\n"
     "K1TST-2 de N0NODE 20-Nov-2026 2148Z dxspider >\r\n"
     "DX de K1ABC:     14025.0  K2DEF        CQ up 1                  2148Z\a\a\r\n"
     "WWV de N0NODE <21>:   SFI=120, A=5, K=2\r\n"
     "Operation successful\r\n"
     "wait for the step\r\nbehind\r\n"
     "100%25 sure, caf%E9, %0A stays, %zz too\r\n"
     "fail here\r\n"
     "password and login: mean the same again\r\n"
     "the end\r\n"s},
    {"ArCluster",
     "\r\nWelcome to the N0NODE AR-Cluster node\r\n\r\n"
     "Please enter your call: \r\n"
     "QRX is nothing now\r\n"
     " de K1TST-2 n0node 20-Nov 2148Z arc >\r\n"
     "DX de K1ABC:     14025.0  K2DEF\r\nwait\r\nwait again\r\n"
     "the end\r\n"s},
    {"BareReturnsAndNuls",
     "\0\0QRX starting\r\0Your call\0sign:\r%C de %M\r"
     "D\0X de K1ABC: 14\n025.0  K2DEF\rone   \r\rtwo\x0B\x1F\xFE\rth%65 e%6Ed?\rthe end\r"s},
    {"NewPassword",
     "Callsign : \r\nEnter new password: \r\nRe-enter password: \r\nMolva \xC3\xA9 \xE9\r\n"
     "K1TST-2 de N0NODE 2148Z clx >\r\nthe end\r\n"s},
    {"Skimmer", "Please enter your callsign:\r\nDX de K1TST-#: 14025.0 K2DEF\r\nthe end\r\n"s},
};

INSTANTIATE_TEST_SUITE_P(Sessions, Replay, testing::ValuesIn(kRecorded),
                         [](const auto& each) { return std::string(each.param.name); });

}  // namespace
