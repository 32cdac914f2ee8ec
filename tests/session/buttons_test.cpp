#include <gmock/gmock.h>

#include "session_fixture.h"

using namespace std::chrono_literals;
using platform::SocketState;
using testing::Contains;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

constexpr char kPressConnect[] = "Press Connect to restart Auto Reconnect";

class Buttons : public SessionFixture {
 protected:
  std::string ConnectCaption() const { return program.connection.cmdConnect.Caption.Get(); }
  bool CanConnect() const { return program.connection.cmdConnect.Enabled.Get(); }
  bool CanDisconnect() const { return program.connection.cmdDisconnect.Enabled.Get(); }
  bool AutoReconnect() const { return program.connection.AutoReconnect.Value.Get(); }
};

TEST_F(Buttons, ConnectWithoutNameOrQthAsksForThemInstead) {
  for (auto missing : {&core::Settings::MyName, &core::Settings::MyQth}) {
    Station station;
    station.settings.*missing = "";
    station.Connect();
    EXPECT_EQ(station.askedUserInfo, 1);
    station.LetPass(1h);
    EXPECT_THAT(station.node.called, IsEmpty());
  }
}

TEST_F(Buttons, ConnectWithoutACallAsksForItInstead) {
  for (const char* call : {"", "   ", "-16", "-5"}) {
    Station station;
    station.settings.MyCall = call;
    station.Connect();
    EXPECT_EQ(station.askedUserInfo, 1) << "\"" << call << '"';
    station.LetPass(1h);
    EXPECT_THAT(station.node.called, IsEmpty()) << "\"" << call << '"';
  }
}

TEST_F(Buttons, CallThatBeginsWithADashIsCleared) {
  settings.MyCall = "-16";
  Connect();
  EXPECT_EQ(settings.MyCall, "");
}

TEST_F(Buttons, ConnectWorksOnceWhatWasMissingIsThere) {
  settings.MyName = "";
  Connect();
  settings.MyName = "ANNA";
  Connect();
  EXPECT_THAT(node.called, SizeIs(1));
}

TEST_F(Buttons, ConnectTicksAutoReconnectAndCanNotBePressedAgain) {
  program.connection.AutoReconnect.UserSets(false);
  PressConnect();
  EXPECT_TRUE(AutoReconnect());
  EXPECT_FALSE(program.state.UserDisconnected);
  EXPECT_FALSE(CanConnect());
  PressConnect();
  LetPass(5s);
  EXPECT_THAT(node.called, SizeIs(1));
}

TEST_F(Buttons, LoggedInSessionCanBeDisconnectedAndNotConnected) {
  LogIn();
  EXPECT_TRUE(CanDisconnect());
  EXPECT_FALSE(CanConnect());
}

TEST_F(Buttons, DisconnectSaysGoodbyeAndClosesOneAndAHalfSecondsLater) {
  LogIn();
  PressDisconnect();
  LetPass(1400ms);
  ExpectSent({"BYE"});
  EXPECT_TRUE(node.HasCaller());
  LetPass(200ms);
  EXPECT_FALSE(node.HasCaller());
  EXPECT_EQ(SocketState(), SocketState::Closed);
  EXPECT_THAT(RawView(), Contains(calendar.GmtTime() + "Forcing a disconnect with: N0NODE"));
}

TEST_F(Buttons, DisconnectShowsReadyToConnect) {
  LogIn();
  PressDisconnect();
  EXPECT_EQ(txtNode(), "Ready to Connect");
}

TEST_F(Buttons, DisconnectEndsAllReconnecting) {
  LogIn();
  PressDisconnect();
  LetPass(3h);
  EXPECT_THAT(node.called, SizeIs(1));
  EXPECT_TRUE(program.state.UserDisconnected);
  EXPECT_FALSE(AutoReconnect());
  EXPECT_TRUE(CanConnect());
  EXPECT_FALSE(CanDisconnect());
}

TEST_F(Buttons, DisconnectOfTheOperatorIsNotCountedAndClearsTheCount) {
  LogIn();
  NodeCloses();
  LetRetry();
  ReceiveBytes("login: ");
  EXPECT_EQ(program.connection.DisconnectCount, 1);
  PressDisconnect();
  LetPass(3s);
  EXPECT_EQ(program.connection.DisconnectCount, 0);
}

TEST_F(Buttons, NodeThatHangsUpUponTheGoodbyeIsNotCountedNorTriedAgain) {
  LogIn();
  PressDisconnect();
  LetPass(100ms);
  NodeCloses();
  LetPass(1h);
  EXPECT_THAT(node.called, SizeIs(1));
  EXPECT_EQ(program.connection.DisconnectCount, 0);
  EXPECT_EQ(CountInRawView("Winsock Connection Closed by remote node: N0NODE"), 1);
  EXPECT_TRUE(CanConnect());
}

TEST_F(Buttons, SecondPressOfDisconnectDoesNothing) {
  LogIn();
  PressDisconnect();
  LetPass(100ms);
  PressDisconnect();
  LetPass(100ms);
  ExpectSent({"BYE"});
}

