#include "ui/node_dialog.h"

#include <QCheckBox>
#include <QLabel>
#include <QProgressBar>

#include "gui/desk.h"

namespace gui {
namespace {

using testing::HasSubstr;
using testing::Not;

class NodeDialogTest : public Desk {
 protected:
  void SetUp() override {
    world.files.content["/home/anna/molva/endpoints.cfg"] =
        "\"MOLVA-1\",\"\"\r\n\"Node List\",\"https://lists.example\"\r\n";
    Open();
    Button("Nodes").click();
    Run(300ms);
  }
  QDialog& Dialog() {
    for (QDialog* each : window->findChildren<QDialog*>())
      if (each->windowTitle() == "Nodes") return *each;
    ADD_FAILURE() << "no dialog of nodes";
    static QDialog none;
    return none;
  }
  QLineEdit& Field(const char* name) { return *Named<QLineEdit>(Dialog(), name); }
  QLineEdit& Search() { return Field("Find a node by its call, host or info"); }
  QTreeView& List() { return *Named<QTreeView>(Dialog(), "List of nodes"); }
  void Click(const char* name) {
    Named<QAbstractButton>(Dialog(), name)->click();
    Run(300ms);
  }
  void Type(const char* field, const char* text) {
    Field(field).clear();
    QTest::keyClicks(&Field(field), text);
    Run(300ms);
  }
  QStringList Calls() {
    QStringList calls;
    const QAbstractItemModel& model = *List().model();
    for (int row = 0; row < model.rowCount(); ++row) calls << model.index(row, 0).data().toString();
    return calls;
  }
  QString Chosen() {
    const auto rows = List().selectionModel()->selectedRows();
    return rows.isEmpty() ? QString() : rows.front().data().toString();
  }
  std::string Says(const char* label) {
    return Named<QLabel>(Dialog(), label)->text().toStdString();
  }
};

TEST_F(NodeDialogTest, TheButtonBesideTheNodeOpensItWithTheSelectedOne) {
  EXPECT_TRUE(Dialog().isVisible());
  EXPECT_FALSE(Dialog().isModal());
  EXPECT_EQ(Calls().size(), 13);
  EXPECT_EQ(Chosen(), "N0DE-1");
  EXPECT_EQ(Field("Host of the node").text(), "127.0.0.1");
  EXPECT_TRUE(Search().hasFocus());
}

TEST_F(NodeDialogTest, TabFollowsTheEye) {
  QStringList order;
  for (int i = 0; i < 6; ++i) {
    order << QApplication::focusWidget()->accessibleName();
    Press(Qt::Key_Tab);
  }
  EXPECT_EQ(order, QStringList({"Find a node by its call, host or info", "List of nodes",
                                "Call of the node", "Host of the node", "Port of the node",
                                "Delete node"}));
  EXPECT_EQ(Chosen(), "N0DE-1");
}

TEST_F(NodeDialogTest, ThePracticeNodeSaysWhatItIs) {
  const QAbstractItemModel& model = *List().model();
  for (int row = 0; row < model.rowCount(); ++row) {
    const bool practice = model.index(row, 0).data().toString() == "N0DE-1";
    EXPECT_EQ(model.index(row, 3).data().toString(), practice ? "practice node" : "");
  }
}

TEST_F(NodeDialogTest, ItIsSearchedWhileTypingAndUsedByKeyboardAlone) {
  QTest::keyClicks(&Search(), "ai9");
  Run(300ms);
  EXPECT_EQ(Calls(), QStringList({"AI9T"}));
  Press(Qt::Key_Return);
  Run(300ms);
  EXPECT_EQ(Chosen(), "AI9T");
  EXPECT_EQ(Field("Host of the node").text(), "dxc.ai9t.com");
  EXPECT_TRUE(Dialog().isVisible());
  Press(Qt::Key_Down);
  EXPECT_TRUE(List().hasFocus());
  Press(Qt::Key_Return);
  Run(300ms);
  EXPECT_FALSE(Dialog().isVisible());
  EXPECT_EQ(program->settings.NodeCall, "AI9T");
  EXPECT_EQ(Named<QLabel>(*window, "Node")->text(), "AI9T");
}

TEST_F(NodeDialogTest, TheButtonThatReturnPressesStandsOut) {
  const auto standsOut = [this](const char* name) {
    const auto* button = Named<QPushButton>(Dialog(), name);
    EXPECT_EQ(button->property("primary").toBool(), button->isDefault()) << name;
    return button->isDefault();
  };
  EXPECT_TRUE(standsOut("Use node"));
  EXPECT_FALSE(standsOut("Add node"));
  Type("Call of the node", "N0NEW-1");
  EXPECT_FALSE(standsOut("Use node"));
  EXPECT_TRUE(standsOut("Add node"));
}

TEST_F(NodeDialogTest, AClickChoosesAndADoubleClickUses) {
  const auto at = [this](int row) {
    return List().visualRect(List().model()->index(row, 1)).center();
  };
  QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, at(1));
  Run(300ms);
  EXPECT_EQ(Field("Call of the node").text(), Calls()[1]);
  const QString call = Calls()[2];
  QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, at(2));
  QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, at(2));
  Run(300ms);
  EXPECT_FALSE(Dialog().isVisible());
  EXPECT_EQ(QString::fromStdString(program->settings.NodeCall), call);
}

