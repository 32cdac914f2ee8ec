#include "session/comm_form.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "session_fixture.h"

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

using session::CommForm;
using session::LinkPhase;

constexpr const char* kFirstUsb = "/dev/ttyUSB0";
constexpr const char* kSecondUsb = "/dev/ttyUSB1";

// The form at a station with two adapters plugged in; its operator has the first at port 17.
class CommFormTest : public SessionFixture {
 protected:
  CommFormTest() {
    settings.TncPort = 17;
    settings.TncBaud = 1200;
    settings.NetworkPort = 18;
    settings.NetworkBaud = 4800;
  }

  void TakeMode() {
    ++modesTaken;
    program.state.TncMode = settings.TncMode;
  }
  void Choose(CommForm::Mode mode) { form.optMode.UserSelects(mode); }
  void Choose(CommForm::List list, std::string_view words) {
    const auto& options = form.cboTNC[list].Options.Get();
    const auto found = std::find(options.begin(), options.end(), words);
    ASSERT_NE(found, options.end()) << words;
    form.cboTNC[list].UserSelects(static_cast<int>(found - options.begin()));
  }
  void Apply() {
    configurationWrites = 0;
    form.cmdComm.Press();
  }
  // The program runs over the TNC, and its port is open.
  void RunOverTnc() {
    form.Show();
    Choose(CommForm::Tnc);
    Apply();
  }
  std::string Problem() const { return form.lblProblem.Caption.Get(); }
  std::string Result() const { return form.lblResult.Caption.Get(); }
  std::string Warning() const { return form.lblWarning.Caption.Get(); }
  bool TncIsOpen() const { return program.tncLink.MSComm1->PortOpen(); }
  bool NetworkIsOpen() const { return program.localNetwork.MSComm2->PortOpen(); }

  platform::sim::SimDevice& first = world.serialPorts.Plug(kFirstUsb, "FT232R USB UART");
  platform::sim::SimDevice& second = world.serialPorts.Plug(kSecondUsb, "TNC-X");
  int modesTaken = 0;
  session::PortNames names{world.files, "/ports.cfg"};
  CommForm form{
      world.platform(),
      settings,
      names,
      program,
      {.takeMode = [this] { TakeMode(); }, .delayedWriteCfg = [this] { ++configurationWrites; }}};
};

TEST_F(CommFormTest, ShowsTheSettings) {
  settings.TncParity = "Odd";
  settings.TncDataBits = "7";
  settings.TncStopBits = "1.5";
  settings.TncFlowControl = "Both";
  settings.LocalNetwork = settings.Echo = true;
  settings.LoggerPort = 7301;
  settings.LoggingProgram = true;
  settings.K3Port = 4;
  form.cmdOpen.Press();
  EXPECT_TRUE(form.Open.Get());
  EXPECT_EQ(form.optMode.Selected.Get(), CommForm::Telnet);
  EXPECT_EQ(form.tnc.Port(), 17);
  EXPECT_EQ(form.tnc.Baud(), 1200);
  EXPECT_EQ(form.lblSettings.Caption.Get(), "1200,O,7,1.5");
  EXPECT_EQ(form.cboTNC[CommForm::kFlow].Selected.Get(), 3);
  EXPECT_TRUE(form.chkNetwork.Value.Get());
  EXPECT_TRUE(form.chkEcho.Value.Get());
  EXPECT_EQ(form.network.Baud(), 4800);
  EXPECT_EQ(form.txtLoggerPort.Text.Get(), "7301");
  EXPECT_TRUE(form.chkLogger.Value.Get());
  EXPECT_EQ(form.txtK3Port.Text.Get(), "4");
}

TEST_F(CommFormTest, ShowingWritesNothingAndClosingAppliesNothing) {
  form.Show();
  Choose(CommForm::Tnc);
  form.cmdClose.Press();
  EXPECT_FALSE(form.Open.Get());
  EXPECT_FALSE(settings.TncMode);
  EXPECT_EQ(configurationWrites, 0);
  form.Show();
  EXPECT_EQ(form.optMode.Selected.Get(), CommForm::Telnet);
}

