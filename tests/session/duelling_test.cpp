#include "session/duelling.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

#include "session_fixture.h"

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class DuelTest : public SessionFixture {
 protected:
  DuelTest() { PressConnect(); }

  // A session at a DXSpider, up to where a duel may be noticed. The call that it was given.
  std::string Session(const std::string& uptime = "Uptime: 2d 3h 5m") {
    world.RunUntil([this] { return node.HasCaller(); }, 70s);
    LetPass(1s);
    ReceiveBytes("login: ");
    const Lines calls = Sent();
    Receive("");
    Receive("running DXSpider V1.57 build 441");
    Receive(uptime);
    EXPECT_TRUE(program.duelling.DuelArmed);
    Sent();
    return calls.size() == 1 ? calls.front() : "(" + std::to_string(calls.size()) + " lines)";
  }
  void SessionThatTheNodeCloses(const std::string& uptime = "Uptime: 2d 3h 5m") {
    Session(uptime);
    NodeCloses();
  }
};

TEST_F(DuelTest, TwoClosesByTheNodeWithinFourMinutesGiveTheNextLoginAnotherSsid) {
  SessionThatTheNodeCloses();
  EXPECT_FALSE(program.duelling.DuelSuspected);
  SessionThatTheNodeCloses();
  EXPECT_TRUE(program.duelling.DuelSuspected);
  const std::string call = Session();
  EXPECT_THAT(call, testing::MatchesRegex("K1TST-[0-9]+"));
  EXPECT_FALSE(program.duelling.DuelSuspected);
}

TEST_F(DuelTest, SsidIsForThatLoginOnly) {
  SessionThatTheNodeCloses();
  SessionThatTheNodeCloses();
  SessionThatTheNodeCloses();
  EXPECT_EQ(Session(), "K1TST-2");
  EXPECT_EQ(program.state.TempCall, "");
  EXPECT_EQ(settings.MyCall, "K1TST-2");
}

TEST_F(DuelTest, GreetingIsReadWithTheTemporaryCall) {
  SessionThatTheNodeCloses();
  SessionThatTheNodeCloses();
  const std::string call = Session();
  program.state.ConnectedNodeCall.clear();
  Receive(call + " de N0NODE 20-Nov-2026 2101Z");
  EXPECT_EQ(program.state.ConnectedNodeCall, "N0NODE");
}

TEST_F(DuelTest, UserIsToldAndTheMessageIsClosedAfter60Seconds) {
  SessionThatTheNodeCloses();
  SessionThatTheNodeCloses();
  EXPECT_THAT(messages, IsEmpty());
  Session();
  ASSERT_THAT(messages, SizeIs(1));
  EXPECT_EQ(messages.front().first, "Duelling Connections Suspected");
  for (const char* words :
       {"      Your SSID has temporarily been changed.",
        "      If you are making two or more connections",
        "      each one requires a distinctive call.", "      For example W7XXX, W7XXX-1, W7XXX-2",
        "      Go to \"Configuration>User Info\" and add",
        "      an SSID to your call.  ie -1, -2 etc",
        "   You must use DIFFERENT SSIDs for each connection."})
    EXPECT_THAT(messages.front().second, HasSubstr(words));
  LetPass(59s);
  EXPECT_EQ(messagesClosed, 0);
  LetPass(1s);
  EXPECT_EQ(messagesClosed, 1);
  LetPass(5min);
  EXPECT_EQ(messagesClosed, 1);
}

TEST_F(DuelTest, NodeThatHasJustRestartedExplainsALostLink) {
  for (const char* uptime : {"Uptime 0 00:29", "Uptime:  34s", "Uptime:  29m 59s"}) {
    SessionThatTheNodeCloses(uptime);
    SessionThatTheNodeCloses(uptime);
    EXPECT_EQ(Session(uptime), "K1TST-2") << uptime;
    EXPECT_THAT(messages, IsEmpty()) << uptime;
    NodeCloses();
  }
}

TEST_F(DuelTest, ThirtyMinutesAreEnough) {
  SessionThatTheNodeCloses("Uptime 0 00:30");
  SessionThatTheNodeCloses("Uptime 0 00:30");
  EXPECT_TRUE(program.duelling.DuelSuspected);
}

TEST_F(DuelTest, FarewellOfTheNodeExplainsItsClose) {
  SessionThatTheNodeCloses();
  Session();
  Receive("73 de N0NODE");
  NodeCloses();
  EXPECT_FALSE(program.duelling.DuelSuspected);
}

TEST_F(DuelTest, FarewellStandsAtTheBeginningOfItsLineAndIsClaimed) {
  Session();
  log.entries.clear();
  program.duelling.DuelSeenOnce = true;
  Receive("vy 73 de K2AAA");
  EXPECT_TRUE(program.duelling.DuelSeenOnce);
  Receive("73K1TST-2");
  EXPECT_FALSE(program.duelling.DuelSeenOnce);
  EXPECT_THAT(log.Of("Third"), ElementsAre("vy 73 de K2AAA"));
}

