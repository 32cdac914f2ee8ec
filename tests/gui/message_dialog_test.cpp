#include <QDialog>
#include <QLabel>

#include "gui/desk.h"

namespace gui {
namespace {

class MessageDialogTest : public Desk {
 protected:
  void SetUp() override {
    Open();
    program->messageForm.Show("Duelling Connections Suspected",
                              "      Your SSID has been changed.\r\n\r\nAnn & <b>Bob</b>");
    Run(200ms);
  }
  QDialog& Dialog() {
    for (QDialog* each : window->findChildren<QDialog*>())
      if (each->windowTitle() == "Duelling Connections Suspected") return *each;
    ADD_FAILURE();
    return *window->findChild<QDialog*>();
  }
};

TEST_F(MessageDialogTest, ShowsItsHeadingAndItsLinesAsTheyStand) {
  EXPECT_TRUE(Dialog().isVisible());
  QStringList texts;
  for (const QLabel* each : Dialog().findChildren<QLabel*>()) texts << each->text();
  EXPECT_EQ(texts, QStringList({"Duelling Connections Suspected",
                                "      Your SSID has been changed.\n\nAnn & <b>Bob</b>"}));
}

TEST_F(MessageDialogTest, AsksForNoActivationSoThatTypingGoesOn) {
  EXPECT_TRUE(Dialog().testAttribute(Qt::WA_ShowWithoutActivating));
  EXPECT_FALSE(Dialog().isModal());
}

TEST_F(MessageDialogTest, EscapeAndItsButtonCloseItAndSoDoesARule) {
  QTest::keyClick(&Dialog(), Qt::Key_Escape);
  EXPECT_FALSE(program->messageForm.Open.Get());
  program->messageForm.Show("Duelling Connections Suspected", "again");
  Run(200ms);
  EXPECT_TRUE(Dialog().isVisible());
  Named<QPushButton>(Dialog(), "Close")->click();
  Run(200ms);
  EXPECT_FALSE(Dialog().isVisible());
  program->messageForm.Show("Duelling Connections Suspected", "again");
  Run(200ms);
  program->messageForm.Close();
  Run(200ms);
  EXPECT_FALSE(Dialog().isVisible());
}

}  // namespace
}  // namespace gui