TEST_F(NodeDialogTest, ComingIntoTheListByTabChoosesNothing) {
  Type("Call of the node", "W1NEW");
  Field("Host of the node").setText("new.example");
  Field("Call of the node").setFocus();
  Press(Qt::Key_Tab, Qt::ShiftModifier);
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  Run(300ms);
  EXPECT_EQ(Field("Call of the node").text(), "W1NEW");
}

TEST_F(NodeDialogTest, ANodeIsAddedAndDeleted) {
  Type("Call of the node", "w1new");
  Type("Host of the node", "new.example");
  Type("Port of the node", "7300");
  EXPECT_FALSE(Named<QAbstractButton>(Dialog(), "Use node")->isEnabled());
  Click("Add node");
  EXPECT_TRUE(Calls().contains("W1NEW"));
  EXPECT_EQ(Chosen(), "W1NEW");
  EXPECT_THAT(world.files.content["/home/anna/molva/dxclusters.dat"],
              HasSubstr("W1NEW,new.example,7300,\r\n"));
  Click("Delete node");
  EXPECT_FALSE(Calls().contains("W1NEW"));
  EXPECT_EQ(Chosen(), "");
  EXPECT_EQ(Says("Result"), "W1NEW is deleted.");
}

TEST_F(NodeDialogTest, ReturnInAFieldAddsANewNodeAndUsesAKnownOne) {
  Type("Call of the node", "w1new");
  QTest::keyClick(&Field("Port of the node"), Qt::Key_Return);
  Run(300ms);
  EXPECT_EQ(Chosen(), "W1NEW");
  EXPECT_TRUE(Dialog().isVisible());
  QTest::keyClick(&Field("Port of the node"), Qt::Key_Return);
  Run(300ms);
  EXPECT_FALSE(Dialog().isVisible());
  EXPECT_EQ(program->settings.NodeCall, "W1NEW");
}

TEST_F(NodeDialogTest, WhatIsWrongIsSaidAndSpoken) {
  Type("Port of the node", "x");
  Click("Use node");
  EXPECT_TRUE(Dialog().isVisible());
  EXPECT_THAT(Says("Result"), HasSubstr("Enter the port"));
  const QLabel& result = *Named<QLabel>(Dialog(), "Result");
  EXPECT_EQ(result.palette().color(QPalette::WindowText), theme[ui::Token::Bad]);
  EXPECT_THAT(result.accessibleName().toStdString(), HasSubstr("Result: Enter the port"));
}

TEST_F(NodeDialogTest, ItHoldsNothingUp) {
  LogIn();
  node.Say("DX de W1TST:     14025.0  3Y0J         loud                           2148Z");
  Run(1s);
  EXPECT_TRUE(Dialog().isVisible());
  EXPECT_TRUE(LinesOf(Raw()).join('\n').contains("3Y0J"));
}

TEST_F(NodeDialogTest, EscapeClosesItAndItOpensAsThingsAre) {
  Type("Port of the node", "1");
  QTest::keyClick(&Dialog(), Qt::Key_Escape);
  Run(300ms);
  EXPECT_FALSE(Dialog().isVisible());
  Button("Nodes").click();
  Run(300ms);
  EXPECT_TRUE(Dialog().isVisible());
  EXPECT_EQ(Field("Port of the node").text(), "7373");
}

