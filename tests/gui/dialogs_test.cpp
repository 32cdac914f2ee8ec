#include <QAbstractButton>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QTextBrowser>
#include <algorithm>
#include <map>
#include <set>

#include "gui/opened_row.h"
#include "gui/reader.h"

// What every dialog promises to who uses it by ear or by keyboard.
namespace gui {
namespace {

std::string Text(const QString& text) { return text.toStdString(); }

bool StandsTogether(const DialogRow& row, const Control& control) {
  return std::ranges::any_of(row.together,
                             [&](const char* begin) { return control.name.startsWith(begin); });
}

class DialogsTest : public OpenedRow {
 protected:
  void SetUp() override { Open(); }

  bool ManualIsAt(const std::string& page) {
    const auto* text = Named<QTextBrowser>(*window, "Manual page");
    const auto wanted = QString::fromStdString(page).split('#');
    if (text == nullptr || !text->isVisible()) return false;
    if (text->source().fileName() != wanted[0] + ".md") return false;
    return wanted.size() == 1 || text->textCursor().block().text() == wanted[1];
  }
};

TEST_F(DialogsTest, EachOneOfTheWindowIsInTheTable) {
  std::set<QWidget*> known;
  ForEach([&](const DialogRow&, QWidget& dialog) { known.insert(&dialog); });
  EXPECT_EQ(known.size(), Dialogs().size());
  for (QAction* menu : window->menuBar()->actions())
    for (QAction* each : menu->menu()->actions())
      if (!each->isSeparator()) each->trigger();
  Run(200ms);
  for (QWidget* each : window->findChildren<QWidget*>())
    EXPECT_TRUE(!IsDialog(*each) || known.contains(each)) << Text(NameOf(*each));
}

TEST_F(DialogsTest, EachControlHasANameThatMakesSenseAlone) {
  ForEach([](const DialogRow&, QWidget& dialog) {
    std::map<std::pair<QString, QAccessible::Role>, int> all;
    for (const Control& each : ControlsIn(dialog)) {
      EXPECT_TRUE(IsWord(each.name)) << '"' << Text(each.name) << '"';
      EXPECT_EQ((++all[{each.name, each.role}]), 1) << Text(each.name);
    }
    EXPECT_FALSE(all.empty());
  });
}

TEST_F(DialogsTest, EachControlHasTheRoleOfWhatItDoes) {
  ForEach([](const DialogRow&, QWidget& dialog) {
    for (const Control& each : ControlsIn(dialog))
      EXPECT_TRUE(RoleFits(each)) << Text(each.name) << ": role " << each.role;
  });
}

TEST_F(DialogsTest, EachFieldHasItsLabel) {
  ForEach([](const DialogRow& row, QWidget& dialog) {
    for (const Control& each : ControlsIn(dialog)) {
      const bool field = each.widget->inherits("QLineEdit") || each.widget->inherits("QComboBox");
      EXPECT_TRUE(!field || StandsTogether(row, each) || LabelOf(*each.widget) != nullptr)
          << Text(each.name);
    }
  });
}

TEST_F(DialogsTest, EachControlHasAKeyAndNoTwoHaveTheSame) {
  ForEach([](const DialogRow& row, QWidget& dialog) {
    for (const auto& [key, places] : KeysIn(dialog))
      EXPECT_EQ(places.size(), 1) << Text(key) << ": " << Text(places.join(" | "));
    for (const Control& each : ControlsIn(dialog)) {
      const bool alone = each.widget->inherits("QAbstractScrollArea");
      EXPECT_TRUE(alone || StandsTogether(row, each) || HasKey(*each.widget)) << Text(each.name);
    }
  });
}

TEST_F(DialogsTest, TheTabKeyReachesEachControl) {
  ForEach([](const DialogRow&, QWidget& dialog) {
    const auto round = TabRound(dialog);
    for (const Control& each : ControlsIn(dialog))
      EXPECT_TRUE(!each.widget->isEnabled() || IsReached(*each.widget, round)) << Text(each.name);
  });
}

TEST_F(DialogsTest, TheTabKeyFollowsTheEye) {
  ForEach([](const DialogRow&, QWidget& dialog) {
    const auto round = TabRound(dialog);
    for (std::size_t i = 0; i < round.size(); ++i)
      for (std::size_t j = i + 1; j < round.size(); ++j)
        EXPECT_TRUE(ComesBefore(*round[i], *round[j]))
            << Text(round[i]->accessibleName()) << ", then " << Text(round[j]->accessibleName());
  });
}

TEST_F(DialogsTest, TheFocusIsInItWhenItOpens) {
  ForEach([](const DialogRow&, QWidget& dialog) {
    QApplication::setActiveWindow(&dialog);
    EXPECT_TRUE(dialog.focusWidget() != nullptr && dialog.focusWidget() != &dialog);
  });
}

TEST_F(DialogsTest, EscapeClosesItAndItOpensAgain) {
  for (int time = 0; time < 2; ++time)
    ForEach([this](const DialogRow&, QWidget& dialog) {
      QApplication::setActiveWindow(&dialog);
      QWidget* focus = dialog.focusWidget();
      QTest::keyClick(focus != nullptr ? focus : &dialog, Qt::Key_Escape);
      Run(200ms);
      EXPECT_FALSE(dialog.isVisible());
    });
}

TEST_F(DialogsTest, ReturnPressesThePrimaryButtonAndNoOther) {
  ForEach([](const DialogRow& row, QWidget& dialog) {
    QStringList pressed;
    std::vector<QMetaObject::Connection> watching;
    for (auto* each : dialog.findChildren<QAbstractButton*>())
      watching.push_back(QObject::connect(each, &QAbstractButton::clicked,
                                          [&pressed, each] { pressed << each->accessibleName(); }));
    QTest::keyClick(&dialog, Qt::Key_Return);
    const QString primary = QString::fromUtf8(row.primary);
    EXPECT_EQ(pressed, primary.isEmpty() ? QStringList() : QStringList(primary));
    for (const auto& each : watching) QObject::disconnect(each);
  });
}

TEST_F(DialogsTest, F1OpensTheManualAtThePageForIt) {
  ForEach([this](const DialogRow& row, QWidget& dialog) {
    ASSERT_NE(*row.page, '\0');
    QApplication::setActiveWindow(&dialog);
    QTest::keyClick(&dialog, Qt::Key_F1);
    Run(200ms);
    EXPECT_TRUE(ManualIsAt(row.page));
    Named<QTextBrowser>(*window, "Manual page")->window()->close();
  });
}

TEST_F(DialogsTest, NoneHoldsTheStreamBehindItBack) {
  LogIn();
  ForEach([this](const DialogRow& row, QWidget& dialog) {
    EXPECT_FALSE(dialog.isModal());
    const std::string line = std::string("To ALL de K1ABC: behind ") + row.title + "!";
    node.Say(line);
    Run(1s);
    EXPECT_THAT(LinesOf(Raw()), Contains(QString::fromStdString(line)));
  });
}

}  // namespace
}  // namespace gui
