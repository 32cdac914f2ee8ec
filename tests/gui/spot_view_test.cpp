#include "ui/spot_view.h"

#include <QClipboard>
#include <set>

#include "gui/spot_stage.h"
#include "ui/fonts.h"

namespace gui {
namespace {

using ui::Token;

// When something was drawn.
class PaintLog : public QObject {
 public:
  PaintLog(QWidget* widget, const platform::sim::World& world) : world_(world) {
    widget->installEventFilter(this);
  }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) at.insert(world_.scheduler.Now());
    return false;
  }
  std::set<Milliseconds> at;

 private:
  const platform::sim::World& world_;
};

using SpotViewTest = SpotStage;

// What is on the screen.

TEST_F(SpotViewTest, ShowsTheRowsWithTheNextFrame) {
  Add(3);
  EXPECT_TRUE(view.Rows().Rows().empty());
  Run();
  EXPECT_EQ(view.Rows().Rows().size(), 3U);
  EXPECT_EQ(TopCall(), "K1AAA");
}

TEST_F(SpotViewTest, DrawsThirtyTimesASecondAtMostAndTenWhenNobodyIsAtIt) {
  PaintLog log(view.viewport(), world);
  const auto flood = [&](bool touched) {
    log.at.clear();
    for (int ms = 0; ms < 1000; ++ms) {
      if (touched) frames.Touched();
      Add(3);
      Run(1ms);
    }
    return log.at.size();
  };
  EXPECT_LE(flood(true), 31U);
  EXPECT_GE(log.at.size(), 25U);
  Run(3s);
  EXPECT_LE(flood(false), 12U);
}

TEST_F(SpotViewTest, TakesNothingWhileHiddenAndEverythingWhenShown) {
  Add(10);
  Run();
  view.hide();
  Add(500);
  pane.RemoveSpots(100);
  Run(1s);
  EXPECT_EQ(view.Rows().Rows().size(), 10U);
  view.show();
  Run();
  EXPECT_EQ(view.Rows().Rows().size(), pane.Rows().size());
  EXPECT_EQ(CallAt(view.Rows().First()), "K101AAA");
  EXPECT_TRUE(AtEnd());
}

TEST_F(SpotViewTest, HoldsWhatThePaneHoldsHoweverTheChangesFall) {
  const std::vector<std::pair<int, std::size_t>> changes = {{5, 0},   {300, 3}, {1, 301},  {0, 2},
                                                            {50, 49}, {7, 8},   {20, 500}, {4, 0}};
  for (const auto& [added, removed] : changes) {
    Add(added);
    pane.RemoveSpots(removed);
    if (removed == 8) Redraw(1000, 1010);
    Run();
    ASSERT_EQ(view.Rows().Rows().size(), pane.Rows().size());
    for (std::size_t i = 0; i < pane.Rows().size(); ++i)
      ASSERT_EQ(view.Rows().Rows()[i].Text(), pane.Rows()[i].Text());
  }
}

TEST_F(SpotViewTest, ARowIsFivePixelsHigherThanItsFont) {
  Add(2);
  Run();
  for (const int pixels : {13, 20, 8}) {
    size.Set(pixels);
    Run();
    EXPECT_EQ(RowHeight(), QFontMetrics(ui::FixedFont(pixels)).height() + 5) << pixels;
  }
}

TEST_F(SpotViewTest, TheFirstRowInSightIsWholeAtTheEndWhateverTheHeight) {
  Add(100);
  for (int height = 280; height < 330; height += 3) {
    view.resize(800, height);
    Add(1);
    Run();
    ASSERT_TRUE(AtEnd());
    EXPECT_EQ(Bar().value() % RowHeight(), 0) << height;
    const QRect lastRow = view.PlaceOf(view.Rows().End() - 1);
    const int below = view.viewport()->height() - lastRow.bottom() - 1;
    EXPECT_TRUE(below >= 0 && below < RowHeight()) << height << ": " << below;
  }
}

