#include <QMenu>
#include <QMenuBar>
#include <QTreeWidget>
#include <set>

#include "gui/desk.h"
#include "ui/commands.h"

namespace gui {
namespace {

class MenusTest : public Desk {
 protected:
  void SetUp() override { Open(); }

  // Opens the menu as a press of its title does, so that its entries stand as they do now.
  QMenu& Menu(const char* title) {
    for (QAction* each : window->menuBar()->actions())
      if (each->text().remove('&') == title) {
        emit each->menu()->aboutToShow();
        return *each->menu();
      }
    throw std::runtime_error(std::string("no menu ") + title);
  }
  static QString TextOf(const QAction& action) {
    return action.text().section('\t', 0, 0).remove('&');
  }
  QAction& Entry(const char* title, const char* text) {
    for (QAction* each : Menu(title).actions())
      if (TextOf(*each) == text) return *each;
    throw std::runtime_error(std::string("no entry ") + text);
  }
  static QString KeyOf(const QAction& action) { return action.text().section('\t', 1); }
};

TEST_F(MenusTest, StandInTheirOrder) {
  QStringList titles;
  for (const QAction* each : window->menuBar()->actions()) titles << TextOf(*each);
  EXPECT_EQ(titles, QStringList({"Connection", "Configuration", "View", "Help"}));
}

TEST_F(MenusTest, EachEntryShowsItsKey) {
  EXPECT_EQ(KeyOf(Entry("View", "DX")), "Alt+6");
  EXPECT_EQ(KeyOf(Entry("View", "Larger text")), "Ctrl++");
  EXPECT_EQ(KeyOf(Entry("Connection", "Connect")), "F5");
  EXPECT_EQ(KeyOf(Entry("Connection", "Disconnect")), "F5");
  EXPECT_EQ(KeyOf(Entry("Configuration", "Columns…")), "");
}

TEST_F(MenusTest, NoTwoEntriesOfAMenuHaveTheSameMnemonic) {
  for (const QAction* title : window->menuBar()->actions()) {
    std::set<QChar> all;
    for (const QAction* each : title->menu()->actions()) {
      if (each->isSeparator()) continue;
      const QString text = each->text().section('\t', 0, 0);
      ASSERT_TRUE(text.contains('&')) << text.toStdString();
      EXPECT_TRUE(all.insert(text[text.indexOf('&') + 1].toLower()).second) << text.toStdString();
    }
  }
}

TEST_F(MenusTest, ConnectAndDisconnectAreThereByTurns) {
  EXPECT_TRUE(Entry("Connection", "Connect").isEnabled());
  EXPECT_FALSE(Entry("Connection", "Disconnect").isEnabled());
  Entry("Connection", "Connect").trigger();
  Run(2s);
  EXPECT_EQ(node.calls, 1);
  EXPECT_FALSE(Entry("Connection", "Connect").isEnabled());
  EXPECT_EQ(Entry("Connection", "Connect").toolTip(), "There is a link already.");
  EXPECT_TRUE(Entry("Connection", "Disconnect").isEnabled());
}

TEST_F(MenusTest, TheWayToTheClusterIsTickedAndTheOtherIsChosen) {
  EXPECT_TRUE(Entry("Connection", "Cluster by telnet…").isChecked());
  EXPECT_FALSE(Entry("Connection", "Cluster by radio").isChecked());
  Entry("Connection", "Cluster by radio").trigger();
  Run(200ms);
  EXPECT_FALSE(Entry("Connection", "Cluster by telnet…").isChecked());
  EXPECT_TRUE(Entry("Connection", "Cluster by radio").isChecked());
  EXPECT_TRUE(program->session.tncLink.lblTnc.Visible.Get());
}

TEST_F(MenusTest, ChoosingRadioShowsInTheOpenFormOfTheConnection) {
  Entry("Connection", "Telnet or TNC, and ports…").trigger();
  EXPECT_EQ(program->commForm.optMode.Selected.Get(), session::CommForm::Telnet);
  Entry("Connection", "Cluster by radio").trigger();
  Run(200ms);
  EXPECT_EQ(program->commForm.optMode.Selected.Get(), session::CommForm::Tnc);
}

TEST_F(MenusTest, TheViewOnShowIsTickedAndOthersAreChosen) {
  EXPECT_TRUE(Entry("View", "DX").isChecked());
  Entry("View", "Login Msg").trigger();
  EXPECT_EQ(Tabs().currentIndex(), program::Views::LoginMsg);
  EXPECT_TRUE(Entry("View", "Login Msg").isChecked());
  EXPECT_FALSE(Entry("View", "DX").isChecked());
}

TEST_F(MenusTest, AViewThatIsNotThereSaysWhy) {
  EXPECT_FALSE(Entry("View", "Mail").isEnabled());
  EXPECT_EQ(Entry("View", "Mail").toolTip(), "This view is not part of this version.");
}

TEST_F(MenusTest, TheThemeIsChosenAndTicked) {
  Entry("Configuration", "Dark theme").trigger();
  EXPECT_EQ(program->appearance.OnShow.Get(), platform::ColourScheme::Dark);
  EXPECT_TRUE(Entry("Configuration", "Dark theme").isChecked());
  EXPECT_FALSE(Entry("Configuration", "Light theme").isChecked());
}

TEST_F(MenusTest, TheCorrectionOfFilterErrorsIsSwitched) {
  core::Check& errors = program->spotParts.localReject.CorrectErrors;
  const bool before = errors.Value.Get();
  Entry("Configuration", "Correct errors of the node's filters").trigger();
  EXPECT_EQ(errors.Value.Get(), !before);
}

TEST_F(MenusTest, DialogsAreOpenedWithoutHoldingAnythingUp) {
  for (const auto& [menu, entry] :
       std::vector<std::pair<const char*, const char*>>{{"Connection", "Nodes…"},
                                                        {"Connection", "Cluster by telnet…"},
                                                        {"Connection", "Cluster by radio"},
                                                        {"Connection", "Telnet or TNC, and ports…"},
                                                        {"Connection", "Script for the TNC…"},
                                                        {"Configuration", "User information…"},
                                                        {"Configuration", "Columns…"},
                                                        {"Configuration", "Spot log…"},
                                                        {"Configuration", "Rejects…"},
                                                        {"Configuration", "Colours and fonts…"},
                                                        {"Configuration", "Corrections…"}}) {
    Entry(menu, entry).trigger();
    Run(200ms);
    QDialog* open = nullptr;
    for (QDialog* each : window->findChildren<QDialog*>())
      if (each->isVisible()) open = each;
    ASSERT_NE(open, nullptr) << entry;
    open->close();
    Run(200ms);
    EXPECT_FALSE(open->isVisible()) << entry;
  }
}

TEST_F(MenusTest, TheRawViewAloneFillsTheWindowUntilItIsTurnedBack) {
  const int before = Raw().height();
  Entry("View", "Raw view alone").trigger();
  Run(200ms);
  EXPECT_GT(Raw().height(), 2 * before);
  EXPECT_FALSE(Named(*window, "Spots")->isVisible());
  EXPECT_TRUE(Entry("View", "Raw view alone").isChecked());
  Press(Qt::Key_F9);
  Run(200ms);
  EXPECT_TRUE(Named(*window, "Spots")->isVisible());
  EXPECT_EQ(Raw().height(), before);
}

TEST_F(MenusTest, EscapeBringsTheSpotsBackFromBehindTheRawView) {
  Press(Qt::Key_F9);
  Run(200ms);
  Press(Qt::Key_Escape);
  Run(200ms);
  EXPECT_TRUE(Named(*window, "Spots")->isVisible());
}

TEST_F(MenusTest, AViewThatIsAskedForComesBackFromBehindTheRawView) {
  const auto comesBack = [this](const std::function<void()>& ask, const char* what) {
    if (!program->rawPane.Maximised.Get()) Press(Qt::Key_F9);
    Run(200ms);
    ask();
    Run(200ms);
    return Named(*window, what)->isVisible();
  };
  const auto click = [this](int tab) {
    return [this, tab] {
      QTest::mouseClick(&Tabs(), Qt::LeftButton, {}, Tabs().tabRect(tab).center());
    };
  };
  EXPECT_TRUE(
      comesBack([this] { Press(Qt::Key_8, Qt::AltModifier); }, "Login message of the node"));
  EXPECT_TRUE(comesBack([this] { Entry("View", "DX").trigger(); }, "Spots"));
  EXPECT_TRUE(comesBack([this] { Press(Qt::Key_6, Qt::ControlModifier); }, "Spots"));
  EXPECT_TRUE(comesBack(click(program::Views::Dx), "Spots")) << "the tab on show";
  EXPECT_TRUE(comesBack(click(program::Views::LoginMsg), "Login message of the node"));
  EXPECT_FALSE(comesBack([this] { program->views.Choose(program::Views::Dx); }, "Spots"))
      << "not when the program changes the view";
  EXPECT_FALSE(comesBack(click(program::Views::Mail), "Spots")) << "a view that is not there";
}

TEST_F(MenusTest, TheHeightOfARawViewAloneIsNotKept) {
  const int before = program->form.Get().inputHeight;
  Press(Qt::Key_F9);
  Run(200ms);
  window->resize(window->width() + 20, window->height());
  Run(200ms);
  EXPECT_EQ(program->form.Get().inputHeight, before);
}

TEST_F(MenusTest, QuitAsksAsClosingDoes) {
  LogIn();
  Entry("Connection", "Quit").trigger();
  Run(200ms);
  EXPECT_FALSE(world.dialogs.shown.empty());
}

TEST_F(MenusTest, TheVersionIsTold) {
  Entry("Help", "About Molva Desk").trigger();
  EXPECT_TRUE(program->messageForm.Open.Get());
  EXPECT_THAT(program->messageForm.Lines.Get(), Contains(testing::StartsWith("Molva Desk 2.")));
}

}  // namespace
}  // namespace gui
