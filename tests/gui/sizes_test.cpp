#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include "gui/opened_row.h"
#include "ui/spot_view.h"

// Room for every word: on a small screen, in every dialog, at each scale that the test is run with.
namespace gui {
namespace {

// What a screen of 1024x700 leaves of its height to a window with a frame.
constexpr QSize kSmallScreen(1024, 700);
constexpr int kTitle = 36;

// The text of these is shortened where there is little room, and stands in full in the tool tip.
bool MayBeShortened(const QWidget& widget) { return widget.minimumWidth() == 1; }

bool HasRoom(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget))
    return label->wordWrap() ? label->height() >= label->heightForWidth(label->width())
                             : label->width() >= label->sizeHint().width() &&
                                   label->height() >= label->sizeHint().height();
  // A field for a number is as wide as that.
  return widget.height() >= widget.minimumSizeHint().height() &&
         (widget.inherits("QLineEdit") || widget.width() >= widget.minimumSizeHint().width());
}

// What is on show of it and has less room than it needs, or stands beyond the edge.
QStringList CutOff(const QWidget& window) {
  QStringList all;
  const auto check = [&](const QWidget& each) {
    if (!each.isVisible() || each.window() != &window || MayBeShortened(each)) return;
    if (HasRoom(each) && each.parentWidget()->rect().contains(each.geometry())) return;
    all << QStringLiteral("%1 %2x%3 in %4x%5")
               .arg(each.accessibleName().isEmpty() ? each.property("text").toString()
                                                    : each.accessibleName())
               .arg(each.sizeHint().width())
               .arg(each.sizeHint().height())
               .arg(each.width())
               .arg(each.height());
  };
  for (const auto* each : window.findChildren<QLabel*>()) check(*each);
  for (const auto* each : window.findChildren<QAbstractButton*>()) check(*each);
  for (const auto* each : window.findChildren<QLineEdit*>()) check(*each);
  for (const auto* each : window.findChildren<QComboBox*>()) check(*each);
  return all;
}

class SizesTest : public OpenedRow {};

TEST_F(SizesTest, NothingOfADialogIsCutOffAndItFitsASmallScreen) {
  Open();
  ForEach([](const DialogRow&, QWidget& dialog) {
    EXPECT_EQ(CutOff(dialog).join("; ").toStdString(), "");
    EXPECT_LE(dialog.width(), kSmallScreen.width());
    EXPECT_LE(dialog.height(), kSmallScreen.height() - kTitle);
  });
}

TEST_F(SizesTest, NothingOfADialogIsCutOffWhereItIsSmallest) {
  Open();
  ForEach([this](const DialogRow&, QWidget& dialog) {
    dialog.resize(dialog.minimumSizeHint());
    Run(200ms);
    EXPECT_EQ(CutOff(dialog).join("; ").toStdString(), "");
  });
}

TEST_F(SizesTest, TheWindowWorksOnASmallScreen) {
  Open();
  LogIn();
  window->resize(kSmallScreen.width(), kSmallScreen.height() - kTitle);
  for (int tab = 0; tab < Tabs().count(); ++tab) {
    if (!Tabs().isTabEnabled(tab)) continue;
    SCOPED_TRACE(Tabs().tabText(tab).toStdString());
    Tabs().setCurrentIndex(tab);
    Run(200ms);
    EXPECT_EQ(window->size(), QSize(kSmallScreen.width(), kSmallScreen.height() - kTitle));
    EXPECT_EQ(CutOff(*window).join("; ").toStdString(), "");
  }
}

// When the window has gone to a screen with smaller pixels, nothing of the other's is in it.
TEST_F(SizesTest, TheTableIsDrawnInThePixelsOfItsScreen) {
  Open();
  LogIn();
  program->session.state.Recognise(session::NodeKind::Spider);
  for (const char* call : {"3Y0J", "P5DX"})
    node.Say(std::string("DX de W1TST:     14025.0  ") + call +
             "         CW up 2                        2116Z");
  Run(1s);
  QWidget& table = *Named<ui::SpotView>(*window, "Spots")->viewport();
  const auto drawn = [&table](int pixels) {
    QImage image(table.size() * pixels, QImage::Format_RGB32);
    image.setDevicePixelRatio(pixels);
    table.render(&image);
    return image;
  };
  const QImage plain = drawn(1);
  QImage enlarged = plain.scaled(plain.size() * 2);
  enlarged.setDevicePixelRatio(2);
  const QImage dense = drawn(2);
  EXPECT_NE(dense, enlarged);
  EXPECT_EQ(dense.pixelColor(1, 1), plain.pixelColor(0, 0));
}

}  // namespace
}  // namespace gui
