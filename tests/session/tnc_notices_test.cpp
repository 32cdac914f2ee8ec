#include <gmock/gmock.h>

#include "tnc_stage.h"

using namespace std::chrono_literals;
using session::LinkPhase;
using testing::ElementsAre;

namespace {

class TncNoticesTest : public TncStage {
 protected:
  // A station in telnet mode that is logged in to N0NODE.
  void LogInByTelnet() {
    settings.TncMode = program.state.TncMode = false;
    LogIn();
  }
};

TEST_F(TncNoticesTest, DisconnectedEndsTheSession) {
  LogInByTnc();
  Says("*** DISCONNECTED");
  EXPECT_FALSE(program.state.LoggedIn);
  EXPECT_EQ(program.state.Phase.Get(), LinkPhase::Disconnected);
  EXPECT_EQ(txtNode(), "*** DISCONNECTED");
  EXPECT_EQ(lamp().ForeColour.Get(), core::kRed);
  EXPECT_EQ(lamp().ToolTip.Get(), "the link has gone");
  EXPECT_EQ(program.connection.DisconnectCount, 1);
  EXPECT_EQ(program.connection.WhyEnded, "the TNC says that the link has ended");
  EXPECT_EQ(program.technical.lblTechnical[0].Caption.Get(), "Retry in 1");
}

TEST_F(TncNoticesTest, LostLinkIsTriedAgain) {
  LogInByTnc();
  Says("*** DISCONNECTED");
  world.RunUntil([&] { return program.tncScript.ScriptRunning; });
  EXPECT_EQ(Written(), "C N0DIG\r");
  EXPECT_EQ(lamp().ForeColour.Get(), core::kThemeColour);
}

TEST_F(TncNoticesTest, DisconnectedIsAnOrdinaryLineInTelnetMode) {
  LogInByTelnet();
  Receive("*** DISCONNECTED");
  Receive("xxxcmd:");
  EXPECT_TRUE(program.state.LoggedIn);
  EXPECT_THAT(log.Of("First"), ElementsAre("*** DISCONNECTED", "xxxcmd:"));
}

TEST_F(TncNoticesTest, DisconnectedCountsInUpperCaseAtTheStartOfTheLineAlone) {
  LogInByTnc();
  Says(" *** DISCONNECTED");
  Says("*** disconnected");
  EXPECT_TRUE(program.state.LoggedIn);
}

TEST_F(TncNoticesTest, OtherFormOfItCountsOnALinkByAnotherNodeAlone) {
  LogInByTnc();
  Says("DISCONNECTED fm N0CLU");
  EXPECT_TRUE(program.state.LoggedIn);
  program.tncLink.BpqLink = true;
  Says("DISCONNECTED fm N0CLU");
  EXPECT_FALSE(program.state.LoggedIn);
  EXPECT_EQ(txtNode(), "DISCONNECTED fm N0CLU");
}

TEST_F(TncNoticesTest, PromptBehindThreeCrossesEndsTheSessionAndIsNotShown) {
  LogInByTnc();
  Says("xxxcmd:");
  EXPECT_FALSE(program.state.LoggedIn);
  EXPECT_EQ(lamp().ForeColour.Get(), core::kRed);
  EXPECT_EQ(txtNode(), "***Connected to: N0CLU");
}

TEST_F(TncNoticesTest, WelcomeOfTheNodeInBetweenEndsTheSession) {
  LogInByTnc();
  Says("N0DIG:K1TST-2} Welcome back.");
  EXPECT_TRUE(program.state.LoggedIn);
  program.tncLink.BpqLink = true;
  Says("N0DIG:K1TST-2} Welcome back.");
  EXPECT_FALSE(program.state.LoggedIn);
  EXPECT_EQ(txtNode(), "N0DIG:K1TST-2} Welcome back.");
  EXPECT_EQ(lamp().ForeColour.Get(), core::kRed);
}

TEST_F(TncNoticesTest, ScriptThatBeginsByDisconnectingGoesOnBehindTheNotice) {
  settings.TncSteps = {{"disc", "cmd:", "10"}, {"c n0clu", "connected", "30"}};
  Begin();
  Written();
  tnc->Feed("*** DISCONNECTED\rcmd:");
  LetPass(250ms);
  EXPECT_EQ(Written(), "C N0CLU\r");
  EXPECT_EQ(program.state.Phase.Get(), LinkPhase::Trying);
  EXPECT_FALSE(RetryAwaited());
}

TEST_F(TncNoticesTest, ReasonThatTheTncGaveOutlivesTheScript) {
  Begin();
  Says("*** DISCONNECTED");
  ASSERT_TRUE(program.tncScript.ScriptRunning);
  LetPass(30s);
  ASSERT_FALSE(program.tncScript.ScriptRunning);
  EXPECT_EQ(program.connection.WhyEnded, "the TNC says that the link has ended");
}

TEST_F(TncNoticesTest, EndThatTheTncReportsOnceMoreIsNotCountedTwice) {
  LogInByTnc();
  program.tncScript.DisconnectTNC();
  Says("*** DISCONNECTED");
  EXPECT_EQ(program.connection.DisconnectCount, 1);
  EXPECT_EQ(program.tncRetry.ReconnectMinutes, 1);
}

TEST_F(TncNoticesTest, ConnectedLightsTheLampInTncMode) {
  EXPECT_TRUE(program.tncLink.OpenComm1());
  Says("*** connected to N0CLU");
  EXPECT_EQ(lamp().ForeColour.Get(), core::kGreen);
  EXPECT_THAT(log.Of("First"), ElementsAre());
  program.tncLink.BpqLink = true;
  Says("*** CONNECTED to N0CLU");
  EXPECT_EQ(lamp().ForeColour.Get(), core::kBlue);
}

TEST_F(TncNoticesTest, ConnectedIsAnOrdinaryLineInTelnetMode) {
  LogInByTelnet();
  Receive("*** CONNECTED to N0CLU");
  EXPECT_EQ(lamp().ForeColour.Get(), core::kThemeColour);
  EXPECT_THAT(log.Of("First"), ElementsAre("*** CONNECTED to N0CLU"));
}

TEST_F(TncNoticesTest, ReconnectedSendsTheTncBackAndEndsTheSession) {
  LogInByTnc();
  Says("*** reconnected to N0CLU");
  EXPECT_EQ(Written(), "\x03");
  EXPECT_EQ(txtNode(), "*** reconnected to N0CLU");
  EXPECT_EQ(program.state.txtNode.ForeColour.Get(), settings.ColourNodeDisc);
  LetPass(250ms);
  EXPECT_EQ(Written(), "DISC\r");
  EXPECT_TRUE(program.state.LoggedIn);
  LetPass(9 * 250ms);
  EXPECT_FALSE(program.state.LoggedIn);
  EXPECT_EQ(txtNode(), "Forcing a disconnect with: N0CLU");
  EXPECT_EQ(program.connection.WhyEnded, "the link was begun anew at the other end");
  EXPECT_TRUE(RetryAwaited());
}

TEST_F(TncNoticesTest, TextWaitsWhileReconnectedIsSeenTo) {
  LogInByTnc();
  log.entries.clear();
  Says("*** RECONNECTED to N0CLU");
  Says("late");
  EXPECT_THAT(log.Of("First"), ElementsAre("*** RECONNECTED to N0CLU"));
}

TEST_F(TncNoticesTest, ReconnectedWithoutALoginIsNotSeen) {
  Link();
  Says("*** RECONNECTED to N0CLU");
  EXPECT_EQ(Written(), "");
  EXPECT_EQ(program.state.Phase.Get(), LinkPhase::Connected);
}

TEST_F(TncNoticesTest, ReconnectedEndsATelnetSessionToo) {
  LogInByTelnet();
  Receive("*** RECONNECTED to N0CLU");
  EXPECT_FALSE(program.state.LoggedIn);
  EXPECT_EQ(txtNode(), "*** RECONNECTED to N0CLU");
  EXPECT_EQ(SocketState(), platform::SocketState::Closed);
}

TEST_F(TncNoticesTest, RetriesAreShownAndCounted) {
  LogInByTnc();
  Says("*** retry limit exceeded");
  EXPECT_EQ(txtNode(), "*** retry limit exceeded");
  EXPECT_EQ(program.state.txtNode.ForeColour.Get(), settings.ColourNodeDisc);
  EXPECT_EQ(program.tncNotices.lblRetriedOut.Caption.Get(), "Retried out = 1");
  Says("*** RETRY 5");
  EXPECT_EQ(program.tncNotices.lblRetriedOut.Caption.Get(), "Retried out = 2");
  Says("*** RETRYING");
  EXPECT_EQ(program.tncNotices.RetriedOut, 2);
}

TEST_F(TncNoticesTest, NodeWithoutShTncIsAskedForItsConfiguration) {
  LogInByTnc();
  program.state.KnownNodes = {"N0CLU", "N0TWO"};
  program.clockwork.SysopEnabled = true;
  Says("SH/TNC command error");
  EXPECT_EQ(Written(), "SHOW/CONFIG N0CLU\rSHOW/CONFIG N0TWO\r");
  EXPECT_TRUE(program.state.SysopLink);
  EXPECT_FALSE(program.clockwork.SysopEnabled);
}

TEST_F(TncNoticesTest, ShTncIsAnOrdinaryLineInTelnetMode) {
  LogInByTelnet();
  program.state.KnownNodes = {"N0NODE"};
  Receive("SH/TNC command error");
  ExpectNothingSent();
  EXPECT_FALSE(program.state.SysopLink);
}

}  // namespace
