#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QListWidget>
#include <QPaintEvent>

#include "gui/desk.h"
#include "spots/band_numbers.h"
#include "ui/spot_view.h"

namespace gui {
namespace {

using program::Views;

// What of a widget is painted while it is looked at.
class PaintWatch : public QObject {
 public:
  explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }
  QRegion painted;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted += static_cast<QPaintEvent*>(event)->region();
    return QObject::eventFilter(watched, event);
  }
};

// The page with a node whose spots are shown.
class DxPageTest : public Desk {
 protected:
  void SetUp() override {
    Open();
    LogIn();
    node.Say("Hello Anna, this is N0DE-1 in Ann Arbor, running DXSpider V1.57 build 0.100");
    program->session.state.Recognise(session::NodeKind::Spider);
    CommandLine().setFocus();
  }
  void Spot(double kHz, const std::string& call, const std::string& spotter = "W1TST") {
    std::string line = "DX de " + spotter + ":";
    std::string frequency = std::to_string(kHz);
    frequency.resize(frequency.find('.') + 2);
    line.resize(26 - 2 - frequency.size(), ' ');
    line += frequency + "  " + call;
    line.resize(39, ' ');
    line += "CW up 2";
    line.resize(70, ' ');
    node.Say(line + "2116Z");
    Run(200ms);
  }
  ui::SpotView& Table() { return *Named<ui::SpotView>(*window, "Spots"); }
  QListWidget& Rail() { return *Named<QListWidget>(*window, "Bands of the spots"); }
  std::string Spoken(int row) {
    return QAccessible::queryAccessibleInterface(&Table())
        ->child(row)
        ->text(QAccessible::Name)
        .toStdString();
  }
  std::string SpokenBand(int band) {
    return QAccessible::queryAccessibleInterface(&Rail())
        ->child(band)
        ->text(QAccessible::Name)
        .toStdString();
  }
  std::size_t RowsOnShow() { return Table().Rows().Rows().size(); }
};

TEST_F(DxPageTest, IsOnShowAtTheStart) {
  EXPECT_TRUE(Table().isVisible());
  EXPECT_TRUE(Rail().isVisible());
}

TEST_F(DxPageTest, ASpotOfTheNodeStandsInTheTableAndInTheRail) {
  Spot(14025, "3Y0J", "K1TST");
  ASSERT_EQ(RowsOnShow(), 1U);
  EXPECT_EQ(Spoken(0), "14025.0, 3 Y 0 J, 21 16, spotter K 1 T S T");
  EXPECT_EQ(SpokenBand(k20m), "20 m, 1 unseen, 1 in all");
  EXPECT_EQ(SpokenBand(k15m), "15 m, 0 in all");
}

TEST_F(DxPageTest, TheRailPaintsTheBandsWhoseCountsHaveChangedAndNoOthers) {
  Spot(14020, "3B8FA");
  PaintWatch watch(*Rail().viewport());
  Spot(14025, "3Y0J");
  const auto placeOf = [this](int band) { return Rail().visualItemRect(Rail().item(band)); };
  EXPECT_TRUE(watch.painted.contains(placeOf(k20m).center()));
  EXPECT_FALSE(watch.painted.contains(placeOf(k15m).center()));
}

TEST_F(DxPageTest, UpAndDownInTheRailChooseTheBand) {
  Spot(14025, "3Y0J");
  Spot(1825, "3B8FA");
  Rail().setFocus();
  Press(Qt::Key_Down);
  Run(200ms);
  EXPECT_EQ(program->spotParts.table.rail.SelectedBand(), 1);
  ASSERT_EQ(RowsOnShow(), 2U);
  EXPECT_EQ(Spoken(0), "1 new since 21:00");
  EXPECT_THAT(Spoken(1), testing::HasSubstr("3 B 8 F A"));
  EXPECT_EQ(SpokenBand(1), "160 m, 1 in all") << "they have been seen";
  Press(Qt::Key_Up);
  Run(200ms);
  EXPECT_EQ(RowsOnShow(), 2U);
}

TEST_F(DxPageTest, AClickInTheRailChoosesTheBand) {
  QTest::mouseClick(Rail().viewport(), Qt::LeftButton, {},
                    Rail().visualItemRect(Rail().item(k15m)).center());
  EXPECT_EQ(program->spotParts.table.rail.SelectedBand(), k15m);
}

TEST_F(DxPageTest, CtrlAndANumberChooseABandInTheOrderOfTheRail) {
  for (int band = 9; band >= 0; --band) {
    Press(static_cast<Qt::Key>(Qt::Key_0 + band), Qt::ControlModifier);
    EXPECT_EQ(Rail().currentRow(), band);
  }
}

