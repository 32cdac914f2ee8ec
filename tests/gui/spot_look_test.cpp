#include "ui/spot_look.h"

#include <QFontDatabase>
#include <QFontInfo>

#include "gui/spot_stage.h"
#include "ui/fonts.h"

namespace gui {
namespace {

using program::SpotFont;

class SpotLookTest : public SpotStage {
 protected:
  // The columns of text that are as wide as the view is now.
  int WidthOfACharacter() {
    const ui::SpotPainter painter(font.Get(), size.Get());
    return painter.WidthOf(10);
  }
};

TEST_F(SpotLookTest, OnlyFamiliesOfFixedWidthAreOffered) {
  const QStringList families = ui::FixedFamilies();
  ASSERT_FALSE(families.isEmpty());
  EXPECT_TRUE(families.contains(QFontInfo(ui::FixedFont()).family()));
  for (const QString& family : families) {
    const QFontMetricsF metrics(QFont(family, 20));
    EXPECT_EQ(metrics.horizontalAdvance('i'), metrics.horizontalAdvance('W'))
        << family.toStdString();
  }
}

TEST_F(SpotLookTest, TheChosenFamilyIsTakenIfItIsThereAndOfFixedWidth) {
  const QString usual = QFontInfo(ui::FixedFont()).family();
  const auto drawn = [](const QString& family) {
    return QFontInfo(ui::FixedFont({.family = family.toStdString()}, 13)).family();
  };
  for (const QString& family : ui::FixedFamilies()) EXPECT_EQ(drawn(family), family);
  EXPECT_EQ(drawn(""), usual);
  EXPECT_EQ(drawn("No Such Font"), usual);
  for (const QString& family : QFontDatabase::families(QFontDatabase::Latin)) {
    if (QFontDatabase::isFixedPitch(family)) continue;
    EXPECT_EQ(drawn(family), usual) << family.toStdString();
    return;
  }
}

TEST_F(SpotLookTest, BoldAndItalicAreDrawn) {
  Add(5);
  Run();
  std::vector<QImage> pictures = {Picture()};
  for (const SpotFont& each : {SpotFont{"", true, false}, {"", false, true}, {"", true, true}}) {
    font.Set(each);
    Run();
    pictures.push_back(Picture());
  }
  for (std::size_t i = 0; i < pictures.size(); ++i)
    for (std::size_t j = 0; j < i; ++j) EXPECT_NE(pictures[i], pictures[j]) << i << ' ' << j;
  font.Set({});
  Run();
  EXPECT_EQ(Picture(), pictures.front());
}

TEST_F(SpotLookTest, AReaderAtTheEndStaysThereInEveryFont) {
  Add(200);
  Run();
  ASSERT_TRUE(AtEnd());
  for (const QString& family : ui::FixedFamilies()) {
    font.Set({.family = family.toStdString(), .bold = true, .italic = true});
    Run();
    EXPECT_TRUE(AtEnd()) << family.toStdString();
  }
}

TEST_F(SpotLookTest, TheSizeHoldsInEveryFontAndTheFontInEverySize) {
  font.Set({"", true, false});
  const int before = WidthOfACharacter();
  size.Set(20);
  Run();
  EXPECT_GT(WidthOfACharacter(), before);
  EXPECT_TRUE(ui::FixedFont(font.Get(), size.Get()).bold());
  EXPECT_EQ(ui::FixedFont(font.Get(), size.Get()).pixelSize(), 20);
}

TEST_F(SpotLookTest, WithoutHeadsTheRowsBeginAtTheTop) {
  Add(200);
  Run();
  const int height = view.viewport()->height();
  title.Set(false);
  Run();
  EXPECT_FALSE(view.Heads()->isVisible());
  EXPECT_EQ(view.viewport()->y(), 0);
  EXPECT_EQ(view.viewport()->height(), height + ui::SpotHeads::kHeight);
  EXPECT_TRUE(AtEnd());
  title.Set(true);
  Run();
  EXPECT_TRUE(view.Heads()->isVisible());
  EXPECT_EQ(view.viewport()->height(), height);
  EXPECT_TRUE(AtEnd());
}

TEST_F(SpotLookTest, WithoutHeadsAClickActsOnTheRowUnderThePointer) {
  Add(5);
  title.Set(false);
  Run();
  EXPECT_EQ(CallUnder({100, 1}), "K1AAA");
  EXPECT_EQ(CallUnder({100, RowHeight() + 1}), "K2AAA");
}

TEST_F(SpotLookTest, AChosenGroundIsUnderRowsHeadsAndScrollBars) {
  Add(200);
  Run();
  settings.ColourDx = 0x402010;
  values.Set(program::ValuesOf(settings));
  Run();
  const QColor ground(0x10, 0x20, 0x40);
  const QImage whole = view.grab().toImage();
  EXPECT_EQ(whole.pixelColor(whole.width() - 30, 4), ground) << "the heads";
  EXPECT_EQ(whole.pixelColor(whole.width() - 30, whole.height() - 4), ground) << "the rows";
  EXPECT_EQ(whole.pixelColor(whole.width() - 2, 40), ground) << "beside the scroll bar";
  liveTheme.Set(ui::Theme(ui::Theme::Kind::Dark));
  Run();
  EXPECT_EQ(Picture().pixelColor(700, 4), ground) << "whatever the theme";
}

}  // namespace
}  // namespace gui
