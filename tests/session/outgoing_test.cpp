#include "session/outgoing.h"

#include <gmock/gmock.h>

#include "session_fixture.h"

using namespace std::chrono_literals;
using platform::SocketState;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class OutgoingTest : public SessionFixture {
 protected:
  // A link that is being made, and comes up 8 s later.
  void BeginConnecting() {
    world.network.latency = 10s;
    PressConnect();
    LetPassUntil(12s);
    world.network.latency = 1ms;
    ASSERT_EQ(SocketState(), SocketState::Connecting);
  }
};

TEST_F(OutgoingTest, TextIsLostWithTheSocketClosed) {
  EXPECT_FALSE(program.outgoing.SendAsIs("lost"));
  EXPECT_THAT(RawView(), IsEmpty());
  Connect();
  ExpectNothingSent();
}

TEST_F(OutgoingTest, TextIsLostWhileTheNameIsLookedUp) {
  world.network.latency = 5s;
  PressConnect();
  LetPassUntil(2s);
  ASSERT_EQ(SocketState(), SocketState::Resolving);
  EXPECT_FALSE(program.outgoing.SendAsIs("lost"));
  LetPassUntil(9s);
  world.network.latency = 1ms;
  LetPassUntil(12s);
  ExpectNothingSent();
  EXPECT_EQ(CountInRawView("lost"), 0);
}

TEST_F(OutgoingTest, TextIsLostBehindTheLossOfTheLink) {
  LogIn();
  NodeCloses();
  EXPECT_FALSE(program.outgoing.SendAsIs("lost"));
  LetRetry();
  ExpectNothingSent();
}

TEST_F(OutgoingTest, TextWaitsInOrderWhileTheLinkIsBeingMade) {
  BeginConnecting();
  EXPECT_TRUE(program.outgoing.SendAsIs("one"));
  EXPECT_TRUE(program.outgoing.Send("two"));
  EXPECT_TRUE(program.outgoing.SendAsIs(""));
  ExpectNothingSent();
  LetPassUntil(23s);
  ExpectSent({"one", "TWO", ""});
  EXPECT_EQ(CountInRawView("   <- one"), 1);
  EXPECT_EQ(CountInRawView("   <- TWO"), 1);
}

TEST_F(OutgoingTest, TextThatWaitedGoesBeforeTextSentOnceTheLinkIsUp) {
  BeginConnecting();
  program.outgoing.SendAsIs("one");
  LetPassUntil(23s);
  program.outgoing.SendAsIs("two");
  ExpectSent({"one", "two"});
}

TEST_F(OutgoingTest, PasswordThatWaitsIsHiddenToo) {
  program.outgoing.NodePassword = "secret";
  BeginConnecting();
  program.outgoing.SendAsIs("one");
  program.outgoing.SendPassword();
  program.outgoing.SendAsIs("two");
  LetPassUntil(23s);
  ExpectSent({"one", "secret", "two"});
  EXPECT_EQ(CountInRawView("secret"), 0);
  EXPECT_EQ(CountInRawView("   <- ********"), 1);
}

TEST_F(OutgoingTest, TextThatWaitsIsLostWithAnAttemptThatFails) {
  node.refuses = true;
  BeginConnecting();
  program.outgoing.SendAsIs("lost");
  LetPassUntil(25s);
  node.refuses = false;
  LetRetry();
  ASSERT_EQ(SocketState(), SocketState::Connected);
  ExpectNothingSent();
}

TEST_F(OutgoingTest, TextThatWaitsIsLostWhenTheSessionIsClosed) {
  BeginConnecting();
  program.outgoing.SendAsIs("lost");
  program.connection.ForceClose();
  LetRetry();
  ASSERT_EQ(SocketState(), SocketState::Connected);
  ExpectNothingSent();
}

TEST_F(OutgoingTest, SendPutsTextInUpperCase) {
  LogIn();
  EXPECT_TRUE(program.outgoing.Send("bye"));
  ExpectSent({"BYE"});
  EXPECT_EQ(RawView().back(), "   <- BYE");
}

TEST_F(OutgoingTest, SendAsIsLeavesTextAsItStands) {
  LogIn();
  EXPECT_TRUE(program.outgoing.SendAsIs("set/name Anna  "));
  ExpectSent({"set/name Anna  "});
  EXPECT_EQ(RawView().back(), "   <- set/name Anna  ");
}

TEST_F(OutgoingTest, ClxGetsTextInLowerCase) {
  LogIn();
  program.state.Kind = session::NodeKind::Clx;
  program.outgoing.Send("bye");
  program.outgoing.SendAsIs("Set/Name Anna");
  ExpectSent({"bye", "set/name anna"});
  EXPECT_EQ(RawView().back(), "   <- set/name anna");
}

TEST_F(OutgoingTest, PasswordForClxStaysAsItIs) {
  LogIn();
  program.state.Kind = session::NodeKind::Clx;
  program.outgoing.NodePassword = "SeCret";
  program.outgoing.SendPassword();
  ExpectSent({"SeCret"});
}

TEST_F(OutgoingTest, EachSendIsMarkedALostOneToo) {
  program.outgoing.SendAsIs("lost");
  EXPECT_TRUE(program.state.LastSendWasUser);
  LogIn();
  program.state.LastSendWasUser = false;
  program.outgoing.Send("bye");
  EXPECT_TRUE(program.state.LastSendWasUser);
}

TEST_F(OutgoingTest, TextsThatWentOutAreToldAsTheyWent) {
  Lines told;
  program.outgoing.onSent = [&](std::string_view text) { told.emplace_back(text); };
  program.outgoing.NodePassword = "secret";
  program.outgoing.SendAsIs("lost");
  BeginConnecting();
  program.outgoing.SendAsIs("waits");
  program.outgoing.SendPassword();
  EXPECT_THAT(told, IsEmpty());
  LetPassUntil(23s);
  EXPECT_THAT(told, ElementsAre("waits"));
  program.state.Kind = session::NodeKind::Clx;
  program.outgoing.Send("bye");
  program.outgoing.SendPassword();
  EXPECT_THAT(told, ElementsAre("waits", "bye"));
}

TEST_F(OutgoingTest, EmptyTextIsABareLineEnd) {
  LogIn();
  EXPECT_TRUE(program.outgoing.SendAsIs(""));
  LetPass(5ms);
  EXPECT_THAT(node.TakePieces(), ElementsAre("\r\n"));
  EXPECT_EQ(RawView().back(), "   <- ");
}

TEST_F(OutgoingTest, LineGoesOutWithItsEndInOneWrite) {
  LogIn();
  program.outgoing.SendAsIs("sh/dx");
  LetPass(5ms);
  EXPECT_THAT(node.TakePieces(), ElementsAre("sh/dx\r\n"));
}

TEST_F(OutgoingTest, WithoutAStoredPasswordNothingIsSentForIt) {
  LogIn();
  program.outgoing.SendPassword();
  ExpectNothingSent();
  EXPECT_EQ(CountInRawView("********"), 0);
}

TEST_F(OutgoingTest, RawViewDropsItsOldestLinesAbove20000Characters) {
  const std::string line(98, 'x');
  for (int i = 0; i < 200; ++i) program.outgoing.updateText2(line);
  EXPECT_EQ(RawView().size(), 200u);
  program.outgoing.updateText2("y");
  EXPECT_EQ(RawView().size(), 201u);
  program.outgoing.updateText2("z");
  EXPECT_GE(RawView().size(), 150u);
  EXPECT_LE(RawView().size(), 153u);
  EXPECT_EQ(RawView().back(), "z");
}

}  // namespace
