#include <QCheckBox>
#include <QDialog>
#include <QFileDialog>
#include <QLabel>
#include <QListWidget>
#include <QRadioButton>
#include <QTreeView>

#include "gui/desk.h"
#include "platform/qt/qt_text.h"

// The dialogs of the spots, opened from their page.
namespace gui {
namespace {

class SpotDialogsTest : public Desk {
 protected:
  void SetUp() override { Open(); }

  QDialog& Opened(const char* button, const QString& title) {
    Button(button).click();
    Run(200ms);
    for (QDialog* each : window->findChildren<QDialog*>())
      if (each->windowTitle() == title && each->isVisible()) return *each;
    ADD_FAILURE() << "no dialog " << title.toStdString();
    static QDialog none;
    return none;
  }
  static void Type(QDialog& dialog, const char* field, const char* text) {
    auto& box = *Named<QLineEdit>(dialog, field);
    box.clear();
    QTest::keyClicks(&box, text);
  }
  void Click(QDialog& dialog, const char* button) {
    Named<QAbstractButton>(dialog, button)->click();
    Run(200ms);
  }

  spots::SpotParts& Parts() { return program->spotParts; }
};

// Rejected spots.

TEST_F(SpotDialogsTest, ReturnAddsARejectedCallAndTheListShowsIt) {
  QDialog& dialog = Opened("Spots to reject", "Reject spots");
  Type(dialog, "To be rejected: DX call", "k1*");
  QTest::keyClick(Named<QLineEdit>(dialog, "To be rejected: DX call"), Qt::Key_Return);
  auto& list = *Named<QListWidget>(dialog, "Rejected: DX calls");
  ASSERT_EQ(list.count(), 1);
  EXPECT_EQ(list.item(0)->text(), "K1*");
  EXPECT_TRUE(dialog.isVisible());
}

TEST_F(SpotDialogsTest, TheDeleteKeyTakesTheChosenEntryOut) {
  for (const char* call : {"K1*", "K2*", "K3*"})
    Parts().rejectLists.Add(spots::RejectLists::kDx, call);
  QDialog& dialog = Opened("Spots to reject", "Reject spots");
  auto& list = *Named<QListWidget>(dialog, "Rejected: DX calls");
  list.setCurrentRow(1);
  EXPECT_EQ(Parts().rejectLists.lstReject[0].Selected.Get(), 1);
  Run(200ms);
  QTest::keyClick(&list, Qt::Key_Delete);
  ASSERT_EQ(list.count(), 2);
  EXPECT_EQ(list.item(1)->text(), "K3*");
  EXPECT_EQ(list.currentRow(), -1) << "nothing else is chosen by itself";
  EXPECT_EQ(Parts().rejectLists.lstReject[0].Selected.Get(), core::ListBox::kNone);
}

TEST_F(SpotDialogsTest, AnEntryBeforeTheChosenOneGoesWithoutIt) {
  for (const char* call : {"K1*", "K2*", "K3*"})
    Parts().rejectLists.Add(spots::RejectLists::kDx, call);
  QDialog& dialog = Opened("Spots to reject", "Reject spots");
  auto& list = *Named<QListWidget>(dialog, "Rejected: DX calls");
  list.setCurrentRow(2);
  Parts().rejectLists.Remove(spots::RejectLists::kDx, 0);
  EXPECT_EQ(list.currentItem()->text(), "K3*");
  EXPECT_EQ(Parts().rejectLists.lstReject[0].Selected.Get(), 1);
}

TEST_F(SpotDialogsTest, InvalidCountrySaysThatItRejectsNothingYet) {
  QDialog& dialog = Opened("Spots to reject", "Reject spots");
  Click(dialog, "Reject Invalid Country");
  bool says = false;
  for (const QLabel* label : dialog.findChildren<QLabel*>())
    says = says || (label->isVisible() && label->text().startsWith("Rejects nothing yet"));
  EXPECT_TRUE(says);
}

TEST_F(SpotDialogsTest, AddStandsBesideItsFieldAndNoButtonIsStretched) {
  QDialog& dialog = Opened("Spots to reject", "Reject spots");
  for (const char* each : {"DX call", "spotter or node", "word in comments"}) {
    const auto named = [each](const char* before) { return std::string(before) + each; };
    const auto& field = *Named<QLineEdit>(dialog, named("To be rejected: ").c_str());
    const auto& add = *Named<QPushButton>(dialog, named("Add ").c_str());
    EXPECT_NEAR(add.geometry().center().y(), field.geometry().center().y(), 1) << each;
    EXPECT_GT(add.x(), field.geometry().right()) << each;
    for (const QPushButton* button : {&add, static_cast<const QPushButton*>(Named<QPushButton>(
                                                dialog, named("Delete ").c_str()))})
      EXPECT_LE(button->width(), button->sizeHint().width()) << each;
  }
}

// The spot log.

TEST_F(SpotDialogsTest, TheSpotLogsNumbersCountWhenItIsClosed) {
  QDialog& dialog = Opened("Spot log", "Dx Spot Log File ");
  Type(dialog, "Number of days to keep", "12");
  Type(dialog, "Max spots displayed, each band", "55");
  Click(dialog, "Save Dx Spots To Log File");
  EXPECT_EQ(program->settings.KeepSpotsDays, 7);
  dialog.close();
  Run(200ms);
  EXPECT_EQ(program->settings.KeepSpotsDays, 12);
  EXPECT_EQ(program->settings.SpotMemorySingle, 55);
}

TEST_F(SpotDialogsTest, TheSpotLogsFieldsAreAsWideAsTheirNumbersAndTellTheirUnits) {
  QDialog& dialog = Opened("Spot log", "Dx Spot Log File ");
  const auto check = [&](const char* name, int digits, const QString& unit) {
    const auto& field = *Named<QLineEdit>(dialog, name);
    const int needed =
        field.fontMetrics().horizontalAdvance(QString(digits, '8')) + 2 * 8 + 2;  // the padding
    EXPECT_EQ(field.maxLength(), digits) << name;
    EXPECT_GE(field.width(), needed) << name;
    EXPECT_LE(field.width(), needed + 16) << name;
    bool told = false;
    for (const QLabel* each : dialog.findChildren<QLabel*>())
      told = told || (each->text() == unit && each->x() > field.geometry().right() &&
                      std::abs(each->geometry().center().y() - field.geometry().center().y()) <= 1);
    EXPECT_TRUE(told) << name;
  };
  check("Number of days to keep", 4, "days");
  check("Number of hours to reload", 4, "hours");
  check("Max spots displayed, all bands together", 6, "spots");
  check("Max spots displayed, each band", 6, "spots");
}

TEST_F(SpotDialogsTest, StopHasNothingToDoWithoutAReload) {
  QDialog& dialog = Opened("Spot log", "Dx Spot Log File ");
  EXPECT_FALSE(Named<QPushButton>(dialog, "Stop the reload")->isEnabled());
  EXPECT_TRUE(Named<QPushButton>(dialog, "Reload the spot log")->isEnabled());
}

// What is shown of a spot.

TEST_F(SpotDialogsTest, ColumnsHoldWhenTheyAreApplied) {
  QDialog& dialog = Opened("Columns of the spots", "DX Spots");
  Named<QRadioButton>(dialog, "Expanded display")->click();
  Click(dialog, "Bearing");
  EXPECT_EQ(Named<QLabel>(dialog, "Chosen")->text(), "Expanded Dx Spot Display");
  EXPECT_FALSE(Parts().display.Shown().Bearing);
  Click(dialog, "Apply the display");
  EXPECT_TRUE(Parts().display.Shown().Expanded);
  EXPECT_TRUE(Parts().display.Shown().Bearing);
  EXPECT_TRUE(Named<QAbstractButton>(*window, "Sort by bearing")->isVisible());
}

TEST_F(SpotDialogsTest, WhatWasNotAppliedIsForgottenWhenTheDialogOpensAgain) {
  QDialog& dialog = Opened("Columns of the spots", "DX Spots");
  Named<QRadioButton>(dialog, "Expanded display")->click();
  Type(dialog, "Width of a classic row, 45 to 130 characters", "99");
  QTest::keyClick(&dialog, Qt::Key_Escape);
  Opened("Columns of the spots", "DX Spots");
  EXPECT_TRUE(Named<QRadioButton>(dialog, "Classic display")->isChecked());
  EXPECT_EQ(Named<QLineEdit>(dialog, "Width of a classic row, 45 to 130 characters")->text(), "79");
}

// Corrections.

class FixSpotsTest : public SpotDialogsTest {
 protected:
  void Add(QDialog& dialog, const char* call, const char* country) {
    Type(dialog, "Call of the correction", call);
    Type(dialog, "Country of the correction", country);
    Click(dialog, "Add the correction");
  }
  static QStringList Row(QDialog& dialog, int row) {
    const QAbstractItemModel& model = *Named<QTreeView>(dialog, "Corrections")->model();
    QStringList texts;
    for (int column = 0; column < model.columnCount(); ++column)
      texts << model.index(row, column).data().toString();
    return texts;
  }
};

TEST_F(FixSpotsTest, ACorrectionIsAddedChosenAndDeleted) {
  QDialog& dialog = Opened("Corrections of spots", "Fix Spots");
  Add(dialog, "k2abc", "KH6");
  Add(dialog, "k1abc", "KL");
  auto& view = *Named<QTreeView>(dialog, "Corrections");
  ASSERT_EQ(view.model()->rowCount(), 2);
  EXPECT_EQ(Row(dialog, 0), QStringList({"K1ABC", "KL", "", "", "", "", ""}));
  EXPECT_FALSE(Named<QPushButton>(dialog, "Delete the correction")->isEnabled());
  view.setCurrentIndex(view.model()->index(1, 0));
  Run(200ms);
  EXPECT_EQ(Parts().fixForm.cboCall.Selected.Get(), 1);
  Click(dialog, "Delete the correction");
  ASSERT_EQ(view.model()->rowCount(), 1);
  EXPECT_EQ(Row(dialog, 0)[0], "K1ABC");
}

TEST_F(FixSpotsTest, WhatHasAppliedInThisRunIsRedAndSaidInWords) {
  QDialog& dialog = Opened("Corrections of spots", "Fix Spots");
  Add(dialog, "K1ABC", "KH6");
  std::string cty, state, cq, itu, grid;
  spots::ShownColumns shown;
  shown.DxCty = true;
  Parts().fixList.ApplySpotFix("K1ABC", {cty, state, cq, itu, grid}, {.shown = shown, .node = {}});
  Run(6s);
  const QAbstractItemModel& model = *Named<QTreeView>(dialog, "Corrections")->model();
  EXPECT_EQ(Row(dialog, 0).last(), "Country");
  EXPECT_EQ(model.index(0, 1).data(Qt::ForegroundRole).value<QColor>(), theme[ui::Token::Bad]);
  EXPECT_FALSE(model.index(0, 2).data(Qt::ForegroundRole).isValid());
  Named<QTreeView>(dialog, "Corrections")->setCurrentIndex(model.index(0, 0));
  Run(200ms);
  EXPECT_TRUE(Named<QCheckBox>(dialog, "Country has applied, in this run too")->isChecked());
}

TEST_F(FixSpotsTest, AFileIsImportedAndExportedWithoutAnythingWaiting) {
  QDialog& dialog = Opened("Corrections of spots", "Fix Spots");
  world.files.content["/home/anna/list.txt"] = "\"K1ABC\",\"KH6\",\"\",\"\",\"\",\"\",\"00\"\r\n";
  Click(dialog, "Import corrections from a file");
  auto* chooser = dialog.findChild<QFileDialog*>();
  ASSERT_NE(chooser, nullptr);
  emit chooser->fileSelected("/home/anna/list.txt");
  chooser->close();
  Run(200ms);
  EXPECT_EQ(Named<QLabel>(dialog, "Result")->text(), "1 entry imported");
  EXPECT_EQ(Row(dialog, 0)[0], "K1ABC");
  Click(dialog, "Export corrections to a file");
  chooser = dialog.findChild<QFileDialog*>();
  ASSERT_NE(chooser, nullptr);
  emit chooser->fileSelected("/home/anna/out.txt");
  Run(200ms);
  EXPECT_THAT(world.files.content["/home/anna/out.txt"], testing::HasSubstr("\"K1ABC\",\"KH6\""));
}

TEST_F(FixSpotsTest, AFileThatCannotBeReadIsSaidToBe) {
  QDialog& dialog = Opened("Corrections of spots", "Fix Spots");
  Click(dialog, "Import corrections from a file");
  auto* chooser = dialog.findChild<QFileDialog*>();
  ASSERT_NE(chooser, nullptr);
  emit chooser->fileSelected("/home/anna/none.txt");
  Run(200ms);
  EXPECT_EQ(Named<QLabel>(dialog, "Result")->text(), "The file could not be read.");
}

}  // namespace
}  // namespace gui
