#include <gmock/gmock.h>

#include "session_fixture.h"

using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

class Ar17Test : public SessionFixture {
 protected:
  Ar17Test() { program.keepAlive.KeepAliveMinutes = 5; }

  void LogInTo(const std::string& greeting) {
    Connect();
    ReceiveBytes("login: ");
    Receive("");
    Receive(greeting);
    Sent();
    log.entries.clear();
  }
  void LogInToAr() { LogInTo("Welcome to the N0NODE AR-Cluster node"); }
  std::string Status() const { return program.ar17.lblStatus.Caption.Get(); }
  std::string DxState() const { return program.ar17.lblDxState.Caption.Get(); }
  std::string OrigState() const { return program.ar17.lblOrigState.Caption.Get(); }
};

TEST_F(Ar17Test, NodeThatAcceptsIsToldTheVersion) {
  LogInToAr();
  Receive("DX ArPc enabled for K1TST-2");
  ExpectSent({"KeepAlive Rx 5  V2.4315"});
  EXPECT_TRUE(program.state.ArpcAsked);
  EXPECT_FALSE(program.state.Ar17Refused());
  EXPECT_EQ(Status(), "Node is AR17 Capable");
  EXPECT_EQ(DxState(), "DX State");
  EXPECT_EQ(OrigState(), "Orig State/Province");
}

TEST_F(Ar17Test, VersionIsToldWithTheMode) {
  program.keepAlive.KeepAliveRx = false;
  program.keepAlive.KeepAliveMinutes = 12;
  LogInToAr();
  Receive("DX ArPc enabled");
  ExpectSent({"KeepAlive Tx 12  V2.4315"});
}

TEST_F(Ar17Test, AcceptanceIsClaimedAndNotForwarded) {
  LogInToAr();
  Receive("DX ArPc enabled for K1TST-2");
  EXPECT_THAT(log.Of("Third"), IsEmpty());
  EXPECT_THAT(log.Of("forwarded"), IsEmpty());
}

TEST_F(Ar17Test, RefusalIsClaimedAndForwarded) {
  LogInToAr();
  Receive("SET/DX_ARPC command error");
  EXPECT_TRUE(program.state.ArpcRefused);
  EXPECT_TRUE(program.state.Ar17Refused());
  EXPECT_EQ(Status(), "Node is NOT AR17 capable");
  EXPECT_EQ(DxState(), "DX State");
  EXPECT_THAT(log.Of("Third"), IsEmpty());
  EXPECT_THAT(log.Of("forwarded"), ElementsAre("SET/DX_ARPC command error"));
  ExpectNothingSent();
}

TEST_F(Ar17Test, OtherLinesOfAnArClusterSettleNothing) {
  LogInToAr();
  Receive("welcome");
  LetPass(20s);
  EXPECT_FALSE(program.state.ArpcAsked);
  EXPECT_FALSE(program.state.Ar17Refused());
  EXPECT_FALSE(program.duelling.DuelArmed);
  EXPECT_EQ(ar17Settled, 0);
  EXPECT_THAT(log.Of("Third"), ElementsAre("welcome"));
}

TEST_F(Ar17Test, OnceSettledItReadsNoFurtherLine) {
  LogInToAr();
  Receive("SET/DX_ARPC command error");
  log.entries.clear();
  Receive("DX ArPc enabled");
  Receive("K2AAA is not a valid callsign");
  ExpectNothingSent();
  EXPECT_FALSE(program.state.ArpcAsked);
  EXPECT_TRUE(program.state.LoggedIn);
  EXPECT_EQ(ar17Settled, 1);
  EXPECT_THAT(log.Of("Third"), ElementsAre("DX ArPc enabled", "K2AAA is not a valid callsign"));
}