TEST_F(CommFormTest, FormThatIsOpenStaysAsTheUserHasIt) {
  form.Show();
  Choose(CommForm::Tnc);
  form.Show();
  EXPECT_EQ(form.optMode.Selected.Get(), CommForm::Tnc);
}

TEST_F(CommFormTest, LoggerAndRadioCanNotBeChanged) {
  form.Show();
  for (const core::Control* each : std::initializer_list<core::Control*>{
           &form.chkLogger, &form.txtLoggerPort, &form.txtK3Port}) {
    EXPECT_FALSE(each->Enabled.Get());
    EXPECT_NE(each->ToolTip.Get(), "");
  }
}

// Keep-alives.

TEST_F(CommFormTest, KeepAlivesAreThoseOfTheModeUnderTheirTitle) {
  settings.TelnetKA = "Rx";
  settings.TelnetKAtime = 7;
  settings.TncKA = "Tx";
  settings.TncKAtime = 12;
  form.Show();
  EXPECT_EQ(form.lblKA.Caption.Get(), "Rx Keep Alives in Minutes");
  EXPECT_EQ(form.cboKA.Selected.Get(), 7);
  Choose(CommForm::Tnc);
  EXPECT_EQ(form.lblKA.Caption.Get(), "Tx Keep Alives in Minutes");
  EXPECT_EQ(form.cboKA.Selected.Get(), 12);
}

TEST_F(CommFormTest, AppliedKeepAlivesHoldAtOnce) {
  form.Show();
  form.optKA.UserSelects(CommForm::Tx);
  form.cboKA.UserSelects(9);
  EXPECT_EQ(form.lblKA.Caption.Get(), "Tx Keep Alives in Minutes");
  Apply();
  EXPECT_EQ(settings.TelnetKA, "Tx");
  EXPECT_EQ(settings.TelnetKAtime, 9);
  EXPECT_EQ(settings.TncKAtime, 0);
  EXPECT_EQ(program.keepAlive.KeepAliveMinutes, 9);
  EXPECT_FALSE(program.keepAlive.KeepAliveRx);
}

TEST_F(CommFormTest, KeepAlivesCanNotBeSwitchedOffWithAutoReconnect) {
  form.Show();
  form.cboKA.UserSelects(0);
  EXPECT_EQ(form.cboKA.Selected.Get(), 5);
  program.connection.AutoReconnect.UserSets(false);
  form.cboKA.UserSelects(0);
  EXPECT_EQ(form.cboKA.Selected.Get(), 0);
}

// The TNC's port.

TEST_F(CommFormTest, AppliedLineIsStoredForTheDelayedWrite) {
  form.Show();
  form.tnc.optCommPort.UserSelects(18);
  form.tnc.cboBaud.UserSelects(6);
  Choose(CommForm::kParity, "Even");
  Choose(CommForm::kDataBits, "7");
  Choose(CommForm::kStopBits, "2");
  Choose(CommForm::kFlow, "None");
  EXPECT_EQ(form.lblSettings.Caption.Get(), "19200,E,7,2");
  Apply();
  EXPECT_EQ(settings.TncPort, 18);
  EXPECT_EQ(settings.TncBaud, 19200);
  EXPECT_EQ(settings.TncParity, "Even");
  EXPECT_EQ(settings.TncDataBits, "7");
  EXPECT_EQ(settings.TncStopBits, "2");
  EXPECT_EQ(settings.TncFlowControl, "None");
  EXPECT_EQ(configurationWrites, 1);
  EXPECT_FALSE(TncIsOpen()) << "by telnet there is no use for it";
}

TEST_F(CommFormTest, NoParityIsStoredAsItsLetter) {
  settings.TncParity = "Mark";
  form.Show();
  EXPECT_EQ(form.lblSettings.Caption.Get(), "1200,M,8,1");
  Choose(CommForm::kParity, "None");
  Apply();
  EXPECT_EQ(settings.TncParity, "N");
}

