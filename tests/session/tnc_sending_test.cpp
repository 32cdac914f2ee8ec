#include <gmock/gmock.h>

#include "session/tnc_link.h"
#include "session_fixture.h"

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char* kSendPort = "/dev/ttyUSB0";

// A TNC on a port that nobody has opened yet.
class TncSending : public SessionFixture {
 protected:
  TncSending() {
    settings.TncPort = 17;
    settings.TncBaud = 9600;
    program.state.TncMode = true;
  }

  // What has been written since the last call.
  std::string Written() { return std::exchange(device->written, {}); }

  platform::sim::SimDevice* device = &world.serialPorts.Plug(kSendPort, "TNC-X");
  session::TncLink& link = program.tncLink;
};

// The same with the port open and ready.
class TncReady : public TncSending {
 protected:
  TncReady() {
    EXPECT_TRUE(link.OpenComm1());
    LetPass(500ms);
  }
};

// And the node in between called by ESC.
class EscReady : public TncReady {
 protected:
  EscReady() {
    program.outgoing.SendAsIs("ESC");
    LetPass(1s);
    device->written.clear();
  }
};

TEST_F(TncSending, PortOpensWithItsSettings) {
  settings.TncBaud = 1200;
  settings.TncParity = "Even";
  settings.TncDataBits = "7";
  settings.TncStopBits = "2";
  EXPECT_TRUE(link.OpenComm1());
  EXPECT_EQ(device->openedWith,
            (platform::SerialSettings{.baud = 1200,
                                      .parity = 'E',
                                      .dataBits = 7,
                                      .stopBits = "2",
                                      .flow = platform::FlowControl::Hardware}));
  EXPECT_TRUE(program.timers.Enabled(session::TimerId::Tnc));
}

TEST_F(TncSending, FlowControlIsHardwareUnlessItIsAnotherByName) {
  using platform::FlowControl;
  const std::pair<const char*, FlowControl> kFlows[] = {{"None", FlowControl::None},
                                                        {"Xon / Xoff", FlowControl::XonXoff},
                                                        {"Both", FlowControl::Both},
                                                        {"Hardware", FlowControl::Hardware},
                                                        {"", FlowControl::Hardware}};
  for (const auto& [name, flow] : kFlows) {
    settings.TncFlowControl = name;
    link.MSComm1->Close();
    EXPECT_TRUE(link.OpenComm1());
    EXPECT_EQ(device->openedWith.flow, flow) << name;
  }
}

TEST_F(TncSending, OpenPortStaysAsItIs) {
  EXPECT_TRUE(link.OpenComm1());
  settings.TncBaud = 300;
  EXPECT_TRUE(link.OpenComm1());
  EXPECT_EQ(device->openedWith.baud, 9600);
}

TEST_F(TncSending, FirstTextOpensThePortAndGoesOutHalfASecondLater) {
  EXPECT_TRUE(program.outgoing.SendAsIs("c n0node"));
  EXPECT_TRUE(program.outgoing.SendAsIs("again"));
  LetPass(499ms);
  EXPECT_EQ(Written(), "");
  LetPass(1ms);
  EXPECT_EQ(Written(), "c n0node\ragain\r");
}

TEST_F(TncSending, TextForAPortThatDoesNotOpenIsLost) {
  device->busy = true;
  EXPECT_FALSE(program.outgoing.SendAsIs("lost"));
  EXPECT_THAT(RawView(), IsEmpty());
  device->busy = false;
  LetPass(1s);
  EXPECT_EQ(Written(), "");
}

TEST_F(TncSending, ReasonWhyThePortDoesNotOpenIsReportedOnce) {
  device->busy = true;
  program.outgoing.SendAsIs("lost");
  program.outgoing.SendAsIs("lost");
  EXPECT_THAT(faults, ElementsAre("OpenComm1: busy"));
  device->busy = false;
  program.outgoing.SendAsIs("sent");
  link.MSComm1->Close();
  device->busy = true;
  program.outgoing.SendAsIs("lost");
  EXPECT_THAT(faults, ElementsAre("OpenComm1: busy", "OpenComm1: busy"));
}

TEST_F(TncSending, NumberWithoutAPortDoesNotOpen) {
  settings.TncPort = 0;
  EXPECT_FALSE(program.outgoing.SendAsIs("lost"));
  EXPECT_THAT(faults, ElementsAre("OpenComm1: no such device"));
}

