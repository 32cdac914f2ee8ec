#include <QAbstractButton>
#include <QAction>
#include <QMenuBar>
#include <QTreeView>

#include "gui/desk.h"
#include "gui/dialog_table.h"
#include "gui/reader.h"

// The real window, driven by the accessibility tree alone: by names, by the actions of controls,
// and by texts that are set at once.
namespace gui {
namespace {

class SpokenTest : public Desk {
 protected:
  void SetUp() override { Open(); }

  // What goes by that name below a window. Null, and the test fails, if there is none on show.
  QAccessibleInterface* Spoken(QAccessibleInterface* root, const QString& name) {
    QAccessibleInterface* found = nullptr;
    Walk(root, [&](QAccessibleInterface& each) {
      const QString spoken = each.text(QAccessible::Name);
      const bool fits = spoken == name || spoken.startsWith(name + "\t");
      if (found == nullptr && fits && each.role() != QAccessible::StaticText) found = &each;
    });
    EXPECT_NE(found, nullptr) << "nothing is named " << name.toStdString();
    return found;
  }
  QAccessibleInterface* Window() { return QAccessible::queryAccessibleInterface(window.get()); }

  void Do(QAccessibleInterface* what, const QString& action) {
    ASSERT_NE(what, nullptr);
    auto* actions = what->actionInterface();
    ASSERT_NE(actions, nullptr) << what->text(QAccessible::Name).toStdString();
    ASSERT_TRUE(actions->actionNames().contains(action))
        << "it does " << actions->actionNames().join(", ").toStdString();
    actions->doAction(action);
    // A button that is pressed so stays down for a moment, by Qt's own clock.
    const auto* button = qobject_cast<QAbstractButton*>(what->object());
    const auto isUp = [button] { return button == nullptr || !button->isDown(); };
    EXPECT_TRUE(QTest::qWaitFor(isUp));
    Run(300ms);
  }
  void Press(QAccessibleInterface* root, const QString& name) {
    Do(Spoken(root, name), QAccessibleActionInterface::pressAction());
  }
  void Turn(QAccessibleInterface* root, const QString& name) {
    Do(Spoken(root, name), QAccessibleActionInterface::toggleAction());
  }
  void Enter(QAccessibleInterface* root, const QString& name, const QString& text) {
    QAccessibleInterface* field = Spoken(root, name);
    ASSERT_NE(field, nullptr);
    ASSERT_NE(field->editableTextInterface(), nullptr) << name.toStdString();
    const int before = field->textInterface()->characterCount();
    field->editableTextInterface()->replaceText(0, before, text);
    Run(300ms);
  }