TEST_F(SpotViewTest, SoItIsWhereKeysHaveLedTheReader) {
  Add(100);
  Run();
  Bar().setValue(0);
  QTest::keyClick(&view, Qt::Key_Down);
  for (int step = 0; step < 30; ++step) {
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(Bar().value() % RowHeight(), 0) << step;
  }
  EXPECT_GT(Bar().value(), 0);
}

TEST_F(SpotViewTest, AnEmptyTableSaysWhatItWaitsFor) {
  empty.Caption.Set("Not connected.");
  Run();
  const QImage one = Picture();
  empty.Caption.Set("Connected. No spots on 6 m yet.");
  Run();
  const QImage other = Picture();
  EXPECT_NE(one, other);
  Add(1);
  Run();
  EXPECT_NE(Picture(), other);
}

TEST_F(SpotViewTest, TheBandPaintsABarAtTheLeftAndTheCall) {
  pane.Append(Row("K1AAA", k20m));
  pane.Append(Row("K2AAA", 1));
  Run();
  const QImage picture = Picture();
  const auto colours = [&](int row) {
    std::set<QRgb> found;
    const QRect place = view.PlaceOf(row);
    for (int x = place.left(); x < place.right(); ++x)
      for (int y = place.top(); y < place.bottom(); ++y) found.insert(picture.pixel(x, y));
    return found;
  };
  const QColor green = theme[ui::BandColour::M20], red = theme[ui::BandColour::M160];
  EXPECT_EQ(picture.pixelColor(1, view.PlaceOf(0).center().y()), green);
  EXPECT_EQ(picture.pixelColor(1, view.PlaceOf(1).center().y()), red);
  EXPECT_TRUE(colours(0).contains(green.rgb()));
  EXPECT_FALSE(colours(0).contains(red.rgb()));
  EXPECT_TRUE(colours(0).contains(theme[Token::DimText].rgb())) << "the time";
}

TEST_F(SpotViewTest, ASeparatorIsADashedRuleThatCountsWhatIsBehindIt) {
  Add(2);
  Run();
  pane.Append(Stars());
  Add(1);
  Run();
  const QRect place = view.PlaceOf(2);
  const int middle = place.top() + place.height() / 2;
  int dashes = 0;
  const QImage one = Picture();
  for (int x = 20; x < 200; ++x)
    if (one.pixelColor(x, middle) == theme[Token::Caution]) ++dashes;
  EXPECT_GT(dashes, 50);
  EXPECT_LT(dashes, 170) << "dashed";
  Add(5);
  Run();
  EXPECT_NE(Picture().copy(place), one.copy(place)) << "it says how many";
}

TEST_F(SpotViewTest, WhatHasMovedLooksAsIfItWereDrawnAnew) {
  const auto onScreen = [this] { return view.screen()->grabWindow(view.winId()).toImage(); };
  Add(100);
  Run();
  for (int batch = 0; batch < 12; ++batch) {
    if (batch == 3) pane.Append(Stars());
    if (batch == 6) view.verticalScrollBar()->setValue(view.verticalScrollBar()->value() - 30);
    if (batch == 9) view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum());
    Add(1 + batch % 4 * 3);
    if (batch % 2 == 0) pane.RemoveSpots(static_cast<std::size_t>(batch));
    Run();
    const QImage moved = onScreen();
    view.viewport()->repaint();
    EXPECT_EQ(onScreen(), moved) << "batch " << batch;
  }
}

