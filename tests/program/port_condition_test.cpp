#include "program/port_condition.h"

#include <gmock/gmock.h>

#include "program/desk.h"

using namespace std::chrono_literals;

namespace {

constexpr const char* kTncLines = "\"Tnc\",-1\r\n\"TncPort\",17\r\n\"TncBaud\",9600\r\n";

class PortConditionTest : public testing::Test {
 protected:
  program::Program& StartOverTnc(const std::string& more = "") {
    desk.HasUsualConfiguration(kTncLines + more);
    return desk.Start();
  }
  std::string Told() const {
    const core::Label& text = desk.program->conditions.lblText;
    return text.Visible.Get() ? text.Caption.Get() : "";
  }

  Desk desk;
};

TEST_F(PortConditionTest, NothingIsWrongByTelnetWhateverIsPluggedIn) {
  desk.HasUsualConfiguration();
  desk.Start();
  EXPECT_EQ(Told(), "");
}

TEST_F(PortConditionTest, PortThatDoesNotOpenAtTheStartIsTold) {
  StartOverTnc();
  EXPECT_EQ(Told(), "TNC: /dev/ttyUSB0 is not there. Plug it in, or choose another device.");
}

TEST_F(PortConditionTest, PortIsTheDeviceThatItsFileNames) {
  desk.HasUsualConfiguration(kTncLines);
  desk.Content("ports.cfg") = "\"17\",\"/dev/ttyACM0\"\r\n";
  auto& device = desk.world.serialPorts.Plug("/dev/ttyACM0");
  desk.Start();
  EXPECT_EQ(Told(), "");
  EXPECT_EQ(device.openedWith.baud, 9600);
}

TEST_F(PortConditionTest, ButtonOpensTheFormOfThePorts) {
  program::Program& program = StartOverTnc();
  EXPECT_EQ(program.conditions.cmdHelp.Caption.Get(), "Connection…");
  program.conditions.cmdHelp.Press();
  EXPECT_TRUE(program.commForm.Open.Get());
}

TEST_F(PortConditionTest, DeviceThatVanishesIsToldUntilItIsThereAgain) {
  desk.world.serialPorts.Plug("/dev/ttyUSB0");
  program::Program& program = StartOverTnc();
  ASSERT_EQ(Told(), "");
  desk.world.serialPorts.Unplug("/dev/ttyUSB0");
  desk.world.Run(100ms);
  EXPECT_EQ(Told(), "TNC: /dev/ttyUSB0 has gone. Plug it in again, or choose another device.");
  desk.world.serialPorts.Plug("/dev/ttyUSB0");
  program.session.outgoing.SendAsIs("conv");
  EXPECT_EQ(Told(), "");
}

TEST_F(PortConditionTest, LocalNetworksPortIsToldToo) {
  desk.HasUsualConfiguration(
      "\"LocalNetwork\",-1\r\n\"NetworkPort\",2\r\n\"NetworkBaud\",9600\r\n");
  program::Program& program = desk.Start();
  program.session.connection.cmdConnect.Press();
  desk.world.Run(100ms);
  EXPECT_EQ(Told(),
            "Local network: /dev/ttyS1 is not there. Plug it in, or choose another device.");
}

TEST_F(PortConditionTest, LocalNetworksDeviceThatHasGoneIsThereAgainWithApply) {
  desk.world.serialPorts.Plug("/dev/ttyS1");
  desk.HasUsualConfiguration(
      "\"LocalNetwork\",-1\r\n\"NetworkPort\",2\r\n\"NetworkBaud\",9600\r\n");
  program::Program& program = desk.Start();
  program.session.connection.cmdConnect.Press();
  desk.world.Run(100ms);
  desk.world.serialPorts.Unplug("/dev/ttyS1");
  desk.world.Run(100ms);
  EXPECT_EQ(Told(),
            "Local network: /dev/ttyS1 has gone. Plug it in again and press Apply under "
            "Connection, or choose another device.");
  desk.world.serialPorts.Plug("/dev/ttyS1");
  program.commForm.Show();
  program.commForm.cmdComm.Press();
  EXPECT_EQ(Told(), "");
}

TEST_F(PortConditionTest, ModeThatIsTakenShowsTheClusterAndItsLamp) {
  desk.world.serialPorts.Plug("/dev/ttyUSB0");
  program::Program& program = StartOverTnc("\"Tnc Cluster\",\"N0NODE\"\r\n");
  EXPECT_EQ(program.session.state.txtNode.Caption.Get(), "N0NODE");
  EXPECT_TRUE(program.session.tncLink.lblTnc.Visible.Get());
  program.commForm.Show();
  program.commForm.optMode.UserSelects(session::CommForm::Telnet);
  program.commForm.cmdComm.Press();
  EXPECT_EQ(program.session.state.txtNode.Caption.Get(), "");
  EXPECT_EQ(program.session.state.ConnectedNodeCall, "");
  EXPECT_FALSE(program.session.tncLink.lblTnc.Visible.Get());
  EXPECT_FALSE(program.session.tncLink.MSComm1->PortOpen());
}

TEST_F(PortConditionTest, ScriptEndsWithItsMode) {
  auto& device = desk.world.serialPorts.Plug("/dev/ttyUSB0");
  program::Program& program = StartOverTnc();
  program.settings.TncSteps = {{"c n0node", "login", "60"}};
  program.session.connection.cmdConnect.Press();
  desk.world.Run(1s);
  device.Feed("*** DISCONNECTED\r");
  desk.world.Run(1s);
  ASSERT_TRUE(program.session.tncScript.ScriptRunning);
  program.commForm.Show();
  program.commForm.optMode.UserSelects(session::CommForm::Telnet);
  program.commForm.cmdComm.Press();
  EXPECT_FALSE(program.session.tncScript.ScriptRunning);
  EXPECT_FALSE(program.session.timers.Enabled(session::TimerId::ConnectScript));
  EXPECT_EQ(program.session.tncScript.steps[0].progress.Get(),
            session::TncStepMark::Progress::Idle);
  EXPECT_FALSE(program.session.tncScript.Netrom("login: "));
}

TEST_F(PortConditionTest, AppliedModeIsInTheConfigurationOfTheNextStart) {
  desk.world.serialPorts.Plug("/dev/ttyUSB0");
  program::Program& program = StartOverTnc();
  program.commForm.Show();
  program.commForm.optMode.UserSelects(session::CommForm::Telnet);
  program.commForm.cmdComm.Press();
  desk.world.Run(3s);
  EXPECT_THAT(desk.Content("molva.cfg"), testing::HasSubstr("\"Tnc\",0\r\n"));
}

}  // namespace
