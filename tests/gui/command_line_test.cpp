#include <QApplication>
#include <QInputMethodEvent>

#include "gui/desk.h"

namespace gui {
namespace {

class CommandLineTest : public Desk {
 protected:
  void SetUp() override {
    Open({"\"StartTab\",7"});
    LogIn();
    CommandLine().setFocus();
  }
  void Type(const char* text) { QTest::keyClicks(&CommandLine(), text); }
  void Enter(const char* text) {
    Type(text);
    Press(Qt::Key_Return);
    Run(200ms);
  }
};

TEST_F(CommandLineTest, TakesTheFocusWhenTheWindowOpens) { EXPECT_TRUE(CommandLine().hasFocus()); }

TEST_F(CommandLineTest, ReturnSendsTheLineAsTypedAndEmptiesIt) {
  Enter("sh/dx 5 on 20m");
  EXPECT_EQ(node.Heard().back(), "sh/dx 5 on 20m");
  EXPECT_EQ(CommandLine().text(), "");
}

TEST_F(CommandLineTest, TheEnterKeyOfTheNumberPadSendsToo) {
  Type("who");
  Press(Qt::Key_Enter, Qt::KeypadModifier);
  Run(200ms);
  EXPECT_EQ(node.Heard().back(), "who");
}

TEST_F(CommandLineTest, TypedTextLeavesAsUtf8) {
  QInputMethodEvent typed;
  typed.setCommitString(QString::fromUtf8("ann Grüße"));
  QApplication::sendEvent(&CommandLine(), &typed);
  Press(Qt::Key_Return);
  Run(200ms);
  EXPECT_EQ(node.Heard().back(), "ann Gr\xC3\xBC\xC3\x9F\x65");
}

TEST_F(CommandLineTest, TwoLinesTypedFasterThanAFrameStayTwoLines) {
  Type("who");
  Press(Qt::Key_Return);
  Type("sh/wwv");
  Press(Qt::Key_Return);
  Run(200ms);
  const auto heard = node.Heard();
  EXPECT_THAT(std::vector(heard.end() - 2, heard.end()), ElementsAre("who", "sh/wwv"));
}

TEST_F(CommandLineTest, UpAndDownGoThroughTheLinesTypedBefore) {
  for (const char* line : {"one", "two", "three"}) Enter(line);
  QStringList seen;
  for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Down}) {
    Press(key);
    Run(200ms);
    seen << CommandLine().text();
  }
  EXPECT_EQ(seen, QStringList({"three", "two", "one", "one", "two"}));
}

TEST_F(CommandLineTest, ARecalledLineCanBeChangedAtOnce) {
  Enter("sh/dx 5");
  Press(Qt::Key_Up);
  Type("0");
  Press(Qt::Key_Return);
  Run(200ms);
  EXPECT_EQ(node.Heard().back(), "sh/dx 50");
}

TEST_F(CommandLineTest, CtrlLGoesToItFromEverywhere) {
  for (const char* place : {"Disconnect", "Views", "Login message of the node",
                            "Raw view: all text from and to the node", "Command to the node"}) {
    Named(*window, place)->setFocus();
    ASSERT_TRUE(Named(*window, place)->hasFocus()) << place;
    Press(Qt::Key_L, Qt::ControlModifier);
    EXPECT_TRUE(CommandLine().hasFocus()) << place;
  }
}

TEST_F(CommandLineTest, WhatStandsInTheEmptyLineCanBeRead) {
  const QColor hint = CommandLine().palette().color(QPalette::PlaceholderText);
  EXPECT_EQ(hint, theme[ui::Token::DimText]);
}

}  // namespace
}  // namespace gui
