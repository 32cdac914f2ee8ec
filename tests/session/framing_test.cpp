#include <gmock/gmock.h>

#include "session_fixture.h"

using namespace std::chrono_literals;
using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Framing : public SessionFixture {
 protected:
  // What became of the bytes, by the first row that is offered every line.
  Lines LinesFrom(std::string_view bytes) {
    log.entries.clear();
    ReceiveBytes(bytes);
    return log.Of("First");
  }
};

TEST_F(Framing, NulIsCountedAndSplitsNoLine) {
  Connect();
  EXPECT_THAT(LinesFrom("hel\0lo\0\r\n"s), ElementsAre("hello"));
  EXPECT_EQ(program.intake.NullsReceived, 2);
}

TEST_F(Framing, CarriageReturnEndsALineAndLineFeedIsIgnored) {
  Connect();
  EXPECT_THAT(LinesFrom("one\ntwo\rthree\r\n"), ElementsAre("onetwo", "three"));
}

TEST_F(Framing, BellsInsideAndAtTheEndOfALineAreGone) {
  Connect();
  EXPECT_THAT(LinesFrom("DX de K1\aABC: 14025.0\a\a\r\n"), ElementsAre("DX de K1ABC: 14025.0"));
}

TEST_F(Framing, LoginPromptIsServedAtOnceAndTheLineEndBehindItMakesAnEmptyLine) {
  Connect();
  EXPECT_THAT(LinesFrom("login:"), ElementsAre("login:"));
  ExpectSent({"K1TST-2"});
  EXPECT_THAT(LinesFrom("\r\n"), ElementsAre(""));
}

TEST_F(Framing, PercentEscapesAreRepairedBeforeTheLineIsServedAndCounted) {
  LogIn();
  EXPECT_THAT(LinesFrom("100%25 ok\r\n"), ElementsAre("100% ok"));
  EXPECT_THAT(LinesFrom("%41%42\r\n"), ElementsAre("AB"));
  EXPECT_EQ(program.intake.EscapedErrors, 3);
  EXPECT_EQ(program.technical.lblTech[10].Caption.Get(), "Escaped Errors = 3");
  EXPECT_EQ(RawView().back(), "AB");
}

TEST_F(Framing, BadPercentEscapesStayInTheLineAndAreNotCounted) {
  LogIn();
  EXPECT_THAT(LinesFrom("a%0Ab\r\nc%zzd\r\n"), ElementsAre("a%0Ab", "c%zzd"));
  EXPECT_EQ(program.intake.EscapedErrors, 0);
  EXPECT_EQ(program.technical.lblTech[10].Caption.Get(), "");
}

TEST_F(Framing, PromptThatIsSpelledInEscapesIsNone) {
  Connect();
  EXPECT_THAT(LinesFrom("%70assword"), IsEmpty());
  ExpectNothingSent();
}

TEST_F(Framing, BehindTheLoginSequencePromptsMeanNothing) {
  program.outgoing.NodePassword = "secret";
  LogIn();
  program.state.LoginFinished = true;
  EXPECT_THAT(LinesFrom("password reset on Monday\r\nlogin: K2AAA\r\n"),
              ElementsAre("password reset on Monday", "login: K2AAA"));
  ExpectNothingSent();
}

TEST_F(Framing, PartialLineNeverReachesTheNextSession) {
  Connect();
  ReceiveBytes("half a li");
  NodeCloses();
  LetRetry();
  EXPECT_THAT(LinesFrom("whole\r\n"), ElementsAre("whole"));
}

TEST_F(Framing, PartialLineIsForgottenAfterAResetToo) {
  Connect();
  ReceiveBytes("half a li");
  NodeResets();
  LetRetry();
  EXPECT_THAT(LinesFrom("whole\r\n"), ElementsAre("whole"));
}

TEST_F(Framing, NegotiationsOfTheTelnetProtocolInFrontOfAPromptAreNoText) {
  Connect();
  EXPECT_THAT(LinesFrom("\xFF\xFB\x01\xFF\xFD\x18login:"), ElementsAre("login:"));
}

TEST_F(Framing, Latin1AndUtf8ComeThroughAsTheyAre) {
  LogIn();
  EXPECT_THAT(LinesFrom("caf\xE9 caf\xC3\xA9\r\n"), ElementsAre("caf\xE9 caf\xC3\xA9"));
}

TEST_F(Framing, TextThatComesBeforeTheConnectingRoutineHasEndedWaitsForIt) {
  PressConnect();
  ASSERT_TRUE(world.RunUntil([this] { return node.HasCaller(); }, 2s));
  const auto at = world.scheduler.Now();
  node.Say("welcome\r\n");
  LetPass(at + 200ms - world.scheduler.Now());
  EXPECT_THAT(log.Of("First"), IsEmpty());
  LetPass(1s);
  EXPECT_THAT(log.Of("First"), ElementsAre("welcome"));
}

}  // namespace
