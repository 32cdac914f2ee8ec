#include <gmock/gmock.h>

#include "session_fixture.h"

using namespace std::chrono_literals;
using platform::SocketState;
using session::LinkPhase;
using testing::SizeIs;

namespace {

class Retry : public SessionFixture {};

TEST_F(Retry, IntervalStaysTheSameForTheWholeRun) {
  const auto interval = RetryInterval();
  node.refuses = true;
  Connect();
  LetPass(1h);
  EXPECT_EQ(RetryInterval(), interval);
}

TEST_F(Retry, RefusedForHoursIsTriedOnceAnInterval) {
  node.refuses = true;
  Connect();
  LetPass(3h);
  ASSERT_GT(node.called.size(), 150u);
  for (std::size_t i = 1; i < node.called.size(); ++i) {
    const auto gap = node.called[i] - node.called[i - 1];
    EXPECT_GE(gap, RetryInterval());
    EXPECT_LE(gap, RetryInterval() + 2s);
  }
}

TEST_F(Retry, RefusedForHoursIsToldOnceInTheRawView) {
  node.refuses = true;
  Connect();
  LetPass(3h);
  EXPECT_EQ(CountInRawView("Winsock Error: 10061"), 1);
  EXPECT_THAT(RawView(), SizeIs(1));
}

TEST_F(Retry, RefusedForHoursAfterALossIsToldOnceThoughAddressAndNameAlternate) {
  LogIn();
  node.refuses = true;
  NodeCloses();
  LetPass(3h);
  EXPECT_EQ(CountInRawView("Winsock Error: 10061"), 1);
}

TEST_F(Retry, NodeThatComesBackAfterHoursIsReached) {
  node.refuses = true;
  Connect();
  LetPass(3h);
  node.refuses = false;
  LetRetry();
  ReceiveBytes("login: ");
  ExpectSent({"K1TST-2"});
  EXPECT_TRUE(program.state.LoggedIn);
}

TEST_F(Retry, FailureBehindAGoodLinkIsToldAgain) {
  node.refuses = true;
  Connect();
  LetPass(1h);
  node.refuses = false;
  LetRetry();
  ReceiveBytes("login: ");
  node.refuses = true;
  NodeCloses();
  LetPass(1h);
  EXPECT_EQ(CountInRawView("Winsock Error: 10061"), 2);
}

TEST_F(Retry, LinkThatTheNodeClosesIsMadeAgainOneIntervalLater) {
  LogIn();
  NodeCloses();
  EXPECT_EQ(txtNode(), "Winsock Connection Closed by remote node: N0NODE");
  EXPECT_EQ(RawView().back(), calendar.GmtTime() + txtNode());
  EXPECT_EQ(program.state.Phase.Get(), LinkPhase::Disconnected);
  LetPass(RetryInterval() - 1s);
  EXPECT_THAT(node.called, SizeIs(1));
  LetPass(3s);
  EXPECT_THAT(node.called, SizeIs(2));
}

TEST_F(Retry, LinkThatIsResetIsMadeAgainOneIntervalLater) {
  LogIn();
  NodeResets();
  EXPECT_EQ(txtNode(), "Winsock Error: Disconnected: N0NODE");
  EXPECT_EQ(
      RawView().back(),
      "node.example N0NODE Winsock Error: 10054: Connection reset by peer: " + calendar.GmtTime());
  LetPass(RetryInterval() - 1s);
  EXPECT_THAT(node.called, SizeIs(1));
  LetPass(3s);
  EXPECT_THAT(node.called, SizeIs(2));
}

TEST_F(Retry, LossHidesTheMacrosAndEndsATimedCommand) {
  LogIn();
  program.macros.cmdMacro[0].Press();
  program.latency.Begin();
  NodeCloses();
  EXPECT_FALSE(program.macros.fraSendMacro.Visible.Get());
  program.latency.Latency("K1TST-2 de N0NODE arc >");
  EXPECT_EQ(program.latency.Text3.Caption.Get(), "");
}

TEST_F(Retry, LossEndsEverythingAboutTheSession) {
  LogIn();
  program.state.LoginTextDone = true;
  program.state.LoginFinished = true;
  NodeCloses();
  EXPECT_FALSE(program.state.LoginFinished);
  EXPECT_FALSE(program.state.LoggedIn);
  EXPECT_FALSE(program.state.SocketConnected);
  EXPECT_FALSE(program.state.LoginMsgActive);
  EXPECT_FALSE(program.state.ConnectEventSeen);
  EXPECT_FALSE(program.state.LoginTextDone);
  EXPECT_EQ(SocketState(), SocketState::Closed);
}

TEST_F(Retry, NextSessionLogsInLikeTheFirst) {
  LogIn();
  for (int i = 0; i < 5; ++i) {
    if (i % 2 == 0)
      NodeCloses();
    else
      NodeResets();
    LetRetry();
    ReceiveBytes("login: ");
    ExpectSent({"K1TST-2"});
    EXPECT_TRUE(program.state.LoggedIn);
  }
}

TEST_F(Retry, LostLinkStaysLostWithAutoReconnectOffAndTheCloseTextStays) {
  LogIn();
  program.connection.AutoReconnect.UserSets(false);
  NodeCloses();
  LetPass(3h);
  EXPECT_THAT(node.called, SizeIs(1));
  EXPECT_EQ(txtNode(), "Winsock Connection Closed by remote node: N0NODE");
  EXPECT_TRUE(program.connection.cmdConnect.Enabled.Get());
}

TEST_F(Retry, AutoReconnectThatIsTickedOffDuringTheWaitEndsIt) {
  LogIn();
  NodeCloses();
  program.connection.AutoReconnect.UserSets(false);
  LetPass(3h);
  EXPECT_THAT(node.called, SizeIs(1));
}

TEST_F(Retry, DisconnectsOfLoggedInSessionsAreCounted) {
  LogIn();
  EXPECT_EQ(program.connection.DisconnectCount, 0);
  NodeCloses();
  EXPECT_EQ(program.connection.DisconnectCount, 1);
  LetRetry();
  NodeCloses();
  EXPECT_EQ(program.connection.DisconnectCount, 1);
  LetRetry();
  ReceiveBytes("login: ");
  NodeResets();
  EXPECT_EQ(program.connection.DisconnectCount, 2);
}

TEST_F(Retry, CloseInTheMiddleOfConnectingIsTriedAgain) {
  PressConnect();
  ASSERT_TRUE(world.RunUntil([this] { return node.HasCaller(); }, 2s));
  node.Close();
  LetPass(2s);
  EXPECT_EQ(SocketState(), SocketState::Closed);
  EXPECT_FALSE(program.intake.Held());
  LetRetry();
  EXPECT_EQ(SocketState(), SocketState::Connected);
}

TEST_F(Retry, ResetInTheMiddleOfConnectingIsTriedAgain) {
  PressConnect();
  ASSERT_TRUE(world.RunUntil([this] { return node.HasCaller(); }, 2s));
  NodeResets();
  LetPass(2s);
  EXPECT_FALSE(program.intake.Held());
  LetRetry();
  EXPECT_EQ(SocketState(), SocketState::Connected);
}

TEST_F(Retry, StepOfTheWallClockChangesNothing) {
  LogIn();
  NodeCloses();
  world.clock.Set(world.clock.UtcNow() - 24h);
  LetRetry();
  EXPECT_THAT(node.called, SizeIs(2));
  NodeCloses();
  world.clock.Set(world.clock.UtcNow() + 48h);
  LetPass(RetryInterval() - 1s);
  EXPECT_THAT(node.called, SizeIs(2));
}

TEST_F(Retry, MissedSpotsAreWantedBehindALossAsLongAsTheUserWantsThem) {
  settings.GetMissedOnes = true;
  LogIn();
  NodeCloses();
  EXPECT_TRUE(program.state.WantMissedSpots);
  LetRetry();
  settings.GetMissedOnes = false;
  NodeCloses();
  EXPECT_FALSE(program.state.WantMissedSpots);
}

}  // namespace
