#include "ui/spot_heads.h"

#include <set>

#include "gui/spot_stage.h"

namespace gui {
namespace {

using testing::ElementsAre;

class SpotHeadsTest : public SpotStage {
 protected:
  // Three spots whose orders by time, call and frequency all differ.
  void Three() {
    Spot("K2BBB", 14030, "2110");
    Spot("K3CCC", 14010, "2112");
    Spot("K1AAA", 14020, "2114");
    Run();
  }
  void Click(const char* head, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(&Head(head), button);
    Run();
  }
  void Show(const std::vector<spots::DisplayChoice::Check>& columns) {
    display.optFormat.UserSelects(spots::DisplayChoice::kExpanded);
    for (const auto column : columns) display.chkAr17[column].UserSets(true);
    display.cmdApply.Press();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  // Where the caption of a head ends as it is drawn.
  int EndOf(const QWidget& head) {
    const QImage heads = view.Heads()->grab().toImage();
    int end = head.x();
    for (int x = head.x(); x <= head.geometry().right(); ++x)
      for (int y = 2; y < heads.height() - 4; ++y)
        if (heads.pixelColor(x, y) != heads.pixelColor(x, 1)) end = x;
    return end;
  }
};

TEST_F(SpotHeadsTest, AClickSortsByTheColumn) {
  Three();
  Click("Sort by DX call");
  EXPECT_EQ(table.optSortBy.Get(), 2);
  EXPECT_THAT(Calls(), ElementsAre("K1AAA", "K2BBB", "K3CCC"));
  Click("Sort by time");
  EXPECT_THAT(Calls(), ElementsAre("K2BBB", "K3CCC", "K1AAA"));
}

TEST_F(SpotHeadsTest, TheArrowOfTheOrderKeepsClearOfTheNextHead) {
  Show({});
  Click("Sort by time");
  EXPECT_LT(EndOf(Head("Sort by time")), Head("Sort by DX call").x() - 5);
}

TEST_F(SpotHeadsTest, WhereNothingFollowsTheArrowStandsOffItsCaption) {
  Click("Sort by time");
  const int alone = EndOf(Head("Sort by time")) - Head("Sort by time").x();
  Show({});
  EXPECT_GT(alone, EndOf(Head("Sort by time")) - Head("Sort by time").x());
}

TEST_F(SpotHeadsTest, TheMiddleButtonShowsTheRowsFromTheirEnd) {
  Three();
  Click("Sort by DX call", Qt::MiddleButton);
  EXPECT_THAT(Calls(), ElementsAre("K3CCC", "K2BBB", "K1AAA"));
  EXPECT_EQ(Head("Sort by DX call").accessibleDescription(), "in force, from the end");
  Click("Sort by DX call");
  EXPECT_THAT(Calls(), ElementsAre("K1AAA", "K2BBB", "K3CCC"));
  EXPECT_EQ(Head("Sort by DX call").accessibleDescription(), "in force");
}

TEST_F(SpotHeadsTest, TheRightButtonLeavesNoSpotterOutOfTheOrderByAddresses) {
  Show({spots::DisplayChoice::kSpotterIp});
  for (const char* call : {"K1AAA", "K2BBB"}) {
    spots::Spot spot = UsualSpot(call);
    spot.SpotterIp = "10.0.0.1";
    table.Add(RowOf(spot, k20m, display.Layout().shape));
  }
  Click("Sort by IP address of the spotter");
  EXPECT_EQ(Calls().size(), 1U);
  Click("Sort by IP address of the spotter", Qt::RightButton);
  EXPECT_EQ(Calls().size(), 2U);
}

TEST_F(SpotHeadsTest, APressThatLeavesTheHeadSortsNothing) {
  Three();
  QAbstractButton& head = Head("Sort by DX call");
  for (const auto button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton}) {
    QTest::mousePress(&head, button);
    QTest::mouseRelease(&head, button, {}, QPoint(0, 100));
    EXPECT_EQ(table.optSortBy.Get(), spots::kTimeOrder);
  }
}

TEST_F(SpotHeadsTest, KeysGoFromHeadToHeadAndPressThem) {
  Three();
  QAbstractButton& spotter = Head("Sort by spotter");
  EXPECT_EQ(spotter.focusPolicy(), Qt::TabFocus) << "the heads are one place for Tab";
  spotter.setFocus();
  const auto press = [](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  };
  press(Qt::Key_Left);
  EXPECT_TRUE(spotter.hasFocus());
  press(Qt::Key_Right);
  EXPECT_TRUE(Head("Sort by frequency").hasFocus());
  EXPECT_EQ(spotter.focusPolicy(), Qt::NoFocus);
  press(Qt::Key_Right);
  press(Qt::Key_Return);
  EXPECT_EQ(table.optSortBy.Get(), 2);
  EXPECT_FALSE(table.Reversed());
  press(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_TRUE(table.Reversed());
  press(Qt::Key_Down);
  EXPECT_TRUE(view.hasFocus());
}

TEST_F(SpotHeadsTest, TheOrderInForceIsHalfBoldWithAnArrowAndSaysSo) {
  EXPECT_EQ(Head("Sort by time").accessibleDescription(), "in force");
  EXPECT_EQ(Head("Sort by DX call").accessibleDescription(), "");
  const QImage plain = Head("Sort by DX call").grab().toImage();
  Click("Sort by DX call");
  EXPECT_EQ(Head("Sort by time").accessibleDescription(), "");
  const QImage sorted = Head("Sort by DX call").grab().toImage();
  EXPECT_NE(sorted, plain);
  Click("Sort by DX call", Qt::MiddleButton);
  EXPECT_NE(Head("Sort by DX call").grab().toImage(), sorted) << "the arrow points up";
}

TEST_F(SpotHeadsTest, StandOverTheirColumns) {
  Show({spots::DisplayChoice::kBearing});
  const spots::RowLayout& layout = display.Layout();
  const ui::SpotPainter painter(font.Get(), size.Get());
  EXPECT_EQ(Head("Sort by DX call").x(), painter.ColumnAt(layout.Start(spots::Column::DxCall) - 1));
  const QRect bearing = Head("Sort by bearing").geometry();
  EXPECT_EQ(bearing.right() + 1, painter.ColumnAt(layout.Start(spots::Column::Bearing) - 1 +
                                                  layout.Width(spots::Column::Bearing)))
      << "right-aligned like its column";
}

TEST_F(SpotHeadsTest, MoveWithTheRowsBelow) {
  view.resize(300, 300);
  Three();
  const int before = Head("Sort by DX call").x();
  view.horizontalScrollBar()->setValue(50);
  EXPECT_EQ(Head("Sort by DX call").x(), before - 50);
}

TEST_F(SpotHeadsTest, EveryHeadOfEveryColumnHasANameOfItsOwn) {
  using Choice = spots::DisplayChoice;
  Show({Choice::kNode, Choice::kBearing, Choice::kDistance, Choice::kDxCty, Choice::kDxState,
        Choice::kOrigCty, Choice::kOrigState, Choice::kDxCq, Choice::kDxItu, Choice::kSpotterIp,
        Choice::kOrigCq, Choice::kOrigItu, Choice::kDxGrid, Choice::kOrigGrid});
  std::set<QString> names;
  for (const QAbstractButton* head :
       Head("Sort by time").parentWidget()->findChildren<QAbstractButton*>()) {
    EXPECT_TRUE(head->accessibleName().startsWith("Sort by "));
    EXPECT_TRUE(names.insert(head->accessibleName()).second);
  }
  EXPECT_EQ(names.size(), 18U);
}

TEST_F(SpotHeadsTest, AScreenReaderFindsThemBehindTheRowsAndPressesThem) {
  Three();
  QAccessibleInterface& heads = *Accessible().child(3);
  EXPECT_EQ(Accessible().indexOfChild(&heads), 3);
  const QPoint middle = Head("Sort by DX call").mapToGlobal(QPoint(3, 3));
  EXPECT_EQ(Accessible().childAt(middle.x(), middle.y()), &heads);
  QAccessibleInterface* call = heads.childAt(middle.x(), middle.y());
  ASSERT_NE(call, nullptr);
  EXPECT_EQ(call->text(QAccessible::Name), "Sort by DX call");
  EXPECT_EQ(call->role(), QAccessible::PushButton);
  EXPECT_TRUE(
      call->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
}

// The reader of a sorted view.

class SortedReaderTest : public SpotStage {
 protected:
  void SetUp() override {
    SpotStage::SetUp();
    for (int number = 100; number < 200; ++number) Spot(Call(number), 14000 + number);
    table.SortBy(2);
    Run();
  }
};

TEST_F(SortedReaderTest, BeginsAtTheTop) { EXPECT_EQ(TopCall(), "K100AAA"); }

TEST_F(SortedReaderTest, StaysOnHisRowWhenOthersComeBeforeIt) {
  ScrollToRow(50);
  ASSERT_EQ(TopCall(), "K150AAA");
  for (int number = 10; number < 20; ++number) {
    Spot(Call(number), 14005);
    Tick();
    ASSERT_EQ(TopCall(), "K150AAA");
  }
  EXPECT_FALSE(Below().isVisible());
}

TEST_F(SortedReaderTest, FindsHisRowAgainWhenHeComesBackToTheTab) {
  ScrollToRow(50);
  ASSERT_EQ(TopCall(), "K150AAA");
  table.LeaveTab();
  view.hide();
  for (int number = 10; number < 20; ++number) {
    Spot(Call(number), 14005);
    Tick();
  }
  table.EnterTab();
  view.show();
  Run();
  EXPECT_EQ(TopCall(), "K150AAA");
  EXPECT_EQ(Calls().size(), 110U);
}

TEST_F(SortedReaderTest, AtTheTopSeesWhatComesThere) {
  Spot("A1AAA", 14005);
  Tick();
  EXPECT_EQ(TopCall(), "A1AAA");
}

TEST_F(SortedReaderTest, WhoseRowHasGoneStaysOnTheNextThatIsLeft) {
  ScrollToRow(50);
  std::deque<TableRow> rows(pane.Rows());
  rows.erase(rows.begin() + 40, rows.begin() + 52);
  pane.Refresh(rows);
  Run();
  EXPECT_EQ(CallUnder({100, 2 * RowHeight() + 1}), "K152AAA") << "where it was";
}

TEST_F(SortedReaderTest, WhereNothingIsLeftTheViewStaysAsFarDown) {
  ScrollToRow(50);
  const int before = Bar().value();
  std::deque<TableRow> rows;
  for (int number = 300; number < 400; ++number) rows.push_back(Row(Call(number)));
  pane.Refresh(rows);
  Run();
  EXPECT_EQ(Bar().value(), before);
}

TEST_F(SortedReaderTest, KeepsWhatHeHasChosen) {
  Key(Qt::Key_Home);
  Key(Qt::Key_Down);
  Key(Qt::Key_Down, Qt::ShiftModifier);
  Spot("A1AAA", 14005);
  Tick();
  EXPECT_THAT(Chosen(), ElementsAre("K101AAA", "K102AAA"));
  EXPECT_EQ(Current(), "K102AAA");
}

TEST_F(SortedReaderTest, PressesTheRowThatHeSaw) {
  ScrollToRow(50);
  const QPoint place(200, 100);
  const std::string seen = CallUnder(place);
  QTest::mousePress(view.viewport(), Qt::LeftButton, {}, place);
  Spot("A1AAA", 14005);
  Tick();
  EXPECT_EQ(CallUnder(place), seen);
  QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(Current(), seen);
}

TEST_F(SortedReaderTest, OfTheTimeOrderFromItsEndIsAtTheTop) {
  table.SortBy(spots::kTimeOrder, spots::SpotTable::Press::Middle);
  Run();
  EXPECT_EQ(TopCall(), "K199AAA");
  Spot("A1AAA", 14005);
  Run();
  EXPECT_EQ(TopCall(), "A1AAA");
  ScrollToRow(30);
  const std::string reading = TopCall();
  Spot("A2AAA", 14005);
  Run();
  EXPECT_EQ(TopCall(), reading);
}

}  // namespace
}  // namespace gui
