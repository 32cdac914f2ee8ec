#include <QApplication>

#include "gui/desk.h"

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
    Run(100ms);
    EXPECT_EQ(view->viewport()->geometry(), before);
    CommandLine().setFocus();
    Run(100ms);
    EXPECT_EQ(view->viewport()->geometry(), before);
  }
}

}  // namespace
}  // namespace gui