TEST_F(SpotViewTest, WhatReachedFurtherLeavesNothingBehind) {
  const auto onScreen = [this] { return view.screen()->grabWindow(view.winId()).toImage(); };
  const auto addLong = [this](const char* comment) {
    spots::Spot spot = UsualSpot(Call(++last));
    spot.Comment = comment;
    pane.Append(RowOf(spot));
  };
  const auto choose = [this] {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ControlModifier, {300, 40});
    view.clearFocus();
  };
  const std::vector<std::function<void()>> furthers = {
      [&] {
        addLong("a comment that is longer than the others by far and by far, 73 to all of you");
      },
      [&] { addLong("口口口口口口口口口口口口口口口口口口口口口口口口口口口口口口口口口口口口"); },
      [&] { pane.Append(Stars()); }, choose};
  for (std::size_t which = 0; which < furthers.size(); ++which)
    for (const int batch : {1, 4, 9}) {
      Add(30);
      Run();
      furthers[which]();
      for (int added = 0; added < 40; added += batch) {
        Add(batch);
        Run();
      }
      const QImage shown = onScreen();
      view.viewport()->repaint();
      EXPECT_EQ(onScreen(), shown) << which << ", " << batch << " at once";
    }
}

TEST_F(SpotViewTest, BehindTheEndOfARowThereIsItsGroundAlone) {
  const ui::SpotColours colours = ui::ColoursOf(settings, theme);
  spots::Spot spot = UsualSpot("EA8/DL1QQQ/P");
  spot.Comment = "a comment that is long enough to be cut";
  spots::RowShape expanded;
  expanded.shown = {.Expanded = true, .Wide = true, .DxCty = true, .Comments = true, .Date = true};
  for (const program::SpotFont& style : {program::SpotFont{}, {"", true, true}}) {
    ui::SpotPainter painter(style, 13);
    for (const TableRow& row : {Row("K1AAA"), RowOf(spot), RowOf(spot, k20m, expanded),
                                TableRow("To ALL de W1TST: hi", TableRow::Kind::Other, k20m)}) {
      constexpr double kScale = 1.5;  // at which nothing is cut
      constexpr int kWidth = 1500;
      QImage image(QSizeF(kWidth, painter.RowHeight()).toSize() * kScale, QImage::Format_RGB32);
      image.setDevicePixelRatio(kScale);
      image.fill(colours.ground);
      QPainter onImage(&image);
      painter.Draw(onImage,
                   {.row = row,
                    .top = 0,
                    .width = kWidth,
                    .scrolled = 0,
                    .selected = false,
                    .spotsBehind = 0},
                   colours);
      int lastInk = 0;
      for (int x = 0; x < image.width(); ++x)
        for (int y = 0; y < image.height(); ++y)
          if (image.pixelColor(x, y) != colours.ground) lastInk = x;
      EXPECT_LT(lastInk / kScale, painter.EndOf(row)) << row.Text();
      EXPECT_GT(lastInk / kScale + 3 * painter.WidthOf(1), painter.EndOf(row)) << row.Text();
    }
    EXPECT_GT(painter.EndOf({"To ALL de W1TST: Grüße", TableRow::Kind::Other, k20m}), 1'000'000);
    EXPECT_GT(painter.EndOf(Stars()), 1'000'000);
  }
}

TEST_F(SpotViewTest, AnotherThemeIsDrawnAtOnce) {
  Add(1);
  Run();
  const ui::Theme dark(ui::Theme::Kind::Dark);
  liveTheme.Set(dark);
  Run();
  EXPECT_EQ(Picture().pixelColor(1, view.PlaceOf(0).center().y()), dark[ui::BandColour::M20]);
  EXPECT_EQ(Picture().pixelColor(400, 260), dark[Token::Ground]);
}

TEST_F(SpotViewTest, WhatANodeSendsIsOneLineWhateverItIs) {
  for (const char* text :
       {"DX de W1TST:     14025.0  \x01\xE2\x80\xAE\xFF\n<b>          \xC3", "", ":", "DX de "})
    pane.Append({text, TableRow::Kind::Other, k20m});
  pane.Append({std::string(1'000'000, 'W'), TableRow::Kind::Other, k20m});
  Run();
  EXPECT_EQ(view.Rows().Rows().size(), 5U);
  EXPECT_LT(view.horizontalScrollBar()->maximum(), 5000);
  Picture();
}