TEST_F(NodeDialogTest, TheListShowsWholeRowsAndEveryBuiltInNode) {
  const auto rowsInSight = [this] {
    const int row = List().visualRect(List().model()->index(0, 0)).height();
    EXPECT_EQ(List().viewport()->height() % row, 0) << "at " << Dialog().height();
    return List().viewport()->height() / row;
  };
  EXPECT_GE(rowsInSight(), 11);
  for (core::Label& each : program->nodeUpdate.lblWarning) each.Visible.Set(false);
  program->nodeUpdate.Check1.Visible.Set(false);
  Run(200ms);
  EXPECT_GE(rowsInSight(), 13) << "where no list is to be had";
  for (int taller : {1, 7, 30, 100}) {
    const int before = rowsInSight();
    Dialog().resize(Dialog().width(), Dialog().height() + taller);
    Run(100ms);
    EXPECT_GE(rowsInSight(), before);
  }
}

TEST_F(NodeDialogTest, NothingStandsThereThatHasNothingToSay) {
  for (const QProgressBar* each : Dialog().findChildren<QProgressBar*>())
    EXPECT_FALSE(each->isVisible());
  for (const QLabel* each : Dialog().findChildren<QLabel*>())
    EXPECT_TRUE(!each->isVisible() || !each->text().isEmpty())
        << each->accessibleName().toStdString();
}

TEST_F(NodeDialogTest, ANewListIsFetchedByItsButton) {
  std::string list = "W1LST,list.example,7300,Listed\r\n";
  for (int i = 0; i < 5000; ++i) list += "a broken line\r\n";
  world.http.pages["https://lists.example/telnet/dxclusters.php"] = {.bytes = list};
  Click("Update the list of nodes");
  EXPECT_THAT(Says("Result of the update"), HasSubstr("Received: "));
  const auto& bar = *Named<QProgressBar>(Dialog(), "Progress of the update");
  EXPECT_TRUE(bar.isVisible());
  EXPECT_GT(bar.value(), 0);
  EXPECT_LT(bar.value(), 100);
  Run(5s);
  EXPECT_FALSE(bar.isVisible());
  EXPECT_EQ(Says("Result of the update"), "*** Update OK ***");
  EXPECT_TRUE(Calls().contains("W1LST"));
}

TEST_F(NodeDialogTest, TheFetchIsStoppedByTheSameButton) {
  world.http.pages["https://lists.example/telnet/dxclusters.php"] = {
      .bytes = std::string(1'000'000, 'x')};
  Click("Update the list of nodes");
  EXPECT_EQ(Named<QAbstractButton>(Dialog(), "Stop the update of the list of nodes")->text(),
            "S&top");
  Click("Stop the update of the list of nodes");
  EXPECT_EQ(Says("Result of the update"), "Stopped. The old list stays.");
  EXPECT_EQ(world.http.open, 0);
  EXPECT_TRUE(Named<QAbstractButton>(Dialog(), "Update the list of nodes")->isEnabled());
}

TEST_F(NodeDialogTest, WhatCannotBeUsedSaysWhy) {
  const auto& secondary = *Named<QCheckBox>(Dialog(), "Enable Secondary Node Connection");
  EXPECT_FALSE(secondary.isEnabled());
  EXPECT_NE(secondary.toolTip(), "");
  for (const auto* each : Dialog().findChildren<QAbstractButton*>())
    EXPECT_TRUE(!each->isVisible() || each->isEnabled() || !each->toolTip().isEmpty())
        << each->accessibleName().toStdString();
}

TEST_F(NodeDialogTest, WhatAListSaysIsNoRichTextAndNoMnemonic) {
  world.files.content["/home/anna/molva/dxclusters.dat"] =
      "W1BAD,<b>h&ost</b>,23,\x1b[31m<img src=x>\r\n";
  program->nodeDirectory.Load();
  Type("Find a node by its call, host or info", "W1BAD");
  const QAbstractItemModel& model = *List().model();
  EXPECT_EQ(model.index(0, 1).data().toString(), "<b>h&ost</b>");
  EXPECT_THAT(model.index(0, 3).data().toString().toStdString(), Not(HasSubstr("\x1b")));
  Press(Qt::Key_Return);
  Run(300ms);
  EXPECT_EQ(Field("Host of the node").text(), "<b>h&ost</b>");
}

TEST_F(NodeDialogTest, AHundredThousandNodesAreSearchedWhileTyping) {
  std::string list;
  for (int i = 0; i < 100'000; ++i) list += "N" + std::to_string(i) + "A,h.example,23,\r\n";
  world.files.content["/home/anna/molva/dxclusters.dat"] = list;
  program->nodeDirectory.Load();
  Run(300ms);
  EXPECT_EQ(List().model()->rowCount(), 100'013);
  EXPECT_EQ(Chosen(), "N0DE-1");
  Type("Find a node by its call, host or info", "N99999A");
  EXPECT_EQ(Calls(), QStringList({"N99999A"}));
}

}  // namespace
}  // namespace gui