TEST_F(Ar17Test, SettlingArmsTheDuelEmptiesTheCommandLineAndTellsTheDisplay) {
  LogInToAr();
  program.commandLine.txtCmdLine.UserTypes("sh/dx");
  Receive("DX ArPc enabled");
  EXPECT_TRUE(program.duelling.DuelArmed);
  EXPECT_EQ(program.commandLine.txtCmdLine.Text.Get(), "");
  EXPECT_EQ(ar17Settled, 1);
}

TEST_F(Ar17Test, ArClusterIsAskedForMissedSpotsThen) {
  program.state.WantMissedSpots = program.state.FirstConnect = true;
  LogInToAr();
  Receive("welcome");
  EXPECT_THAT(above.asked, IsEmpty());
  Receive("SET/DX_ARPC command error");
  EXPECT_THAT(above.asked, ElementsAre("GetEm"));
  EXPECT_FALSE(program.state.FirstConnect);
}

TEST_F(Ar17Test, ArClusterIsNotAskedForMissedSpotsThatNobodyWants) {
  LogInToAr();
  Receive("DX ArPc enabled");
  EXPECT_THAT(above.asked, IsEmpty());
}

// A node that leaves the question without an answer.

class SilentArCluster : public Ar17Test {
 protected:
  // The question goes out.
  void Ask() {
    LogInToAr();
    Receive(kArPrompt);
    LetPass(1s);
    ExpectSent({"SET/DX_ARPC ON"});
  }
  bool Refused() const { return program.state.Ar17Refused(); }
};

TEST_F(SilentArCluster, CountsAsRefusingThirtySecondsBehindTheQuestion) {
  Ask();
  LetPass(28s);
  EXPECT_FALSE(Refused());
  EXPECT_FALSE(program.duelling.DuelArmed);
  LetPass(2s);
  EXPECT_TRUE(Refused());
  EXPECT_FALSE(program.state.ArpcRefused) << "it has not said so";
  EXPECT_TRUE(program.duelling.DuelArmed);
  EXPECT_EQ(Status(), "Node is NOT AR17 capable");
}

TEST_F(SilentArCluster, LosesNothingOfWhatIsBeingTyped) {
  Ask();
  program.commandLine.txtCmdLine.UserTypes("sh/dx");
  LetPass(30s);
  EXPECT_TRUE(Refused());
  EXPECT_EQ(program.commandLine.txtCmdLine.Text.Get(), "sh/dx");
}

TEST_F(SilentArCluster, IsAskedForMissedSpotsOnceWhetherItAnswersLaterOrNot) {
  program.state.WantMissedSpots = program.state.FirstConnect = true;
  Ask();
  LetPass(30s);
  EXPECT_THAT(above.asked, ElementsAre("GetEm"));
  Receive("DX ArPc enabled");
  EXPECT_THAT(above.asked, ElementsAre("GetEm"));
}

TEST_F(SilentArCluster, AnswerThatComesLaterStillCounts) {
  Ask();
  LetPass(1min);
  Receive("DX ArPc enabled for K1TST-2");
  ExpectSent({"KeepAlive Rx 5  V2.4315"});
  EXPECT_FALSE(Refused());
  EXPECT_TRUE(program.state.ArpcAsked);
  EXPECT_EQ(Status(), "Node is AR17 Capable");
  EXPECT_EQ(ar17Settled, 1);
}

TEST_F(SilentArCluster, RefusalThatComesLaterIsClaimedToo) {
  Ask();
  LetPass(1min);
  Receive("SET/DX_ARPC command error");
  EXPECT_TRUE(program.state.ArpcRefused);
  EXPECT_THAT(log.Of("Third"), Not(Contains("SET/DX_ARPC command error")));
}

TEST_F(SilentArCluster, AnswerInTimeIsNotTakenBack) {
  Ask();
  Receive("DX ArPc enabled");
  LetPass(1min);
  EXPECT_FALSE(Refused());
  EXPECT_EQ(Status(), "Node is AR17 Capable");
}