TEST_F(TncReady, TextGoesOutAtOnceWithCrBehindIt) {
  EXPECT_TRUE(program.outgoing.SendAsIs("sh/Dx"));
  EXPECT_EQ(Written(), "sh/Dx\r");
  EXPECT_EQ(RawView().back(), "   <- sh/Dx");
  EXPECT_TRUE(program.outgoing.Send("bye"));
  EXPECT_EQ(Written(), "BYE\r");
}

TEST_F(TncReady, EmptyTextIsABareCr) {
  program.outgoing.SendAsIs("");
  EXPECT_EQ(Written(), "\r");
  EXPECT_EQ(RawView().back(), "   <- ");
}

TEST_F(TncReady, NothingGoesToTheSocket) {
  program.state.TncMode = false;
  LogIn();
  program.state.TncMode = true;
  program.outgoing.SendAsIs("over the air");
  ExpectNothingSent();
}

TEST_F(TncReady, NothingGoesToTheTncInTelnetMode) {
  program.state.TncMode = false;
  EXPECT_FALSE(program.outgoing.SendAsIs("sh/dx"));
  LetPass(1s);
  EXPECT_EQ(Written(), "");
}

TEST_F(TncReady, AttentionMarkGoesOutAheadOfItsText) {
  program.outgoing.SendAsIs("!c n0node");
  EXPECT_EQ(Written(), "!");
  LetPass(249ms);
  EXPECT_EQ(Written(), "");
  LetPass(1ms);
  EXPECT_EQ(Written(), "c n0node\r");
  EXPECT_EQ(RawView().back(), "   <- !c n0node");
  EXPECT_TRUE(link.BpqLink);
  EXPECT_FALSE(link.EscLink);
}

TEST_F(TncReady, AttentionMarkAloneIsFollowedByCr) {
  program.outgoing.SendAsIs("!");
  LetPass(250ms);
  EXPECT_EQ(Written(), "!\r");
}

TEST_F(TncReady, AttentionMarkTurnsTheLampBlueOnlyWhenLoggedIn) {
  program.outgoing.SendAsIs("!x");
  EXPECT_EQ(link.lblTnc.ForeColour.Get(), core::kThemeColour);
  program.state.LoggedIn = true;
  program.outgoing.SendAsIs("!x");
  EXPECT_EQ(link.lblTnc.ForeColour.Get(), core::kBlue);
}

TEST_F(TncReady, LampSaysInWordsWhatItsColourMeans) {
  EXPECT_EQ(link.lblTnc.ToolTip.Get(), "not logged in");
  link.ShowSession(true);
  EXPECT_EQ(link.lblTnc.ForeColour.Get(), core::kGreen);
  EXPECT_EQ(link.lblTnc.ToolTip.Get(), "logged in");
  link.BpqLink = true;
  link.ShowSession(true);
  EXPECT_EQ(link.lblTnc.ForeColour.Get(), core::kBlue);
  EXPECT_EQ(link.lblTnc.ToolTip.Get(), "logged in by way of another node");
}

TEST_F(TncReady, LampGoesOutWithTheSession) {
  program.state.LoggedIn = true;
  link.ShowSession(true);
  program.connection.ForceClose();
  EXPECT_EQ(link.lblTnc.ForeColour.Get(), core::kThemeColour);
  EXPECT_EQ(link.lblTnc.ToolTip.Get(), "not logged in");
}

TEST_F(TncReady, MarkInsideATextIsNoAttentionMark) {
  program.outgoing.SendAsIs("73!");
  program.outgoing.SendAsIs(" !");
  EXPECT_EQ(Written(), "73!\r !\r");
  EXPECT_FALSE(link.BpqLink);
}

TEST_F(TncReady, EscGoesOutAheadOfItsTextAndCrBehindIt) {
  program.outgoing.SendAsIs("ESCD");
  EXPECT_EQ(Written(), "\x1b");
  LetPass(250ms);
  EXPECT_EQ(Written(), "D");
  LetPass(249ms);
  EXPECT_EQ(Written(), "");
  LetPass(1ms);
  EXPECT_EQ(Written(), "\r");
  EXPECT_EQ(RawView().back(), "   <- ESCD");
  EXPECT_TRUE(link.BpqLink);
  EXPECT_TRUE(link.EscLink);
}

TEST_F(TncReady, EscInOtherLettersIsText) {
  program.outgoing.SendAsIs("esc");
  program.outgoing.SendAsIs("ES");
  EXPECT_EQ(Written(), "esc\rES\r");
  EXPECT_FALSE(link.EscLink);
}

