#include <QApplication>
#include <QComboBox>
#include <QRadioButton>

#include "gui/opened_dialog.h"

// frmComm, driven by its names.
namespace gui {
namespace {

class CommDialogTest : public OpenedDialog {
 protected:
  void SetUp() override {
    world.serialPorts.Plug("/dev/ttyUSB0", "FT232R USB UART");
    world.serialPorts.Plug("/dev/ttyUSB1", "TNC-X");
    Open({"\"StartTab\",0", "\"TncPort\",17", "\"TncBaud\",1200"});
  }

  QDialog& OpenedComm() {
    return Opened("Connection: telnet or TNC, and serial ports", "Connection");
  }
  // The user's choice of an entry, by its words.
  void Choose(QDialog& dialog, const char* list, const QString& entry) {
    auto& box = *Named<QComboBox>(dialog, list);
    const int place = box.findText(entry);
    ASSERT_GE(place, 0) << entry.toStdString();
    box.setFocus();
    box.setCurrentIndex(place);
    emit box.activated(place);
    Run(200ms);
  }
  static QString Chosen(QDialog& dialog, const char* list) {
    return Named<QComboBox>(dialog, list)->currentText();
  }
  static QString Says(QDialog& dialog, const char* label) {
    const QLabel* says = Named<QLabel>(dialog, label);
    return says->isVisible() ? says->text() : QString();
  }
};

TEST_F(CommDialogTest, TabFollowsTheEye) {
  QDialog& dialog = OpenedComm();
  Click(dialog, "Feed another computer over a serial port");
  Choose(dialog, "Port of the local network", "18:  /dev/ttyUSB1");
  // Of the two ways to the node the chosen one; the arrows go to the other.
  EXPECT_EQ(
      TabOrder(dialog),
      QStringList({"Connect by telnet", "Keep-alive watches what is sent, Tx, or received, Rx",
                   "Keep-alive minutes, 0 is off", "Port of the TNC", "Device of the TNC",
                   "Baud of the TNC", "Parity of the TNC", "Data bits of the TNC",
                   "Stop bits of the TNC", "Flow control of the TNC",
                   "Feed another computer over a serial port", "Port of the local network",
                   "Device of the local network", "Baud of the local network",
                   "Echo what is typed on the local network", "Look for devices",
                   "Apply the connection", "Close"}));
}

TEST_F(CommDialogTest, TheStreamGoesOnBehindIt) {
  LogIn();
  OpenedComm();
  node.Say("To ALL de K1ABC: hello");
  Run(1s);
  EXPECT_THAT(LinesOf(Raw()), Contains(QString("To ALL de K1ABC: hello")));
}

TEST_F(CommDialogTest, TheTncIsChosenWithItsDevice) {
  QDialog& dialog = OpenedComm();
  Click(dialog, "Connect by TNC");
  Choose(dialog, "Device of the TNC", "/dev/ttyUSB1  TNC-X");
  Choose(dialog, "Baud of the TNC", "9600");
  Choose(dialog, "Parity of the TNC", "Even");
  EXPECT_EQ(Says(dialog, "Settings of the TNC's port"), "9600,E,8,1");
  Click(dialog, "Apply the connection");
  EXPECT_EQ(Says(dialog, "Result"), "Applied. /dev/ttyUSB1 is open.");
  EXPECT_EQ(Chosen(dialog, "Port of the TNC"), "17:  /dev/ttyUSB1");
  EXPECT_EQ(world.files.content["/home/anna/molva/ports.cfg"], "\"17\",\"/dev/ttyUSB1\"\r\n");
  Run(3s);
  EXPECT_THAT(world.files.content["/home/anna/molva/molva.cfg"],
              testing::HasSubstr("\"TncParity\",\"Even\"\r\n"));
  EXPECT_THAT(Named<QLabel>(*window, "TNC")->accessibleName().toStdString(),
              testing::StartsWith("TNC: "));
}

// A button that is pressed by its mnemonic stays down for a moment, by Qt's own clock.
TEST_F(CommDialogTest, KeysAloneAreEnough) {
  QDialog& dialog = OpenedComm();
  QApplication::setActiveWindow(&dialog);
  QTest::keyClick(&dialog, Qt::Key_N, Qt::AltModifier);
  const auto* tnc = Named<QRadioButton>(dialog, "Connect by TNC");
  EXPECT_TRUE(QTest::qWaitFor([tnc] { return tnc->isChecked(); }));
  QTest::keyClick(&dialog, Qt::Key_S, Qt::AltModifier);
  auto& stopBits = *Named<QComboBox>(dialog, "Stop bits of the TNC");
  EXPECT_TRUE(stopBits.hasFocus());
  QTest::keyClick(&stopBits, Qt::Key_Down);
  QTest::keyClick(&stopBits, Qt::Key_Down);
  QTest::keyClick(&dialog, Qt::Key_A, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return program->settings.TncMode; }));
  EXPECT_EQ(program->settings.TncStopBits, "2");
}