TEST_F(SilentArCluster, SilenceOfTheLastSessionDoesNotCountForTheNextOne) {
  Ask();
  LetPass(20s);
  NodeCloses();
  LogInToAr();
  LetPass(20s);
  EXPECT_TRUE(program.state.LoggedIn);
  EXPECT_FALSE(Refused());
}

// A node whose prompt is not its software's: the question never goes out.

class PromptlessArCluster : public Ar17Test {
 protected:
  bool Refused() const { return program.state.Ar17Refused(); }
};

TEST_F(PromptlessArCluster, CountsAsRefusingThirtySecondsBehindTheLogin) {
  LogInToAr();
  Receive("K1TST-2 at your service >>");
  LetPass(29s);
  EXPECT_FALSE(Refused());
  LetPass(1s);
  EXPECT_TRUE(Refused());
  EXPECT_TRUE(program.duelling.DuelArmed);
  EXPECT_EQ(Status(), "Node is NOT AR17 capable");
}

TEST_F(PromptlessArCluster, IsAskedForMissedSpotsThenAndOnce) {
  program.state.WantMissedSpots = program.state.FirstConnect = true;
  LogInToAr();
  LetPass(30s);
  EXPECT_THAT(above.asked, ElementsAre("GetEm"));
  LetPass(5min);
  EXPECT_THAT(above.asked, ElementsAre("GetEm"));
}

TEST_F(PromptlessArCluster, IsStillAskedAtAPromptThatComesLater) {
  LogInToAr();
  LetPass(1min);
  Receive(kArPrompt);
  LetPass(1s);
  ExpectSent({"SET/DX_ARPC ON"});
  Receive("DX ArPc enabled");
  EXPECT_FALSE(Refused());
}

TEST_F(PromptlessArCluster, HasThirtySecondsFromThePromptThatComesInTime) {
  LogInToAr();
  LetPass(25s);
  Receive(kArPrompt);
  LetPass(25s);
  EXPECT_FALSE(Refused());
  LetPass(6s);
  EXPECT_TRUE(Refused());
}

TEST_F(PromptlessArCluster, ThatNamesItselfLateRefusesInTheEndToo) {
  LogInTo("good evening");
  LetPass(50s);
  Receive("Welcome to the N0NODE AR-Cluster node");
  EXPECT_FALSE(Refused());
  LetPass(10s);
  EXPECT_TRUE(Refused());
}

struct Incapable {
  const char* greeting;
  const char* status;
  const char* origState;
  bool forwardsNextLine;
};

TEST_F(Ar17Test, SoftwareWithoutExtendedLinesRefusesFromTheMomentItIsNamed) {
  const Incapable table[] = {
      {"running DXSpider V1.57 build 441", "Node is DX Spider", "Orig State", true},
      {"the software is DxNet.", "Node is DxNet", "Orig State/Province", true},
      {"N0NODE running CLX 5.20", "", "Orig State/Province", true},
      {"N0NODE on WinCluster", "", "Orig State/Province", true},
      {"here is CW Skimmer", "", "Orig State/Province", true},
      {"N0NODE, a Zelva Cluster", "Node is Zelva Cluster", "Orig State/Province", false}};
  for (const Incapable& each : table) {
    Station station;
    station.Connect();
    station.ReceiveBytes("login: \r\n");
    station.Receive(each.greeting);
    auto& session = station.program;
    EXPECT_TRUE(session.state.Ar17Refused()) << each.greeting;
    station.log.entries.clear();
    station.Receive("any line");
    EXPECT_EQ(session.ar17.lblStatus.Caption.Get(), each.status) << each.greeting;
    EXPECT_EQ(session.ar17.lblDxState.Caption.Get(), "DX State") << each.greeting;
    EXPECT_EQ(session.ar17.lblOrigState.Caption.Get(), each.origState) << each.greeting;
    EXPECT_TRUE(session.duelling.DuelArmed) << each.greeting;
    EXPECT_EQ(station.ar17Settled, 1) << each.greeting;
    EXPECT_THAT(station.log.Of("Third"), ElementsAre("any line")) << each.greeting;
    EXPECT_EQ(station.log.Of("forwarded").size(), each.forwardsNextLine ? 1u : 0u) << each.greeting;
    EXPECT_THAT(station.above.asked, Not(Contains("GetEm"))) << each.greeting;
  }
}