TEST_F(CommFormTest, ChoosingTheTncOpensItsPortWithTheLine) {
  RunOverTnc();
  EXPECT_TRUE(settings.TncMode);
  EXPECT_TRUE(program.state.TncMode);
  EXPECT_EQ(modesTaken, 1);
  EXPECT_TRUE(TncIsOpen());
  EXPECT_EQ(first.openedWith, (platform::SerialSettings{.baud = 1200,
                                                        .parity = 'N',
                                                        .dataBits = 8,
                                                        .stopBits = "1",
                                                        .flow = platform::FlowControl::Hardware}));
  EXPECT_EQ(Result(), "Applied. /dev/ttyUSB0 is open.");
  EXPECT_EQ(Problem(), "");
  EXPECT_TRUE(form.Open.Get());
}

TEST_F(CommFormTest, HandshakingIs0ForNone1ForXonXoff3ForBothAnd2Otherwise) {
  RunOverTnc();
  const std::pair<const char*, int> handshakings[] = {
      {"None", 0}, {"Xon / Xoff", 1}, {"Both", 3}, {"Hardware", 2}};
  for (const auto& [words, number] : handshakings) {
    Choose(CommForm::kFlow, words);
    Apply();
    EXPECT_EQ(static_cast<int>(first.openedWith.flow), number) << words;
  }
}

TEST_F(CommFormTest, OpenPortIsOpenedAnewWithTheNewLineAlone) {
  RunOverTnc();
  form.tnc.cboBaud.UserSelects(0);
  Apply();
  EXPECT_EQ(first.openedWith.baud, 300);
  program.tncLink.MSComm1->Output("one");
  Apply();
  LetPass(1s);
  EXPECT_THAT(first.written, HasSubstr("one")) << "an unchanged port is left alone";
}

TEST_F(CommFormTest, GoingBackToTelnetLetsOtherProgramsHaveThePort) {
  RunOverTnc();
  Choose(CommForm::Telnet);
  Apply();
  EXPECT_FALSE(TncIsOpen());
  EXPECT_FALSE(settings.TncMode);
  EXPECT_EQ(modesTaken, 2);
}

TEST_F(CommFormTest, ChosenDeviceIsWrittenAsThePortsEntry) {
  form.Show();
  form.tnc.cboDevice.UserSelects(1);
  Choose(CommForm::Tnc);
  Apply();
  EXPECT_EQ(world.files.content["/ports.cfg"], "\"17\",\"/dev/ttyUSB1\"\r\n");
  EXPECT_EQ(form.tnc.optCommPort.Options.Get()[17], "17:  /dev/ttyUSB1");
}

TEST_F(CommFormTest, DevicesThatAreTheUsualOnesNeedNoEntry) {
  RunOverTnc();
  EXPECT_THAT(world.files.content, testing::Not(testing::Contains(testing::Key("/ports.cfg"))));
}

TEST_F(CommFormTest, NothingIsAppliedIfTheEntryCanNotBeWritten) {
  form.Show();
  world.files.denied.insert("/ports.cfg");
  form.tnc.cboDevice.UserSelects(1);
  Choose(CommForm::Tnc);
  Apply();
  EXPECT_THAT(Problem(), HasSubstr("ports.cfg can't be written"));
  EXPECT_FALSE(settings.TncMode);
  EXPECT_EQ(configurationWrites, 0);
}

TEST_F(CommFormTest, DevicePluggedInLaterIsFound) {
  form.Show();
  world.serialPorts.Plug("/dev/ttyACM0", "USB Modem");
  form.cmdLook.Press();
  EXPECT_THAT(form.tnc.cboDevice.Options.Get(), testing::Contains("/dev/ttyACM0  USB Modem"));
  EXPECT_EQ(Result(), "3 serial devices were found.");
}

// What doesn't go.

TEST_F(CommFormTest, BusyPortIsToldWithWhatToDo) {
  first.busy = true;
  RunOverTnc();
  EXPECT_EQ(Problem(),
            "/dev/ttyUSB0 is in use by another program. Close that program, or choose another "
            "device.");
  EXPECT_EQ(Result(), "Applied.");
  EXPECT_TRUE(form.Open.Get());
  first.busy = false;
  Apply();
  EXPECT_EQ(Problem(), "");
  EXPECT_TRUE(TncIsOpen());
}

