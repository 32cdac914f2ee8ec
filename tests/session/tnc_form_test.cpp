#include "session/tnc_form.h"

#include <gmock/gmock.h>

#include "session_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

using core::TncStep;
using session::TncForm;

// The form at a station that runs over a TNC on port 17.
class TncFormTest : public SessionFixture {
 protected:
  TncFormTest() {
    settings.TncMode = program.state.TncMode = true;
    settings.TncPort = 17;
    settings.TncBaud = 9600;
  }

  void Fill(std::size_t step, const char* command, const char* reply, const char* seconds) {
    form.txtCmd[step].UserTypes(command);
    form.txtScript[step].UserTypes(reply);
    form.txtTimeOut[step].UserTypes(seconds);
  }
  const std::string& TimeOut(std::size_t step) const { return form.txtTimeOut[step].Text.Get(); }
  std::string Problem() const { return form.lblProblem.Caption.Get(); }
  std::string Result() const { return form.lblResult.Caption.Get(); }
  std::string Written() {
    LetPass(platform::Milliseconds{1000});
    return std::exchange(device.written, {});
  }

  platform::sim::SimDevice& device = world.serialPorts.Plug("/dev/ttyUSB0", "TNC-X");
  int saves = 0;
  int helps = 0;
  TncForm form{
      settings, program, {.saved = [this] { ++saves; }, .openManual = [this] { ++helps; }}};
};

TEST_F(TncFormTest, LabelsAndToolTipsAreTheGivenOnes) {
  EXPECT_EQ(form.lblCluster.Caption.Get(), "Cluster Callsign");
  EXPECT_EQ(form.lblCmd.Caption.Get(), "Connect String");
  EXPECT_EQ(form.lblCmd.ToolTip.Get(), "To TNC");
  EXPECT_EQ(form.lblScript.Caption.Get(), "Connect Response");
  EXPECT_EQ(form.lblScript.ToolTip.Get(), "Desired reply from TNC");
  EXPECT_EQ(form.lblTimeOut.Caption.Get(), "Time Out");
  EXPECT_EQ(form.lblTimeOut.ToolTip.Get(), "Connection Time Out in Seconds");
  for (const core::TextBox& each : form.txtTimeOut)
    EXPECT_EQ(each.ToolTip.Get(), "Maximum 65 seconds");
  std::vector<std::string> buttons;
  for (const core::Button* each :
       {&form.cmdSave, &form.cmdRun, &form.cmdConv, &form.cmdCmd, &form.cmdHelp})
    buttons.push_back(each->Caption.Get());
  EXPECT_THAT(buttons, ElementsAre("Save", "Run", "conv", "cmd:", "Help"));
}

TEST_F(TncFormTest, ShowsTheScript) {
  settings.TncCluster = "N0NODE";
  settings.TncSteps = {{"C RELAY", "CONNECTED to RELAY", "60"}, {"C N0NODE", "Welcome", "45"}};
  form.cmdOpen.Press();
  EXPECT_TRUE(form.Open.Get());
  EXPECT_EQ(form.txtCluster.Text.Get(), "N0NODE");
  EXPECT_EQ(form.txtCmd[1].Text.Get(), "C N0NODE");
  EXPECT_EQ(form.txtScript[0].Text.Get(), "CONNECTED to RELAY");
  EXPECT_EQ(TimeOut(1), "45");
  EXPECT_EQ(form.txtCmd[2].Text.Get(), "");
  EXPECT_EQ(TimeOut(2), "");
}

TEST_F(TncFormTest, ScriptOfMoreStepsThanThereAreRowsIsShownAsFarAsItGoes) {
  settings.TncSteps.assign(20, {"C N0NODE", "", "600"});
  form.Show();
  EXPECT_EQ(TimeOut(TncForm::kSteps - 1), "65");
}

TEST_F(TncFormTest, SaveStoresTheSteps) {
  form.Show();
  form.txtCluster.UserTypes(" n0node ");
  Fill(0, "C RELAY", "CONNECTED to RELAY", "60");
  Fill(1, "C N0NODE", "", "45");
  EXPECT_THAT(settings.TncSteps, IsEmpty());
  form.cmdSave.Press();
  EXPECT_EQ(settings.TncCluster, "N0NODE");
  EXPECT_THAT(settings.TncSteps, ElementsAre(TncStep{"C RELAY", "CONNECTED to RELAY", "60"},
                                             TncStep{"C N0NODE", "", "45"}));
  EXPECT_EQ(saves, 1);
  EXPECT_EQ(Result(), "Saved.");
  EXPECT_TRUE(form.Open.Get());
}