TEST_F(Ar17Test, NodeThatNamesNoSoftwareRefusesFiveSecondsBehindTheLogin) {
  Connect();
  LetPass(8s);
  ReceiveBytes("Please enter your call: ");
  LetPass(4900ms);
  EXPECT_FALSE(program.state.Ar17Refused());
  LetPass(200ms);
  EXPECT_TRUE(program.state.Ar17Refused());
  EXPECT_FALSE(program.state.ArpcRefused);
}

TEST_F(Ar17Test, SecondsOfTheLastLoginDoNotCountForTheNextOne) {
  Connect();
  ReceiveBytes("Please enter your call: ");
  NodeCloses();
  PressConnect();
  LetPass(3s);
  ReceiveBytes("Please enter your call: ");
  LetPass(3s);
  EXPECT_TRUE(program.state.LoggedIn);
  EXPECT_FALSE(program.state.Ar17Refused());
}

TEST_F(Ar17Test, SecondsOfTheLastLoginDoNotRunOutBeforeTheNextOne) {
  Connect();
  ReceiveBytes("Please enter your call: ");
  LetPass(1s);
  NodeCloses();
  PressConnect();
  LetPass(6s);
  EXPECT_FALSE(program.state.LoggedIn);
  ReceiveBytes("Please enter your call: ");
  LetPass(1s);
  EXPECT_FALSE(program.state.Ar17Refused());
}

TEST_F(Ar17Test, SoftwareNamedLateIsTakenAtItsWord) {
  Connect();
  ReceiveBytes("Please enter your call: ");
  LetPass(10s);
  EXPECT_TRUE(program.state.Ar17Refused());
  Receive("");
  Receive("Welcome to the N0NODE AR-Cluster node");
  EXPECT_FALSE(program.state.Ar17Refused());
  Receive("DX ArPc enabled");
  EXPECT_TRUE(program.state.ArpcAsked);
}

// Calls that a node does not take.

TEST_F(Ar17Test, NodeThatRefusesTheCallIsLeftAndItsWordsShow) {
  for (const char* words :
       {"K1TST-2 is not a valid callsign", "Sorry K1TST-2 is an invalid callsign"}) {
    Station station;
    station.Connect();
    station.ReceiveBytes("login: \r\n");
    station.Receive(words);
    EXPECT_FALSE(station.program.state.LoggedIn) << words;
    EXPECT_FALSE(station.node.HasCaller()) << words;
    EXPECT_EQ(station.txtNode(), words);
  }
}

TEST_F(Ar17Test, RefusedCallIsTriedAgain) {
  Connect();
  ReceiveBytes("login: \r\n");
  Receive("K1TST-2 is not a valid callsign");
  ExpectSent({"K1TST-2"});
  LetRetry();
  ReceiveBytes("login: ");
  ExpectSent({"K1TST-2"});
}

TEST_F(Ar17Test, TalkOfCallsignsBehindTheLoginMeansNothing) {
  LogInTo("running DXSpider V1.57 build 441");
  Receive("hello");
  Receive("K2AAA is not a valid callsign");
  EXPECT_TRUE(program.state.LoggedIn);
}

TEST_F(Ar17Test, RefusalOfANodeThatHasNamedItselfBeforeTheLoginEndsTheLink) {
  Connect();
  Receive("Welcome to DXSpider");
  ReceiveBytes("login: ");
  Receive("");
  Receive("one moment");
  Receive("Sorry K1TST-2 is an invalid callsign");
  EXPECT_FALSE(program.state.LoggedIn);
  EXPECT_EQ(txtNode(), "Sorry K1TST-2 is an invalid callsign");
}

}  // namespace