TEST_F(CommFormTest, MissingPortIsToldWithWhatToDo) {
  world.serialPorts.Unplug(kFirstUsb);
  RunOverTnc();
  EXPECT_EQ(Problem(), "/dev/ttyUSB0 is not there. Plug it in, or choose another device.");
}

TEST_F(CommFormTest, DeviceThatVanishesIsTroubleUntilItIsOpenAgain) {
  RunOverTnc();
  world.serialPorts.Unplug(kFirstUsb);
  LetPass(10ms);
  EXPECT_EQ(program.tncLink.Trouble.Get(), "the device has gone");
  world.serialPorts.Plug(kFirstUsb);
  Apply();
  EXPECT_EQ(program.tncLink.Trouble.Get(), "");
  EXPECT_TRUE(TncIsOpen());
}

TEST_F(CommFormTest, TncNeedsAPort) {
  settings.TncPort = 0;
  RunOverTnc();
  EXPECT_EQ(Problem(), "Choose the port that the TNC is on.");
  EXPECT_FALSE(settings.TncMode);
}

TEST_F(CommFormTest, LocalNetworkNeedsAPort) {
  settings.NetworkPort = 0;
  form.Show();
  form.chkNetwork.UserSets(true);
  Apply();
  EXPECT_EQ(Problem(), "Choose the port of the local network, or switch it off.");
  EXPECT_FALSE(settings.LocalNetwork);
}

TEST_F(CommFormTest, TncAndLocalNetworkCanNotShareADevice) {
  form.Show();
  form.chkNetwork.UserSets(true);
  form.network.optCommPort.UserSelects(17);
  Choose(CommForm::Tnc);
  Apply();
  EXPECT_THAT(Problem(), HasSubstr("a device each"));
  form.network.optCommPort.UserSelects(18);
  form.network.cboDevice.UserSelects(0);
  Apply();
  EXPECT_THAT(Problem(), HasSubstr("a device each")) << "by another number";
  form.network.cboDevice.UserSelects(1);
  Apply();
  EXPECT_EQ(Problem(), "");
}

TEST_F(CommFormTest, OneNumberCanNotBeTwoDevicesEvenIfOneIsNotInUse) {
  form.Show();
  form.chkNetwork.UserSets(true);
  form.network.optCommPort.UserSelects(17);
  form.network.cboDevice.UserSelects(1);
  ASSERT_EQ(form.network.Device(), kSecondUsb);
  ASSERT_EQ(form.tnc.Device(), kFirstUsb);
  Apply();
  EXPECT_EQ(Problem(),
            "Port 17 can't be two devices. Choose another number for the TNC or the local "
            "network.");
  EXPECT_FALSE(settings.LocalNetwork);
  EXPECT_EQ(names.Path(17), kFirstUsb);
  form.network.cboDevice.UserSelects(0);
  Apply();
  EXPECT_EQ(Problem(), "") << "the TNC is not in use";
}

TEST_F(CommFormTest, ProblemGoesWithTheNextChange) {
  settings.TncPort = 0;
  RunOverTnc();
  ASSERT_NE(Problem(), "");
  form.tnc.optCommPort.UserSelects(17);
  EXPECT_EQ(Problem(), "");
}

// The local network.

TEST_F(CommFormTest, LocalNetworkOpensItsPortWithItsSpeedAndEightBits) {
  form.Show();
  EXPECT_FALSE(form.network.optCommPort.Enabled.Get());
  EXPECT_FALSE(form.chkEcho.Enabled.Get());
  form.chkNetwork.UserSets(true);
  EXPECT_TRUE(form.network.optCommPort.Enabled.Get());
  form.chkEcho.UserSets(true);
  Apply();
  EXPECT_TRUE(settings.LocalNetwork);
  EXPECT_TRUE(settings.Echo);
  EXPECT_TRUE(NetworkIsOpen());
  EXPECT_EQ(second.openedWith, (platform::SerialSettings{
                                   .baud = 4800, .parity = 'N', .dataBits = 8, .stopBits = "1"}));
  EXPECT_EQ(Result(), "Applied. /dev/ttyUSB1 is open.");
}

