#include "session/mode_switch.h"

#include <gmock/gmock.h>

#include "tnc_stage.h"

using namespace std::chrono_literals;
using platform::Answer;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

using session::LinkPhase;

constexpr const char* kInterrupted = "Disabled";
constexpr const char* kLinkEnds = "Molva Desk";

// A station that has a TNC with a script, and is on telnet as long as a test does not say
// otherwise.
class ModeSwitchTest : public TncStage {
 protected:
  ModeSwitchTest() { StandsOn(false); }

  void StandsOn(bool overTnc) { settings.TncMode = program.state.TncMode = overTnc; }
  void ChooseRadio() {
    modeSwitch.RadioClus.Press();
    LetPass(20ms);
  }
  void ChooseTelnet() {
    modeSwitch.TelnetClus.Press();
    LetPass(20ms);
  }
  // The link is lost, and the next try awaited.
  void LoseLink() {
    LogIn();
    NodeCloses();
  }
  bool AutoReconnect() const { return program.connection.AutoReconnect.Value.Get(); }
  bool OnTnc() const { return program.state.TncMode && settings.TncMode; }

  Lines asked;  // of the program around it, in order
  int modesTaken = 0;
  session::ModeSwitch modeSwitch{world.platform(),
                                 settings,
                                 program,
                                 {.takeMode =
                                      [this] {
                                        ++modesTaken;
                                        program.state.TncMode = settings.TncMode;
                                      },
                                  .openNodes = [this] { asked.emplace_back("frmNode"); },
                                  .askPort = [this] { asked.emplace_back("frmComm"); },
                                  .askScript = [this] { asked.emplace_back("frmTNC"); },
                                  .delayedWriteCfg = [this] { ++configurationWrites; },
                                  .onFault = [](auto, auto what) { ADD_FAILURE() << what; }}};
};

TEST_F(ModeSwitchTest, RadioWhileARetryIsAwaitedInterruptsItAndAsks) {
  LoseLink();
  ChooseRadio();
  EXPECT_FALSE(AutoReconnect());
  EXPECT_TRUE(program.state.UserDisconnected);
  ASSERT_TRUE(world.dialogs.OnShow(kInterrupted));
  const platform::Message& message = world.dialogs.shown.back();
  EXPECT_EQ(message.text,
            "Auto Reconnect has been temporarily disabled.\n"
            "Do you wish to re-enable now?\n"
            "Pressing \"Connect\" will also re-enable it.");
  EXPECT_THAT(message.answers, ElementsAre(Answer::Yes, Answer::No));
}

TEST_F(ModeSwitchTest, RadioHoldsBehindTheQuestionAlready) {
  LoseLink();
  ChooseRadio();
  EXPECT_TRUE(world.dialogs.OnShow(kInterrupted));
  EXPECT_TRUE(OnTnc());
  EXPECT_EQ(modesTaken, 1);
}

TEST_F(ModeSwitchTest, YesEnablesReconnectAgainAndTheNextTryGoesOverTheTnc) {
  LoseLink();
  world.dialogs.WillAnswer(kInterrupted, Answer::Yes);
  ChooseRadio();
  EXPECT_TRUE(AutoReconnect());
  EXPECT_FALSE(program.state.UserDisconnected);
  Written();
  LetPass(RetryInterval() + 2s);
  EXPECT_EQ(Written(), "C N0DIG\r");
  EXPECT_EQ(node.called.size(), 1u);
}

TEST_F(ModeSwitchTest, NoLeavesReconnectOffUntilConnectIsPressed) {
  LoseLink();
  world.dialogs.WillAnswer(kInterrupted, Answer::No);
  ChooseRadio();
  LetPass(5min);
  EXPECT_EQ(Written(), "");
  EXPECT_EQ(txtNode(), "Press Connect to restart Auto Reconnect");
  Begin();
  EXPECT_EQ(Written(), "C N0DIG\r");
  EXPECT_TRUE(AutoReconnect());
}

TEST_F(ModeSwitchTest, YesThatComesAfterTheTryWasLeftOutStillBringsTheNextOne) {
  LoseLink();
  ChooseRadio();
  LetPass(5min);
  ASSERT_TRUE(world.dialogs.AnswerNow(kInterrupted, Answer::Yes));
  LetPass(RetryInterval() + 2s);
  EXPECT_EQ(Written(), "C N0DIG\r");
}

