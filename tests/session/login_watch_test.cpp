#include <gmock/gmock.h>

#include "session_fixture.h"

using namespace std::chrono_literals;
using platform::SocketState;
using session::TimerId;
using testing::Contains;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class LoginWatch : public SessionFixture {
 protected:
  // How long the node had its caller until that gave up.
  platform::Milliseconds PatienceOfNextAttempt() {
    const auto before = node.left.size();
    const bool left = world.RunUntil([&] { return node.left.size() > before; }, 10min);
    EXPECT_TRUE(left);
    if (!left) return 0ms;
    return node.left.back() - node.called.back();
  }
};

TEST_F(LoginWatch, SilentNodeGetsTheCallAfter15Seconds) {
  PressConnect();
  LetPassUntil(14900ms);
  ExpectNothingSent();
  LetPassUntil(15100ms);
  ExpectSent({"K1TST-2"});
  EXPECT_FALSE(program.state.LoggedIn);
}

TEST_F(LoginWatch, SilentNodeGetsTheCallOnce) {
  PressConnect();
  LetPassUntil(44s);
  ExpectSent({"K1TST-2"});
}

TEST_F(LoginWatch, SilentNodeIsGivenUpAfter45Seconds) {
  PressConnect();
  LetPassUntil(44900ms);
  EXPECT_TRUE(node.HasCaller());
  LetPassUntil(45100ms);
  EXPECT_FALSE(node.HasCaller());
  EXPECT_EQ(SocketState(), SocketState::Closed);
  EXPECT_THAT(RawView(), Contains("No login request received : " + calendar.GmtTime()));
}

TEST_F(LoginWatch, EachGiveUpLetsTheNextOneWait15SecondsLonger) {
  PressConnect();
  for (const auto patience : {45s, 60s, 75s}) {
    const auto waited = PatienceOfNextAttempt();
    EXPECT_GT(waited, patience - 1s);
    EXPECT_LE(waited, patience);
  }
}

TEST_F(LoginWatch, NextTryComesOneIntervalBehindTheGiveUp) {
  PressConnect();
  PatienceOfNextAttempt();
  LetPass(RetryInterval() - 1s);
  EXPECT_THAT(node.called, SizeIs(1));
  LetPass(3s);
  EXPECT_THAT(node.called, SizeIs(2));
}

TEST_F(LoginWatch, NodeThatStaysSilentForHoursIsToldOnceAndTriedOn) {
  PressConnect();
  LetPass(3h);
  EXPECT_EQ(CountInRawView("No login request received"), 1);
  EXPECT_EQ(CountInRawView("Winsock Connection Closed by remote node"), 1);
  EXPECT_GT(node.called.size(), 10u);
}

TEST_F(LoginWatch, ConnectButtonRestoresThePatience) {
  PressConnect();
  PatienceOfNextAttempt();
  PressDisconnect();
  LetPass(70s);
  PressConnect();
  const auto waited = PatienceOfNextAttempt();
  EXPECT_GT(waited, 44s);
  EXPECT_LE(waited, 45s);
}

TEST_F(LoginWatch, NodeThatAnswersTheCallSentToItIsLoggedInto) {
  PressConnect();
  LetPassUntil(16s);
  ExpectSent({"K1TST-2"});
  Receive("K1TST-2 de N0NODE 20-Nov-2026 2148Z dxspider >");
  EXPECT_TRUE(program.state.LoggedIn);
  EXPECT_EQ(program.state.ConnectedNodeCall, "N0NODE");
  LetPass(8min);
  EXPECT_THAT(node.called, SizeIs(1));
}

TEST_F(LoginWatch, LoginEndsTheWatch) {
  LogIn();
  EXPECT_FALSE(program.timers.Enabled(TimerId::ConnectionTimeout));
  LetPass(10min);
  EXPECT_TRUE(node.HasCaller());
  EXPECT_EQ(CountInRawView("No login request received"), 0);
}

TEST_F(LoginWatch, NodeThatFallsSilentRightBehindItsPromptCountsAsLoggedIn) {
  Connect();
  ReceiveBytes("login:");
  ExpectSent({"K1TST-2"});
  EXPECT_TRUE(program.state.LoggedIn);
  EXPECT_FALSE(program.timers.Enabled(TimerId::ConnectionTimeout));
}

TEST_F(LoginWatch, KeepAliveMinuteRunsFromTheLogin) {
  program.timers.Disable(TimerId::KeepAlive);
  Connect();
  ReceiveBytes("login:");
  EXPECT_TRUE(program.timers.Enabled(TimerId::KeepAlive));
}

