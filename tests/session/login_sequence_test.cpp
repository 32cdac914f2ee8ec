#include "session/login_sequence.h"

#include <gmock/gmock.h>

#include "session_fixture.h"

using namespace std::chrono_literals;
using session::SpiderHasMyDx;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

class LoginSequenceTest : public SessionFixture {
 protected:
  // Up to the line that names the software; what was sent up to the call is gone.
  void LogInTo(const std::string& greeting) {
    Connect();
    ReceiveBytes("login: ");
    Sent();
    Receive("");
    Receive(greeting);
  }
  void LogInToAr() { LogInTo("Welcome to the N0NODE AR-Cluster node"); }
  void LogInToZelva() { LogInTo("Welcome to N0NODE, a Zelva Cluster"); }
};

// AR-Cluster.

TEST_F(LoginSequenceTest, ArClusterIsAskedForExtendedLines200MillisecondsBehindItsPrompt) {
  LogInToAr();
  ReceiveBytes(std::string(kArPrompt) + "\r\n");
  LetPass(170ms);
  ExpectNothingSent();
  LetPass(20ms);
  ExpectSent({"SET/DX_ARPC ON"});
  EXPECT_TRUE(program.state.LoginFinished);
}

TEST_F(LoginSequenceTest, ArClusterIsAskedForSwitchesFirstIfTheUserWants) {
  settings.AskSettings = true;
  LogInToAr();
  Receive(kArPrompt);
  LetPass(60ms);
  ExpectNothingSent();
  LetPass(40ms);
  ExpectSent({"SH/SETTINGS"});
  LetPass(100ms);
  ExpectSent({"SET/DX_ARPC ON"});
  EXPECT_TRUE(program.state.RequestedSettings);
}

TEST_F(LoginSequenceTest, ExtendedLinesAreDeclinedIfTheUserDoesNotWantThem) {
  settings.DxARPCoff = true;
  LogInToAr();
  Receive(kArPrompt);
  LetPass(1s);
  ExpectSent({"DONT_SET/DX_ARPC ON"});
}

TEST_F(LoginSequenceTest, TextBehindTheArPromptWaitsUntilAllIsAsked) {
  settings.AskSettings = true;
  LogInToAr();
  log.entries.clear();
  ReceiveBytes(std::string(kArPrompt) + "\r\nbehind\r\n");
  LetPass(100ms);
  EXPECT_THAT(log.Of("First"), Not(Contains("behind")));
  LetPass(200ms);
  EXPECT_THAT(log.entries, Contains("First: behind"));
  EXPECT_THAT(log.Of("raw view"),
              ElementsAre(kArPrompt, "   <- SH/SETTINGS", "   <- SET/DX_ARPC ON", "behind"));
}

TEST_F(LoginSequenceTest, FurtherArPromptsAskNothing) {
  LogInToAr();
  Receive(kArPrompt);
  LetPass(1s);
  Sent();
  Receive(kArPrompt);
  LetPass(1s);
  ExpectNothingSent();
}

TEST_F(LoginSequenceTest, LineThatDoesNotEndInTheArPromptAsksNothing) {
  LogInToAr();
  Receive("the prompt here is arc > by the way");
  LetPass(1s);
  ExpectNothingSent();
  EXPECT_FALSE(program.state.LoginFinished);
}

TEST_F(LoginSequenceTest, FirstArPromptAsksForFiltersAndSwitchesWhereFiltersAreWanted) {
  settings.AutoFilter = true;
  settings.AskSettings = true;
  LogInToAr();
  Receive(kArPrompt);
  LetPass(1s);
  ExpectSent({"SH/FILTER", "SH/SETTINGS"});
  EXPECT_TRUE(program.state.RequestedSettings);
  EXPECT_TRUE(program.state.FirstPromptDone);
  Receive(kArPrompt);
  LetPass(1s);
  ExpectSent({"SET/DX_ARPC ON"});
}

