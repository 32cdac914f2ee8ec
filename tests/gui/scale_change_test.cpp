#include <QBackingStore>
#include <QScreen>
#include <QTextBlock>
#include <QTextBrowser>
#include <QWindow>
#include <array>
#include <map>
#include <set>

#include "gui/opened_row.h"
#include "ui/spot_view.h"

// A window that goes to a screen of another scale while it runs.
namespace gui {
namespace {

class ScaleChangeTest : public OpenedRow {
 protected:
  void SetUp() override {
    Open();
    LogIn();
    program->session.state.Recognise(session::NodeKind::Spider);
    for (int spot = 0; spot < 60; ++spot) Say(spot);
    Run(1s);
  }
  void Say(int spot) {
    node.Say("DX de W1TST:     14025.0  K" + std::to_string(100 + spot) +
             "AA       CW up 2                        2116Z");
  }

  static QScreen& ScreenOf(double scale) {
    for (QScreen* each : QApplication::screens())
      if (each->devicePixelRatio() == scale * QApplication::primaryScreen()->devicePixelRatio())
        return *each;
    throw std::runtime_error("no such screen");
  }
  // No time passes: whatever is drawn anew is so for the screen alone.
  static void MoveTo(QWidget& window, QScreen& screen) {
    const QSize size = window.size();
    window.windowHandle()->setScreen(&screen);
    // It has kept its pixels; a desktop gives it its size again.
    window.windowHandle()->setGeometry(QRect(screen.availableGeometry().topLeft(), size));
    LetDraw();
  }
  static void LetDraw() {
    for (int turn = 0; turn < 3; ++turn) QApplication::processEvents();
  }
  // What the window has drawn, and not what it would draw now.
  static QImage OnScreen(const QWidget& window) {
    const QPaintDevice& drawn = *window.backingStore()->paintDevice();
    return drawn.devType() == QInternal::Image ? static_cast<const QImage&>(drawn).copy()
                                               : QImage();
  }
  static QImage DrawnAnew(QWidget& window) {
    for (QWidget* each : window.findChildren<QWidget*>())
      if (each->window() == &window) each->update();
    window.update();
    LetDraw();
    return OnScreen(window);
  }
  int RowHeight() {
    const auto& table = *Named<ui::SpotView>(*window, "Spots");
    const auto first = table.Rows().First();
    return table.PlaceOf(first + 1).top() - table.PlaceOf(first).top();
  }
  // As it is kept for drawing.
  static QImage TopPictureOf(const QTextBrowser& page) {
    const QTextDocument& text = *page.document();
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next())
      for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QTextCharFormat format = part.fragment().charFormat();
        if (!format.isImageFormat()) continue;
        const QUrl name = format.toImageFormat().name();
        return text.resource(QTextDocument::ImageResource, name).value<QImage>();
      }
    return {};
  }

  static constexpr std::array kScales = {1.0, 1.5, 2.0, 1.0, 2.0, 1.5};
};

TEST_F(ScaleChangeTest, TheWindowIsDrawnInThePixelsOfEachScreen) {
  for (const double scale : kScales) {
    SCOPED_TRACE(scale);
    QScreen& screen = ScreenOf(scale);
    MoveTo(*window, screen);
    ASSERT_EQ(window->devicePixelRatioF(), screen.devicePixelRatio());
    const QImage shown = OnScreen(*window);
    EXPECT_EQ(shown.size(), window->size() * screen.devicePixelRatio());
    EXPECT_EQ(shown, DrawnAnew(*window)) << "something of the other screen is left";
  }
}

TEST_F(ScaleChangeTest, PlacesAndTextsStayInProportion) {
  const auto places = [this] {
    std::map<const QWidget*, QRect> all;
    for (const QWidget* each : window->findChildren<QWidget*>())
      if (each->isVisible()) all[each] = each->geometry();
    return all;
  };
  const int rowHeight = RowHeight();
  const int pixels = Raw().font().pixelSize();
  const auto before = places();
  EXPECT_GT(before.size(), 40U);
  for (const double scale : kScales) {
    SCOPED_TRACE(scale);
    MoveTo(*window, ScreenOf(scale));
    EXPECT_EQ(RowHeight(), rowHeight);
    EXPECT_EQ(Raw().font().pixelSize(), pixels);
    for (const auto& [widget, place] : places())
      EXPECT_EQ(place, before.at(widget)) << widget->accessibleName().toStdString();
  }
}

// What is drawn already is moved, by pixels of the screen that it is on now.
TEST_F(ScaleChangeTest, NewRowsScrollInThePixelsOfTheScreenThatTheWindowHasGoneTo) {
  std::set<int> odd;
  for (const int pixels : {13, 14, 15, 16}) {
    program->textSizes.Size[program::TextSizes::Dx].Set(pixels);
    Run(200ms);
    odd.insert(RowHeight() % 2);
    for (const double scale : kScales) {
      SCOPED_TRACE(testing::Message() << pixels << " pixels at " << scale);
      MoveTo(*window, ScreenOf(scale));
      for (int spot = 0; spot < 5; ++spot) {
        Say(spot);
        Run(200ms);
      }
      EXPECT_EQ(OnScreen(*window), DrawnAnew(*window));
    }
  }
  EXPECT_EQ(odd.size(), 2U) << "half a pixel at one and a half";
}

TEST_F(ScaleChangeTest, ADialogIsDrawnInThePixelsOfEachScreen) {
  ForEach([](const DialogRow&, QWidget& dialog) {
    if (!dialog.inherits("QDialog")) return;  // a panel goes when its window is moved
    const QSize size = dialog.size();
    for (const double scale : kScales) {
      SCOPED_TRACE(scale);
      MoveTo(dialog, ScreenOf(scale));
      EXPECT_EQ(dialog.size(), size);
      const QImage shown = OnScreen(dialog);
      EXPECT_EQ(shown.size(), dialog.size() * dialog.devicePixelRatioF());
      EXPECT_EQ(shown, DrawnAnew(dialog)) << "something of the other screen is left";
    }
  });
}

TEST_F(ScaleChangeTest, ThePicturesOfTheManualAreReadAnewForEachScreen) {
  window->OpenManual("window");
  Run(200ms);
  auto& page = *Named<QTextBrowser>(*window, "Manual page");
  const QSize plain = TopPictureOf(page).size();
  ASSERT_GT(plain.width(), 100);
  for (const double scale : kScales) {
    SCOPED_TRACE(scale);
    MoveTo(*page.window(), ScreenOf(scale));
    const QImage picture = TopPictureOf(page);
    EXPECT_EQ(picture.devicePixelRatio(), page.devicePixelRatioF());
    EXPECT_EQ(picture.size(), plain * scale);
  }
}

}  // namespace
}  // namespace gui
