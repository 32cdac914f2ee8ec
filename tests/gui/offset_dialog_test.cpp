#include <QDialog>

#include "gui/desk.h"

namespace gui {
namespace {

class OffsetDialogTest : public Desk {
 protected:
  QDialog* Dialog() {
    for (QDialog* each : window->findChildren<QDialog*>())
      if (each->windowTitle() == "Offset from GMT") return each;
    return nullptr;
  }
};

TEST_F(OffsetDialogTest, EscapeClosesItWhateverStandsInItAndItOpensAgain) {
  Open();
  program::OffsetForm& form = program->offsetForm;
  form.Show();
  Run(200ms);
  QDialog* dialog = Dialog();
  ASSERT_NE(dialog, nullptr);
  EXPECT_TRUE(dialog->isVisible());
  form.chkSystemZone.UserSets(false);
  form.txtHours.UserTypes("nonsense");
  QTest::keyClick(dialog, Qt::Key_Escape);
  Run(200ms);
  EXPECT_FALSE(form.Open.Get());
  EXPECT_FALSE(dialog->isVisible());
  form.Show();
  Run(200ms);
  EXPECT_TRUE(dialog->isVisible());
}

}  // namespace
}  // namespace gui