TEST_F(CommFormTest, LocalNetworkThatIsSwitchedOffClosesItsPort) {
  form.Show();
  form.chkNetwork.UserSets(true);
  Apply();
  form.chkNetwork.UserSets(false);
  Apply();
  EXPECT_FALSE(NetworkIsOpen());
  EXPECT_FALSE(settings.LocalNetwork);
}

TEST_F(CommFormTest, SpeedOfTheLocalNetworkHoldsAtOnce) {
  form.Show();
  form.chkNetwork.UserSets(true);
  Apply();
  form.network.cboBaud.UserSelects(0);
  Apply();
  EXPECT_EQ(second.openedWith.baud, 300);
}

TEST_F(CommFormTest, EachPortThatDoesNotOpenIsTold) {
  world.serialPorts.Unplug(kFirstUsb);
  second.busy = true;
  form.Show();
  form.chkNetwork.UserSets(true);
  Choose(CommForm::Tnc);
  Apply();
  EXPECT_THAT(Problem(), HasSubstr("/dev/ttyUSB0 is not there."));
  EXPECT_THAT(Problem(), HasSubstr("/dev/ttyUSB1 is in use"));
}

TEST_F(CommFormTest, RunawayLeavesTheLocalNetworkOffAndWithoutAPort) {
  form.Show();
  form.chkNetwork.UserSets(true);
  Apply();
  program.localNetwork.RunawayNotice("Runaway problem!. Please contact MOLVA via email.");
  form.NetworkStopped();
  EXPECT_FALSE(settings.LocalNetwork);
  EXPECT_FALSE(NetworkIsOpen());
  EXPECT_FALSE(form.chkNetwork.Value.Get());
  EXPECT_EQ(form.network.Port(), 0);
  form.cmdClose.Press();
  form.Show();
  EXPECT_EQ(form.network.Port(), 0);
  EXPECT_FALSE(form.chkNetwork.Value.Get());
}

TEST_F(CommFormTest, RunawayBeforeTheFormWasEverOpenIsShownWhenItIs) {
  settings.LocalNetwork = true;
  program.localNetwork.RunawayNotice("Runaway problem!. Please contact MOLVA via email.");
  form.NetworkStopped();
  form.Show();
  EXPECT_FALSE(form.chkNetwork.Value.Get());
  EXPECT_EQ(form.network.Port(), 0);
}

// A link that is up.

TEST_F(CommFormTest, WarnsBeforeALinkIsEnded) {
  LogIn();
  form.Show();
  EXPECT_EQ(Warning(), "");
  Choose(CommForm::Tnc);
  EXPECT_EQ(Warning(), "Applying this ends the link to N0NODE.");
  Choose(CommForm::Telnet);
  EXPECT_EQ(Warning(), "");
  Choose(CommForm::Tnc);
  NodeCloses();
  EXPECT_EQ(Warning(), "");
}

TEST_F(CommFormTest, ModeChangesOnceTheLinkHasSaidGoodbyeAndEnded) {
  LogIn();
  form.Show();
  Choose(CommForm::Tnc);
  Apply();
  EXPECT_EQ(Result(), "The link ends first…");
  EXPECT_FALSE(settings.TncMode);
  EXPECT_FALSE(program.state.TncMode);
  ExpectSent({"BYE"});
  LetPass(1s);
  EXPECT_FALSE(settings.TncMode);
  LetPass(2s);
  EXPECT_TRUE(settings.TncMode);
  EXPECT_TRUE(program.state.TncMode);
  EXPECT_EQ(SocketState(), platform::SocketState::Closed);
  EXPECT_EQ(program.state.Phase.Get(), LinkPhase::Disconnected);
  EXPECT_TRUE(TncIsOpen());
  EXPECT_EQ(Warning(), "");
  LetPass(5min);
  EXPECT_EQ(modesTaken, 1);
  EXPECT_EQ(program.state.Phase.Get(), LinkPhase::Disconnected) << "nothing reconnects by itself";
}

