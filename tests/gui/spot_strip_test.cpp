#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenu>

#include "gui/desk.h"
#include "ui/fold_row.h"

// The strip over the table of the spots.
namespace gui {
namespace {

class SpotStripTest : public Desk {
 protected:
  void SetUp() override {
    Open();
    LogIn();
    node.Say("Hello Anna, this is N0DE-1 in Ann Arbor, running DXSpider V1.57 build 0.100");
    program->session.state.Recognise(session::NodeKind::Spider);
    Run(200ms);
  }
  void Click(const char* name) {
    Named<QAbstractButton>(*window, name)->click();
    Run(200ms);
  }
  spots::SpotParts& Parts() { return program->spotParts; }
};

TEST_F(SpotStripTest, ChoosesTheOrderAndShowsWhichIsInForce) {
  EXPECT_TRUE(Button("Time order").isChecked());
  Click("Last hour");
  EXPECT_EQ(Parts().table.optSortBy.Get(), spots::kLastHour);
  EXPECT_TRUE(Button("Last hour").isChecked());
  EXPECT_FALSE(Button("Time order").isChecked());
  Click("Last hour");
  EXPECT_TRUE(Button("Last hour").isChecked()) << "it is no switch";
  Button("Time order").toggle();
  EXPECT_EQ(Parts().table.optSortBy.Get(), spots::kTimeOrder) << "as a screen reader does it";
}

TEST_F(SpotStripTest, GetsTheSpotsOfABand) {
  Click("Get spots…");
  auto& band = *Named<QComboBox>(*window, "Band to get spots of");
  ASSERT_TRUE(band.isVisible());
  band.setCurrentIndex(band.findText("20 m"));
  EXPECT_FALSE(Named<QLineEdit>(*window, "Call to get spots of")->isEnabled());
  Click("Get the spots of this band or call");
  EXPECT_THAT(node.Heard(), Contains("sh/dx/20 on 20m"));
  EXPECT_FALSE(band.isVisible());
}

TEST_F(SpotStripTest, ReturnGetsTheSpotsOfACall) {
  Click("Get spots…");
  auto& call = *Named<QLineEdit>(*window, "Call to get spots of");
  QTest::keyClicks(&call, "3Y0J");
  QTest::keyClick(&call, Qt::Key_Return);
  Run(200ms);
  EXPECT_THAT(node.Heard(), Contains("sh/DX/99 3Y0J"));
}

TEST_F(SpotStripTest, EveryBandOfTheRailCanBeAskedFor) {
  const auto& band = *Named<QComboBox>(*window, "Band to get spots of");
  EXPECT_EQ(band.count(), spots::kBandCount - 1) << "but the alarms";
  EXPECT_EQ(band.itemText(0), "ALL");
}

TEST_F(SpotStripTest, TheQueryBoxIsThereWhileAListIsAsked) {
  auto& query = *Named<QLineEdit>(*window, "Call to look for among LoTW and eQSL users");
  EXPECT_FALSE(query.isVisible());
  Click("LoTW and eQSL users…");
  Click("LoTW Checker");
  EXPECT_TRUE(query.isVisible());
  EXPECT_EQ(query.placeholderText(), "LoTW Check - Enter a callsign. ");
  QTest::keyClicks(&query, "K1ABC");
  QTest::keyClick(&query, Qt::Key_Return);
  Run(200ms);
  EXPECT_EQ(query.text(), "");
  EXPECT_EQ(Named<QLabel>(*window, "Answer")->text(), "NO");
}

TEST_F(SpotStripTest, StaysOneLineHighAndWhatHasNoRoomStandsInAMenu) {
  auto& strip = *window->findChild<ui::FoldRow*>();
  window->resize(1280, 800);
  Run(200ms);
  const int height = strip.height();
  EXPECT_TRUE(Button("Corrections of spots").isVisible());
  EXPECT_FALSE(Button("More of the spots' page").isVisible());
  window->resize(strip.minimumSizeHint().width() + 150, 700);
  Run(200ms);
  EXPECT_EQ(strip.height(), height);
  EXPECT_FALSE(Button("Corrections of spots").isVisible());
  ASSERT_TRUE(Button("More of the spots' page").isVisible());
  Click("More of the spots' page");
  auto& menu = *strip.findChild<QMenu*>();
  ASSERT_EQ(menu.actions().last()->text().remove('&'), "Corrections…");
  menu.setActiveAction(menu.actions().last());
  QTest::keyClick(&menu, Qt::Key_Return);
  Run(200ms);
  EXPECT_TRUE(Parts().fixForm.Open.Get());
}

TEST_F(SpotStripTest, CtrlClickOnACallAsksForItsSunTimes) {
  node.Say("DX de W1TST:     14025.0  3Y0J         CW up 2                        2116Z");
  Run(300ms);
  auto& table = *Named<ui::SpotView>(*window, "Spots");
  table.setFocus();
  Press(Qt::Key_End);
  Press(Qt::Key_Return, Qt::ControlModifier);
  Run(200ms);
  EXPECT_THAT(node.Heard(), Contains("SH/SUN 3Y0J"));
}

TEST_F(SpotStripTest, TheFieldToFindInSaysSoInFull) {
  const auto& field = *Named<QLineEdit>(*window, "Find in table");
  for (const int width : {1280, 1024}) {
    window->resize(width, 700);
    Run(200ms);
    EXPECT_LE(field.fontMetrics().horizontalAdvance(field.placeholderText()) + 2 * 8 + 2,
              field.width())
        << width;
  }
}

}  // namespace
}  // namespace gui