// The reader.

TEST_F(SpotViewTest, AReaderAtTheEndStaysThere) {
  for (int batch = 0; batch < 20; ++batch) {
    Add(30);
    if (batch > 5) pane.RemoveSpots(30);
    Run(200ms);
    ASSERT_TRUE(AtEnd()) << batch;
  }
  view.resize(800, 150);
  Run();
  EXPECT_TRUE(AtEnd());
  size.Set(20);
  Run();
  EXPECT_TRUE(AtEnd());
}

TEST_F(SpotViewTest, AReaderWhoScrolledAwayStaysOnHisRowWhileOthersComeAndGo) {
  Add(500);
  Run();
  ScrollToRow(300);
  const std::string reading = TopCall();
  EXPECT_EQ(reading, "K301AAA");
  for (int batch = 0; batch < 20; ++batch) {
    Add(20);
    pane.RemoveSpots(10);
    Run(200ms);
    ASSERT_EQ(TopCall(), reading);
  }
}

TEST_F(SpotViewTest, AReaderWhoseRowGoesIsAtTheOldestThen) {
  Add(500);
  Run();
  ScrollToRow(10);
  pane.RemoveSpots(100);
  Run();
  EXPECT_EQ(TopCall(), "K101AAA");
}

TEST_F(SpotViewTest, WhatCameBelowIsCountedAndTheButtonBringsHimBack) {
  Add(100);
  Run();
  EXPECT_FALSE(Below().isVisible());
  ScrollToRow(10);
  Add(7);
  Run();
  Add(5);
  Run();
  EXPECT_TRUE(Below().isVisible());
  EXPECT_EQ(Below().text(), "12 new below");
  Below().click();
  Run();
  EXPECT_TRUE(AtEnd());
  EXPECT_FALSE(Below().isVisible());
}

TEST_F(SpotViewTest, WhatIsBelowStaysCountedWhileOlderOnesGo) {
  Add(300);
  Run();
  ScrollToRow(250);
  Add(7);
  Run();
  pane.Append(Stars());
  Run();
  pane.RemoveSpots(200);
  Run();
  EXPECT_EQ(TopCall(), "K251AAA");
  EXPECT_TRUE(Below().isVisible());
  EXPECT_EQ(Below().text(), "7 new below") << "a separator is no spot";
}

TEST_F(SpotViewTest, WhoComesBackByHimselfNeedsNoButton) {
  Add(100);
  Run();
  ScrollToRow(10);
  Add(12);
  Run();
  Key(Qt::Key_End);
  Run();
  EXPECT_FALSE(Below().isVisible());
}

TEST_F(SpotViewTest, OtherRowsAltogetherAreShownFromTheirEnd) {
  Add(100);
  Run();
  ScrollToRow(10);
  Add(5);
  Key(Qt::Key_Down);
  Redraw(200, 400);
  Run();
  EXPECT_TRUE(AtEnd());
  EXPECT_FALSE(Below().isVisible());
  EXPECT_FALSE(view.Current().has_value());
}

// The mouse.

TEST_F(SpotViewTest, APressActsOnTheRowThatTheUserSaw) {
  Add(100);
  Run();
  const QPoint place(200, 100);
  const std::string seen = CallUnder(place);
  Add(3);
  world.Run(200ms);  // the rows have moved up, but that has not been drawn yet
  ASSERT_EQ(CallAt(view.Rows().End() - 1), "K103AAA");
  QTest::mousePress(view.viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(Current(), seen);
}

TEST_F(SpotViewTest, UnderAFingerThatIsDownNothingMoves) {
  Add(100);
  Run();
  const QPoint place(200, 100);
  QTest::mousePress(view.viewport(), Qt::LeftButton, {}, place);
  const std::string pressed = Current();
  for (int batch = 0; batch < 5; ++batch) {
    Add(10);
    pane.RemoveSpots(5);
    Run();
    ASSERT_EQ(CallUnder(place), pressed);
  }
  QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, place);
  Run();
  EXPECT_TRUE(AtEnd());
  EXPECT_EQ(Current(), pressed);
  EXPECT_EQ(view.Rows().Rows().size(), 125U);
}