TEST_F(Buttons, DisconnectBeforeTheLoginClosesWithoutAGoodbye) {
  LogIn();
  NodeCloses();
  LetRetry();
  ASSERT_TRUE(node.HasCaller());
  PressDisconnect();
  LetPass(2s);
  ExpectNothingSent();
  EXPECT_FALSE(node.HasCaller());
  LetPass(1h);
  EXPECT_THAT(node.called, SizeIs(2));
}

TEST_F(Buttons, DisconnectCanBePressedWhileTheNextTryIsAwaited) {
  node.refuses = true;
  Connect();
  EXPECT_TRUE(CanDisconnect());
  EXPECT_TRUE(CanConnect());
}

TEST_F(Buttons, DisconnectDuringTheWaitEndsReconnectingAndSaysSoAtTheNextTick) {
  node.refuses = true;
  Connect();
  LetPass(10s);
  PressDisconnect();
  LetPass(2s);
  EXPECT_NE(txtNode(), kPressConnect);
  LetPass(60s);
  EXPECT_EQ(txtNode(), kPressConnect);
  EXPECT_FALSE(AutoReconnect());
  EXPECT_TRUE(CanConnect());
  EXPECT_FALSE(CanDisconnect());
  LetPass(3h);
  EXPECT_THAT(node.called, SizeIs(1));
  EXPECT_EQ(txtNode(), kPressConnect);
}

TEST_F(Buttons, ConnectAfterADisconnectReconnectsByItselfAgain) {
  node.refuses = true;
  Connect();
  PressDisconnect();
  LetPass(70s);
  Connect();
  EXPECT_THAT(node.called, SizeIs(2));
  EXPECT_TRUE(AutoReconnect());
  LetRetry();
  EXPECT_THAT(node.called, SizeIs(3));
}

TEST_F(Buttons, DisconnectWhileAnAttemptHangsEndsIt) {
  LogIn();
  world.network.silentAddresses = {"10.1.2.3"};
  NodeCloses();
  LetRetry();
  ASSERT_EQ(SocketState(), SocketState::Connecting);
  ASSERT_TRUE(CanDisconnect());
  PressDisconnect();
  LetPass(3s);
  EXPECT_EQ(SocketState(), SocketState::Closed);
  world.network.silentAddresses.clear();
  LetPass(3h);
  EXPECT_THAT(node.called, SizeIs(1));
  EXPECT_TRUE(CanConnect());
}

TEST_F(Buttons, DisconnectRightBehindConnectLeavesNoLink) {
  PressConnect();
  LetPass(100ms);
  PressDisconnect();
  LetPass(5s);
  EXPECT_FALSE(node.HasCaller());
  EXPECT_EQ(SocketState(), SocketState::Closed);
  EXPECT_FALSE(program.intake.Held());
}

TEST_F(Buttons, ConnectBehindADisconnectThatTheNodeCompletedIsNotUndoneByIt) {
  LogIn();
  PressDisconnect();
  LetPass(100ms);
  NodeCloses();
  ASSERT_TRUE(CanConnect());
  PressConnect();
  LetPass(5s);
  EXPECT_TRUE(node.HasCaller());
  EXPECT_EQ(SocketState(), SocketState::Connected);
}

TEST_F(Buttons, ConnectPressedDuringTheWaitTakesThePlaceOfTheNextTry) {
  LogIn();
  NodeCloses();
  LetPass(10s);
  LogIn();
  LetPass(3min);
  EXPECT_THAT(node.called, SizeIs(2));
  EXPECT_TRUE(program.state.LoggedIn);
}

TEST_F(Buttons, LastErrorsOfADisconnectedLinkDoNotBringItBack) {
  LogIn();
  PressDisconnect();
  NodeResets();
  LetPass(3h);
  EXPECT_THAT(node.called, SizeIs(1));
}

TEST_F(Buttons, ConnectIsCalledSoThatItDoesNotWaitWhileATryIsAwaited) {
  EXPECT_EQ(ConnectCaption(), "Connect");
  Connect();
  ReceiveBytes("login: ");
  NodeCloses();
  EXPECT_EQ(ConnectCaption(), "Connect now");
  EXPECT_EQ(program.connection.cmdDisconnect.ToolTip.Get(), "Ends the tries");
  PressDisconnect();
  LetPass(2min);
  EXPECT_EQ(ConnectCaption(), "Connect");
  EXPECT_EQ(program.connection.cmdDisconnect.ToolTip.Get(), "");
}

TEST_F(Buttons, NoTryIsAwaitedOnceTheUserHasEndedTheOneUnderWay) {
  PressConnect();
  PressDisconnect();
  LetPass(1s);
  EXPECT_EQ(ConnectCaption(), "Connect");
}

TEST_F(Buttons, ConnectTriesAtOnceWhileATryIsAwaited) {
  Connect();
  ReceiveBytes("login: ");
  NodeCloses();
  PressConnect();
  LetPass(1s);
  EXPECT_THAT(node.called, SizeIs(2));
}

}  // namespace
