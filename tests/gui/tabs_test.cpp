#include "gui/desk.h"

namespace gui {
namespace {

constexpr int kLoginMsg = 7;

class TabsTest : public Desk {};

TEST_F(TabsTest, ElevenTabsStandInTheirOrder) {
  Open();
  QStringList captions;
  for (int tab = 0; tab < Tabs().count(); ++tab) captions << Tabs().tabText(tab);
  EXPECT_EQ(captions, QStringList({"Settings", "Country", "State", "Bands", "Users", "DX", "WWV",
                                   "Login Msg", "Ann", "Wx Plus", "Mail"}));
}

TEST_F(TabsTest, ATabThatCannotBeUsedSaysWhy) {
  Open();
  for (int tab = 0; tab < Tabs().count(); ++tab)
    EXPECT_NE(Tabs().isTabEnabled(tab), Tabs().tabToolTip(tab).size() > 10) << tab;
}

TEST_F(TabsTest, TheLoginMessageOfTheNodeIsOnItsTab) {
  Open();
  LogIn();
  auto& message = *Named<QPlainTextEdit>(*window, "Login message of the node");
  EXPECT_EQ(Tabs().currentIndex(), kLoginMsg);
  EXPECT_TRUE(message.isVisible());
  EXPECT_THAT(LinesOf(message), Contains(QString(" Welcome to N0DE-1")));
}

TEST_F(TabsTest, AltAndANumberChoosesATab) {
  Open();
  Tabs().setTabEnabled(0, true);
  Press(Qt::Key_1, Qt::AltModifier);
  EXPECT_EQ(Tabs().currentIndex(), 0);
  EXPECT_FALSE(Named(*window, "Login message of the node")->isVisible());
  Press(Qt::Key_8, Qt::AltModifier);
  EXPECT_EQ(Tabs().currentIndex(), kLoginMsg);
  EXPECT_TRUE(Named(*window, "Login message of the node")->isVisible());
}

TEST_F(TabsTest, AltZeroAndAltMinusChooseTheLastTwo) {
  Open();
  Tabs().setTabEnabled(9, true);
  Tabs().setTabEnabled(10, true);
  Press(Qt::Key_0, Qt::AltModifier);
  EXPECT_EQ(Tabs().currentIndex(), 9);
  Press(Qt::Key_Minus, Qt::AltModifier);
  EXPECT_EQ(Tabs().currentIndex(), 10);
}

TEST_F(TabsTest, AKeyDoesNotChooseATabThatCannotBeUsed) {
  Open();
  Tabs().setTabEnabled(1, false);
  Press(Qt::Key_2, Qt::AltModifier);
  EXPECT_EQ(Tabs().currentIndex(), kLoginMsg);
}

TEST_F(TabsTest, TheTitleTellsTheVersionAndTheCall) {
  Open();
  EXPECT_EQ(window->windowTitle(), "Molva Desk 2.4315 @ K1TST-2");
}

}  // namespace
}  // namespace gui
