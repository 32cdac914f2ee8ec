#include <gmock/gmock.h>

#include "session_fixture.h"

using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

constexpr const char* kPrompt = "K1TST-2 de N0NODE 20-Nov-2026 2101Z dxspider >";

// A DXSpider that sends every command back. It has not dealt with "stat/user" yet.
class EchoTest : public SessionFixture {
 protected:
  EchoTest() { LogInTo("running DXSpider V1.55 build 231 on linux"); }

  void LogInTo(const std::string& greeting) {
    Connect();
    ReceiveBytes("login: ");
    Receive("");
    Receive(greeting);
    Receive(kPrompt);
    Sent();
    log.entries.clear();
  }
  // The node has dealt with "stat/user".
  void AnswerStatUser() {
    Receive("stat/user");
    Receive(kPrompt);
    log.entries.clear();
  }
  Lines IntoTheChain() const { return log.Of("First"); }
};

TEST_F(EchoTest, EchoIsShownInTheRawViewAndGoesNowhereElse) {
  Receive("stat/user");
  EXPECT_THAT(log.entries, ElementsAre("raw view: stat/user"));
}

TEST_F(EchoTest, EchoIsNotTakenForLoginText) {
  Receive("stat/user");
  EXPECT_THAT(program.loginText.rtbLoginMsg.Lines(), Not(Contains(" stat/user")));
}

TEST_F(EchoTest, BlanksAroundItAreNothing) {
  AnswerStatUser();
  program.outgoing.SendAsIs(" sh/dx 5 ");
  Receive("  sh/dx 5");
  EXPECT_THAT(IntoTheChain(), IsEmpty());
}

TEST_F(EchoTest, EchoOfABlankIsAnEmptyLine) {
  AnswerStatUser();
  program.outgoing.SendAsIs(" ");
  Receive(" ");
  EXPECT_THAT(IntoTheChain(), IsEmpty());
  Receive("");
  EXPECT_THAT(IntoTheChain(), ElementsAre(""));
}

TEST_F(EchoTest, EchoIsThatOfTheTextAsItWent) {
  AnswerStatUser();
  program.outgoing.Send("sh/dx");
  Receive("sh/dx");
  Receive("SH/DX");
  EXPECT_THAT(IntoTheChain(), ElementsAre("sh/dx"));
}

TEST_F(EchoTest, SameLineOnceMoreIsWhatTheNodeSays) {
  Receive("stat/user");
  Receive("stat/user");
  EXPECT_THAT(IntoTheChain(), ElementsAre("stat/user"));
}

TEST_F(EchoTest, SeveralTextsInFlightKeepTheirEchoes) {
  AnswerStatUser();
  for (const char* text : {"sh/dx", "sh/wwv", "sh/dx"}) program.outgoing.SendAsIs(text);
  for (const char* line : {"sh/dx", "row", kPrompt, "sh/wwv", kPrompt, "sh/dx", "row", kPrompt})
    Receive(line);
  EXPECT_THAT(IntoTheChain(), ElementsAre("row", kPrompt, kPrompt, "row", kPrompt));
}

TEST_F(EchoTest, TextThatIsNotTheOldestOneIsNoEcho) {
  AnswerStatUser();
  program.outgoing.SendAsIs("sh/dx");
  program.outgoing.SendAsIs("sh/wwv");
  Receive("sh/wwv");
  EXPECT_THAT(IntoTheChain(), ElementsAre("sh/wwv"));
}

TEST_F(EchoTest, PromptEndsTheWaitForAnEchoThatDidNotCome) {
  AnswerStatUser();
  program.outgoing.SendAsIs("sh/dx");
  Receive(kPrompt);
  Receive("sh/dx");
  EXPECT_THAT(IntoTheChain(), ElementsAre(kPrompt, "sh/dx"));
}

TEST_F(EchoTest, OwnPromptOfTheProgramCountsToo) {
  AnswerStatUser();
  program.outgoing.SendAsIs("sh/dx");
  Receive("K1TST-2 de N0NODE 20-Nov-2026 2101Z 2.4315  dxspider >");
  Receive("sh/dx");
  EXPECT_THAT(IntoTheChain(), Contains("sh/dx"));
}

TEST_F(EchoTest, EchoOfTheChangeOfThePromptIsNoPrompt) {
  AnswerStatUser();
  program.outgoing.SendAsIs("set/prompt %C de %M %D %T 2.4315  dxspider >");
  program.outgoing.SendAsIs("sh/dx");
  Receive("set/prompt %C de %M %D %T 2.4315  dxspider >");
  EXPECT_THAT(IntoTheChain(), IsEmpty());
  EXPECT_FALSE(program.state.LoginTextDone);
  Receive(kPrompt);
  Receive("sh/dx");
  EXPECT_THAT(IntoTheChain(), ElementsAre(kPrompt));
}

TEST_F(EchoTest, HintAnsweredBeforeTheSoftwareIsNamedComesBackToo) {
  NodeCloses();
  LetRetry();
  ReceiveBytes("login: ");
  Receive("");
  Receive("Please enter your name, set/name <your name>");
  Receive("running DXSpider V1.55 build 231 on linux");
  Receive(kPrompt);
  ExpectSent({"K1TST-2", "set/name ANNA", "stat/user"});
  log.entries.clear();
  for (const char* line : {"set/name ANNA", kPrompt, "stat/user", kPrompt}) Receive(line);
  EXPECT_THAT(IntoTheChain(), ElementsAre(kPrompt, kPrompt));
}

TEST_F(EchoTest, NextSessionWaitsForNoneOfTheLast) {
  program.outgoing.SendAsIs("sh/dx");
  NodeCloses();
  LetRetry();
  LogInTo("running DXSpider V1.57 build 441");
  AnswerStatUser();
  Receive("sh/dx");
  EXPECT_THAT(IntoTheChain(), ElementsAre("sh/dx"));
}

TEST_F(EchoTest, OtherSoftwareHasNoEchoes) {
  NodeCloses();
  LetRetry();
  LogInTo("N0NODE running CLX 5.20");
  program.outgoing.SendAsIs("sh/dx");
  Receive("sh/dx");
  EXPECT_THAT(IntoTheChain(), ElementsAre("sh/dx"));
}

TEST_F(EchoTest, PromptsUnaskedForDoNoHarm) {
  AnswerStatUser();
  for (int i = 0; i < 5; ++i) Receive(kPrompt);
  program.outgoing.SendAsIs("sh/dx");
  log.entries.clear();
  Receive("sh/dx");
  EXPECT_THAT(IntoTheChain(), IsEmpty());
}

// Two texts that one prompt has answered leave one behind for which nothing comes any more.
TEST(Echoes, TextThatNeverCameBackDoesNotHideTheEchoOfALaterOne) {
  session::Echoes echoes;
  echoes.Prompted();
  echoes.Sent("first");
  echoes.Sent("second");
  echoes.Prompted();
  echoes.Sent("third");
  EXPECT_TRUE(echoes.IsEcho("third"));
}

}  // namespace