TEST_F(EscReady, TextGoesOutOneCharacterEvery250Milliseconds) {
  program.outgoing.SendAsIs("dx");
  EXPECT_EQ(Written(), "d");
  LetPass(249ms);
  EXPECT_EQ(Written(), "");
  LetPass(1ms);
  EXPECT_EQ(Written(), "x");
  LetPass(250ms);
  EXPECT_EQ(Written(), "\r");
  EXPECT_EQ(RawView().back(), "   <- dx");
}

TEST_F(EscReady, TextsStayInOrder) {
  program.outgoing.SendAsIs("ab");
  program.outgoing.SendAsIs("cd");
  program.outgoing.SendAsIs("");
  LetPass(3s);
  EXPECT_EQ(Written(), "ab\rcd\r\r");
}

TEST_F(EscReady, AttentionMarkMakesItAnOrdinaryLinkAgain) {
  program.outgoing.SendAsIs("!x");
  LetPass(1s);
  EXPECT_EQ(Written(), "!x\r");
  program.outgoing.SendAsIs("fast");
  EXPECT_EQ(Written(), "fast\r");
  EXPECT_TRUE(link.BpqLink);
  EXPECT_FALSE(link.EscLink);
}

TEST_F(TncReady, CaretAndALetterAreOneControlCharacter) {
  program.outgoing.SendAsIs("^C");
  EXPECT_EQ(Written(), "\x03\r");
  EXPECT_EQ(RawView().back(), "   <- ^C");
  program.outgoing.Send("^z");
  EXPECT_EQ(Written(), "\x1a\r");
}

TEST_F(TncReady, CaretInFrontOfAnythingElseIsText) {
  for (const std::string text : {"^", "^CC", "^ ", "^!", "^\x1f", "C^"}) {
    program.outgoing.SendAsIs(text);
    EXPECT_EQ(Written(), text + "\r");
  }
}

TEST_F(TncReady, CaretInFrontOfAnyByteIsHarmless) {
  for (int byte = 0; byte < 256; ++byte) {
    program.outgoing.SendAsIs(std::string("^") + static_cast<char>(byte));
    EXPECT_EQ(Written().back(), '\r') << byte;
  }
}

TEST_F(TncReady, PasswordIsSentAndNotShown) {
  program.outgoing.NodePassword = "secret";
  program.outgoing.SendPassword();
  EXPECT_EQ(Written(), "secret\r");
  EXPECT_EQ(RawView().back(), "   <- ********");
}

TEST_F(TncReady, SentTextCountsAsTheUsersAndRestartsTxSilence) {
  program.keepAlive.KeepAliveRx = false;
  program.keepAlive.TxInactiveMinutes = 3;
  program.outgoing.SendAsIs("x");
  EXPECT_EQ(program.keepAlive.TxInactiveMinutes, 0);
  EXPECT_TRUE(program.state.LastSendWasUser);
}

TEST_F(TncReady, TextsThatWentOutAreTold) {
  Lines told;
  program.outgoing.onSent = [&](std::string_view text) { told.emplace_back(text); };
  program.outgoing.SendAsIs("sh/dx");
  program.outgoing.NodePassword = "secret";
  program.outgoing.SendPassword();
  device->busy = true;
  link.MSComm1->Close();
  program.outgoing.SendAsIs("lost");
  EXPECT_THAT(told, ElementsAre("sh/dx"));
}

TEST_F(TncReady, PortThatVanishesIsReportedAndOpensAgainWhenItIsBack) {
  world.serialPorts.Unplug(kSendPort);
  LetPass(0ms);
  EXPECT_THAT(faults, ElementsAre("MSComm1: the device has gone"));
  EXPECT_FALSE(program.outgoing.SendAsIs("lost"));
  device = &world.serialPorts.Plug(kSendPort);
  EXPECT_TRUE(program.outgoing.SendAsIs("back"));
  LetPass(500ms);
  EXPECT_EQ(Written(), "back\r");
}

TEST_F(TncReady, WhatWaitsToBeWrittenIsLostWithThePort) {
  program.outgoing.SendAsIs("!lost");
  world.serialPorts.Unplug(kSendPort);
  LetPass(10ms);
  device = &world.serialPorts.Plug(kSendPort);
  EXPECT_TRUE(link.OpenComm1());
  LetPass(2s);
  EXPECT_EQ(Written(), "");
}

TEST_F(TncReady, AutobaudIsAStarWithoutALineEnd) {
  EXPECT_TRUE(link.SendAutobaud());
  EXPECT_EQ(Written(), "*");
  EXPECT_THAT(RawView(), IsEmpty());
}

}  // namespace
