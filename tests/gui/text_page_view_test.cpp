#include "ui/text_page_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollBar>
#include <QTextBlock>
#include <memory>
#include <set>

#include "gui/by_name.h"
#include "platform/sim/world.h"
#include "ui/theme.h"

namespace gui {
namespace {

using namespace std::chrono_literals;
using platform::Milliseconds;

class TextPageViewTest : public ::testing::Test {
 protected:
  void SetUp() override {
    view.resize(500, 200);
    view.show();
    Run(200ms);
    QObject::connect(view.document(), &QTextDocument::contentsChange, &view,
                     [this] { repaintedAt.insert(world.scheduler.Now()); });
  }

  void Run(Milliseconds time) {
    QApplication::processEvents();
    world.Run(time);
    QApplication::processEvents();
  }
  void Add(int lines) {
    for (; lines > 0; --lines) page.Append("line " + std::to_string(++last));
  }
  QString Line(int number) const { return QString("line %1").arg(number); }
  QString LastLine() const { return LinesOf(view).last(); }
  void ScrollTo(int line) {
    view.verticalScrollBar()->setValue(line);
    Run(200ms);
  }
  // What the view paints itself; what it leaves out is red.
  QImage Picture() {
    QImage picture(view.viewport()->size(), QImage::Format_RGB32);
    picture.fill(Qt::red);
    view.viewport()->render(&picture, {}, {}, QWidget::DrawChildren);
    return picture;
  }
  void Select(int from, int to) {
    QTextCursor cursor(view.document());
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    view.setTextCursor(cursor);
  }

