#include <gmock/gmock.h>

#include "session_fixture.h"

using namespace std::chrono_literals;
using session::TimerId;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

constexpr const char* kClxPrompt = "k1tst-2 de n0node 2101Z clx >";

class LoginTextTest : public SessionFixture {
 protected:
  // Up to the line that names the software.
  void LogInTo(const std::string& greeting) {
    Connect();
    ReceiveBytes("login: ");
    Receive("");
    Receive(greeting);
  }
};

// The login text.

TEST_F(LoginTextTest, LoginTextEndsAtTheFirstPromptWhichIsNotPartOfIt) {
  LogInTo("N0NODE running CLX 5.20");
  Receive("hello");
  Receive(kClxPrompt);
  Receive("later");
  EXPECT_TRUE(program.state.LoginTextDone);
  EXPECT_THAT(program.loginText.rtbLoginMsg.Lines(),
              ElementsAre(" ", " N0NODE running CLX 5.20", " hello"));
}

TEST_F(LoginTextTest, PromptThatADxSpiderHasBeforeItIsToldIsNotPartOfItEither) {
  LogInTo("running DXSpider V1.57 build 441");
  Receive(kSpiderPrompt);
  Receive("more");
  EXPECT_FALSE(program.state.LoginTextDone);
  EXPECT_THAT(program.loginText.rtbLoginMsg.Lines(),
              ElementsAre(" ", " running DXSpider V1.57 build 441", " more"));
}

TEST_F(LoginTextTest, SoftwareIsRecognisedOnceASession) {
  LogInTo("N0NODE running CLX 5.20");
  Receive("our friends have a DXSpider");
  EXPECT_TRUE(program.state.IsClx());
}

TEST_F(LoginTextTest, SoftwareNamedBehindTheLoginTextMeansNothing) {
  LogInTo("hello");
  Receive("N0NODEarc >");
  EXPECT_TRUE(program.state.LoginTextDone);
  Receive("running DXSpider V1.57 build 441");
  EXPECT_FALSE(program.state.IsSpider());
}

TEST_F(LoginTextTest, NodeOfUnknownSoftwareKeepsItsLoginTextOpen) {
  LogInTo("hello");
  for (int i = 0; i < 3; ++i) Receive("K1TST-2 de N0NODE 2101Z >");
  EXPECT_FALSE(program.state.LoginTextDone);
  EXPECT_THAT(program.loginText.rtbLoginMsg.Lines(),
              Contains(" K1TST-2 de N0NODE 2101Z >").Times(3));
}

TEST_F(LoginTextTest, LoginTextIsForwardedIfTheUserWants) {
  LogInTo("hello");
  EXPECT_THAT(log.Of("forwarded"), Contains("hello"));
  settings.SendToLog &= ~(1 << 7);
  Receive("again");
  EXPECT_THAT(log.Of("forwarded"), Not(Contains("again")));
}

TEST_F(LoginTextTest, TextBehindTheLoginTextIsForwardedAnyway) {
  settings.SendToLog &= ~(1 << 7);
  LogInTo("N0NODE running CLX 5.20");
  Receive(kClxPrompt);
  Receive("later");
  EXPECT_THAT(log.Of("forwarded"), Contains("later"));
}

// What the first prompt sets going.

TEST_F(LoginTextTest, MissedSpotsAreAskedForBehindTheFirstPromptOfSoftwareWithoutASequence) {
  program.state.WantMissedSpots = program.state.FirstConnect = true;
  LogInTo("N0NODE running CLX 5.20");
  Receive(kClxPrompt);
  LetPass(150ms);
  EXPECT_THAT(above.asked, IsEmpty());
  LetPass(50ms);
  EXPECT_THAT(above.asked, ElementsAre("GetEm"));
  EXPECT_FALSE(program.state.FirstConnect);
  Receive(kClxPrompt);
  LetPass(1s);
  EXPECT_THAT(above.asked, ElementsAre("GetEm"));
}

TEST_F(LoginTextTest, TextBehindThatPromptWaits) {
  program.state.WantMissedSpots = program.state.FirstConnect = true;
  LogInTo("N0NODE running CLX 5.20");
  log.entries.clear();
  ReceiveBytes(std::string(kClxPrompt) + "\r\nbehind\r\n");
  LetPass(150ms);
  EXPECT_THAT(log.Of("First"), Not(Contains("behind")));
  LetPass(50ms);
  EXPECT_THAT(log.Of("First"), Contains("behind"));
}

TEST_F(LoginTextTest, MissedSpotsAreAskedForLaterOfSoftwareWithASequence) {
  struct Software {
    const char* greeting;
    const char* prompt;
  };
  const Software kinds[] = {
      {"Welcome to the N0NODE AR-Cluster node", kArPrompt},
      {"N0NODE, a Zelva Cluster", "K1TST-2 de N0NODE 2101Z ZLV >"},
      {"running DXSpider V1.57 build 441", "K1TST-2 de N0NODE 2101Z 2.4315  dxspider >"}};
  for (const Software& kind : kinds) {
    Station station;
    station.program.state.WantMissedSpots = station.program.state.FirstConnect = true;
    station.Connect();
    station.ReceiveBytes("login: \r\n");
    station.Receive(kind.greeting);
    station.Receive(kind.prompt);
    station.LetPass(1s);
    EXPECT_TRUE(station.program.state.LoginTextDone) << kind.greeting;
    EXPECT_THAT(station.above.asked, IsEmpty()) << kind.greeting;
  }
}

TEST_F(LoginTextTest, NewerVersionIsLookedForAtTheFirstPromptIfTheUserWants) {
  settings.InternetCheckVersion = true;
  LogInTo("N0NODE running CLX 5.20");
  EXPECT_FALSE(program.timers.Enabled(TimerId::Updater));
  Receive(kClxPrompt);
  EXPECT_THAT(above.asked, ElementsAre("GetLatestVersion"));
  EXPECT_TRUE(program.timers.Enabled(TimerId::Updater));
}

TEST_F(LoginTextTest, NewerVersionIsNotLookedForOtherwise) {
  LogInTo("N0NODE running CLX 5.20");
  Receive(kClxPrompt);
  EXPECT_THAT(above.asked, IsEmpty());
  EXPECT_FALSE(program.timers.Enabled(TimerId::Updater));
}

}  // namespace