TEST_F(DuelTest, ResetOfTheLinkIsNoClose) {
  SessionThatTheNodeCloses();
  Session();
  NodeResets();
  EXPECT_FALSE(program.duelling.DuelSuspected);
  EXPECT_FALSE(program.duelling.ClosedByRemote);
}

TEST_F(DuelTest, OwnCloseIsNoDuel) {
  SessionThatTheNodeCloses();
  Session();
  program.connection.ForceClose();
  EXPECT_FALSE(program.duelling.DuelSuspected);
  EXPECT_FALSE(program.duelling.ClosedByRemote);
}

TEST_F(DuelTest, SessionThatDidNotPassItsLoginBreaksTheSeries) {
  SessionThatTheNodeCloses();
  EXPECT_TRUE(program.duelling.DuelSeenOnce);
  LetRetry();
  ReceiveBytes("login: ");
  NodeCloses();
  EXPECT_FALSE(program.duelling.DuelSeenOnce);
  SessionThatTheNodeCloses();
  EXPECT_FALSE(program.duelling.DuelSuspected);
}

// A session that has ended, told to the rule itself.
class DuelRule : public SessionFixture {
 protected:
  void NodeClosedASession() {
    duel.DuelArmed = true;
    duel.ClosedByRemote = true;
    duel.NodeUptimeMinutes = 30;
    duel.DuellingConnection();
  }
  session::Duelling& duel = program.duelling;
};

TEST_F(DuelRule, SecondCloseCountsUpTo240Seconds) {
  NodeClosedASession();
  LetPass(240s);
  NodeClosedASession();
  EXPECT_TRUE(duel.DuelSuspected);
}

TEST_F(DuelRule, SecondCloseAfterMoreThan240SecondsEndsTheSeries) {
  NodeClosedASession();
  LetPass(241s);
  NodeClosedASession();
  EXPECT_FALSE(duel.DuelSuspected);
  EXPECT_FALSE(duel.DuelSeenOnce);
  LetPass(60s);
  NodeClosedASession();
  EXPECT_FALSE(duel.DuelSuspected);
  LetPass(60s);
  NodeClosedASession();
  EXPECT_TRUE(duel.DuelSuspected);
}

TEST_F(DuelRule, SecondsRunOnOverMidnight) {
  world.clock.Set(std::chrono::sys_days{std::chrono::year{2026} / 11 / 20} + 23h + 59min);
  NodeClosedASession();
  LetPass(2min);
  NodeClosedASession();
  EXPECT_TRUE(duel.DuelSuspected);
}

TEST_F(DuelRule, FreshNodeLeavesTheSeriesAsItStands) {
  NodeClosedASession();
  duel.ClosedByRemote = true;
  duel.NodeUptimeMinutes = 29;
  duel.DuellingConnection();
  EXPECT_TRUE(duel.DuelSeenOnce);
  EXPECT_FALSE(duel.DuelSuspected);
}

TEST_F(DuelRule, SsidIsPickedFrom1To14) {
  std::set<std::string> calls;
  for (int i = 0; i < 500; ++i) {
    duel.DuelSuspected = true;
    calls.insert(duel.CheckDuelling("K1TST-2"));
  }
  std::set<std::string> all;
  for (int ssid = 1; ssid <= 14; ++ssid) all.insert("K1TST-" + std::to_string(ssid));
  EXPECT_EQ(calls, all);
}

TEST_F(DuelRule, CallWithoutASuspicionStands) {
  EXPECT_EQ(duel.CheckDuelling("K1TST-2"), "K1TST-2");
  EXPECT_THAT(messages, IsEmpty());
}

TEST_F(DuelRule, NoticeOfTheNodeRaisesTheSuspicionAtOnce) {
  for (const char* greeting : {"running DXSpider V1.57 build 441", "N0NODE, a Zelva Cluster"}) {
    Station station;
    station.Connect();
    station.ReceiveBytes("login: \r\n");
    station.Receive(greeting);
    station.log.entries.clear();
    const std::string notice = "K1TST-2 has logged in once more, this instance is disconnected";
    station.Receive(notice);
    EXPECT_TRUE(station.program.duelling.DuelSuspected) << greeting;
    EXPECT_THAT(station.log.Of("Third"), ElementsAre(notice)) << greeting;
    station.NodeCloses();
    station.Sent();
    station.LetRetry();
    station.ReceiveBytes("login: ");
    EXPECT_THAT(station.messages, SizeIs(1)) << greeting;
  }
}

TEST_F(DuelRule, NoticeOfOtherSoftwareOrInTheMiddleOfALineMeansNothing) {
  Connect();
  ReceiveBytes("login: \r\n");
  Receive("N0NODE running CLX 5.20");
  Receive("this instance is disconnected");
  EXPECT_FALSE(duel.DuelSuspected);
  NodeCloses();
  LetRetry();
  ReceiveBytes("login: \r\n");
  Receive("running DXSpider V1.57 build 441");
  Receive("this instance is disconnected, said he");
  EXPECT_FALSE(duel.DuelSuspected);
}

}  // namespace
