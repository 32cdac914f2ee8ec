#include <gmock/gmock.h>

#include <numeric>

#include "session_fixture.h"

using namespace std::chrono_literals;
using session::LinkPhase;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

class LoginTest : public SessionFixture {
 protected:
  std::string LoginText() const {
    const auto& lines = program.loginText.rtbLoginMsg.Lines();
    return std::accumulate(lines.begin(), lines.end(), std::string());
  }
};

TEST_F(LoginTest, LinesThatAreNoPromptAreNotAnswered) {
  Connect();
  Receive("Welcome to N0NODE");
  Receive("Log in now:");
  Receive("Cluster:x");
  Receive("a>b");
  Receive(">");
  Receive("Please enter your name:");
  ExpectNothingSent();
  EXPECT_FALSE(program.state.LoggedIn);
}

TEST_F(LoginTest, EachOfTheEightPromptsIsAnsweredByTheCall) {
  for (const char* prompt :
       {"Please enter your call: ", "login: ", "Your callsign:", "Callsign : ",
        "Please enter your callsign:", "Please enter your callsign at the login prompt.\r\n",
        "N0NODE Cluster: hello\r\n", "N0NODE 2148Z >\r\n"}) {
    Station station;
    station.Connect();
    station.ReceiveBytes(prompt);
    EXPECT_THAT(station.Sent(), ElementsAre("K1TST-2")) << prompt;
    EXPECT_TRUE(station.program.state.LoggedIn) << prompt;
  }
}

TEST_F(LoginTest, PromptInTheMiddleOfALineIsAnswered) {
  Connect();
  Receive("N0NODE login: your call");
  ExpectSent({"K1TST-2"});
}

TEST_F(LoginTest, PromptBehindNegotiationsIsAnswered) {
  Connect();
  ReceiveBytes("\xFF\xFB\x01\xFF\xFB\x03login: ");
  ExpectSent({"\xFF\xFE\x01\xFF\xFE\x03K1TST-2"});
}

TEST_F(LoginTest, OnlyTheFirstPromptOfAConnectionIsAnswered) {
  Connect();
  ReceiveBytes("login: login: \r\nlogin: \r\nN0NODE >\r\n");
  ExpectSent({"K1TST-2"});
}

TEST_F(LoginTest, PromptsOfTheNextConnectionAreAnsweredAgain) {
  LogIn();
  NodeCloses();
  LetRetry();
  ReceiveBytes("login: ");
  ExpectSent({"K1TST-2"});
}

TEST_F(LoginTest, CallGoesOutInUpperCaseWithoutBlanksAround) {
  settings.MyCall = "k1tst-2 ";
  Connect();
  ReceiveBytes("login: ");
  ExpectSent({"K1TST-2"});
}

TEST_F(LoginTest, CallGoesOutWithItsLineEndInOneWrite) {
  Connect();
  ReceiveBytes("login: ");
  EXPECT_THAT(node.TakePieces(), ElementsAre("K1TST-2\r\n"));
}

TEST_F(LoginTest, CallThatWasSentShowsInTheRawView) {
  Connect();
  ReceiveBytes("login: ");
  EXPECT_THAT(RawView(), Contains("   <- K1TST-2"));
}

TEST_F(LoginTest, SessionIsLoggedInOnceTheCallIsSent) {
  program.commandLine.txtCmdLine.UserTypes("sh/dx");
  Connect();
  ReceiveBytes("login: ");
  EXPECT_TRUE(program.state.LoggedIn);
  EXPECT_FALSE(program.state.ConnectFailed);
  EXPECT_EQ(program.state.Phase.Get(), LinkPhase::Connected);
  EXPECT_EQ(program.commandLine.txtCmdLine.Text.Get(), "");
  EXPECT_THAT(txtNode(), HasSubstr("***Connected to: "));
  EXPECT_LE(world.scheduler.Now() - program.connection.ConnectTimeStamp, 1s);
}

TEST_F(LoginTest, GreetingBehindThePromptNamesTheNode) {
  LogIn();
  EXPECT_EQ(txtNode(), "***Connected to: N0NODE");
}

// Passwords.

TEST_F(LoginTest, PasswordPromptWithoutAStoredPasswordIsServedAndNothingIsSent) {
  Connect();
  ReceiveBytes("password: ");
  ExpectNothingSent();
  EXPECT_THAT(log.Of("First"), ElementsAre("password"));
}

TEST_F(LoginTest, PasswordGoesOutWithExactlyOneLineEndTheMomentThePromptIsThere) {
  program.outgoing.NodePassword = "Secret 1";
  Connect();
  ReceiveBytes("passwor");
  ExpectNothingSent();
  ReceiveBytes("d");
  EXPECT_THAT(node.TakePieces(), ElementsAre("Secret 1\r\n"));
}