TEST_F(LoginSequenceTest, ArFirstPromptClaimsOnlyThePromptThatItAnswers) {
  settings.AutoFilter = true;
  LogInToAr();
  log.entries.clear();
  Receive("before");
  Receive(kArPrompt);
  Receive("between");
  Receive(kArPrompt);
  LetPass(1s);
  EXPECT_THAT(log.Of("Second"), ElementsAre("before", "between", kArPrompt));
}

TEST_F(LoginSequenceTest, ArFirstPromptWithoutFiltersWantedClaimsNothing) {
  LogInToAr();
  log.entries.clear();
  Receive(kArPrompt);
  EXPECT_THAT(log.Of("Second"), ElementsAre(kArPrompt));
  EXPECT_FALSE(program.state.FirstPromptDone);
}

TEST_F(LoginSequenceTest, FiltersAreAskedForOfNoOtherSoftwareAtItsFirstPrompt) {
  settings.AutoFilter = true;
  LogInTo("N0NODE running CLX 5.20");
  Receive("k1tst-2 de n0node 2101Z clx >");
  LetPass(1s);
  ExpectNothingSent();
}

TEST_F(LoginSequenceTest, NodeThatPromptsLikeAnArClusterIsAskedLikeOne) {
  LogInTo("hello");
  Receive("N0NODEarc >");
  LetPass(1s);
  ExpectSent({"SET/DX_ARPC ON"});
  EXPECT_TRUE(program.state.LoginFinished);
}

// DXSpider.

TEST_F(LoginSequenceTest, DxSpiderIsAskedForTheProfileWhenItNamesItself) {
  LogInTo("running DXSpider V1.57 build 441");
  ExpectSent({"stat/user"});
  EXPECT_EQ(profileAsked, 1);
  EXPECT_EQ(program.state.ShowDxCommand, "sh/mydx");
  EXPECT_TRUE(program.state.UseMyDx);
  EXPECT_TRUE(program.state.LoginFinished);
}

TEST_F(LoginSequenceTest, OlderDxSpiderListsSpotsForEverybody) {
  LogInTo("running DXSpider V1.55 build 231 on linux");
  ExpectSent({"stat/user"});
  EXPECT_EQ(program.state.ShowDxCommand, "sh/dx");
  EXPECT_FALSE(program.state.UseMyDx);
}

TEST_F(LoginSequenceTest, DxSpiderIsAskedOnceASession) {
  LogInTo("running DXSpider V1.57 build 441");
  Sent();
  Receive("DXSpider is the software of this node");
  Receive(kSpiderPrompt);
  ExpectNothingSent();
}

TEST_F(LoginSequenceTest, DxSpiderNamedBeforeTheLoginIsAskedAtItsPrompt) {
  Connect();
  Receive("Welcome to the DXSpider node N0NODE");
  ReceiveBytes("login: \r\n");
  ExpectSent({"K1TST-2"});
  Receive(kSpiderPrompt);
  ExpectSent({"stat/user"});
}

TEST_F(LoginSequenceTest, PromptBeforeTheNameOfTheSoftwareDoesNotEndTheSequence) {
  LogInTo("welcome");
  Receive("K1TST-2 de N0NODE 20-Nov-2026 2101Z >");
  Receive("running DXSpider V1.57 build 441");
  ExpectSent({"stat/user"});
}

TEST_F(LoginSequenceTest, PromptBeforeTheNameOfAnArClusterDoesNotEndTheSequence) {
  LogInTo("welcome");
  Receive("K1TST-2 de N0NODE 20-Nov-2026 2101Z >");
  Receive("this is an AR-Cluster");
  Receive(kArPrompt);
  LetPass(1s);
  ExpectSent({"SET/DX_ARPC ON"});
}

TEST(SpiderVersion, LastOfFiveWordsOrMoreDecides) {
  EXPECT_TRUE(SpiderHasMyDx("running DXSpider V1.57 build 441"));
  EXPECT_TRUE(SpiderHasMyDx("Welcome to N0NODE running DXSpider 1.53"));
  EXPECT_FALSE(SpiderHasMyDx("Welcome to N0NODE running DXSpider 1.52"));
  EXPECT_FALSE(SpiderHasMyDx("Welcome to N0NODE running DXSpider 1.47"));
  EXPECT_FALSE(SpiderHasMyDx("running DXSpider V1.55 build 231 on linux"));
}

