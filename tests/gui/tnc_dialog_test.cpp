#include <QApplication>
#include <QLineEdit>

#include "gui/opened_dialog.h"

// frmTNC, driven by its names.
namespace gui {
namespace {

class TncDialogTest : public OpenedDialog {
 protected:
  void OpenOverTnc() {
    device = &world.serialPorts.Plug("/dev/ttyUSB0", "TNC-X");
    Open({"\"StartTab\",0", "\"Tnc\",-1", "\"TncPort\",17", "\"TncBaud\",9600"});
  }
  QDialog& OpenedTnc() { return Opened("TNC: the way to the cluster", "TNC"); }
  static void Type(QDialog& dialog, const char* field, const char* text) {
    auto& box = *Named<QLineEdit>(dialog, field);
    box.clear();
    QTest::keyClicks(&box, text);
  }
  static QString Text(QDialog& dialog, const char* field) {
    return Named<QLineEdit>(dialog, field)->text();
  }
  std::string Written() {
    Run(1s);
    return std::exchange(device->written, {});
  }

  platform::sim::SimDevice* device = nullptr;
};

TEST_F(TncDialogTest, TabGoesThroughEachStepAndThenToTheButtons) {
  OpenOverTnc();
  const QStringList order = TabOrder(OpenedTnc());
  EXPECT_EQ(order.mid(0, 4),
            QStringList({"Cluster Callsign", "Step 1, connect string", "Step 1, connect response",
                         "Step 1, time out in seconds"}));
  EXPECT_EQ(order.mid(16), QStringList({"Step 6, connect string", "Step 6, connect response",
                                        "Step 6, time out in seconds", "Send conv to the TNC",
                                        "Send Ctrl-C to the TNC", "Help on the TNC",
                                        "Run the script", "Save the script", "Close"}));
}

TEST_F(TncDialogTest, TheHeadsAndTheTipsAreTheGivenOnes) {
  OpenOverTnc();
  QDialog& dialog = OpenedTnc();
  QStringList texts;
  for (const QLabel* each : dialog.findChildren<QLabel*>()) texts << each->text().remove('&');
  for (const char* text : {"Cluster Callsign", "Connect String", "To TNC", "Connect Response",
                           "Desired reply from TNC", "Time Out", "Connection Time Out in Seconds"})
    EXPECT_TRUE(texts.contains(text)) << text;
  EXPECT_EQ(Named<QLineEdit>(dialog, "Step 1, time out in seconds")->toolTip(),
            "Maximum 65 seconds");
}

TEST_F(TncDialogTest, AScriptIsTypedAndKept) {
  OpenOverTnc();
  QDialog& dialog = OpenedTnc();
  Type(dialog, "Cluster Callsign", "n0node");
  Type(dialog, "Step 1, connect string", "C N0NODE");
  Type(dialog, "Step 1, connect response", "*** CONNECTED");
  Type(dialog, "Step 1, time out in seconds", "900");
  EXPECT_EQ(Text(dialog, "Step 1, time out in seconds"), "65");
  Click(dialog, "Save the script");
  EXPECT_EQ(Named<QLabel>(dialog, "Result")->text(), "Saved.");
  Run(3s);
  EXPECT_THAT(world.files.content["/home/anna/molva/molva.cfg"],
              testing::HasSubstr("\"Tnc Cluster\",\"N0NODE\"\r\n\"Tnc Command\",\"C N0NODE\"\r\n"
                                 "\"Tnc Reply\",\"*** CONNECTED\"\r\n\"Tnc TimeOut\",\"65\"\r\n"));
  EXPECT_EQ(program->session.state.ConnectedNodeCall, "N0NODE");
}

TEST_F(TncDialogTest, RunShowsHowFarTheScriptHasCome) {
  OpenOverTnc();
  QDialog& dialog = OpenedTnc();
  Type(dialog, "Step 1, connect string", "C N0NODE");
  Type(dialog, "Step 1, connect response", "*** CONNECTED");
  Type(dialog, "Step 1, time out in seconds", "30");
  Click(dialog, "Run the script");
  EXPECT_EQ(Written(), "C N0NODE\r");
  EXPECT_EQ(Named<QLabel>(dialog, "Step 1")->accessibleName(), "Step 1: waiting");
  device->Feed("*** CONNECTED to N0NODE\r\n");
  Run(1s);
  EXPECT_EQ(Named<QLabel>(dialog, "Step 1")->accessibleName(), "Step 1: answered");
  EXPECT_FALSE(Named<QPushButton>(dialog, "Run the script")->isEnabled());
}

TEST_F(TncDialogTest, ReturnSaves) {
  OpenOverTnc();
  QDialog& dialog = OpenedTnc();
  Type(dialog, "Step 1, connect string", "C N0NODE");
  Type(dialog, "Step 1, time out in seconds", "30");
  QTest::keyClick(Named<QLineEdit>(dialog, "Step 1, time out in seconds"), Qt::Key_Return);
  Run(200ms);
  EXPECT_EQ(program->settings.TncSteps.size(), 1U);
  EXPECT_TRUE(dialog.isVisible());
}

TEST_F(TncDialogTest, AStepWithoutATimeOutIsSaidToBe) {
  OpenOverTnc();
  QDialog& dialog = OpenedTnc();
  Type(dialog, "Step 2, connect string", "C N0NODE");
  Click(dialog, "Save the script");
  EXPECT_EQ(Named<QLabel>(dialog, "What is to be put right")->text(),
            "Step 2 has no time-out. Enter 1 to 65 seconds.");
}

TEST_F(TncDialogTest, ConvAndCmdGoToTheTnc) {
  OpenOverTnc();
  QDialog& dialog = OpenedTnc();
  Click(dialog, "Send conv to the TNC");
  EXPECT_EQ(Written(), "conv\r");
  Click(dialog, "Send Ctrl-C to the TNC");
  EXPECT_EQ(Written(), "\x03");
}

TEST_F(TncDialogTest, ByTelnetItSaysWhyNothingCanBeSent) {
  Open({"\"StartTab\",0"});
  QDialog& dialog = OpenedTnc();
  for (const char* name : {"Run the script", "Send conv to the TNC", "Send Ctrl-C to the TNC"}) {
    const auto* button = Named<QPushButton>(dialog, name);
    EXPECT_FALSE(button->isEnabled()) << name;
    EXPECT_FALSE(button->toolTip().isEmpty()) << name;
  }
  program->commForm.Show();
  program->commForm.tnc.optCommPort.UserSelects(17);
  program->commForm.optMode.UserSelects(session::CommForm::Tnc);
  program->commForm.cmdComm.Press();
  Run(200ms);
  EXPECT_TRUE(Named<QPushButton>(dialog, "Run the script")->isEnabled());
}

TEST_F(TncDialogTest, HelpOpensTheManualAtItsPage) {
  OpenOverTnc();
  QDialog& dialog = OpenedTnc();
  Click(dialog, "Help on the TNC");
  EXPECT_THAT(pagesOpened, ElementsAre("tnc"));
}

}  // namespace
}  // namespace gui