TEST_F(SpotViewTest, DraggingChoosesSeveral) {
  Add(10);
  Run();
  QTest::mousePress(view.viewport(), Qt::LeftButton, {}, view.PlaceOf(2).center());
  QTest::mouseMove(view.viewport(), view.PlaceOf(4).center());
  QMouseEvent move(QEvent::MouseMove, view.PlaceOf(4).center(), view.PlaceOf(4).center(),
                   Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(view.viewport(), &move);
  QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, view.PlaceOf(4).center());
  EXPECT_THAT(Chosen(), testing::ElementsAre("K3AAA", "K4AAA", "K5AAA"));
  const QImage picture = Picture();
  EXPECT_EQ(picture.pixelColor(700, view.PlaceOf(3).center().y()), theme[Token::Selection]);
  EXPECT_EQ(picture.pixelColor(700, view.PlaceOf(5).center().y()), theme[Token::Ground]);
}

TEST_F(SpotViewTest, APressWhereNoRowIsChangesNothing) {
  Add(2);
  Run();
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, {100, 250});
  EXPECT_FALSE(view.Current().has_value());
}

// The keys.

TEST_F(SpotViewTest, KeysGoThroughTheRows) {
  Add(100);
  Run();
  const int page = view.viewport()->height() / RowHeight();
  Key(Qt::Key_Home);
  EXPECT_EQ(Current(), "K1AAA");
  EXPECT_EQ(Bar().value(), 0);
  Key(Qt::Key_Up);
  EXPECT_EQ(Current(), "K1AAA");
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  EXPECT_EQ(Current(), "K3AAA");
  Key(Qt::Key_PageDown);
  EXPECT_EQ(Current(), Call(3 + page));
  Key(Qt::Key_PageUp);
  EXPECT_EQ(Current(), "K3AAA");
  Key(Qt::Key_End);
  EXPECT_EQ(Current(), "K100AAA");
  EXPECT_TRUE(AtEnd());
  Key(Qt::Key_Down);
  EXPECT_EQ(Current(), "K100AAA");
}

TEST_F(SpotViewTest, TheRowThatTheKeysReachIsInSight) {
  Add(200);
  Run();
  Key(Qt::Key_End);
  for (int step = 0; step < 60; ++step) {
    Key(Qt::Key_Up);
    const QRect place = view.PlaceOf(*view.Current());
    ASSERT_TRUE(view.viewport()->rect().contains(place)) << step;
  }
}

TEST_F(SpotViewTest, TheFirstKeyBeginsWithWhatIsInSight) {
  Add(200);
  Run();
  ScrollToRow(50);
  Key(Qt::Key_Down);
  EXPECT_EQ(Current(), "K51AAA");
}

TEST_F(SpotViewTest, ShiftChoosesMoreAndCtrlCCopiesThemAsTheyStand) {
  Add(2);
  pane.Append(Stars());
  Add(3);
  Run();
  Key(Qt::Key_Home);
  Key(Qt::Key_Down);
  for (int step = 0; step < 2; ++step) Key(Qt::Key_Down, Qt::ShiftModifier);
  QApplication::clipboard()->clear();
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(),
            "DX de W1TST:     14025.0  K2AAA        CW up 2                        2116Z\n"
            "DX de W1TST:     14025.0  K3AAA        CW up 2                        2116Z");
}

TEST_F(SpotViewTest, WhatIsChosenStaysChosenWhileRowsComeAndGo) {
  Add(100);
  Run();
  Key(Qt::Key_End);
  Key(Qt::Key_Up, Qt::ShiftModifier);
  for (int batch = 0; batch < 4; ++batch) {
    Add(10);
    pane.RemoveSpots(10);
    Run();
    ASSERT_THAT(Chosen(), testing::ElementsAre("K99AAA", "K100AAA"));
  }
  pane.RemoveSpots(100);
  Run();
  EXPECT_FALSE(view.Current().has_value()) << "it has gone";
}

