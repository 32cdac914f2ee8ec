#include "ui/dialog_place.h"

#include "gui/desk.h"

namespace gui {
namespace {

class DialogPlaceTest : public Desk {
 protected:
  QDialog& Dialog(const char* title) {
    for (QDialog* each : window->findChildren<QDialog*>())
      if (each->windowTitle() == title) return *each;
    throw std::runtime_error(std::string("no dialog ") + title);
  }
  QDialog& ShowTnc() {
    program->tncForm.Show();
    Run(200ms);
    return Dialog("TNC");
  }
};

TEST_F(DialogPlaceTest, WhereTheUserLeavesTheTncIsKept) {
  Open();
  QDialog& dialog = ShowTnc();
  dialog.move(40, 30);
  dialog.resize(720, 480);
  Run(3s);
  const core::Settings& kept = program->settings;
  EXPECT_EQ(kept.TncLeft, 600);
  EXPECT_EQ(kept.TncTop, 450);
  EXPECT_EQ(kept.TncWidth, 10800);
  EXPECT_EQ(kept.TncHeight, 7200);
  EXPECT_THAT(world.files.content["/home/anna/molva/molva.cfg"],
              testing::HasSubstr("\"Tnc Width\",10800\r\n"));
}

TEST_F(DialogPlaceTest, TheTncComesUpWhereItWasLeft) {
  Open({"\"Tnc Top\",450", "\"Tnc Left\",600", "\"Tnc Height\",7200", "\"Tnc Width\",10800"});
  QDialog& dialog = ShowTnc();
  EXPECT_EQ(dialog.pos(), QPoint(40, 30));
  EXPECT_EQ(dialog.size(), QSize(720, 480));
}

TEST_F(DialogPlaceTest, OneThatWasNeverPlacedHasItsUsualSize) {
  Open();
  const int usual = Dialog("TNC").width();
  EXPECT_EQ(ShowTnc().width(), usual);
}

TEST_F(DialogPlaceTest, APlaceOnNoScreenGivesItsSizeAlone) {
  Open({"\"Tnc Top\",-90000", "\"Tnc Left\",-90000", "\"Tnc Height\",7200", "\"Tnc Width\",10800"});
  QDialog& dialog = ShowTnc();
  EXPECT_EQ(dialog.size(), QSize(720, 480));
  EXPECT_TRUE(dialog.screen()->availableGeometry().intersects(dialog.geometry()));
}

TEST_F(DialogPlaceTest, ASizeBeyondTheScreenIsCut) {
  Open({"\"Tnc Top\",0", "\"Tnc Left\",0", "\"Tnc Height\",9000000", "\"Tnc Width\",9000000"});
  QDialog& dialog = ShowTnc();
  EXPECT_LE(dialog.width(), dialog.screen()->availableSize().width());
  EXPECT_LE(dialog.height(), dialog.screen()->availableSize().height());
}

TEST_F(DialogPlaceTest, TheFixListHasItsOwnPlace) {
  Open({"\"FixSpotTop\",300", "\"FixSpotLeft\",150", "\"FixSpotHeight\",9000",
        "\"FixspotWidth\",11700"});
  program->spotParts.fixForm.Show();
  Run(200ms);
  QDialog& dialog = Dialog("Fix Spots");
  EXPECT_EQ(dialog.pos(), QPoint(10, 20));
  EXPECT_EQ(dialog.size(), QSize(780, 600));
}

TEST_F(DialogPlaceTest, OfTheColumnsOnlyThePlaceIsKept) {
  Open();
  Dialog("DX Spots").show();
  Run(200ms);
  const QSize usual = Dialog("DX Spots").size();
  Open({"\"AR17Top\",300", "\"AR17Left\",150"});
  QDialog& dialog = Dialog("DX Spots");
  dialog.show();
  Run(200ms);
  EXPECT_EQ(dialog.pos(), QPoint(10, 20));
  EXPECT_EQ(dialog.size(), usual);
  dialog.move(30, 40);
  Run(200ms);
  EXPECT_EQ(program->settings.AR17Left, 450);
  EXPECT_EQ(program->settings.AR17Top, 600);
}

}  // namespace
}  // namespace gui