TEST_F(LoginWatch, NodeThatFallsSilentRightBehindItsPromptIsLeftByTheKeepAliveAndTriedAgain) {
  program.keepAlive.KeepAliveMinutes = 5;
  Connect();
  ReceiveBytes("login:");
  LetPass(8min + 50s);
  EXPECT_TRUE(node.HasCaller());
  LetPass(20s);
  EXPECT_FALSE(node.HasCaller());
  LetRetry();
  EXPECT_THAT(node.called, SizeIs(2));
  EXPECT_TRUE(node.HasCaller());
}

class SlowConnect : public LoginWatch {
 protected:
  // The link comes up 20 s after the attempt began.
  SlowConnect() {
    world.network.latency = 10s;
    PressConnect();
    LetPassUntil(19s);
    world.network.latency = 1ms;
  }
};

TEST_F(SlowConnect, SendsNothingBeforeTheLinkIsUp) {
  EXPECT_EQ(SocketState(), SocketState::Connecting);
  LetPassUntil(25s);
  EXPECT_EQ(SocketState(), SocketState::Connected);
  ExpectNothingSent();
}

TEST_F(SlowConnect, StillGetsTheCallToASilentNode) {
  LetPassUntil(37s);
  ExpectSent({"K1TST-2"});
}

TEST_F(SlowConnect, StillGivesASilentNodeUp) {
  const auto waited = PatienceOfNextAttempt();
  EXPECT_GT(waited, 30s);
  EXPECT_LE(waited, 46s);
  EXPECT_EQ(CountInRawView("No login request received"), 1);
}

TEST_F(SlowConnect, StillLogsIn) {
  LetPassUntil(25s);
  ReceiveBytes("login: ");
  ExpectSent({"K1TST-2"});
}

TEST_F(LoginWatch, QrxEarnsTheNodeAFurther15Seconds) {
  PressConnect();
  LetPassUntil(10s);
  Receive("QRX please, starting up");
  EXPECT_EQ(txtNode(), "QRX please, starting up");
  LetPassUntil(24900ms);
  ExpectNothingSent();
  LetPassUntil(25200ms);
  ExpectSent({"K1TST-2"});
}

TEST_F(LoginWatch, QrxIsClaimedBeforeTheLogin) {
  Connect();
  Receive("QRX");
  EXPECT_THAT(log.Of("First"), IsEmpty());
}

TEST_F(LoginWatch, QrxElsewhereThanAtTheStartOrInOtherLettersIsNone) {
  PressConnect();
  LetPassUntil(10s);
  Receive("please QRX");
  Receive("qrx");
  Receive(" QRX");
  EXPECT_THAT(log.Of("First"), testing::ElementsAre("please QRX", "qrx", " QRX"));
  LetPassUntil(15100ms);
  ExpectSent({"K1TST-2"});
}

TEST_F(LoginWatch, QrxBehindTheLoginHasNoEffect) {
  LogIn();
  const auto text = txtNode();
  Receive("QRX for lunch");
  EXPECT_EQ(txtNode(), text);
  EXPECT_THAT(log.Of("First"), testing::ElementsAre("QRX for lunch"));
  EXPECT_FALSE(program.timers.Enabled(TimerId::ConnectionTimeout));
}

TEST_F(LoginWatch, ClusterThatIsOfflineIsLeftAndTriedAgain) {
  Connect();
  Receive("Cluster is offline until noon");
  LetPass(1s);
  EXPECT_EQ(SocketState(), SocketState::Closed);
  EXPECT_EQ(txtNode(), "Cluster is offline until noon");
  LetRetry();
  EXPECT_THAT(node.called, SizeIs(2));
}

TEST_F(LoginWatch, OfflineNoticeIsNotClaimed) {
  Connect();
  Receive("Cluster is offline until noon");
  LetPass(2s);
  EXPECT_THAT(log.Of("First"), testing::ElementsAre("Cluster is offline until noon"));
}

TEST_F(LoginWatch, OfflineNoticeDropsWhatStandsBehindIt) {
  Connect();
  ReceiveBytes("Cluster is offline\r\nlogin: \r\n");
  LetPass(2s);
  EXPECT_EQ(CountInRawView("login:"), 0);
  EXPECT_FALSE(program.state.LoggedIn);
}

TEST_F(LoginWatch, OfflineNoticeBehindTheLoginHasNoEffect) {
  LogIn();
  Receive("Cluster is offline says K2AAA");
  LetPass(10min);
  EXPECT_TRUE(node.HasCaller());
  EXPECT_TRUE(program.state.LoggedIn);
}

TEST_F(LoginWatch, OfflineNoticeElsewhereThanAtTheStartHasNoEffect) {
  Connect();
  Receive("The Cluster is offline");
  Receive("cluster is offline");
  EXPECT_TRUE(node.HasCaller());
}

}  // namespace