TEST_F(TncFormTest, AllSixStepsAreStored) {
  form.Show();
  for (std::size_t step = 0; step < TncForm::kSteps; ++step) Fill(step, "C N0NODE", "", "5");
  form.cmdSave.Press();
  EXPECT_THAT(settings.TncSteps, SizeIs(6));
}

TEST_F(TncFormTest, RowsBetweenStepsCloseUp) {
  form.Show();
  Fill(1, "C RELAY", "", "30");
  Fill(4, "C N0NODE", "", "45");
  form.cmdSave.Press();
  EXPECT_THAT(settings.TncSteps, SizeIs(2));
  EXPECT_EQ(form.txtCmd[0].Text.Get(), "C RELAY");
  EXPECT_EQ(form.txtCmd[1].Text.Get(), "C N0NODE");
  EXPECT_EQ(form.txtCmd[4].Text.Get(), "");
}

TEST_F(TncFormTest, TextsAreKeptAsTypedButForDoubleQuotes) {
  form.Show();
  Fill(0, " C N0NODE, V", "say \"Hi\" ", "30");
  form.cmdSave.Press();
  EXPECT_THAT(settings.TncSteps, ElementsAre(TncStep{" C N0NODE, V", "say Hi ", "30"}));
}

TEST_F(TncFormTest, TimeOutIsAtMost65Seconds) {
  form.Show();
  const std::pair<const char*, const char*> typed[] = {
      {"65", "65"}, {"66", "65"}, {"600", "65"}, {"99999999999", "65"}, {"1", "1"}, {"007", "7"}};
  for (const auto& [text, kept] : typed) {
    form.txtTimeOut[0].UserTypes(text);
    EXPECT_EQ(TimeOut(0), kept) << text;
  }
}

TEST_F(TncFormTest, TimeOutTakesDigitsAlone) {
  form.Show();
  const std::pair<const char*, const char*> typed[] = {
      {"3x", "3"}, {"-5", "5"}, {"abc", ""}, {" 4 ", "4"}, {"", ""}};
  for (const auto& [text, kept] : typed) {
    form.txtTimeOut[0].UserTypes(text);
    EXPECT_EQ(TimeOut(0), kept) << text;
  }
}

TEST_F(TncFormTest, FractionOfATimeOutIsDropped) {
  form.Show();
  const std::pair<const char*, const char*> typed[] = {
      {"7.5", "7"}, {"7,5", "7"}, {"7.", "7"}, {"6.5.4", "6"}, {"70.5", "65"}};
  for (const auto& [text, kept] : typed) {
    Fill(0, "C N0NODE", "", "");
    for (const char* key = text; *key != '\0'; ++key)
      form.txtTimeOut[0].UserTypes(TimeOut(0) + *key);
    form.cmdSave.Press();
    EXPECT_THAT(settings.TncSteps, ElementsAre(TncStep{"C N0NODE", "", kept})) << text;
    EXPECT_EQ(TimeOut(0), kept) << text;
  }
}

TEST_F(TncFormTest, FractionAloneIsNoTimeOut) {
  form.Show();
  Fill(0, "C N0NODE", "", ".");
  form.txtTimeOut[0].UserTypes(TimeOut(0) + "5");
  form.cmdSave.Press();
  EXPECT_EQ(Problem(), "Step 1 has no time-out. Enter 1 to 65 seconds.");
}

TEST_F(TncFormTest, StoredFractionIsShownAsWholeSeconds) {
  settings.TncSteps = {{"C N0NODE", "", "7.5"}};
  form.Show();
  EXPECT_EQ(TimeOut(0), "7");
}

TEST_F(TncFormTest, StepWithoutATimeOutIsToBePutRight) {
  for (const char* seconds : {"", "0"}) {
    form.Show();
    Fill(0, "C RELAY", "", "30");
    Fill(1, "C N0NODE", "", seconds);
    form.cmdSave.Press();
    EXPECT_EQ(Problem(), "Step 2 has no time-out. Enter 1 to 65 seconds.");
    EXPECT_THAT(settings.TncSteps, IsEmpty());
    EXPECT_EQ(saves, 0);
  }
}

TEST_F(TncFormTest, EmptiedRowsAreDeleted) {
  settings.TncSteps = {{"C N0NODE", "", "30"}};
  form.Show();
  Fill(0, "", "", "");
  form.cmdSave.Press();
  EXPECT_THAT(settings.TncSteps, IsEmpty());
}

