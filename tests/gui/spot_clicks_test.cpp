#include <QClipboard>
#include <QHelpEvent>
#include <QToolTip>

#include "gui/spot_stage.h"
#include "spots/clicks.h"

// Clicks on the table, by mouse and by keys.
namespace gui {
namespace {

using Act = spots::Click::Act;

class SpotClicksTest : public SpotStage {
 protected:
  void SetUp() override {
    SpotStage::SetUp();
    Add(5);
    Run();
  }
  // In the middle of a column of a row, from 1.
  QPoint Place(int row, int column) {
    const ui::SpotPainter painter(font.Get(), size.Get());
    return {painter.ColumnAt(column) - 3, view.PlaceOf(row).center().y()};
  }
  void Click(int row, int column, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, keys, Place(row, column));
  }
};

constexpr int kOnCall = 28;
constexpr int kOnSpotter = 8;
constexpr int kOnComment = 45;

TEST_F(SpotClicksTest, AClickOnACallLooksItUpAndPutsItIntoTheClipboard) {
  Click(2, kOnCall);
  ASSERT_EQ(clicks.size(), 1U);
  EXPECT_EQ(clicks[0].act, Act::CallBook);
  EXPECT_EQ(clicks[0].dxCall, "K3AAA");
  EXPECT_EQ(QApplication::clipboard()->text(), "K3AAA");
  EXPECT_EQ(Current(), "K3AAA") << "and chooses the row";
}

TEST_F(SpotClicksTest, TheColumnDecides) {
  Click(0, kOnSpotter);
  Click(0, kOnComment);
  Click(0, 26);
  Click(0, 39);
  Click(0, 27);
  Click(0, 38);
  ASSERT_EQ(clicks.size(), 3U);
  EXPECT_EQ(clicks[0].spotter, "W1TST");
  EXPECT_EQ(clicks[1].dxCall, "K1AAA");
  EXPECT_EQ(clicks[2].dxCall, "K1AAA");
}

TEST_F(SpotClicksTest, TheKeysHeldDecide) {
  Click(0, kOnCall, Qt::ControlModifier);
  Click(0, kOnCall, Qt::AltModifier);
  Click(0, kOnCall, Qt::ControlModifier | Qt::AltModifier);
  clickChoice.toLoggers = true;
  Click(0, kOnCall);
  ASSERT_EQ(clicks.size(), 4U);
  EXPECT_EQ(clicks[0].text, "sh/sun K1AAA");
  EXPECT_EQ(clicks[1].act, Act::Clipboard);
  EXPECT_EQ(clicks[2].act, Act::CallBook);
  EXPECT_EQ(clicks[3].act, Act::Loggers);
}

TEST_F(SpotClicksTest, AreFoundWhereTheRowsHaveMovedToTheLeft) {
  view.resize(300, 300);
  Run();
  view.horizontalScrollBar()->setValue(60);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, Place(0, kOnCall) - QPoint(60, 0));
  ASSERT_EQ(clicks.size(), 1U);
  EXPECT_EQ(clicks[0].dxCall, "K1AAA");
}

TEST_F(SpotClicksTest, ActOnTheReleaseIfThePointerIsStillOnTheRow) {
  QTest::mousePress(view.viewport(), Qt::LeftButton, {}, Place(1, kOnCall));
  EXPECT_TRUE(clicks.empty());
  QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, Place(3, kOnCall));
  EXPECT_TRUE(clicks.empty());
}

TEST_F(SpotClicksTest, DraggingAndChoosingMoreAreNoClicks) {
  const auto drag = [&](QPoint place) {
    QMouseEvent move(QEvent::MouseMove, place, place, Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(view.viewport(), &move);
  };
  QTest::mousePress(view.viewport(), Qt::LeftButton, {}, Place(1, kOnCall));
  drag(Place(3, kOnCall));
  drag(Place(1, kOnCall));
  QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, Place(1, kOnCall));
  Click(3, kOnCall, Qt::ShiftModifier);
  EXPECT_TRUE(clicks.empty());
  EXPECT_THAT(Chosen(), testing::ElementsAre("K2AAA", "K3AAA", "K4AAA"));
}

TEST_F(SpotClicksTest, OtherButtonsDoNothing) {
  QTest::mouseClick(view.viewport(), Qt::RightButton, {}, Place(1, kOnCall));
  QTest::mouseClick(view.viewport(), Qt::MiddleButton, {}, Place(1, kOnCall));
  EXPECT_TRUE(clicks.empty());
}

