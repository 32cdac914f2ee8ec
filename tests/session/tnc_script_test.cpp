#include <gmock/gmock.h>

#include "tnc_stage.h"

using namespace std::chrono_literals;
using session::LinkPhase;
using session::TimerId;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using Progress = session::TncStepMark::Progress;

namespace {

class TncScriptTest : public TncStage {
 protected:
  std::vector<Progress> Marks() const {
    std::vector<Progress> marks;
    for (const auto& mark : program.tncScript.steps) marks.push_back(mark.progress.Get());
    marks.resize(settings.TncSteps.size());
    return marks;
  }
  // A script of one step, with no reply named.
  void AwaitAnything() { settings.TncSteps = {{"c n0clu", "", "30"}}; }
};

TEST_F(TncScriptTest, FirstCommandGoesOutInUpperCaseAndIsShown) {
  Begin();
  EXPECT_EQ(Written(), "C N0DIG\r");
  EXPECT_EQ(RawView().back(), "   <- C N0DIG");
  EXPECT_EQ(txtNode(), "c n0dig");
  EXPECT_EQ(program.state.Phase.Get(), LinkPhase::Trying);
  EXPECT_EQ(program.state.txtNode.ForeColour.Get(), settings.ColourNodeTrying);
  EXPECT_FALSE(program.connection.cmdConnect.Enabled.Get());
  EXPECT_TRUE(program.connection.cmdDisconnect.Enabled.Get());
}

TEST_F(TncScriptTest, ScriptWithOneStepConnectsDirectly) {
  settings.TncSteps = {{"c n0clu", "*** CONNECTED to N0CLU", "30"}};
  Begin();
  Says("*** CONNECTED to N0CLU");
  EXPECT_FALSE(program.tncScript.ScriptRunning);
  EXPECT_EQ(txtNode(), "*** CONNECTED to N0CLU");
  EXPECT_EQ(program.state.Phase.Get(), LinkPhase::Connected);
  EXPECT_EQ(program.state.txtNode.ForeColour.Get(), settings.ColourNodeConn);
  EXPECT_EQ(lamp().ForeColour.Get(), core::kGreen);
  EXPECT_FALSE(program.timers.Enabled(TimerId::ConnectScript));
}

TEST_F(TncScriptTest, EachReplyBringsTheNextCommand) {
  Begin();
  Written();
  Says("*** CONNECTED to N0DIG");
  EXPECT_EQ(Written(), "C N0CLU\r");
  EXPECT_TRUE(program.tncScript.ScriptRunning);
  Says("Welcome to N0CLU");
  EXPECT_FALSE(program.tncScript.ScriptRunning);
  EXPECT_EQ(Written(), "");
}

TEST_F(TncScriptTest, ReplyIsFoundAnywhereInTheLineWithoutRegardToCase) {
  settings.TncSteps[0].Reply = "CoNnEcTeD tO n0dIg";
  Begin();
  Says("*** connected TO N0DIG via N0WIDE");
  EXPECT_EQ(program.tncScript.ScriptStep, 1);
}

TEST_F(TncScriptTest, LineWithoutTheReplyChangesNothing) {
  Begin();
  Written();
  Says("cmd: N0DIG is not connected");
  Says("");
  EXPECT_EQ(program.tncScript.ScriptStep, 0);
  EXPECT_EQ(Written(), "");
}

TEST_F(TncScriptTest, LineThatAStepWaitedForIsNoLoginPrompt) {
  settings.TncSteps[1].Reply = "N0CLU >";
  Begin();
  Says("*** CONNECTED to N0DIG");
  Written();
  Says("N0CLU >");
  EXPECT_FALSE(program.state.LoggedIn);
  EXPECT_EQ(Written(), "");
}

TEST_F(TncScriptTest, LoginBehindTheScriptIsThatOfAnyNode) {
  Link();
  Says("login: ");
  EXPECT_EQ(Written(), "K1TST-2\r");
  EXPECT_TRUE(program.state.LoggedIn);
  EXPECT_EQ(txtNode(), "***Connected to: N0CLU");
  EXPECT_EQ(program.timers.Interval(TimerId::AskConfig), 60s);
}

TEST_F(TncScriptTest, LoginTextBehindTheScriptNamesTheSoftware) {
  LogInByTnc();
  Says("Welcome to the DXSpider node N0CLU");
  EXPECT_TRUE(program.state.IsSpider());
}

TEST_F(TncScriptTest, GreetingOverTheTncTeachesNoAddress) {
  settings.NodeNumberedAddress = "10.1.2.3";
  LogInByTnc();
  Says("K1TST-2 de N0CLU 20-Nov-2026 2148Z");
  EXPECT_EQ(program.state.KnownNodes, Lines{"N0CLU"});
  EXPECT_EQ(settings.NodeNumberedAddress, "10.1.2.3");
}

TEST_F(TncScriptTest, StepWithoutAReplyTakesAnyLineButAnEmptyOne) {
  AwaitAnything();
  Begin();
  Says("");
  Says("   ");
  EXPECT_TRUE(program.tncScript.ScriptRunning);
  Says("x");
  EXPECT_FALSE(program.tncScript.ScriptRunning);
}

TEST_F(TncScriptTest, CommandPromptWithoutALineEndIsAReply) {
  settings.TncSteps = {{"", "cmd:", "10"}, {"c n0clu", "connected", "30"}};
  Begin();
  EXPECT_EQ(Written(), "\r");
  tnc->Feed("cmd:");
  LetPass(250ms);
  EXPECT_EQ(Written(), "C N0CLU\r");
}

TEST_F(TncScriptTest, RowsWithoutATimeOutAreNoSteps) {
  settings.TncSteps = {
      {"one", "1", "0"}, {"two", "2", "10"}, {"three", "3", ""}, {"four", "4", "9"}};
  Begin();
  EXPECT_EQ(Written(), "TWO\r");
  Says("2");
  EXPECT_EQ(Written(), "FOUR\r");
  EXPECT_THAT(Marks(),
              ElementsAre(Progress::Idle, Progress::Answered, Progress::Idle, Progress::Waiting));
}

TEST_F(TncScriptTest, NothingIsSentWithoutAScriptAndTheUserIsAskedForOne) {
  settings.TncSteps = {{"c n0clu", "connected", "0"}};
  Begin();
  EXPECT_EQ(Written(), "");
  EXPECT_EQ(askedTncScript, 1);
  EXPECT_FALSE(program.tncScript.ScriptRunning);
  EXPECT_EQ(program.connection.WhyEnded, "there is no connect script");
  EXPECT_TRUE(program.connection.cmdConnect.Enabled.Get());
}

TEST_F(TncScriptTest, WithoutAScriptNothingIsTriedAgainUntilTheUserConnects) {
  settings.TncSteps.clear();
  Begin();
  EXPECT_FALSE(RetryAwaited());
  EXPECT_FALSE(program.connection.cmdDisconnect.Enabled.Get());
  EXPECT_EQ(program.technical.lblTechnical[0].Caption.Get(), "");
  LetPass(1h);
  EXPECT_EQ(askedTncScript, 1);
  settings.TncSteps = {{"c n0clu", "connected", "30"}};
  Begin();
  EXPECT_EQ(Written(), "C N0CLU\r");
  LetPass(30s);
  EXPECT_TRUE(RetryAwaited());
}

TEST_F(TncScriptTest, ScriptThatIsEditedWhileItRunsGoesOnAsItWas) {
  Begin();
  settings.TncSteps.clear();
  Written();
  Says("*** CONNECTED to N0DIG");
  EXPECT_EQ(Written(), "C N0CLU\r");
}

TEST_F(TncScriptTest, FieldsTakeTheColourOfTheirStep) {
  Begin();
  const auto& steps = program.tncScript.steps;
  EXPECT_EQ(steps[0].ForeColour.Get(), settings.ColourNodeTrying);
  EXPECT_EQ(steps[1].ForeColour.Get(), core::kThemeColour);
  Says("*** CONNECTED to N0DIG");
  EXPECT_EQ(steps[0].ForeColour.Get(), settings.ColourNodeConn);
  LetPass(20s);
  EXPECT_EQ(steps[1].ForeColour.Get(), settings.ColourNodeDisc);
  EXPECT_THAT(Marks(), ElementsAre(Progress::Answered, Progress::TimedOut));
}

TEST_F(TncScriptTest, FieldsTakeOtherColoursThatTheUserChooses) {
  Begin();
  Says("*** CONNECTED to N0DIG");
  settings.ColourNodeConn = 1111;
  settings.ColourNodeTrying = 2222;
  program.tncScript.Recolour();
  const auto& steps = program.tncScript.steps;
  EXPECT_EQ(steps[0].ForeColour.Get(), 1111);
  EXPECT_EQ(steps[1].ForeColour.Get(), 2222);
  EXPECT_EQ(steps[2].ForeColour.Get(), core::kThemeColour);
}

TEST_F(TncScriptTest, ConnectBeginsTheScriptAnewWithItsColours) {
  Begin();
  Says("*** CONNECTED to N0DIG");
  Written();
  program.tncScript.Connect();
  EXPECT_EQ(Written(), "C N0DIG\r");
  EXPECT_THAT(Marks(), ElementsAre(Progress::Waiting, Progress::Idle));
}

TEST_F(TncScriptTest, StepThatTimesOutIsToldAndTheTncIsDisconnected) {
  PressConnect();
  LetPass(30s - 1ms);
  Written();
  EXPECT_TRUE(program.tncScript.ScriptRunning);
  LetPass(1ms);
  EXPECT_FALSE(program.tncScript.ScriptRunning);
  EXPECT_THAT(RawView(),
              ElementsAre("   <- C N0DIG",
                          "Connect attempt time out.  Connect Response of: \"connected to N0DIG\" "
                          "not received!",
                          "   <- ^C", "   <- DISC", "   <- Disconnect in progress N0CLU"));
  EXPECT_EQ(Written(),
            "\x03"
            "DISC\r");
  EXPECT_EQ(program.state.Phase.Get(), LinkPhase::Disconnected);
  EXPECT_EQ(program.connection.WhyEnded, "the TNC gave no reply in time");
  EXPECT_TRUE(RetryAwaited());
}

TEST_F(TncScriptTest, TimeOutBeginsAnewWithEachStep) {
  Begin();
  LetPass(29s);
  Says("*** CONNECTED to N0DIG");
  LetPass(19s);
  EXPECT_TRUE(program.tncScript.ScriptRunning);
  LetPass(1s);
  EXPECT_FALSE(program.tncScript.ScriptRunning);
}

TEST_F(TncScriptTest, TimeOutIsAtMost65Seconds) {
  settings.TncSteps[0].TimeOut = "66";
  Begin();
  EXPECT_EQ(program.timers.Interval(TimerId::ConnectScript), 65s);
  settings.TncSteps[0].TimeOut = "999999999999";
  program.tncScript.Connect();
  EXPECT_EQ(program.timers.Interval(TimerId::ConnectScript), 65s);
  settings.TncSteps[0].TimeOut = "65";
  program.tncScript.Connect();
  EXPECT_EQ(program.timers.Interval(TimerId::ConnectScript), 65s);
}

TEST_F(TncScriptTest, NegativeTimeOutIsNone) {
  settings.TncSteps[0].TimeOut = "-5";
  Begin();
  EXPECT_EQ(Written(), "C N0CLU\r");
}

TEST_F(TncScriptTest, UserWhoDisconnectsEndsTheScriptWithoutTheTextOfATimeOut) {
  Begin();
  Written();
  PressDisconnect();
  LetPass(1ms);
  EXPECT_FALSE(program.tncScript.ScriptRunning);
  EXPECT_EQ(Written(),
            "\x03"
            "DISC\r");
  EXPECT_EQ(CountInRawView("time out"), 0);
  EXPECT_EQ(txtNode(), "Ready to Connect");
  EXPECT_EQ(program.connection.WhyEnded, "disconnected by you");
  LetPass(1h);
  EXPECT_EQ(Written(), "");
}

TEST_F(TncScriptTest, UserWhoDisconnectsASessionSaysGoodbyeFirst) {
  LogInByTnc();
  PressDisconnect();
  LetPass(1ms);
  EXPECT_EQ(Written(), "BYE\r");
  EXPECT_FALSE(program.state.LoggedIn);
  LetPass(249ms);
  EXPECT_EQ(Written(), "");
  LetPass(1ms);
  EXPECT_EQ(Written(),
            "\x03"
            "DISC\r");
}

TEST_F(TncScriptTest, LinkByAnotherNodeIsEndedByItsAttentionMark) {
  settings.TncSteps = {{"!c n0clu", "connected", "30"}};
  Begin();
  LetPass(250ms);
  Written();
  program.tncScript.DisconnectTNC();
  LetPass(250ms);
  EXPECT_EQ(Written(), "!D\r");
  EXPECT_THAT(RawView(), Contains("   <- !D"));
  EXPECT_THAT(RawView(), Not(Contains("   <- ^C")));
}

TEST_F(TncScriptTest, LinkThatEscCallsIsEndedByEsc) {
  settings.TncSteps = {{"ESCc n0clu", "connected", "30"}};
  Begin();
  LetPass(1s);
  Written();
  program.tncScript.DisconnectTNC();
  LetPass(250ms);
  EXPECT_EQ(Written(),
            "\x1b"
            "D");
  LetPass(250ms);
  EXPECT_EQ(Written(), "\r");
  EXPECT_THAT(RawView(), Contains("   <- ESCD"));
}

TEST_F(TncScriptTest, LinkByAnotherNodeIsLoggedInAtTheEndOfTheScript) {
  settings.TncSteps = {{"!c n0clu", "connected", "30"}};
  Begin();
  LetPass(250ms);
  Written();
  Says("*** Connected to N0CLU");
  EXPECT_TRUE(program.state.LoggedIn);
  EXPECT_EQ(lamp().ForeColour.Get(), core::kBlue);
  EXPECT_EQ(txtNode(), "*** Connected to N0CLU");
  Says("N0NODE de K1TST-2 >");
  EXPECT_EQ(Written(), "") << "no prompt is taken for that of a login";
}

TEST_F(TncScriptTest, NextScriptForgetsTheWayOfTheLastOne) {
  settings.TncSteps = {{"ESCc n0clu", "connected", "30"}};
  Begin();
  LetPass(1s);
  settings.TncSteps = {{"c n0clu", "connected", "30"}};
  program.tncScript.DisconnectTNC();
  LetPass(3s);
  Written();
  program.tncScript.Connect();
  EXPECT_EQ(Written(), "C N0CLU\r");
}

TEST_F(TncScriptTest, DisconnectTncDoesNothingInTelnetMode) {
  Begin();
  Written();
  program.state.TncMode = false;
  program.tncScript.DisconnectTNC();
  LetPass(1s);
  EXPECT_EQ(Written(), "");
  EXPECT_EQ(CountInRawView("Disconnect in progress"), 0);
}

TEST_F(TncScriptTest, ClosedPortIsNotOpenedToDisconnect) {
  program.tncScript.DisconnectTNC();
  LetPass(1s);
  EXPECT_EQ(Written(), "");
  EXPECT_FALSE(program.tncLink.MSComm1->PortOpen());
  EXPECT_EQ(RawView().back(), "   <- Disconnect in progress ");
}

TEST_F(TncScriptTest, LoginPromptThatComesBeforeTheReplyEndsTheScript) {
  Begin();
  Says("login: ");
  EXPECT_TRUE(program.state.LoggedIn);
  EXPECT_FALSE(program.tncScript.ScriptRunning);
  LetPass(1min);
  EXPECT_EQ(CountInRawView("time out"), 0);
}

TEST_F(TncScriptTest, TryAfterTheFirstFailureComesAfterTwoTicksAndEachLaterOneATickLater) {
  tnc->busy = true;
  PressConnect();
  const auto interval = RetryInterval();
  EXPECT_EQ(program.tncRetry.ReconnectMinutes, 0);
  for (int failure = 1; failure <= 3; ++failure) {
    world.RunUntil([&] { return !program.tncScript.ScriptRunning; });
    EXPECT_EQ(program.tncRetry.ReconnectMinutes, failure);
    LetPass((failure + 1) * interval - 1s);
    EXPECT_FALSE(program.tncScript.ScriptRunning) << failure;
    LetPass(2s);
    EXPECT_TRUE(program.tncScript.ScriptRunning) << failure;
  }
}

TEST_F(TncScriptTest, LoginEndsTheGrowthOfTheWait) {
  Begin();
  LetPass(5min);
  EXPECT_GT(program.tncRetry.ReconnectMinutes, 0);
  world.RunUntil([&] { return program.tncScript.ScriptRunning; });
  Says("login: ");
  EXPECT_EQ(program.tncRetry.ReconnectMinutes, 0);
  EXPECT_EQ(program.technical.lblTechnical[0].Caption.Get(), "");
}

TEST_F(TncScriptTest, BusyPortIsToldInWordsAndTheScriptTimesOut) {
  tnc->busy = true;
  PressConnect();
  EXPECT_THAT(RawView(),
              ElementsAre("/dev/ttyUSB0 is in use by another program. Close that program, or "
                          "choose another device."));
  LetPass(30s);
  EXPECT_EQ(CountInRawView("Connect attempt time out."), 1);
  EXPECT_EQ(program.connection.WhyEnded, "the TNC's port /dev/ttyUSB0 does not open (busy)");
  EXPECT_TRUE(RetryAwaited());
  tnc->busy = false;
  LetPass(2 * RetryInterval() + 2s);
  EXPECT_EQ(Written(), "C N0DIG\r");
}

TEST_F(TncScriptTest, PortThatNobodyChoseIsToldInWords) {
  settings.TncPort = 0;
  PressConnect();
  EXPECT_THAT(RawView(), ElementsAre("No port is chosen. Choose one."));
}

TEST_F(TncScriptTest, DeviceThatVanishesEndsTheSessionAndItIsTriedAgain) {
  LogInByTnc();
  world.serialPorts.Unplug(kPort);
  LetPass(1ms);
  EXPECT_FALSE(program.state.LoggedIn);
  EXPECT_EQ(program.connection.WhyEnded, "the TNC's port has gone");
  EXPECT_EQ(lamp().ForeColour.Get(), core::kRed);
  EXPECT_EQ(program.connection.DisconnectCount, 1);
  tnc = &world.serialPorts.Plug(kPort);
  LetPass(2 * RetryInterval() + 2s);
  EXPECT_EQ(Written(), "C N0DIG\r");
}

TEST_F(TncScriptTest, DeviceThatVanishesEndsAScript) {
  Begin();
  world.serialPorts.Unplug(kPort);
  LetPass(1ms);
  EXPECT_FALSE(program.tncScript.ScriptRunning);
  EXPECT_EQ(txtNode(), "The TNC's port has gone: look at its cable");
  LetPass(30s);
  EXPECT_EQ(CountInRawView("time out"), 0);
}

TEST_F(TncScriptTest, DeviceThatVanishesWithoutASessionChangesNothing) {
  EXPECT_TRUE(program.tncLink.OpenComm1());
  world.serialPorts.Unplug(kPort);
  LetPass(1ms);
  EXPECT_EQ(program.connection.WhyEnded, "");
  EXPECT_FALSE(RetryAwaited());
}

TEST_F(TncScriptTest, TncThatAnswersGarbageTimesOut) {
  Begin();
  Written();
  std::string garbage;
  for (int i = 0; i < 10'000; ++i) garbage += static_cast<char>(i * 31 + i / 7);
  for (int second = 0; second < 30; ++second) {
    tnc->Feed(garbage);
    LetPass(1s);
  }
  EXPECT_FALSE(program.tncScript.ScriptRunning);
  EXPECT_FALSE(program.state.LoggedIn);
  EXPECT_EQ(Written(),
            "\x03"
            "DISC\r");
}

TEST_F(TncScriptTest, LinkBarNamesTheClusterAndHowLongItIsToTheNextTry) {
  PressConnect();
  LetPass(1s);
  EXPECT_EQ(program.linkText.node.Caption.Get(), "N0CLU");
  EXPECT_EQ(program.linkText.state.Caption.Get(), "connecting 1 s");
  Says("*** CONNECTED to N0DIG");
  Says("*** CONNECTED to N0CLU");
  LetPass(1s);
  EXPECT_EQ(program.linkText.state.Caption.Get(), "waiting for the login 0 s");
  EXPECT_NE(program.linkText.age.Caption.Get(), "");
  program.tncScript.DisconnectTNC();
  program.linkText.Tick();
  const auto wait = std::chrono::ceil<std::chrono::seconds>(2 * RetryInterval());
  EXPECT_THAT(program.linkText.state.Caption.Get(),
              testing::StartsWith("next try in " + session::SpanText(wait)));
}

}  // namespace