TEST_F(ModeSwitchTest, QuestionHoldsNothingUp) {
  LoseLink();
  ChooseRadio();
  Begin();
  EXPECT_TRUE(world.dialogs.OnShow(kInterrupted));
  EXPECT_EQ(Written(), "C N0DIG\r");
}

TEST_F(ModeSwitchTest, RadioWithoutARetryAwaitedAsksNothing) {
  ChooseRadio();
  EXPECT_TRUE(OnTnc());
  EXPECT_THAT(world.dialogs.shown, IsEmpty());
  EXPECT_TRUE(AutoReconnect());
}

TEST_F(ModeSwitchTest, RadioChosenAgainWhileARetryIsAwaitedInterruptsItToo) {
  StandsOn(true);
  Begin();
  LetPass(31s);
  ASSERT_TRUE(RetryAwaited());
  ChooseRadio();
  EXPECT_TRUE(world.dialogs.OnShow(kInterrupted));
  EXPECT_FALSE(AutoReconnect());
  EXPECT_EQ(modesTaken, 0);
}

TEST_F(ModeSwitchTest, RadioOpensThePortAndIsKept) {
  configurationWrites = 0;
  ChooseRadio();
  EXPECT_TRUE(program.tncLink.MSComm1->PortOpen());
  EXPECT_GT(configurationWrites, 0);
  EXPECT_THAT(asked, IsEmpty());
}

TEST_F(ModeSwitchTest, RadioWithoutAPortAsksForOne) {
  settings.TncPort = 0;
  settings.TncSteps.clear();
  ChooseRadio();
  EXPECT_THAT(asked, ElementsAre("frmComm"));
  EXPECT_TRUE(OnTnc());
}

TEST_F(ModeSwitchTest, NoFormHidesTheQuestion) {
  settings.TncPort = 0;
  LoseLink();
  ChooseRadio();
  LetPass(1s);
  EXPECT_THAT(asked, IsEmpty());
  ASSERT_TRUE(world.dialogs.AnswerNow(kInterrupted, Answer::No));
  LetPass(20ms);
  EXPECT_THAT(asked, ElementsAre("frmComm"));
}

TEST_F(ModeSwitchTest, NothingIsAskedForATncThatTheUserHasTurnedFromMeanwhile) {
  settings.TncPort = 0;
  LoseLink();
  ChooseRadio();
  ChooseTelnet();
  ASSERT_TRUE(world.dialogs.AnswerNow(kInterrupted, Answer::No));
  LetPass(20ms);
  EXPECT_THAT(asked, ElementsAre("frmNode"));
  EXPECT_FALSE(OnTnc());
}

TEST_F(ModeSwitchTest, RadioWithoutAScriptAsksForOne) {
  settings.TncSteps.clear();
  ChooseRadio();
  EXPECT_THAT(asked, ElementsAre("frmTNC"));
}

TEST_F(ModeSwitchTest, TelnetForgetsTheNumberedAddressAndOpensTheNodes) {
  settings.NodeNumberedAddress = "10.9.9.9";
  ChooseTelnet();
  EXPECT_EQ(settings.NodeNumberedAddress, "");
  EXPECT_THAT(asked, ElementsAre("frmNode"));
  EXPECT_GT(configurationWrites, 0);
}

TEST_F(ModeSwitchTest, TelnetKeepsTheCallOfTheChosenNode) {
  ChooseTelnet();
  EXPECT_EQ(settings.NodeCall, "N0NODE");
}

TEST_F(ModeSwitchTest, TelnetTakesTheDefaultNodeWhereNoneIsChosen) {
  settings.NodeCall.clear();
  ChooseTelnet();
  EXPECT_EQ(settings.NodeCall, "N0DE-1");
  EXPECT_EQ(settings.NodePort, "7373");
}

TEST_F(ModeSwitchTest, TelnetBeforeALoginEndsAllReconnecting) {
  LoseLink();
  ChooseTelnet();
  EXPECT_FALSE(AutoReconnect());
  EXPECT_TRUE(program.state.UserDisconnected);
  EXPECT_THAT(world.dialogs.shown, IsEmpty());
  LetPass(5min);
  EXPECT_EQ(node.called.size(), 1u);
  EXPECT_EQ(txtNode(), "Press Connect to restart Auto Reconnect");
}