TEST(SpiderVersion, ThirdWordDecidesToo) {
  EXPECT_TRUE(SpiderHasMyDx("running DXSpider V58.305 on linux"));
  EXPECT_FALSE(SpiderHasMyDx("running DXSpider V58.304 on linux"));
  EXPECT_FALSE(SpiderHasMyDx("running DXSpider 58.305 on linux"));  // its first character goes
}

TEST(SpiderVersion, GreetingOfFewerWordsNamesAnOldOne) {
  EXPECT_FALSE(SpiderHasMyDx(""));
  EXPECT_FALSE(SpiderHasMyDx("DXSpider"));
  EXPECT_FALSE(SpiderHasMyDx("running DXSpider"));
  EXPECT_FALSE(SpiderHasMyDx("running DXSpider V1.57 441"));
}

// Zelva Cluster.

TEST_F(LoginSequenceTest, ZelvaIsAskedForSwitchesAtItsFirstPromptAndNotAgain) {
  LogInToZelva();
  ExpectNothingSent();
  for (int i = 0; i < 2; ++i) Receive("K1TST-2 de N0NODE 2101Z ZLV >");
  ExpectSent({"SH/SETTINGS"});
  EXPECT_TRUE(program.state.RequestedSettings);
  EXPECT_EQ(profileAsked, 1);
}

TEST_F(LoginSequenceTest, ZelvaThatWasAskedForSwitchesIsNotAskedByTheLogin) {
  LogInToZelva();
  program.state.RequestedSettings = true;
  Receive("K1TST-2 de N0NODE 2101Z ZLV >");
  ExpectNothingSent();
  EXPECT_EQ(profileAsked, 0);
}

TEST_F(LoginSequenceTest, ZelvasPasswordLineIsAnsweredOnceWithOneLineEnd) {
  program.outgoing.NodePassword = "Secret 1";
  LogInToZelva();
  node.TakePieces();
  Receive("password:");
  EXPECT_THAT(node.TakePieces(), ElementsAre("Secret 1\r\n"));
  EXPECT_THAT(RawView(), Contains("   <- ********"));
  EXPECT_TRUE(program.state.NodeSentPassword);
}

TEST_F(LoginSequenceTest, ZelvasPasswordLineWithoutAStoredPasswordIsNotAnswered) {
  LogInToZelva();
  Receive("password:");
  ExpectNothingSent();
  EXPECT_FALSE(program.state.NodeSentPassword);
}

// DxNet and the others.

TEST_F(LoginSequenceTest, DxNetIsToldNotToStopAtPages) {
  LogInTo("the software is DxNet.");
  Receive("K1TST-2 de N0NODE 2101Z DxNet>");
  ExpectSent({"set/page 0"});
  EXPECT_EQ(txtNode(), "Connected to N0NODE");
  EXPECT_THAT(program.state.KnownNodes, ElementsAre("N0NODE"));
}

TEST_F(LoginSequenceTest, DxNetsFirstPromptLeavesTheNodesThatItToldOf) {
  LogInTo("the software is DxNet.");
  program.state.KnownNodes = {"N0NODE", "K3AAA"};
  Receive("K1TST-2 de N0NODE 2101Z DxNet>");
  EXPECT_THAT(program.state.KnownNodes, ElementsAre("N0NODE", "K3AAA"));
}

TEST_F(LoginSequenceTest, DxNetAndClxAreFinishedAtOnce) {
  for (const char* greeting : {"the software is DxNet.", "N0NODE running CLX 5.20"}) {
    Station station;
    station.Connect();
    station.ReceiveBytes("login: \r\n");
    station.Receive(greeting);
    EXPECT_TRUE(station.program.state.LoginFinished) << greeting;
    EXPECT_EQ(station.program.state.ShowDxCommand, "sh/dx") << greeting;
  }
}

struct Other {
  const char* greeting;
  const char* prompt;
};

