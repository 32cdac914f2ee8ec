#include "ui/printed_row.h"

#include <gtest/gtest.h>

#include <vector>

#include "ui/fonts.h"

namespace gui {
namespace {

constexpr QRect kRow(3, 5, 760, 30);  // where it stands in the picture
constexpr QPointF kFrom(8, 20);       // a baseline in it

struct Words {
  QFont font = ui::FixedFont();
  QPointF baseline = kFrom;
  QString text = {};
  QColor ink = Qt::darkBlue;
};

QString AllPlain() {
  QString all;
  for (char16_t code = ui::PlainText::kFirst; code <= ui::PlainText::kLast; ++code)
    all += QChar(code);
  return all;
}

QFont Slanted(bool bold) {
  QFont font = ui::FixedFont();
  font.setItalic(true);
  font.setBold(bold);
  return font;
}

// On a screen with that many pixels for one of the painter's.
class PrintedRowTest : public ::testing::TestWithParam<double> {
 protected:
  template <class Draw>
  static QImage Picture(Draw draw) {
    QImage image(QSize(800, 40) * GetParam(), QImage::Format_RGB32);
    image.setDevicePixelRatio(GetParam());
    image.fill(Qt::red);
    QPainter painter(&image);
    draw(painter);
    painter.end();
    return image;
  }
  QImage Printed(const std::vector<Words>& all, const QColor& ground = Qt::white) {
    return Picture([&](QPainter& painter) {
      std::vector<ui::GlyphTiles> glyphs;
      glyphs.reserve(all.size());
      for (const Words& each : all) glyphs.emplace_back(each.font);
      row.Begin(painter, kRow.size(), ground);
      for (std::size_t i = 0; i < all.size(); ++i)
        row.Print(glyphs[i], all[i].baseline, all[i].text, all[i].ink);
      row.Show(painter, kRow.topLeft());
    });
  }
  static QImage ByQt(const std::vector<Words>& all, const QColor& ground = Qt::white) {
    return Picture([&](QPainter& painter) {
      painter.fillRect(kRow, ground);
      painter.setClipRect(kRow);
      for (const Words& each : all) {
        painter.setFont(each.font);
        painter.setPen(each.ink);
        painter.drawText(kRow.topLeft() + each.baseline, each.text);
      }
    });
  }

  ui::PrintedRow row;
};

TEST_P(PrintedRowTest, LooksAsQtDrawsIt) {
  EXPECT_EQ(Printed({{.text = AllPlain()}}), ByQt({{.text = AllPlain()}}));
  QFont bold = ui::FixedFont();
  bold.setWeight(QFont::DemiBold);
  EXPECT_EQ(Printed({{.font = bold, .text = AllPlain()}}),
            ByQt({{.font = bold, .text = AllPlain()}}));
  for (const char* text : {"2,231", "Alarm", "All", "160", "MW"}) {
    const std::vector<Words> ofTheRail = {{.font = ui::InterfaceFont(), .text = text}};
    EXPECT_EQ(Printed(ofTheRail), ByQt(ofTheRail)) << text;
  }
}

TEST_P(PrintedRowTest, SlantedLettersReachIntoTheirNeighbours) {
  for (const bool bold : {false, true})
    for (const char* text : {"/////", "fjfjdf/j", "WM@WM@", "EA8/DL1QQQ"})
      EXPECT_EQ(Printed({{.font = Slanted(bold), .text = text}}),
                ByQt({{.font = Slanted(bold), .text = text}}))
          << text << bold;
}

TEST_P(PrintedRowTest, TextsOfSeveralLooksStandBesideEachOther) {
  QFont bold = ui::FixedFont();
  bold.setBold(true);
  const std::vector<Words> words = {{.text = "14025.0", .ink = Qt::darkGreen},
                                    {.font = bold, .baseline = {100, 20}, .text = "3Y0J"},
                                    {.baseline = {200, 20}, .text = "CW up 2", .ink = Qt::black}};
  EXPECT_EQ(Printed(words), ByQt(words));
  EXPECT_EQ(Printed(words, Qt::yellow), ByQt(words, Qt::yellow));
  EXPECT_EQ(Printed(words), ByQt(words)) << "on the first ground again";
}

using PrintedRowOfWholePixels = PrintedRowTest;

TEST_P(PrintedRowOfWholePixels, WhatReachesOutOfTheRowIsCut) {
  const QString text = "W1TST 14025.0 3Y0J";
  for (const QPointF baseline : {QPointF(-13, 20), QPointF(690, 20), QPointF(8, 3), QPointF(8, 34),
                                 QPointF(-4000, 20), QPointF(4000, 20)})
    EXPECT_EQ(Printed({{.baseline = baseline, .text = text}}),
              ByQt({{.baseline = baseline, .text = text}}))
        << baseline.x() << ' ' << baseline.y();
}

TEST_P(PrintedRowTest, BeginsWithinAPixelToo) {
  for (const double within : {0.25, 0.5, 0.75}) {
    const std::vector<Words> words = {{.baseline = {8 + within, 20}, .text = "2,231 unseen"}};
    EXPECT_EQ(Printed(words), ByQt(words)) << within;
  }
}

TEST_P(PrintedRowTest, OtherCharactersAreDrawnToo) {
  const std::vector<Words> words = {
      {.text = QStringLiteral("EA8/DL1EB… – Ä ⠿ 口")},
      {.baseline = {300, 20}, .text = "plain", .ink = Qt::darkRed},
      {.baseline = {400, 20}, .text = QStringLiteral("Привет"), .ink = Qt::darkGreen}};
  EXPECT_EQ(Printed(words), ByQt(words));
}

TEST_P(PrintedRowTest, NothingOfARowIsInTheNext) {
  Printed({{.text = AllPlain()}, {.baseline = {20, 25}, .text = QStringLiteral("Ä口")}});
  EXPECT_EQ(Printed({{.text = "1"}}), ByQt({{.text = "1"}}));
}

TEST_P(PrintedRowTest, HoweverManyColoursAreTried) {
  ui::GlyphTiles glyphs(ui::FixedFont());
  for (int each = 0; each < 200; ++each) {
    const QColor ink(each, 255 - each, 40);
    const QImage printed = Picture([&](QPainter& painter) {
      row.Begin(painter, kRow.size(), Qt::white);
      row.Print(glyphs, kFrom, "3Y0J", ink);
      row.Show(painter, kRow.topLeft());
    });
    ASSERT_EQ(printed, ByQt({{.text = "3Y0J", .ink = ink}})) << each;
  }
}

INSTANTIATE_TEST_SUITE_P(OnScreens, PrintedRowTest, testing::Values(1.0, 1.5, 2.0, 3.0));
INSTANTIATE_TEST_SUITE_P(OnScreens, PrintedRowOfWholePixels, testing::Values(1.0, 2.0, 3.0));

}  // namespace
}  // namespace gui