TEST_F(ModeSwitchTest, TelnetInASessionOverTelnetLetsItBe) {
  LogIn();
  ChooseTelnet();
  EXPECT_TRUE(AutoReconnect());
  EXPECT_FALSE(program.state.UserDisconnected);
  LetPass(10s);
  EXPECT_TRUE(program.state.LoggedIn);
  EXPECT_EQ(modesTaken, 0);
}

TEST_F(ModeSwitchTest, TelnetLetsThePortOfTheTncGo) {
  ChooseRadio();
  ChooseTelnet();
  EXPECT_FALSE(OnTnc());
  EXPECT_FALSE(program.tncLink.MSComm1->PortOpen());
  EXPECT_EQ(modesTaken, 2);
}

TEST_F(ModeSwitchTest, OtherModeInASessionAsksBeforeItEndsIt) {
  LogIn();
  ChooseRadio();
  ASSERT_TRUE(world.dialogs.OnShow(kLinkEnds));
  EXPECT_THAT(world.dialogs.shown.back().text, HasSubstr("ends the link to N0NODE"));
  LetPass(1min);
  EXPECT_TRUE(program.state.LoggedIn);
  EXPECT_FALSE(OnTnc());
}

TEST_F(ModeSwitchTest, SessionThatTheUserKeepsKeepsItsMode) {
  LogIn();
  world.dialogs.WillAnswer(kLinkEnds, Answer::No);
  ChooseRadio();
  LetPass(5s);
  EXPECT_TRUE(program.state.LoggedIn);
  EXPECT_FALSE(OnTnc());
  EXPECT_EQ(modesTaken, 0);
}

TEST_F(ModeSwitchTest, SessionThatTheUserGivesUpEndsWithAGoodbyeBeforeTheModeHolds) {
  LogIn();
  world.dialogs.WillAnswer(kLinkEnds, Answer::Yes);
  ChooseRadio();
  ExpectSent({"BYE"});
  EXPECT_FALSE(OnTnc());
  LetPass(3s);
  EXPECT_TRUE(OnTnc());
  EXPECT_EQ(program.state.Phase.Get(), LinkPhase::Disconnected);
}

TEST_F(ModeSwitchTest, LinkThatIsLostBehindTheQuestionNeedsNoEnding) {
  LogIn();
  ChooseRadio();
  NodeCloses();
  ASSERT_TRUE(world.dialogs.AnswerNow(kLinkEnds, Answer::Yes));
  LetPass(1s);
  EXPECT_TRUE(OnTnc());
}

TEST_F(ModeSwitchTest, AttemptOfTheOtherModeEndsUnasked) {
  world.network.silentAddresses = {"10.1.2.3"};
  Connect();
  ASSERT_EQ(program.state.Phase.Get(), LinkPhase::Trying);
  ChooseRadio();
  LetPass(6s);
  EXPECT_TRUE(OnTnc());
  EXPECT_THAT(world.dialogs.shown, IsEmpty());
}

TEST_F(ModeSwitchTest, SessionOverTheTncIsEndedByTheTncBeforeTelnetHolds) {
  StandsOn(true);
  LogInByTnc();
  world.dialogs.WillAnswer(kLinkEnds, Answer::Yes);
  ChooseTelnet();
  LetPass(6s);
  EXPECT_THAT(Written(), HasSubstr("DISC"));
  EXPECT_FALSE(OnTnc());
  EXPECT_THAT(asked, ElementsAre("frmNode"));
}

TEST_F(ModeSwitchTest, ConnectOverTheTncWithoutACallAsksForItInstead) {
  StandsOn(true);
  for (const char* call : {"", "   ", "-16"}) {
    settings.MyCall = call;
    askedUserInfo = 0;
    Begin();
    LetPass(10min);
    EXPECT_EQ(askedUserInfo, 1) << '"' << call << '"';
    EXPECT_EQ(Written(), "") << '"' << call << '"';
    EXPECT_TRUE(program.connection.cmdConnect.Enabled.Get());
    EXPECT_EQ(program.state.Phase.Get(), LinkPhase::Disconnected);
  }
}

TEST_F(ModeSwitchTest, RetryOverTheTncWithoutACallAsksForItInstead) {
  StandsOn(true);
  Begin();
  settings.MyCall.clear();
  Written();
  LetPass(31s);
  LetPass(3 * RetryInterval());
  EXPECT_EQ(askedUserInfo, 1);
  EXPECT_THAT(Written(), testing::Not(HasSubstr("C N0DIG")));
}

}  // namespace
