#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>

#include "gui/desk.h"

namespace gui {
namespace {

class SettingsPageTest : public Desk {
 protected:
  void SetUp() override { Desk::Open({"\"StartTab\",0"}); }

  QString Text(const char* name) { return Named<QLabel>(*window, name)->text(); }
  bool IsThere(const char* name) { return Named(*window, name)->isVisible(); }
  QLineEdit& Field(const char* name) { return *Named<QLineEdit>(*window, name); }
  QCheckBox& Box(const char* name) { return *Named<QCheckBox>(*window, name); }
  QScrollArea& Page() { return *window->findChild<QScrollArea*>(); }
  QString Focus() const { return QApplication::focusWidget()->accessibleName(); }
  void GetMacros() {
    LogIn();
    Button("Get Macros").click();
    Run(200ms);
    for (int i = 0; i < 10; ++i)
      node.Say("Macro " + std::to_string(i) + " = sh/dx " + std::to_string(i));
    Run(1s);
  }
};

TEST_F(SettingsPageTest, MacrosShowAsTheirFramesDo) {
  EXPECT_TRUE(IsThere("Get Macros"));
  EXPECT_FALSE(IsThere("Send macro 1"));
  EXPECT_FALSE(IsThere("Macro 1"));
  LogIn();
  Button("Get Macros").click();
  Run(200ms);
  EXPECT_THAT(node.Heard(), Contains("SH/MACRO"));
  EXPECT_TRUE(IsThere("Send macro 1"));
  EXPECT_FALSE(IsThere("Macro 1"));
  node.Say("Macro 1 = sh/wwv");
  Run(1s);
  EXPECT_TRUE(IsThere("Macro 1"));
  EXPECT_EQ(Text("Shown"), "Cluster Macros @ N0DE-1");
  EXPECT_TRUE(IsThere("Shown"));
  node.HangUp();
  Run(1s);
  EXPECT_FALSE(IsThere("Send macro 1"));
  EXPECT_FALSE(IsThere("Macro 1"));
  EXPECT_FALSE(IsThere("Shown"));
}

TEST_F(SettingsPageTest, EachButtonStandsBesideItsFieldAndSendsIt) {
  GetMacros();
  for (int i = 1; i < 10; ++i) {
    const std::string number = std::to_string(i);
    QPushButton& button = Button(("Send macro " + number).c_str());
    const QLineEdit& field = Field(("Macro " + number).c_str());
    EXPECT_EQ(button.text().toStdString(), "Macro " + number);
    EXPECT_EQ(field.text().toStdString(), "sh/dx " + number);
    EXPECT_NEAR(button.geometry().center().y(), field.geometry().center().y(), 1);
    EXPECT_LT(button.geometry().right(), field.x());
    button.click();
    Run(200ms);
    EXPECT_EQ(node.Heard().back(), "SH/DX " + number);
  }
}

TEST_F(SettingsPageTest, ReturnInAFieldSendsIt) {
  GetMacros();
  Field("Macro 0").setFocus();
  Press(Qt::Key_Return);
  Run(200ms);
  EXPECT_EQ(node.Heard().back(), "SH/DX 0");
}

TEST_F(SettingsPageTest, WhoChangesAMacroHasLocalOnes) {
  GetMacros();
  Field("Macro 3").setFocus();
  Press(Qt::Key_X);
  Run(200ms);
  EXPECT_EQ(Text("Shown"), "Local Macros");
  Press(Qt::Key_Return);
  Run(200ms);
  EXPECT_EQ(node.Heard().back(), "SH/DX 3X");
}

TEST_F(SettingsPageTest, MacrosAreReachedByTabInTheirOrder) {
  GetMacros();
  Button("Get Macros").setFocus();
  QStringList round;
  for (int step = 0; step < 5; ++step) {
    Press(Qt::Key_Tab);
    round << Focus();
  }
  EXPECT_EQ(round, QStringList({"Macro 0", "Send macro 1", "Macro 1", "Send macro 2", "Macro 2"}));
}

TEST_F(SettingsPageTest, FiguresAreThereOnceThereIsSomethingToSay) {
  for (const char* name :
       {"Keep-alives sent", "Nulls received", "Links given up", "Links that ended",
        "Minutes between tries over the TNC", "Minutes to the next try over the TNC",
        "Characters repaired", "Spot lines of the node", "Seconds to the node's answer"})
    EXPECT_FALSE(IsThere(name)) << name;
  EXPECT_EQ(Text("Inactivity"), "Rx Inact. = 0");
  LogIn();
  node.Say("Hello%20there, this is AR-Cluster");
  node.Say("DX ArPc enabled");
  Run(1s);
  EXPECT_EQ(Text("Characters repaired"), "Escaped Errors = 1");
  EXPECT_EQ(Text("Spot lines of the node"), "Node is AR17 Capable");
  program->session.latency.Begin();
  Run(1250ms);
  node.Say("K1TST-2 de N0DE-1  20-Nov-2026 2100Z arc >");
  Run(1s);
  EXPECT_EQ(Text("Seconds to the node's answer").size(), QString("001.25").size());
  EXPECT_TRUE(IsThere("Seconds to the node's answer"));
  node.HangUp();
  Run(1s);
  EXPECT_EQ(Text("Links that ended"), "Disconnects = 1");
  EXPECT_TRUE(IsThere("Links that ended"));
}

TEST_F(SettingsPageTest, AKeepAliveLightsUpForAMoment) {
  LogIn();
  QLabel& sent = *Named<QLabel>(*window, "Keep-alives sent");
  Run(5min + 500ms);
  EXPECT_EQ(sent.text(), "Keep Alive Tx= 1");
  EXPECT_EQ(sent.palette().color(QPalette::WindowText), theme[ui::Token::Bad]);
  Run(6s);
  EXPECT_EQ(sent.palette().color(QPalette::WindowText), theme[ui::Token::Text]);
}

TEST_F(SettingsPageTest, TicksOfStartAndLoginAreThoseOfTheSettings) {
  const std::vector<std::pair<const char*, bool core::Settings::*>> kBoxes = {
      {"Connect when the program starts", &core::Settings::AutoStart},
      {"Ask for settings at login", &core::Settings::AskSettings},
      {"Ask for filters at login", &core::Settings::AutoFilter},
      {"Ask for missed spots at login", &core::Settings::GetMissedOnes},
      {"End without asking", &core::Settings::QuietExit}};
  for (const auto& [name, setting] : kBoxes) {
    const bool before = program->settings.*setting;
    EXPECT_EQ(Box(name).isChecked(), before) << name;
    Box(name).setFocus();
    Press(Qt::Key_Space);
    EXPECT_EQ(program->settings.*setting, !before) << name;
  }
}

TEST_F(SettingsPageTest, DebuggingIsForTheNextStart) {
  Box("Tell of each failure at once, from the next start on").click();
  EXPECT_EQ(world.files.content["/home/anna/molva/debug.cfg"], "\"yes\"\r\n");
}

TEST_F(SettingsPageTest, TheBoxOfLinkedCopiesSaysWhichOneThisIs) {
  QCheckBox& box = Box("Enable Linking of two running copies");
  EXPECT_EQ(box.text().remove('&'), "Enable Linking");
  EXPECT_EQ(Text("This copy is"), "");
  box.click();
  Run(200ms);
  EXPECT_TRUE(program->settings.Linking);
  EXPECT_EQ(box.text().remove('&'), "Enable Linking");
  EXPECT_EQ(Text("This copy is"), "Primary - ");
  EXPECT_TRUE(window->windowTitle().startsWith("Primary - Molva Desk"));
}

TEST_F(SettingsPageTest, AnEmptyFieldSaysWhichMacroItIs) {
  for (int i = 1; i < 10; ++i) {
    const std::string name = "Macro " + std::to_string(i);
    EXPECT_EQ(Field(name.c_str()).placeholderText().toStdString(), name);
  }
}

TEST_F(SettingsPageTest, WhatEachOperatorWantsStandsAboveWhatFewDo) {
  const auto top = [this](const char* name) {
    return Named(*window, name)->mapTo(Page().widget(), QPoint(0, 0)).y();
  };
  EXPECT_LT(top("Theme: as the system has it, light or dark"), top("Get Macros"));
  EXPECT_LT(top("Get Macros"), top("Enable Linking of two running copies"));
  EXPECT_LT(top("Enable Linking of two running copies"), top("Inactivity"));
}

TEST_F(SettingsPageTest, ScrollsInALowWindowAndNeverSideways) {
  GetMacros();
  window->resize(1024, 700);
  Run(200ms);
  EXPECT_EQ(window->size(), QSize(1024, 700));
  EXPECT_GT(Page().verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(Page().horizontalScrollBar()->maximum(), 0);
}

TEST_F(SettingsPageTest, WhatTabGoesToComesIntoSight) {
  GetMacros();
  window->resize(1024, 700);
  Run(200ms);
  Field("Macro 8").setFocus();
  Press(Qt::Key_Tab);
  Press(Qt::Key_Tab);
  ASSERT_EQ(Focus(), "Macro 9");
  const QRect field(Field("Macro 9").mapTo(Page().viewport(), QPoint(0, 0)),
                    Field("Macro 9").size());
  EXPECT_TRUE(Page().viewport()->rect().contains(field));
}

TEST_F(SettingsPageTest, F6GoesToItsFirstControl) {
  Tabs().setFocus();
  Press(Qt::Key_F6);
  EXPECT_EQ(Focus(), "User info");
}

TEST_F(SettingsPageTest, TheWheelPassesOverAChoiceWithoutChangingIt) {
  auto& minutes = *Named<QComboBox>(*window, "Keep-alive minutes, 0 is off");
  const auto turn = [&minutes] {
    QWheelEvent wheel(QPointF(5, 5), minutes.mapToGlobal(QPointF(5, 5)), {}, {0, -120},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&minutes, &wheel);
  };
  const int before = minutes.currentIndex();
  turn();
  EXPECT_EQ(minutes.currentIndex(), before);
  minutes.setFocus();
  turn();
  EXPECT_EQ(minutes.currentIndex(), before + 1) << "once it was chosen it obeys";
}

}  // namespace
}  // namespace gui
