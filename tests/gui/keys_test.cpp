#include <QApplication>
#include <QShortcut>
#include <set>

#include "gui/desk.h"
#include "ui/commands.h"

namespace gui {
namespace {

class KeysTest : public Desk {
 protected:
  void SetUp() override { Open({"\"StartTab\",7"}); }
  QString Focus() const { return QApplication::focusWidget()->accessibleName(); }
};

TEST_F(KeysTest, F6GoesRoundTheWindow) {
  QStringList round;
  for (int step = 0; step < 6; ++step) {
    Press(Qt::Key_F6);
    round << Focus();
  }
  EXPECT_EQ(round, QStringList({"Connect", "Views", "Login message of the node",
                                "Raw view: all text from and to the node", "Command to the node",
                                "Connect"}));
}

TEST_F(KeysTest, F6GoesToTheButtonOfTheLinkThatIsThere) {
  LogIn();
  CommandLine().setFocus();
  Press(Qt::Key_F6);
  EXPECT_EQ(Focus(), "Disconnect");
}

TEST_F(KeysTest, F5Connects) {
  Press(Qt::Key_F5);
  Run(2s);
  EXPECT_EQ(node.calls, 1);
}

TEST_F(KeysTest, F5DisconnectsWhileThereIsALink) {
  LogIn();
  Press(Qt::Key_F5);
  Run(3s);
  EXPECT_EQ(node.Heard().back(), "BYE");
  EXPECT_EQ(program->session.WinsockOut->State(), platform::SocketState::Closed);
}

TEST_F(KeysTest, F5GivesUpAnAttempt) {
  world.network.silentAddresses.insert("127.0.0.1");
  Press(Qt::Key_F5);
  Run(2s);
  EXPECT_EQ(program->session.state.Phase.Get(), session::LinkPhase::Trying);
  Press(Qt::Key_F5);
  Run(2s);
  EXPECT_EQ(program->session.state.Phase.Get(), session::LinkPhase::Disconnected);
}

TEST_F(KeysTest, WhoPressesConnectByKeyboardFindsDisconnectUnderHisFinger) {
  Button("Connect").setFocus();
  Press(Qt::Key_Space);
  Run(2s);
  EXPECT_EQ(Focus(), "Disconnect");
}

TEST_F(KeysTest, WhatHasTheFocusLooksLikeIt) {
  for (const char* name : {"Connect", "Views", "Login message of the node",
                           "Raw view: all text from and to the node", "Command to the node"}) {
    QWidget& place = *Named(*window, name);
    window->setFocus();
    const QImage without = place.grab().toImage();
    place.setFocus(Qt::TabFocusReason);
    EXPECT_NE(place.grab().toImage(), without) << name;
  }
}

TEST_F(KeysTest, NothingMovesWhenTheFocusDoes) {
  for (QPlainTextEdit* view : window->findChildren<QPlainTextEdit*>()) {
    const QRect before = view->viewport()->geometry();
    view->setFocus();
    Run(200ms);
    EXPECT_EQ(view->viewport()->geometry(), before);
    CommandLine().setFocus();
    Run(200ms);
    EXPECT_EQ(view->viewport()->geometry(), before);
  }
}

TEST_F(KeysTest, CtrlPlusAndMinusChangeTheTextOfTheViewWithTheFocus) {
  auto& login = *Named<QPlainTextEdit>(*window, "Login message of the node");
  Raw().setFocus();
  Press(Qt::Key_Plus, Qt::ControlModifier);
  Press(Qt::Key_Equal, Qt::ControlModifier);
  Run(200ms);
  EXPECT_EQ(Raw().font().pixelSize(), 15);
  EXPECT_EQ(login.font().pixelSize(), 13);
  login.setFocus();
  Press(Qt::Key_Minus, Qt::ControlModifier);
  Run(200ms);
  EXPECT_EQ(login.font().pixelSize(), 12);
  EXPECT_EQ(Raw().font().pixelSize(), 15);
}

TEST_F(KeysTest, FromElsewhereTheyChangeTheViewOnThePage) {
  CommandLine().setFocus();
  Press(Qt::Key_Plus, Qt::ControlModifier);
  Run(200ms);
  EXPECT_EQ(Named(*window, "Login message of the node")->font().pixelSize(), 14);
  EXPECT_EQ(Raw().font().pixelSize(), 13);
}

TEST_F(KeysTest, AReaderAtTheEndStaysThereWhenTheTextGrows) {
  LogIn();
  for (int line = 0; line < 300; ++line) node.Say("line " + std::to_string(line));
  Run(1s);
  Raw().setFocus();
  for (int step = 0; step < 19; ++step) {
    Press(Qt::Key_Plus, Qt::ControlModifier);
    Run(200ms);
    ASSERT_TRUE(IsAtEnd(Raw())) << step;
  }
  EXPECT_EQ(Raw().font().pixelSize(), 32);
}

TEST_F(KeysTest, EscapeReturnsToTheSpots) {
  for (const char* place : {"Command to the node", "Login message of the node"}) {
    program->views.Choose(program::Views::LoginMsg);
    Named(*window, place)->setFocus();
    Press(Qt::Key_Escape);
    Run(200ms);
    EXPECT_EQ(Tabs().currentIndex(), program::Views::Dx);
    EXPECT_EQ(Focus(), "Spots");
  }
}

TEST_F(KeysTest, EveryCommandsKeyIsAShortcutOfItsOwn) {
  std::set<QString> all;
  for (const QShortcut* each :
       window->findChildren<QShortcut*>(QString(), Qt::FindDirectChildrenOnly))
    EXPECT_TRUE(all.insert(each->key().toString()).second) << each->key().toString().toStdString();
  for (const ui::Command& command : ui::Commands()) {
    if (!command.HasKey()) continue;
    for (const QKeySequence& each : QKeySequence::listFromString(command.keys)) {
      EXPECT_FALSE(each.isEmpty()) << command.keys;
      EXPECT_TRUE(all.contains(each.toString())) << command.keys;
    }
  }
}

TEST_F(KeysTest, ATouchOfTheWindowMakesItQuick) {
  const auto framesIn = [this](platform::Milliseconds time) {
    int painted = 0;
    const auto item = frames.Add([&painted] { ++painted; });
    for (; time > 0ms; time -= 5ms) {
      item->Changed();
      Run(5ms);
    }
    return painted;
  };
  Run(3s);
  EXPECT_LE(framesIn(1s), 11);
  Press(Qt::Key_X);
  EXPECT_GE(framesIn(1s), 25);
  Run(3s);
  QTest::mouseClick(Raw().viewport(), Qt::LeftButton);
  EXPECT_GE(framesIn(1s), 25);
  Run(3s);
  QTest::mouseMove(Raw().viewport(), {5, 5});
  EXPECT_LE(framesIn(1s), 11) << "passing over it is not touching it";
}

}  // namespace
}  // namespace gui