TEST_F(CommDialogTest, ABusyPortIsToldInTheDialogAndInTheWindowUntilItIsFree) {
  auto& device = world.serialPorts.Plug("/dev/ttyUSB0", "FT232R USB UART");
  device.busy = true;
  QDialog& dialog = OpenedComm();
  Click(dialog, "Connect by TNC");
  Click(dialog, "Apply the connection");
  EXPECT_THAT(Says(dialog, "What is to be put right").toStdString(),
              testing::StartsWith("/dev/ttyUSB0 is in use by another program."));
  EXPECT_THAT(program->conditions.lblText.Caption.Get(),
              testing::StartsWith("TNC: /dev/ttyUSB0 is in use by another program."));
  device.busy = false;
  Click(dialog, "Apply the connection");
  EXPECT_EQ(Says(dialog, "What is to be put right"), "");
  EXPECT_FALSE(program->conditions.lblText.Visible.Get());
}

TEST_F(CommDialogTest, ADeviceThatVanishesIsToldAndTheConditionOpensTheDialog) {
  QDialog& dialog = OpenedComm();
  Click(dialog, "Connect by TNC");
  Click(dialog, "Apply the connection");
  Click(dialog, "Close");
  world.serialPorts.Unplug("/dev/ttyUSB0");
  Run(200ms);
  EXPECT_EQ(program->conditions.lblText.Caption.Get(),
            "TNC: /dev/ttyUSB0 has gone. Plug it in again, or choose another device.");
  program->conditions.cmdHelp.Press();
  Run(200ms);
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(Chosen(dialog, "Device of the TNC"), "/dev/ttyUSB0  (not among the devices found)");
}

TEST_F(CommDialogTest, ALinkIsEndedBeforeTheModeChangesAndItSaysSoBefore) {
  LogIn();
  QDialog& dialog = OpenedComm();
  Click(dialog, "Connect by TNC");
  EXPECT_EQ(Says(dialog, "Before you apply"), "Applying this ends the link to N0DE-1.");
  Click(dialog, "Apply the connection");
  EXPECT_EQ(Says(dialog, "Result"), "The link ends first…");
  Run(3s);
  EXPECT_TRUE(program->session.state.TncMode);
  EXPECT_EQ(Says(dialog, "Before you apply"), "");
  EXPECT_EQ(Says(dialog, "Result"), "Applied. /dev/ttyUSB0 is open.");
}

TEST_F(CommDialogTest, WhatComesLaterStandsDisabledAndSaysSo) {
  QDialog& dialog = OpenedComm();
  for (const char* name :
       {"Serve logging programs", "TCP port for logging programs", "Port of the K3"}) {
    const QWidget* each = Named<QWidget>(dialog, name);
    EXPECT_FALSE(each->isEnabled()) << name;
    EXPECT_FALSE(each->toolTip().isEmpty()) << name;
  }
}

}  // namespace
}  // namespace gui