TEST_F(SpotViewTest, KeysOnAnEmptyTableDoNothing) {
  for (const Qt::Key key :
       {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End})
    Key(key);
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_FALSE(view.Current().has_value());
}

TEST_F(SpotViewTest, FindsACallAndGoesRound) {
  Add(100);
  pane.Append(Row("3Y0J"));
  Add(100);
  Run();
  ScrollToRow(5);
  using Way = ui::Searchable::Way;
  EXPECT_TRUE(view.Find("3y0", Way::Here));
  EXPECT_EQ(Current(), "3Y0J");
  EXPECT_TRUE(view.Find("3y0j", Way::Here));
  EXPECT_EQ(Current(), "3Y0J");
  EXPECT_TRUE(view.Find("9AAA", Way::Next));
  EXPECT_EQ(Current(), "K109AAA");
  EXPECT_TRUE(view.Find("K1AAA", Way::Next)) << "round the end";
  EXPECT_EQ(Current(), "K1AAA");
  EXPECT_TRUE(view.Find("9AAA", Way::Previous)) << "and round the beginning";
  EXPECT_EQ(Current(), "K199AAA");
  EXPECT_FALSE(view.Find("nowhere", Way::Next));
  EXPECT_EQ(Current(), "K199AAA");
  EXPECT_TRUE(view.viewport()->rect().contains(view.PlaceOf(*view.Current())));
}

// By ear.

TEST_F(SpotViewTest, ARowSpeaksItsFieldsAndSpellsItsCalls) {
  pane.Append(Row("3Y0J"));
  Run();
  QAccessibleInterface& list = Accessible();
  EXPECT_EQ(list.role(), QAccessible::List);
  EXPECT_EQ(list.text(QAccessible::Name), "Spots");
  ASSERT_EQ(list.childCount(), 2) << "the heads stand behind the rows";
  QAccessibleInterface& row = *list.child(0);
  EXPECT_EQ(row.role(), QAccessible::ListItem);
  EXPECT_EQ(row.text(QAccessible::Name), "14025.0, 3 Y 0 J, 21 16, spotter W 1 T S T");
  EXPECT_EQ(row.text(QAccessible::Description), "CW up 2");
  EXPECT_EQ(list.indexOfChild(&row), 0);
  EXPECT_EQ(row.rect().topLeft(), view.viewport()->mapToGlobal(QPoint(0, 0)));
  EXPECT_EQ(list.childAt(row.rect().center().x(), row.rect().center().y()), &row);
}

TEST_F(SpotViewTest, TheCurrentRowHasTheFocusForTheEar) {
  Add(3);
  Run();
  view.setFocus();
  Key(Qt::Key_Home);
  Key(Qt::Key_Down);
  EXPECT_EQ(Accessible().focusChild(), Accessible().child(1));
  EXPECT_TRUE(Accessible().child(1)->state().focused);
  EXPECT_TRUE(Accessible().child(1)->state().selected);
  EXPECT_FALSE(Accessible().child(2)->state().selected);
}

TEST_F(SpotViewTest, ARowThatHasGoneIsNotSpoken) {
  Add(3);
  Run();
  QAccessibleInterface* row = Accessible().child(0);
  QAccessibleInterface* other = Accessible().child(2);
  pane.RemoveSpots(1);
  Run();
  EXPECT_FALSE(row->isValid());
  EXPECT_EQ(row->text(QAccessible::Name), "");
  EXPECT_EQ(Accessible().child(1), other) << "the same row is the same one";
  EXPECT_EQ(Accessible().indexOfChild(other), 1);
  EXPECT_EQ(Accessible().child(3), nullptr);
}

}  // namespace
}  // namespace gui
