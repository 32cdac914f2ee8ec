#include <QApplication>
#include <QShortcut>
#include <QTreeWidget>
#include <algorithm>

#include "gui/opened_row.h"
#include "ui/commands.h"

// The list of keys holds what keys do.
namespace gui {
namespace {

class KeyListTest : public OpenedRow {
 protected:
  void SetUp() override {
    Open();
    LogIn();
    program->session.state.Recognise(session::NodeKind::Spider);
    node.Say("DX de W1TST:     14025.0  3Y0J         CW up 2                        2116Z");
    Run(1s);
    Press(Qt::Key_Question, Qt::ControlModifier);
    Run(200ms);
    list_ = Named<QTreeWidget>(*window, "Keys and what they do");
  }

  QTreeWidgetItem& Place(int row) { return *list_->topLevelItem(row); }
  // The keys below a heading; below all of them without one.
  QStringList Keys(const QString& heading = {}) {
    QStringList keys;
    for (int place = 0; place < list_->topLevelItemCount(); ++place) {
      if (!heading.isEmpty() && Place(place).text(0) != heading) continue;
      for (int row = 0; row < Place(place).childCount(); ++row)
        keys += Place(place).child(row)->data(0, Qt::UserRole).toStringList();
    }
    EXPECT_FALSE(keys.isEmpty()) << heading.toStdString();
    return keys;
  }
  // Of those, what the widget does something with.
  static QStringList Known(QWidget& widget, const QStringList& keys) {
    QStringList known;
    for (const QString& each : keys) {
      const QKeyCombination key = QKeySequence(each)[0];
      QKeyEvent press(QEvent::KeyPress, key.key(), key.keyboardModifiers());
      static_cast<QObject&>(widget).event(&press);  // by itself, and not by what it stands in
      if (press.isAccepted()) known << each;
    }
    return known;
  }

  QTreeWidget* list_ = nullptr;
  const QStringList tried_ = {"Up",         "Down",    "Left",   "Right",  "PgUp",   "PgDown",
                              "Home",       "End",     "Return", "Space",  "Del",    "Backspace",
                              "Insert",     "Ctrl+C",  "Ctrl+A", "Ctrl+X", "Ctrl+V", "A",
                              "+",          "F2",      "F3",     "F4",     "Menu",   "Ctrl+Return",
                              "Alt+Return", "Shift+Up"};
};

TEST_F(KeyListTest, StandsOnItsOwnAndHoldsNothingUp) {
  EXPECT_TRUE(list_->isVisible());
  EXPECT_FALSE(list_->window()->isModal());
  QTest::keyClick(list_, Qt::Key_Escape);
  EXPECT_FALSE(list_->isVisible());
}

TEST_F(KeyListTest, EachCommandWithAKeyStandsInItOnce) {
  for (const ui::Command& command : ui::Commands()) {
    if (!command.HasKey()) continue;
    for (const QKeySequence& each : QKeySequence::listFromString(command.keys)) {
      const auto saysIt = [&](const QTreeWidgetItem& item) {
        return item.text(0).split(", ").contains(each.toString()) && item.text(1) == command.says;
      };
      int rows = 0;
      for (QTreeWidgetItemIterator at(list_); *at != nullptr; ++at) rows += saysIt(**at) ? 1 : 0;
      EXPECT_EQ(rows, 1) << command.keys;
    }
  }
}

TEST_F(KeyListTest, EachShortcutOfTheWindowAndOfItsDialogsStandsInIt) {
  ForEach([](const DialogRow&, QWidget&) {});  // each is there from then on
  const QStringList keys = Keys();
  int seen = 0;
  for (const QShortcut* each : window->findChildren<QShortcut*>()) {
    EXPECT_TRUE(keys.contains(each->key().toString())) << each->key().toString().toStdString();
    ++seen;
  }
  for (const QAction* action : window->findChildren<QAction*>())
    for (const QKeySequence& each : action->shortcuts())
      EXPECT_TRUE(keys.contains(each.toString())) << action->text().toStdString();
  EXPECT_GT(seen, 40);
}

TEST_F(KeyListTest, WhatTheTableKnowsByItselfStandsUnderIt) {
  QWidget& spots = *Named(*window, "Spots");
  const QStringList keys = Keys("Table of the spots");
  const QStringList known = Known(spots, tried_);
  EXPECT_GT(known.size(), 8);
  for (const QString& each : known) EXPECT_TRUE(keys.contains(each)) << each.toStdString();
  EXPECT_EQ(Known(spots, keys), keys) << "and nothing else does";
}

TEST_F(KeyListTest, WhatTheHeadsKnowByThemselvesStandsUnderThem) {
  QWidget& head = *Named(*window, "Sort by time");
  const QStringList keys = Keys("Heads of the table");
  QStringList tried = tried_;
  tried.removeOne("Alt+Return");  // no other than Return
  const QStringList known = Known(head, tried);
  EXPECT_GT(known.size(), 4);
  for (const QString& each : known) EXPECT_TRUE(keys.contains(each)) << each.toStdString();
  EXPECT_EQ(Known(head, keys), keys) << "and nothing else does";
}

TEST_F(KeyListTest, ANewcomerFindsFirstWhatLeadsOn) {
  EXPECT_EQ(Place(0).text(0), "Anywhere");
  EXPECT_EQ(Keys().mid(0, 5), QStringList({"F1", "Ctrl+?", "F5", "Ctrl+L", "Esc"}));
}

TEST_F(KeyListTest, ItsRowsAreAiryAndItsHeadingsStandOut) {
  const QRect heading = list_->visualItemRect(&Place(0));
  const QRect row = list_->visualItemRect(Place(0).child(0));
  EXPECT_GE(row.height(), list_->fontMetrics().height() + 8);
  EXPECT_GT(heading.height(), row.height());
  EXPECT_FALSE(Place(0).flags().testFlag(Qt::ItemIsSelectable));
}

TEST_F(KeyListTest, NoKeyIsWiderThanItsColumn) {
  for (QTreeWidgetItemIterator at(list_); *at != nullptr; ++at) {
    const QStringList keys = (*at)->data(0, Qt::UserRole).toStringList();
    int width = 16;
    for (const QString& each : keys) width += list_->fontMetrics().horizontalAdvance(each) + 16;
    EXPECT_LE(width, list_->columnWidth(0)) << (*at)->text(0).toStdString();
  }
}

}  // namespace
}  // namespace gui