constexpr Other kOthers[] = {{"N0NODE on WinCluster", "K1TST-2 de N0NODE 2101Z WinCluster>"},
                             {"here is CW Skimmer", "K1TST-2 de N0NODE 2101Z CwSkimmer >"},
                             {"hello", "K1TST-2 de N0NODE 2101Z >"}};

TEST_F(LoginSequenceTest, OthersAreAskedForNothing) {
  for (const Other& other : kOthers) {
    Station station;
    station.settings.AskSettings = station.settings.AutoFilter = station.settings.Sun = true;
    station.Connect();
    station.ReceiveBytes("Please enter your call: \r\n");
    for (const char* line : {other.greeting, other.prompt, "text", other.prompt, "text"})
      station.Receive(line);
    station.LetPass(10s);
    EXPECT_THAT(station.Sent(), ElementsAre("K1TST-2")) << other.greeting;
    EXPECT_THAT(station.above.asked, IsEmpty()) << other.greeting;
    EXPECT_FALSE(station.program.state.LoginFinished) << other.greeting;
  }
}

TEST_F(LoginSequenceTest, NobodyDrawsThePasswordOutBehindTheirPrompts) {
  for (const Other& other : kOthers) {
    Station station;
    station.program.outgoing.NodePassword = "secret";
    station.Connect();
    station.ReceiveBytes("Please enter your call: \r\n");
    for (const char* line : {other.greeting, other.prompt, "password: now", "Enter new password:"})
      station.Receive(line);
    EXPECT_THAT(station.Sent(), ElementsAre("K1TST-2")) << other.greeting;
  }
}

TEST_F(LoginSequenceTest, NobodyDrawsThePasswordOutBehindTheFirstPromptOfAnArCluster) {
  for (const bool filtersWanted : {false, true}) {
    Station station;
    station.settings.AutoFilter = filtersWanted;
    station.program.outgoing.NodePassword = "secret";
    station.Connect();
    station.ReceiveBytes("login: \r\n");
    station.Receive("Welcome to the N0NODE AR-Cluster node");
    station.Receive(kArPrompt);
    station.LetPass(1s);
    station.Receive("password: now");
    EXPECT_THAT(station.Sent(), Not(Contains("secret"))) << filtersWanted;
  }
}

// Sun times.

TEST_F(LoginSequenceTest, SunTimesAreAskedForOnceBehindTheEndOfTheSequence) {
  settings.Sun = true;
  LogInTo("N0NODE running CLX 5.20");
  EXPECT_TRUE(program.state.LoginFinished);
  EXPECT_THAT(above.asked, IsEmpty());
  for (int i = 0; i < 3; ++i) Receive("any line");
  EXPECT_THAT(above.asked, ElementsAre("AskSunTimes"));
  EXPECT_TRUE(program.state.SunDone);
}

TEST_F(LoginSequenceTest, SunTimesAreNotAskedForIfTheUserDoesNotWantThem) {
  LogInTo("N0NODE running CLX 5.20");
  for (int i = 0; i < 3; ++i) Receive("any line");
  EXPECT_THAT(above.asked, IsEmpty());
  EXPECT_TRUE(program.state.SunDone);
}

TEST_F(LoginSequenceTest, SunTimesAreAskedForAgainInTheNextSession) {
  settings.Sun = true;
  LogInTo("N0NODE running CLX 5.20");
  Receive("any line");
  NodeCloses();
  LetRetry();
  ReceiveBytes("login: \r\nN0NODE running CLX 5.20\r\nany line\r\n");
  EXPECT_THAT(above.asked, ElementsAre("AskSunTimes", "AskSunTimes"));
}

// The third word of a prompt is a call, whatever number stands in it.
TEST_F(LoginSequenceTest, PromptOfADxSpiderTellsNoVersion) {
  Connect();
  Receive("Welcome to DXSpider");
  ReceiveBytes("login: ");
  Sent();
  Receive("");
  Receive("K1TST-2 de S59ABC 20-Nov-2026 2101Z dxspider >");
  ExpectSent({"stat/user"});
  EXPECT_EQ(program.state.ShowDxCommand, "sh/dx");
}

}  // namespace
