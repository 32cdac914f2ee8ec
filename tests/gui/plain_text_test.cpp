#include "ui/plain_text.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QImage>

#include "ui/fonts.h"

namespace gui {
namespace {

constexpr QSize kSize(800, 40);
constexpr QPointF kBaseline(8, 25);

QString EveryPlainCharacter() {
  QString all;
  for (char16_t code = u' '; code <= u'~'; ++code) all += QChar(code);
  return all;
}

template <class Draw>
QImage Drawn(double scale, Draw draw) {
  QImage image(kSize * scale, QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setPen(Qt::darkBlue);
  draw(painter);
  painter.end();
  return image;
}

class PlainTextTest : public ::testing::TestWithParam<double> {
 protected:
  static QImage ByItself(const QFont& font, const QString& text) {
    const ui::PlainText plain(font);
    return Drawn(GetParam(), [&](QPainter& painter) { plain.Draw(painter, kBaseline, text); });
  }
  static QImage ByQt(const QFont& font, const QString& text) {
    return Drawn(GetParam(), [&](QPainter& painter) {
      painter.setFont(font);
      painter.drawText(kBaseline, text);
    });
  }
  static QFont Styled(bool bold, bool italic) {
    QFont font = ui::FixedFont();
    font.setBold(bold);
    font.setItalic(italic);
    return font;
  }
};

TEST_P(PlainTextTest, LooksAsQtDrawsItInEachStyle) {
  for (const bool bold : {false, true})
    for (const bool italic : {false, true}) {
      const QFont font = Styled(bold, italic);
      EXPECT_EQ(ByItself(font, EveryPlainCharacter()), ByQt(font, EveryPlainCharacter()))
          << bold << ' ' << italic;
    }
}

TEST_P(PlainTextTest, OtherCharactersAreDrawnToo) {
  const QString text = QStringLiteral("EA8/DL1EB… – Ä ⠿ 口");
  EXPECT_EQ(ByItself(ui::FixedFont(), text), ByQt(ui::FixedFont(), text));
}

TEST_P(PlainTextTest, DigitsOfTheInterfaceLookAsQtDrawsThem) {
  EXPECT_EQ(ByItself(ui::InterfaceFont(), "2,231"), ByQt(ui::InterfaceFont(), "2,231"));
}

INSTANTIATE_TEST_SUITE_P(OnScreens, PlainTextTest, testing::Values(1.0, 1.5, 2.0));

TEST(PlainTextWidthTest, WidthIsThatOfQt) {
  for (const QFont& font : {ui::FixedFont(), ui::InterfaceFont()}) {
    const ui::PlainText plain(font);
    for (const QString text : {"", "2,231", "14025.0", "é"})
      EXPECT_NEAR(plain.WidthOf(text), QFontMetricsF(font).horizontalAdvance(text), 0.01)
          << text.toStdString();
  }
}

}  // namespace
}  // namespace gui
