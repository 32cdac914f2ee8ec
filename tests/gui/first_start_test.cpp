#include <QApplication>
#include <QDialog>

#include "gui/desk.h"

namespace gui {
namespace {

class FirstStartTest : public Desk {
 protected:
  void SetUp() override { OpenAnew(); }

  // The one dialog in sight; empty without one.
  QString DialogInSight() {
    QString title;
    for (QDialog* each : window->findChildren<QDialog*>()) {
      if (!each->isVisible()) continue;
      EXPECT_EQ(title, "");
      title = each->windowTitle();
      QApplication::setActiveWindow(each);
    }
    return title;
  }
  void Type(const char* text) { QTest::keyClicks(QApplication::focusWidget(), text); }
  void TypeAndGoOn(const char* text) {
    Type(text);
    Press(Qt::Key_Tab);
  }
  QString Field(const char* name) { return Named<QLineEdit>(*window, name)->text(); }
};

TEST_F(FirstStartTest, LeadsFromAnEmptyFolderToTheLoginByKeyboardAlone) {
  ASSERT_EQ(DialogInSight(), "User information");
  TypeAndGoOn("k1tst-2");
  TypeAndGoOn("anna");
  TypeAndGoOn("Ann Arbor, MI");
  Type("en82dg");
  Run(200ms);
  EXPECT_EQ(Field("Latitude, degrees"), "42");
  EXPECT_EQ(Field("Longitude, minutes"), "43");
  Press(Qt::Key_Return);
  Run(200ms);
  ASSERT_EQ(DialogInSight(), "Nodes");
  Press(Qt::Key_Return);
  Run(200ms);
  ASSERT_EQ(DialogInSight(), "");
  QApplication::setActiveWindow(window.get());
  Press(Qt::Key_F5);
  Run(2s);
  node.SayBytes("login: ");
  Run(1s);
  EXPECT_THAT(node.Heard(), Contains("K1TST-2"));
  EXPECT_EQ(program->settings.MyLocation, "42 16 N 83 43 W");
}

TEST_F(FirstStartTest, WhoCancelsIsAskedAgainWhenHeConnects) {
  ASSERT_EQ(DialogInSight(), "User information");
  Press(Qt::Key_Escape);
  Run(200ms);
  ASSERT_EQ(DialogInSight(), "");
  Button("Connect").click();
  Run(1s);
  EXPECT_EQ(DialogInSight(), "User information");
  EXPECT_EQ(node.calls, 0);
}

TEST_F(FirstStartTest, AWrongGridSaysWhatIsWrongWhileItIsTyped) {
  ASSERT_EQ(DialogInSight(), "User information");
  QLineEdit& grid = *Named<QLineEdit>(*window, "Grid");
  QTest::keyClicks(&grid, "8");
  Run(200ms);
  EXPECT_THAT(program->userInfo.lblProblem.Caption.Get(), testing::HasSubstr("two letters"));
  QLabel* says = nullptr;
  for (QLabel* each : window->findChildren<QLabel*>())
    if (each->isVisible() && each->text().contains("two letters")) says = each;
  EXPECT_NE(says, nullptr);
}

}  // namespace
}  // namespace gui