  // The dialog that an entry of a menu opens.
  QAccessibleInterface* Opened(const QString& entry, const QString& title) {
    Choose(entry);
    for (QDialog* each : window->findChildren<QDialog*>())
      if (each->isVisible() && each->windowTitle() == title)
        return QAccessible::queryAccessibleInterface(each);
    ADD_FAILURE() << "no dialog " << title.toStdString();
    return nullptr;
  }
  // Presses the entry in the tree of the menus, which a reader walks without opening them.
  void Choose(const QString& entry) {
    for (const QAction* each : window->menuBar()->actions())
      if (QAccessibleInterface* item = EntryOf(*each->menu(), entry))
        return Do(item, QAccessibleActionInterface::pressAction());
    ADD_FAILURE() << "no entry " << entry.toStdString();
  }
  static QAccessibleInterface* EntryOf(QMenu& menu, const QString& entry) {
    QAccessibleInterface* items = QAccessible::queryAccessibleInterface(&menu);
    for (int i = 0; i < items->childCount(); ++i)
      if (items->child(i)->text(QAccessible::Name).section('\t', 0, 0) == entry)
        return items->child(i);
    return nullptr;
  }
};

TEST_F(SpokenTest, EachDialogOfTheMenusIsOpenedAndClosed) {
  int opened = 0;
  for (const DialogRow& row : Dialogs()) {
    if (*row.entry == '\0') continue;
    SCOPED_TRACE(row.title);
    QAccessibleInterface* dialog = Opened(row.entry, row.title);
    ASSERT_NE(dialog, nullptr);
    const auto* widget = qobject_cast<QWidget*>(dialog->object());
    Press(dialog, row.closes);
    EXPECT_FALSE(widget->isVisible());
    ++opened;
  }
  EXPECT_GT(opened, 10);
}

TEST_F(SpokenTest, TheNodeIsConnectedToAndLeft) {
  Press(Window(), "Connect");
  Run(2s);
  EXPECT_EQ(node.calls, 1);
  Press(Window(), "Disconnect");
  Run(3s);
  EXPECT_EQ(program->session.WinsockOut->State(), platform::SocketState::Closed);
}

TEST_F(SpokenTest, SoItIsByTheMenuAlthoughNobodyOpensIt) {
  Choose("Connect");
  Run(2s);
  EXPECT_EQ(node.calls, 1);
  Choose("Disconnect");
  Run(3s);
  EXPECT_EQ(program->session.WinsockOut->State(), platform::SocketState::Closed);
}

TEST_F(SpokenTest, AViewIsChosenByItsTab) {
  Press(Window(), "Login Msg");
  EXPECT_EQ(program->views.onShow.Get(), program::Views::LoginMsg);
}

TEST_F(SpokenTest, TheUserIsEntered) {
  QAccessibleInterface* dialog = Opened("User information…", "User information");
  Enter(dialog, "Call", "W1NEW");
  Enter(dialog, "Name", "BOB");
  Press(dialog, "OK");
  EXPECT_EQ(program->settings.MyCall, "W1NEW");
  EXPECT_EQ(program->settings.MyName, "BOB");
}

TEST_F(SpokenTest, ANodeIsAddedFoundAndUsed) {
  QAccessibleInterface* dialog = Opened("Nodes…", "Nodes");
  Enter(dialog, "Call of the node", "W1NEW");
  Enter(dialog, "Host of the node", "new.example");
  Enter(dialog, "Port of the node", "7300");
  Press(dialog, "Add node");
  Enter(dialog, "Find a node by its call, host or info", "new.ex");
  const auto* rows = qobject_cast<QTreeView*>(Spoken(dialog, "List of nodes")->object());
  EXPECT_EQ(rows->model()->rowCount(), 1);
  Press(dialog, "Use node");
  EXPECT_EQ(program->settings.NodeCall, "W1NEW");
}

TEST_F(SpokenTest, ACallIsRejectedAndShownAgain) {
  QAccessibleInterface* dialog = Opened("Rejects…", "Reject spots");
  Enter(dialog, "To be rejected: DX call", "k1*");
  Press(dialog, "Add DX call");
  QAccessibleInterface* list = Spoken(dialog, "Rejected: DX calls");
  ASSERT_EQ(list->childCount(), 1);
  EXPECT_EQ(list->child(0)->text(QAccessible::Name), "K1*");
  Do(list->child(0), QAccessibleActionInterface::toggleAction());
  Press(dialog, "Delete DX call");
  EXPECT_EQ(list->childCount(), 0);
}

TEST_F(SpokenTest, WhatAButtonDropsIsAPartOfItWhileItIsThere) {
  LogIn();
  program->session.state.Recognise(session::NodeKind::Spider);
  QAccessibleInterface* button = Spoken(Window(), "Get spots…");
  EXPECT_EQ(button->childCount(), 0);
  Do(button, QAccessibleActionInterface::pressAction());
  ASSERT_EQ(button->childCount(), 1);
  EXPECT_EQ(button->child(0)->text(QAccessible::Name), "Get spots from the node");
  EXPECT_EQ(button->indexOfChild(button->child(0)), 0);
  Enter(Window(), "Call to get spots of", "k1abc");
  Press(Window(), "Get the spots of this band or call");
  EXPECT_THAT(node.Heard().back(), testing::HasSubstr("k1abc"));
  EXPECT_EQ(button->childCount(), 0);
}

TEST_F(SpokenTest, ColumnsAreChosen) {
  QAccessibleInterface* dialog = Opened("Columns…", "DX Spots");
  Turn(dialog, "Expanded display");
  Turn(dialog, "Bearing");
  Press(dialog, "Apply the display");
  EXPECT_TRUE(program->spotParts.display.Shown().Expanded);
  EXPECT_TRUE(program->spotParts.display.Shown().Bearing);
}

TEST_F(SpokenTest, ABandIsChosen) {
  QAccessibleInterface* bands = Spoken(Window(), "Bands of the spots");
  ASSERT_NE(bands, nullptr);
  Do(bands->child(1), QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(program->spotParts.table.rail.SelectedBand(), 1);
}

TEST_F(SpokenTest, ACorrectionIsAdded) {
  QAccessibleInterface* dialog = Opened("Corrections…", "Fix Spots");
  Enter(dialog, "Call of the correction", "k1abc");
  Enter(dialog, "Country of the correction", "KH6");
  Press(dialog, "Add the correction");
  EXPECT_THAT(program->spotParts.fixForm.Export(), testing::HasSubstr("\"K1ABC\",\"KH6\""));
}

TEST_F(SpokenTest, TheLogOfSpotsIsSwitchedAndItsLengthSet) {
  const bool before = program->spotParts.spotsForm.chkSave.Value.Get();
  QAccessibleInterface* dialog = Opened("Spot log…", "Dx Spot Log File ");
  Turn(dialog, "Save Dx Spots To Log File");
  Enter(dialog, "Number of days to keep", "12");
  Press(dialog, "Close");
  EXPECT_NE(program->spotParts.spotsForm.chkSave.Value.Get(), before);
  EXPECT_EQ(program->settings.KeepSpotsDays, 12);
}

TEST_F(SpokenTest, AScriptForTheTncIsEntered) {
  QAccessibleInterface* dialog = Opened("Script for the TNC…", "TNC");
  Enter(dialog, "Step 1, connect string", "C N0NODE");
  Enter(dialog, "Step 1, time out in seconds", "30");
  Press(dialog, "Save the script");
  EXPECT_EQ(program->settings.TncSteps.size(), 1U);
}

TEST_F(SpokenTest, ASpotIsReadInItsOrder) {
  LogIn();
  program->session.state.Recognise(session::NodeKind::Spider);
  node.Say("DX de W1TST:     14025.0  3Y0J         CW up 2                        2116Z");
  Run(1s);
  QAccessibleInterface* spots = Spoken(Window(), "Spots");
  ASSERT_GE(spots->childCount(), 2);
  EXPECT_THAT(spots->child(0)->text(QAccessible::Name).toStdString(),
              testing::StartsWith("14025.0, 3 Y 0 J, "));
}

}  // namespace
}  // namespace gui