TEST_F(SpotClicksTest, ReturnIsAClickOnTheCallOfTheCurrentRow) {
  Key(Qt::Key_Return);
  EXPECT_TRUE(clicks.empty()) << "there is none yet";
  Key(Qt::Key_Home);
  Key(Qt::Key_Down);
  Key(Qt::Key_Return);
  Key(Qt::Key_Enter, Qt::ControlModifier);
  Key(Qt::Key_Return, Qt::AltModifier);
  ASSERT_EQ(clicks.size(), 3U);
  EXPECT_EQ(clicks[0].dxCall, "K2AAA");
  EXPECT_EQ(clicks[1].act, Act::Node);
  EXPECT_EQ(clicks[2].act, Act::Clipboard);
}

TEST_F(SpotClicksTest, AScreenReaderPressesARow) {
  QAccessibleInterface& row = *Accessible().child(3);
  ASSERT_NE(row.actionInterface(), nullptr);
  row.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  ASSERT_EQ(clicks.size(), 1U);
  EXPECT_EQ(clicks[0].dxCall, "K4AAA");
}

TEST_F(SpotClicksTest, TheToolTipStandsOverWhatCanBeClicked) {
  EXPECT_EQ(view.viewport()->toolTip(),
            "Click for callbook.  CTRL+Click for sun times.  ALT+Click to place call in "
            "clipboard.");
  const auto hover = [&](QPoint place) {
    QHelpEvent help(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
    QApplication::sendEvent(view.viewport(), &help);
    return QToolTip::text();
  };
  EXPECT_EQ(hover(Place(1, kOnComment)), "");
  EXPECT_EQ(hover(Place(1, kOnCall)), view.viewport()->toolTip());
}

TEST_F(SpotClicksTest, ASeparatorIsNoCall) {
  pane.Append(Stars());
  Run();
  Click(5, kOnCall);
  Key(Qt::Key_End);
  Key(Qt::Key_Return);
  EXPECT_TRUE(clicks.empty());
}

// The picture of a row.

class SpotRowTest : public SpotStage {
 protected:
  QImage Drawn(const spots::Spot& spot, const spots::RowShape& shape = {}) {
    pane.Redraw({RowOf(spot, k20m, shape)});
    Run();
    return Picture();
  }
  QRect Columns(int from, int to) {
    const ui::SpotPainter painter(font.Get(), size.Get());
    return {painter.ColumnAt(from - 1), 0, painter.ColumnAt(to) - painter.ColumnAt(from - 1),
            RowHeight()};
  }
};

TEST_F(SpotRowTest, ALongCallMovesNothing) {
  spots::Spot spot = UsualSpot("K1AAA");
  const QImage usual = Drawn(spot);
  spot.DxCall = "VP2E/K1AAAAAA/QRP";
  const QImage longer = Drawn(spot);
  EXPECT_EQ(longer.copy(Columns(40, 80)), usual.copy(Columns(40, 80)));
  EXPECT_NE(longer.copy(Columns(27, 38)), usual.copy(Columns(27, 38)));
  spot.DxCall = "VP2E/K1AAAAAAXXXXX";
  EXPECT_EQ(Drawn(spot), longer) << "what is left out is an ellipsis";
}

TEST_F(SpotRowTest, ACallOfTwelveCharactersIsWhole) {
  spots::Spot spot = UsualSpot("K1AAAAAAAAAA");
  const QImage whole = Drawn(spot);
  spot.DxCall += "A";
  EXPECT_NE(Drawn(spot), whole);
}

TEST_F(SpotRowTest, WideCharactersStayInTheirColumns) {
  spots::ShownColumns shown;
  shown.Expanded = true;
  shown.Comments = true;
  spots::Spot spot = UsualSpot("K1AAA");
  const int comment = spots::ArPcScreenSetup({.shown = shown}).Start(spots::Column::Comment);
  const QImage usual = Drawn(spot, {.shown = shown});
  spot.Spotter = "\xE6\xBC\xA2\xE6\xBC\xA2\xE6\xBC\xA2";
  const QRect behind = Columns(comment, comment + 10);
  EXPECT_EQ(Drawn(spot, {.shown = shown}).copy(behind), usual.copy(behind));
}

}  // namespace
}  // namespace gui
