#include "session/keep_alive.h"

#include <gmock/gmock.h>

#include "platform/sim/world.h"

using namespace std::chrono_literals;
using session::NodeKind;
using testing::IsEmpty;

namespace {

class KeepAliveTest : public testing::Test {
 protected:
  KeepAliveTest() {
    timers.Begin();
    state.LoggedIn = true;
    keepAlive.LoggedIn();
  }

  platform::sim::World world;
  session::Timers timers{world.scheduler, [](auto, auto) { FAIL(); }};
  session::SessionState state;
  std::vector<std::string> sent;
  int givenUp = 0;
  session::KeepAlive keepAlive{timers,
                               state,
                               {.sendAsIs =
                                    [this](const std::string& text) {
                                      sent.push_back(text);
                                      keepAlive.LineSent();
                                    },
                                .giveUp = [this] { ++givenUp; }}};
};

TEST_F(KeepAliveTest, MuteNodeGetsOneFromMinuteFiveToEightAndIsDroppedAtNine) {
  world.Run(4min + 59s);
  EXPECT_THAT(sent, IsEmpty());
  world.Run(1s);
  EXPECT_EQ(sent.size(), 1u);
  world.Run(3min);
  EXPECT_EQ(sent.size(), 4u);
  EXPECT_EQ(givenUp, 0);
  world.Run(1min);
  EXPECT_EQ(sent.size(), 4u);
  EXPECT_EQ(givenUp, 1);
  EXPECT_EQ(keepAlive.lblKA[2].Caption.Get(), "KA Disc= 1");
  EXPECT_TRUE(keepAlive.lblKA[2].Visible.Get());
}

TEST_F(KeepAliveTest, AnyLineReceivedResetsAllOfThat) {
  world.Run(8min + 30s);
  EXPECT_EQ(keepAlive.lblInactivity.Caption.Get(), "Rx Inact. = 8");
  keepAlive.LineReceived();
  EXPECT_EQ(keepAlive.lblInactivity.Caption.Get(), "Rx Inact. = 0");
  sent.clear();
  world.Run(4min + 59s);
  EXPECT_THAT(sent, IsEmpty());
  EXPECT_EQ(givenUp, 0);
}

TEST_F(KeepAliveTest, NulCountsAsASignOfLifeInRxMode) {
  world.Run(4min + 30s);
  keepAlive.NulReceived(3);
  EXPECT_EQ(keepAlive.RxInactiveMinutes, 0);
  EXPECT_EQ(keepAlive.lblKA[1].Caption.Get(), "Nulls Rx = 3");
  EXPECT_EQ(keepAlive.lblKA[1].ForeColour.Get(), core::kRed);
  EXPECT_EQ(keepAlive.lblInactivity.Caption.Get(), "Rx Inact. = 0");
  world.Run(5s);
  EXPECT_EQ(keepAlive.lblKA[1].ForeColour.Get(), core::kThemeColour);
}

TEST_F(KeepAliveTest, TxModeSendsWhateverTheNodeSaysAndATypedLineDelaysIt) {
  keepAlive.KeepAliveRx = false;
  for (int minute = 0; minute < 3; ++minute) {
    world.Run(1min);
    keepAlive.LineReceived();
  }
  EXPECT_EQ(keepAlive.lblInactivity.Caption.Get(), "Tx Inact. = 3");
  keepAlive.LineSent();
  EXPECT_EQ(keepAlive.lblInactivity.Caption.Get(), "Tx Inact. = 0");
  world.Run(4min + 59s);
  EXPECT_THAT(sent, IsEmpty());
  world.Run(1s);
  EXPECT_EQ(sent.size(), 1u);
  EXPECT_EQ(keepAlive.TxInactiveMinutes, 0);
}

TEST_F(KeepAliveTest, TxModeGivesAMuteNodeUpToo) {
  keepAlive.KeepAliveRx = false;
  world.Run(9min);
  EXPECT_EQ(sent.size(), 1u);
  EXPECT_EQ(givenUp, 1);
}

TEST_F(KeepAliveTest, ZeroMinutesTurnItOff) {
  keepAlive.KeepAliveMinutes = 0;
  world.Run(24h);
  EXPECT_THAT(sent, IsEmpty());
  EXPECT_EQ(givenUp, 0);
}

TEST_F(KeepAliveTest, WithoutALoginTheCountsAreZeroAndTheTimerRests) {
  world.Run(3min);
  state.LoggedIn = false;
  world.Run(1min);
  EXPECT_EQ(keepAlive.RxInactiveMinutes, 0);
  EXPECT_EQ(keepAlive.TxInactiveMinutes, 0);
  EXPECT_FALSE(timers.Enabled(session::TimerId::KeepAlive));
}

TEST_F(KeepAliveTest, SentOneIsCountedInRedForFiveSeconds) {
  world.Run(6min);
  EXPECT_EQ(keepAlive.lblKA[0].Caption.Get(), "Keep Alive Tx= 2");
  EXPECT_EQ(keepAlive.lblKA[0].ForeColour.Get(), core::kRed);
  world.Run(5s);
  EXPECT_EQ(keepAlive.lblKA[0].ForeColour.Get(), core::kThemeColour);
  EXPECT_FALSE(timers.Enabled(session::TimerId::KeepAliveColour));
}

TEST_F(KeepAliveTest, TextIsTheOneOfTheNodesSoftware) {
  const auto textOn = [this](NodeKind kind, bool refused, bool rx) {
    state.Kind = kind;
    state.ArpcRefused = refused;
    keepAlive.KeepAliveRx = rx;
    keepAlive.LineReceived();
    keepAlive.LineSent();
    sent.clear();
    world.Run(5min);
    return sent.empty() ? "nothing" : sent.front();
  };
  EXPECT_EQ(textOn(NodeKind::Zelva, true, true), "KeepAlive Rx 5  V2.4315");
  EXPECT_EQ(textOn(NodeKind::ArCluster, false, true), "KeepAlive Rx 5  V2.4315");
  EXPECT_EQ(textOn(NodeKind::ArCluster, false, false), "KeepAlive Tx 5  V2.4315");
  EXPECT_EQ(textOn(NodeKind::ArCluster, true, true), "");
  EXPECT_EQ(textOn(NodeKind::Spider, true, true), "");
  EXPECT_EQ(textOn(NodeKind::Unknown, false, true), " ");
  EXPECT_EQ(textOn(NodeKind::Unknown, false, false), " ");
}

TEST_F(KeepAliveTest, SoftwareWithoutExtendedLinesGetsAnEmptyLineFromTheStart) {
  for (const NodeKind kind : {NodeKind::Spider, NodeKind::DxNet, NodeKind::Clx,
                              NodeKind::WinCluster, NodeKind::Skimmer}) {
    state.Recognise(kind);
    keepAlive.LineReceived();
    sent.clear();
    world.Run(5min);
    EXPECT_THAT(sent, testing::ElementsAre("")) << static_cast<int>(kind);
  }
}

TEST_F(KeepAliveTest, NodeThatDidNotNameItsSoftwareInTimeGetsAnEmptyLine) {
  state.Ar17Overdue = true;
  world.Run(5min);
  EXPECT_THAT(sent, testing::ElementsAre(""));
}

}  // namespace
