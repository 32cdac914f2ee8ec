#include "gui/desk.h"

namespace gui {
namespace {

using program::Views;

class TabsTest : public Desk {
 protected:
  void Enable(Views::Tab tab) {
    program->views.tab[tab].Enabled.Set(true);
    Run(200ms);
  }
};

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

TEST_F(TabsTest, TheTabAtTheStartIsThatOfTheConfiguration) {
  Open();
  EXPECT_EQ(Tabs().currentIndex(), Views::Dx);
  EXPECT_TRUE(Named(*window, "Spots")->isVisible());
  Open({"\"StartTab\",0"});
  EXPECT_EQ(Tabs().currentIndex(), Views::Settings);
  EXPECT_FALSE(Named(*window, "Spots")->isVisible());
}

TEST_F(TabsTest, TheLoginMessageOfTheNodeIsOnItsTab) {
  Open({"\"StartTab\",7"});
  LogIn();
  auto& message = *Named<QPlainTextEdit>(*window, "Login message of the node");
  EXPECT_EQ(Tabs().currentIndex(), Views::LoginMsg);
  EXPECT_TRUE(message.isVisible());
  EXPECT_THAT(LinesOf(message), Contains(QString(" Welcome to N0DE-1")));
}

TEST_F(TabsTest, AltAndANumberChoosesATab) {
  Open();
  Press(Qt::Key_1, Qt::AltModifier);
  EXPECT_EQ(Tabs().currentIndex(), 0);
  EXPECT_FALSE(Named(*window, "Login message of the node")->isVisible());
  Press(Qt::Key_8, Qt::AltModifier);
  EXPECT_EQ(Tabs().currentIndex(), Views::LoginMsg);
  EXPECT_TRUE(Named(*window, "Login message of the node")->isVisible());
}

TEST_F(TabsTest, AltZeroAndAltMinusChooseTheLastTwo) {
  Open();
  Enable(Views::Wx);
  Enable(Views::Mail);
  Press(Qt::Key_0, Qt::AltModifier);
  EXPECT_EQ(Tabs().currentIndex(), 9);
  Press(Qt::Key_Minus, Qt::AltModifier);
  EXPECT_EQ(Tabs().currentIndex(), 10);
}

TEST_F(TabsTest, AKeyDoesNotChooseATabThatCannotBeUsed) {
  Open();
  Press(Qt::Key_2, Qt::AltModifier);
  EXPECT_EQ(Tabs().currentIndex(), Views::Dx);
}

TEST_F(TabsTest, ATabSaysWhatItsModelSays) {
  Open();
  program->views.tab[Views::Ann].Caption.Set("Ann & = 3");
  Run(200ms);
  EXPECT_EQ(Tabs().tabText(Views::Ann), "Ann && = 3") << "the second one is drawn";
}

TEST_F(TabsTest, AClickThatTheRulesTurnDownChangesNothing) {
  Open();
  Enable(Views::Country);
  program->session.state.Kind = session::NodeKind::WinCluster;
  QTest::mouseClick(&Tabs(), Qt::LeftButton, {}, Tabs().tabRect(Views::Country).center());
  EXPECT_EQ(Tabs().currentIndex(), Views::Dx);
  QTest::mouseClick(&Tabs(), Qt::LeftButton, {}, Tabs().tabRect(Views::LoginMsg).center());
  EXPECT_EQ(Tabs().currentIndex(), Views::LoginMsg);
  EXPECT_EQ(program->views.TabType(), "Talk");
}

TEST_F(TabsTest, TheTitleTellsTheVersionAndTheCall) {
  Open();
  EXPECT_EQ(window->windowTitle(), "Molva Desk 2.4315 @ K1TST-2");
}

}  // namespace
}  // namespace gui
