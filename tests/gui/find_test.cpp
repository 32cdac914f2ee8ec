#include <QApplication>
#include <QLabel>
#include <QScrollBar>
#include <QTextBlock>

#include "gui/desk.h"

namespace gui {
namespace {

class FindTest : public Desk {
 protected:
  void SetUp() override {
    Open({"\"StartTab\",7"});
    LogIn();
    for (int spot = 1; spot <= 200; ++spot)
      node.Say("line " + std::to_string(spot) + (spot % 80 == 0 ? " Rarely seen" : " often"));
    Run(1s);
  }
  void OpenIn(QWidget& view) {
    view.setFocus();
    Press(Qt::Key_F, Qt::ControlModifier);
    Run(200ms);
  }
  QLineEdit& Field() { return *Named<QLineEdit>(*window, "Find in raw view"); }
  void Type(const char* text) { QTest::keyClicks(&Field(), text); }
  QString Found() { return Raw().textCursor().selectedText(); }
  QString FoundLine() { return Raw().textCursor().block().text(); }
  bool FoundIsInSight() { return Raw().viewport()->rect().contains(Raw().cursorRect().center()); }
};

TEST_F(FindTest, CtrlFOpensItOverTheViewWithTheFocusAndMovesNothing) {
  const QRect before = Raw().geometry();
  OpenIn(Raw());
  EXPECT_TRUE(Field().isVisible());
  EXPECT_TRUE(Field().hasFocus());
  EXPECT_EQ(Raw().geometry(), before);
  EXPECT_TRUE(IsAtEnd(Raw()));
}

TEST_F(FindTest, FindsWhileTypingWhateverTheCaseAndBringsItInSight) {
  OpenIn(Raw());
  Raw().verticalScrollBar()->setValue(0);
  Type("rarely");
  EXPECT_EQ(Found(), "Rarely");
  EXPECT_EQ(FoundLine(), "line 80 Rarely seen");
  EXPECT_TRUE(FoundIsInSight());
  Type(" s");
  EXPECT_EQ(FoundLine(), "line 80 Rarely seen") << "what is found stays while it fits";
}

TEST_F(FindTest, ReturnAndTheButtonsGoOnAndRoundTheEnds) {
  OpenIn(Raw());
  Raw().verticalScrollBar()->setValue(0);
  Type("rarely");
  Press(Qt::Key_Return);
  EXPECT_EQ(FoundLine(), "line 160 Rarely seen");
  EXPECT_TRUE(FoundIsInSight());
  Button("Find next in raw view").click();
  EXPECT_EQ(FoundLine(), "line 80 Rarely seen");
  Button("Find previous in raw view").click();
  EXPECT_EQ(FoundLine(), "line 160 Rarely seen");
  Field().setFocus();
  Press(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(FoundLine(), "line 80 Rarely seen");
}

TEST_F(FindTest, WhatStandsNowhereSaysSo) {
  OpenIn(Raw());
  const auto saysSo = [this] {
    for (const QLabel* each : Raw().findChildren<QLabel*>())
      if (each->isVisible() && each->text() == "not found") return true;
    return false;
  };
  Type("rarelx");
  EXPECT_TRUE(saysSo());
  EXPECT_EQ(Found(), "Rarel") << "the last that was found stays";
  Press(Qt::Key_Backspace);
  EXPECT_FALSE(saysSo());
}

TEST_F(FindTest, EscapeClosesItAndTheViewHasTheFocus) {
  OpenIn(Raw());
  Type("rarely");
  Press(Qt::Key_Escape);
  EXPECT_FALSE(Field().isVisible());
  EXPECT_TRUE(Raw().hasFocus());
  EXPECT_EQ(Found(), "Rarely");
  EXPECT_EQ(Tabs().currentIndex(), 7) << "it takes a second one to leave the page";
}

TEST_F(FindTest, OpenedAgainItIsReadyToBeTypedOver) {
  OpenIn(Raw());
  Type("often");
  Press(Qt::Key_Escape);
  OpenIn(Raw());
  Type("rarely");
  EXPECT_EQ(Field().text(), "rarely");
}

TEST_F(FindTest, TheLoginMessageHasItsOwn) {
  CommandLine().setFocus();
  Press(Qt::Key_F, Qt::ControlModifier);
  auto& field = *Named<QLineEdit>(*window, "Find in login message");
  EXPECT_TRUE(field.hasFocus());
  EXPECT_FALSE(Field().isVisible());
  QTest::keyClicks(&field, "welcome");
  auto& message = *Named<QPlainTextEdit>(*window, "Login message of the node");
  EXPECT_EQ(message.textCursor().selectedText(), "Welcome");
}

TEST_F(FindTest, KeysThatItHasNoUseForDoNotMoveTheView) {
  OpenIn(Raw());
  Type("rarely");
  const int before = Raw().verticalScrollBar()->value();
  for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down}) Press(key);
  EXPECT_EQ(Raw().verticalScrollBar()->value(), before);
  EXPECT_EQ(Found(), "Rarely");
}

}  // namespace
}  // namespace gui