TEST_F(DxPageTest, FromAnotherPageTheyBringTheSpotsOnShow) {
  program->views.Choose(Views::LoginMsg);
  Press(Qt::Key_6, Qt::ControlModifier);
  EXPECT_TRUE(Table().isVisible());
  EXPECT_EQ(Rail().currentRow(), k20m);
}

TEST_F(DxPageTest, TheTabCountsWhatComesWhileAnotherIsOnShow) {
  program->views.Choose(Views::LoginMsg);
  Spot(14025, "3Y0J");
  Spot(14026, "3B8FA");
  EXPECT_EQ(Tabs().tabText(Views::Dx), "DX = 2");
  program->views.Choose(Views::Dx);
  Run(200ms);
  EXPECT_EQ(Tabs().tabText(Views::Dx), "DX");
  ASSERT_EQ(RowsOnShow(), 3U);
  EXPECT_EQ(Spoken(0), "2 new since 21:00");
}

TEST_F(DxPageTest, TheChecksChooseWhoseSpotsAreShown) {
  Spot(14025, "3Y0J");
  Spot(14026, "3B8FA", "W3LPL-#");
  auto& skimmer = *Named<QCheckBox>(*window, "Show Skimmer spots");
  auto& dx = *Named<QCheckBox>(*window, "Show spots that are no Skimmer's");
  EXPECT_TRUE(skimmer.isChecked()) << "by the first one";
  EXPECT_EQ(RowsOnShow(), 2U);
  QTest::mouseClick(&dx, Qt::LeftButton, {}, {8, dx.height() / 2});
  Run(200ms);
  EXPECT_EQ(RowsOnShow(), 1U);
  EXPECT_THAT(Spoken(0), testing::HasSubstr("3 B 8 F A"));
}

TEST_F(DxPageTest, CtrlFGoesToTheFieldAndItFindsWhileTyping) {
  for (const char* call : {"K1AAA", "3Y0J", "K2AAA"}) Spot(14025, call);
  Press(Qt::Key_F, Qt::ControlModifier);
  auto& field = *Named<QLineEdit>(*window, "Find in table");
  EXPECT_TRUE(field.hasFocus());
  QTest::keyClicks(&field, "3y");
  ASSERT_TRUE(Table().Current().has_value());
  EXPECT_EQ(*Table().Current() - Table().Rows().First(), 1);
  QTest::keyClicks(&field, "x");
  EXPECT_EQ(field.accessibleDescription(), "not found");
  Press(Qt::Key_Backspace);
  EXPECT_EQ(field.accessibleDescription(), "");
  Press(Qt::Key_Escape);
  EXPECT_TRUE(Table().hasFocus());
}

TEST_F(DxPageTest, CtrlPlusMakesItsTextLargerAndItIsStored) {
  Table().setFocus();
  Press(Qt::Key_Plus, Qt::ControlModifier);
  Run(3s);
  EXPECT_EQ(program->settings.DxSize, 10.5) << "points";
  EXPECT_EQ(program->textSizes.Size[program::TextSizes::Dx].Get(), 14);
}

TEST_F(DxPageTest, F6ReachesTheTable) {
  Tabs().setFocus();
  Press(Qt::Key_F6);
  EXPECT_TRUE(Table().hasFocus());
  Press(Qt::Key_F6);
  EXPECT_TRUE(Raw().hasFocus());
}

TEST_F(DxPageTest, TheChosenBandIsFramedAndNotFilledWhereTheRailHasTheFocus) {
  Press(Qt::Key_6, Qt::ControlModifier);
  const auto ground = [this] {
    const QPoint row = Rail().visualItemRect(Rail().item(k20m)).topLeft();
    return Rail().viewport()->grab().toImage().pixelColor(row + QPoint(60, 5));
  };
  Rail().clearFocus();
  const QColor without = ground();
  Rail().setFocus();
  EXPECT_EQ(ground(), without);
}

TEST_F(DxPageTest, WhatHasTheFocusLooksLikeIt) {
  Spot(14025, "3Y0J");
  for (const char* name : {"Spots", "Bands of the spots", "Show Skimmer spots", "Find in table"}) {
    QWidget& place = *Named(*window, name);
    CommandLine().setFocus();
    const QImage without = place.grab().toImage();
    place.setFocus(Qt::TabFocusReason);
    EXPECT_NE(place.grab().toImage(), without) << name;
  }
}

}  // namespace
}  // namespace gui