TEST_F(LoginTest, PasswordIsHiddenInTheRawView) {
  program.outgoing.NodePassword = "Secret 1";
  Connect();
  ReceiveBytes("password: \r\n");
  EXPECT_THAT(RawView(), ElementsAre("   <- ********", "password", ":"));
}

TEST_F(LoginTest, BlankInFrontDoesNotHideThePasswordPrompt) {
  program.outgoing.NodePassword = "secret";
  Connect();
  ReceiveBytes("login: ");
  ReceiveBytes(" password: ");
  ExpectSent({"K1TST-2", "secret"});
}

TEST_F(LoginTest, AnyLineThatBeginsWithPasswordSendsIt) {
  program.outgoing.NodePassword = "secret";
  Connect();
  Receive("password is wrong, try again");
  ExpectSent({"secret"});
}

TEST_F(LoginTest, NewPasswordIsGivenTwice) {
  program.outgoing.NodePassword = "secret";
  Connect();
  ReceiveBytes("Enter new password: \r\nRe-enter password: \r\n");
  ExpectSent({"secret", "secret"});
  EXPECT_EQ(CountInRawView("secret"), 0);
}

TEST_F(LoginTest, CallsignPromptGetsThePasswordBehindTheCallAndHidesIt) {
  program.outgoing.NodePassword = "secret";
  Connect();
  ReceiveBytes("Callsign : ");
  ExpectSent({"K1TST-2", "secret"});
  EXPECT_EQ(CountInRawView("secret"), 0);
}

TEST_F(LoginTest, OtherPromptsGetNoPassword) {
  program.outgoing.NodePassword = "secret";
  Connect();
  ReceiveBytes("login: ");
  ExpectSent({"K1TST-2"});
}

// The login text.

TEST_F(LoginTest, LinesThatNoRowClaimsAreCollected) {
  on["Second"] = [](std::string_view line) {
    return line == "claimed" ? Claim::Tail : Claim::None;
  };
  Connect();
  ReceiveBytes("login: ");
  Receive("");
  Receive("Welcome to N0NODE");
  Receive("claimed");
  Receive("Have fun");
  EXPECT_THAT(LoginText(), HasSubstr("Welcome to N0NODE"));
  EXPECT_THAT(LoginText(), HasSubstr("Have fun"));
  EXPECT_THAT(LoginText(), Not(HasSubstr("claimed")));
}

TEST_F(LoginTest, TextOfTheLastLoginGoesWithTheNextConnect) {
  Connect();
  Receive("Welcome to N0NODE");
  NodeCloses();
  EXPECT_THAT(LoginText(), HasSubstr("Welcome"));
  LetRetry();
  EXPECT_EQ(LoginText(), "");
}

TEST_F(LoginTest, NothingIsCollectedOnceTheLoginTextIsDone) {
  LogIn();
  program.state.LoginTextDone = true;
  Receive("later line");
  EXPECT_THAT(LoginText(), Not(HasSubstr("later line")));
}

TEST_F(LoginTest, EndlessLoginTextIsBounded) {
  Connect();
  std::string welcome;
  for (int i = 0; i < 3000; ++i) welcome += "another line of a very long welcome\r\n";
  ReceiveBytes(welcome);
  LetPass(1s);
  EXPECT_LE(program.loginText.rtbLoginMsg.Characters(), 20'100u);
}

TEST_F(LoginTest, PasswordThatANodeSendsBackIsNeverShown) {
  program.outgoing.NodePassword = "secret";
  Connect();
  ReceiveBytes("login: ");
  Receive("");
  log.entries.clear();
  Receive(" secret ");
  EXPECT_EQ(CountInRawView("secret"), 0);
  EXPECT_EQ(log.Of("raw view"), (Lines{"********"}));
  EXPECT_TRUE(log.Of("feed").empty());
}

TEST_F(LoginTest, BehindTheLoginALineLikeThePasswordIsALine) {
  program.outgoing.NodePassword = "secret";
  LogIn();
  Receive("secret");
  EXPECT_EQ(log.Of("raw view"), (Lines{"secret"}));
  EXPECT_EQ(log.Of("First"), (Lines{"secret"}));
}

TEST_F(LoginTest, NodeThatDoesNotGreetIsNotTakenForTheOneBefore) {
  LogIn();
  EXPECT_EQ(program.state.ConnectedNodeCall, "N0NODE");
  NodeCloses();
  LetRetry();
  EXPECT_EQ(program.state.ConnectedNodeCall, "");
}

}  // namespace