  platform::sim::World world;
  ui::Frames frames{world.scheduler};
  core::TextPage page;
  ui::TextPageView view{page, frames};
  int last = 0;
  std::set<Milliseconds> repaintedAt;
};

TEST_F(TextPageViewTest, TheFirstLineInSightKeepsClearOfTheEdgeThoughThePageIsScrolled) {
  Add(300);
  Run(200ms);
  ASSERT_TRUE(IsAtEnd(view));
  EXPECT_GE(view.viewport()->y(), 4);
}

TEST_F(TextPageViewTest, ShowsThePageWithTheNextFrame) {
  Add(3);
  EXPECT_EQ(LinesOf(view), QStringList({""}));
  Run(33ms);
  EXPECT_EQ(LinesOf(view), QStringList({Line(1), Line(2), Line(3)}));
}

TEST_F(TextPageViewTest, RepaintsAtMostOnceIn33Milliseconds) {
  for (int ms = 0; ms < 1000; ++ms) {
    frames.Touched();
    Add(3);
    Run(1ms);
  }
  EXPECT_LE(repaintedAt.size(), 31U);
  EXPECT_GE(repaintedAt.size(), 25U);
  for (auto at = std::next(repaintedAt.begin()); at != repaintedAt.end(); ++at)
    EXPECT_GE(*at - *std::prev(at), 33ms);
}

TEST_F(TextPageViewTest, RepaintsNothingWhileHiddenAndEverythingWhenShown) {
  Add(10);
  Run(200ms);
  view.hide();
  repaintedAt.clear();
  Add(1990);
  Run(1s);
  EXPECT_TRUE(repaintedAt.empty());
  view.show();
  Run(200ms);
  QStringList all;
  for (const std::string& line : page.Lines()) all << QString::fromStdString(line);
  EXPECT_LT(all.size(), 2000);
  EXPECT_EQ(LinesOf(view), all);
  EXPECT_TRUE(IsAtEnd(view));
}

TEST_F(TextPageViewTest, LinesThatNobodyCanReadAreShownWithEverySecondFrame) {
  Add(50);
  Run(200ms);
  EXPECT_EQ(LastLine(), Line(last)) << "an answer, or the message of the login";
  repaintedAt.clear();
  for (int batch = 0; batch < 20; ++batch) {
    Add(50);
    Run(200ms);
  }
  EXPECT_EQ(repaintedAt.size(), 10U);
  Run(200ms);
  EXPECT_EQ(LastLine(), Line(last));
}

TEST_F(TextPageViewTest, WithEveryFrameWhileSomebodyIsAtIt) {
  repaintedAt.clear();
  for (int batch = 0; batch < 20; ++batch) {
    frames.Touched();
    Add(50);
    Run(ui::Frames::kFrame);
    ASSERT_EQ(LastLine(), Line(last));
  }
  EXPECT_EQ(repaintedAt.size(), 20U);
}

TEST_F(TextPageViewTest, WithEveryFrameWhileTheyCanBeRead) {
  for (int batch = 0; batch < 20; ++batch) {
    Add(3);
    Run(200ms);
    ASSERT_EQ(LastLine(), Line(last));
  }
}

TEST_F(TextPageViewTest, LooksTheSameWhetherSomethingIsChosenOrNot) {
  page.Append("DX de W1TST:     14025.0  3Y0J         CW up 2                        2116Z");
  page.Append("Grüße aus München, 口");
  page.Append("");
  Add(40);
  Run(200ms);
  view.clearFocus();
  Run(200ms);
  const int end = view.document()->characterCount() - 1;
  for (const int line : {0, 1, 20, view.verticalScrollBar()->maximum()}) {
    ScrollTo(line);
    const QImage plain = Picture();
    if (line == 0)
      Select(end - 1, end);  // out of sight: so all is drawn as Qt does it
    else
      Select(0, 1);
    ScrollTo(line);
    EXPECT_EQ(Picture(), plain) << line;
    Select(0, 0);
  }
}

TEST_F(TextPageViewTest, HoldsWhatThePageHoldsHoweverTheChangesFall) {
  for (const int lines : {1, 700, 3, 1, 5000, 2, 900}) {
    Add(lines);
    Run(200ms);
    ASSERT_EQ(LinesOf(view).size(), static_cast<qsizetype>(page.Lines().size()));
    ASSERT_EQ(LinesOf(view).first().toStdString(), page.Lines().front());
    ASSERT_EQ(LastLine(), Line(last));
  }
  page.Clear();
  Run(200ms);
  EXPECT_EQ(LinesOf(view), QStringList({""}));
  Add(2);
  Run(200ms);
  EXPECT_EQ(LinesOf(view).size(), 2);
}

TEST_F(TextPageViewTest, OneLineOfThePageIsOneLineOfTheViewWhateverItHolds) {
  for (char32_t code = 1; code < 0x10000; ++code) {
    if (code >= 0xD800 && code < 0xE000) continue;
    page.Append("<" + QString::fromUcs4(&code, 1).toStdString() + ">");
    if (code % 500 != 0) continue;
    Run(400ms);
    ASSERT_EQ(LinesOf(view).size(), static_cast<qsizetype>(page.Lines().size()))
        << static_cast<int>(code);
  }
}

TEST_F(TextPageViewTest, AReaderAtTheEndStaysThere) {
  for (int batch = 0; batch < 30; ++batch) {
    Add(100);
    Run(200ms);
    ASSERT_TRUE(IsAtEnd(view)) << batch;
  }
}

TEST_F(TextPageViewTest, AReaderAtTheEndStaysThereWhenALineIsWiderThanTheView) {
  Add(100);
  Run(200ms);
  page.Append(std::string(3000, 'W'));
  Run(200ms);
  EXPECT_TRUE(IsAtEnd(view));
  Add(100);
  Run(200ms);
  EXPECT_TRUE(IsAtEnd(view));
}

TEST_F(TextPageViewTest, AReaderAtTheEndStaysThereWhenTheViewChangesItsHeight) {
  Add(200);
  Run(200ms);
  for (const int height : {150, 90, 300, 120}) {
    view.resize(500, height);
    Run(200ms);
    EXPECT_TRUE(IsAtEnd(view)) << height;
    Add(5);
    Run(200ms);
    EXPECT_TRUE(IsAtEnd(view)) << height;
  }
}

TEST_F(TextPageViewTest, AReaderWhoScrolledAwayStaysOnHisLine) {
  Add(200);
  Run(200ms);
  ScrollTo(120);
  const QString reading = TopLine(view);
  for (int batch = 0; batch < 20; ++batch) {
    Add(20);
    Run(200ms);
    ASSERT_EQ(TopLine(view), reading);
  }
}

TEST_F(TextPageViewTest, AReaderStaysOnHisLineWhileOlderOnesGo) {
  Add(1500);
  Run(200ms);
  ScrollTo(1200);
  const QString reading = TopLine(view);
  const std::string oldest = page.Lines().front();
  for (int batch = 0; batch < 20; ++batch) {
    Add(50);
    Run(200ms);
    ASSERT_EQ(TopLine(view), reading);
  }
  EXPECT_NE(page.Lines().front(), oldest);
}

TEST_F(TextPageViewTest, AReaderWhoseLineGoesIsAtTheOldestThen) {
  Add(1500);
  Run(200ms);
  ScrollTo(10);
  Add(1500);
  Run(200ms);
  EXPECT_EQ(TopLine(view).toStdString(), page.Lines().front());
}

TEST_F(TextPageViewTest, ASelectionSurvivesWhatComes) {
  Add(200);
  Run(200ms);
  Select(50, 90);
  const QString selected = view.textCursor().selectedText();
  Add(300);
  Run(200ms);
  EXPECT_EQ(view.textCursor().selectedText(), selected);
}

TEST_F(TextPageViewTest, ASelectionToTheEndDoesNotGrow) {
  for (int round = 0; round < 2; ++round) {
    Add(5);
    Run(200ms);
    view.selectAll();
    const QString selected = view.textCursor().selectedText();
    Add(3);
    Run(200ms);
    EXPECT_EQ(view.textCursor().selectedText(), selected);
    page.Clear();
    Run(200ms);
  }
}

TEST_F(TextPageViewTest, ASelectionSurvivesWhatGoesBeforeIt) {
  Add(1500);
  Run(200ms);
  const int start = view.document()->findBlockByNumber(1300).position();
  Select(start, start + 25);
  const QString selected = view.textCursor().selectedText();
  const std::string oldest = page.Lines().front();
  Add(500);
  Run(200ms);
  EXPECT_NE(page.Lines().front(), oldest);
  EXPECT_EQ(view.textCursor().selectedText(), selected);
}

TEST_F(TextPageViewTest, ASelectionIsSeenWithoutTheFocusToo) {
  Add(5);
  Run(200ms);
  view.clearFocus();
  Run(200ms);
  ASSERT_FALSE(view.hasFocus());
  const QImage without = Picture();
  Select(0, 5);
  EXPECT_NE(Picture(), without);
}

TEST_F(TextPageViewTest, NothingCanBeTypedIntoIt) {
  Add(1);
  Run(200ms);
  EXPECT_TRUE(view.isReadOnly());
}

TEST_F(TextPageViewTest, ItsGroundIsUnderTheTextBesideItAndUnderTheScrollBar) {
  Add(200);
  Run(200ms);
  const auto grounds = [this] {
    const QImage shown = view.grab().toImage();
    return QStringList{shown.pixelColor(2, 100).name(),                   // the margin
                       shown.pixelColor(shown.width() - 30, 100).name(),  // the text's end
                       shown.pixelColor(shown.width() - 3, 20).name()};   // above the handle
  };
  const QString usual = ui::Theme(ui::Theme::Kind::Light)[program::Token::Ground].name();
  EXPECT_EQ(grounds(), QStringList(3, usual));
  const QColor night(0x10, 0x20, 0x40);
  view.SetColours(ui::TextPageView::Colours{night, Qt::white, Qt::blue, Qt::white, Qt::yellow});
  Run(200ms);
  EXPECT_EQ(grounds(), QStringList(3, night.name()));
  view.SetColours(std::nullopt);
  Run(200ms);
  EXPECT_EQ(grounds(), QStringList(3, usual));
}

}  // namespace
}  // namespace gui