TEST_F(CommFormTest, ModeChangesDuringAnAttemptToo) {
  for (const auto since : {100ms, 505ms, 700ms}) {
    program.state.TncMode = settings.TncMode = false;
    PressConnect();
    LetPass(since);
    form.Show();
    Choose(CommForm::Tnc);
    Apply();
    LetPass(2s);
    EXPECT_TRUE(program.state.TncMode) << since.count();
    EXPECT_EQ(SocketState(), platform::SocketState::Closed);
    EXPECT_EQ(program.state.Phase.Get(), LinkPhase::Disconnected);
    form.cmdClose.Press();
  }
}

TEST_F(CommFormTest, LinkThatWaitsForItsNextTryNeedsNoGoodbye) {
  node.refuses = true;
  PressConnect();
  LetPass(3s);
  ASSERT_EQ(program.state.Phase.Get(), LinkPhase::Disconnected);
  RunOverTnc();
  EXPECT_TRUE(program.state.TncMode);
}

TEST_F(CommFormTest, ClosingTheFormLeavesTheModeAsItIs) {
  LogIn();
  form.Show();
  Choose(CommForm::Tnc);
  Apply();
  form.cmdClose.Press();
  LetPass(5s);
  EXPECT_FALSE(settings.TncMode);
  EXPECT_EQ(modesTaken, 0);
}

TEST_F(CommFormTest, ApplyingTwiceEndsTheLinkOnce) {
  LogIn();
  form.Show();
  Choose(CommForm::Tnc);
  Apply();
  Apply();
  ExpectSent({"BYE"});
  LetPass(5s);
  EXPECT_EQ(modesTaken, 1);
}

TEST_F(CommFormTest, WhatDoesNotTouchTheLinkIsAppliedWhileItIsUp) {
  LogIn();
  form.Show();
  form.cboKA.UserSelects(9);
  form.chkNetwork.UserSets(true);
  form.tnc.cboBaud.UserSelects(0);
  EXPECT_EQ(Warning(), "");
  Apply();
  EXPECT_TRUE(NetworkIsOpen());
  EXPECT_EQ(settings.TncBaud, 300);
  EXPECT_TRUE(program.state.LoggedIn);
  ExpectNothingSent();
}

TEST_F(CommFormTest, OverTheTncItsLineIsChangedOnceTheLinkHasEnded) {
  RunOverTnc();
  program.connection.LoggedInSetup();
  form.tnc.cboBaud.UserSelects(0);
  EXPECT_NE(Warning(), "");
  Apply();
  EXPECT_EQ(first.openedWith.baud, 1200);
  LetPass(2s);
  EXPECT_EQ(first.openedWith.baud, 300);
  EXPECT_EQ(settings.TncBaud, 300);
}

TEST_F(CommFormTest, TheTncIsToldToEndItsLinkBeforeItsPortCloses) {
  RunOverTnc();
  program.connection.LoggedInSetup();
  Choose(CommForm::Telnet);
  Apply();
  EXPECT_TRUE(program.state.TncMode);
  LetPass(2s);
  EXPECT_EQ(first.written,
            "BYE\r\x03"
            "DISC\r");
  EXPECT_FALSE(program.state.TncMode);
  EXPECT_FALSE(TncIsOpen());
  LogIn();
  EXPECT_TRUE(program.state.LoggedIn);
}

TEST_F(CommFormTest, SlowGoodbyeByWayOfAnotherNodeIsSaidToItsEnd) {
  RunOverTnc();
  program.outgoing.SendAsIs("ESC");
  LetPass(1s);
  first.written.clear();
  program.connection.LoggedInSetup();
  Choose(CommForm::Telnet);
  Apply();
  LetPass(10s);
  EXPECT_EQ(first.written,
            "BYE\r\x1b"
            "D\r");
  EXPECT_FALSE(TncIsOpen());
}

}  // namespace