TEST_F(TncFormTest, ClosingStoresNothing) {
  form.Show();
  Fill(0, "C N0NODE", "", "30");
  form.cmdClose.Press();
  EXPECT_FALSE(form.Open.Get());
  EXPECT_THAT(settings.TncSteps, IsEmpty());
  form.Show();
  EXPECT_EQ(form.txtCmd[0].Text.Get(), "");
}

TEST_F(TncFormTest, RunSavesAndConnects) {
  form.Show();
  Fill(0, "C N0NODE", "", "30");
  form.cmdRun.Press();
  EXPECT_THAT(settings.TncSteps, SizeIs(1));
  EXPECT_FALSE(program.state.UserDisconnected);
  EXPECT_TRUE(program.tncScript.ScriptRunning);
  EXPECT_EQ(Written(), "C N0NODE\r");
}

TEST_F(TncFormTest, EachStepSaysHowFarItHasCome) {
  form.Show();
  Fill(0, "C RELAY", "CONNECTED to RELAY", "30");
  Fill(1, "C N0NODE", "Welcome", "10");
  form.cmdRun.Press();
  EXPECT_EQ(form.lblStep[0].Caption.Get(), "waiting");
  EXPECT_EQ(form.lblStep[1].Caption.Get(), "");
  program.tncScript.Netrom("*** connected to relay");
  EXPECT_EQ(form.lblStep[0].Caption.Get(), "answered");
  EXPECT_EQ(form.lblStep[0].ForeColour.Get(), settings.ColourNodeConn);
  EXPECT_EQ(form.lblStep[1].Caption.Get(), "waiting");
  LetPass(platform::Milliseconds{11000});
  EXPECT_EQ(form.lblStep[1].Caption.Get(), "timed out");
}

TEST_F(TncFormTest, RunNeedsAStep) {
  form.Show();
  form.cmdRun.Press();
  EXPECT_EQ(Problem(), "There is no step to run. Enter what connects you, and a time-out.");
  EXPECT_FALSE(program.tncScript.ScriptRunning);
}

TEST_F(TncFormTest, RunWaitsForAStepToBePutRight) {
  form.Show();
  Fill(0, "C N0NODE", "", "");
  form.cmdRun.Press();
  EXPECT_FALSE(program.tncScript.ScriptRunning);
}

TEST_F(TncFormTest, RunCanNotBePressedWhileThereIsALink) {
  form.Show();
  EXPECT_TRUE(form.cmdRun.Enabled.Get());
  program.connection.LoggedInSetup();
  EXPECT_FALSE(form.cmdRun.Enabled.Get());
  EXPECT_NE(form.cmdRun.ToolTip.Get(), "");
}

TEST_F(TncFormTest, ByTelnetTheScriptCanBeSavedAlone) {
  settings.TncMode = program.state.TncMode = false;
  form.Show();
  for (const core::Button* each : {&form.cmdRun, &form.cmdConv, &form.cmdCmd}) {
    EXPECT_FALSE(each->Enabled.Get());
    EXPECT_NE(each->ToolTip.Get(), "");
  }
  EXPECT_TRUE(form.cmdSave.Enabled.Get());
  program.state.TncMode = true;
  form.TakeMode();
  EXPECT_TRUE(form.cmdRun.Enabled.Get());
}

TEST_F(TncFormTest, ConvSendsConv) {
  form.Show();
  form.cmdConv.Press();
  EXPECT_EQ(Written(), "conv\r");
  EXPECT_EQ(Result(), "Sent.");
}

TEST_F(TncFormTest, CmdSendsCtrlC) {
  form.Show();
  form.cmdCmd.Press();
  EXPECT_EQ(Written(), "\x03");
  EXPECT_EQ(CountInRawView("   <- ^C"), 1);
}

TEST_F(TncFormTest, PortThatDoesNotOpenIsToldWithWhatToDo) {
  device.busy = true;
  form.Show();
  form.cmdConv.Press();
  EXPECT_EQ(Problem(),
            "/dev/ttyUSB0 is in use by another program. Close that program, or choose another "
            "device.");
  EXPECT_EQ(Result(), "");
  device.busy = false;
  form.cmdConv.Press();
  EXPECT_EQ(Problem(), "");
}

TEST_F(TncFormTest, HelpOpensTheManual) {
  form.Show();
  form.cmdHelp.Press();
  EXPECT_EQ(helps, 1);
}

TEST_F(TncFormTest, WithoutAManualThereIsNoHelp) {
  TncForm alone(settings, program, {.saved = [] {}, .openManual = {}});
  EXPECT_FALSE(alone.cmdHelp.Enabled.Get());
  EXPECT_NE(alone.cmdHelp.ToolTip.Get(), "");
}

}  // namespace
