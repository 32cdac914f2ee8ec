#pragma once

#include <QColor>
#include <QPainter>
#include <vector>

#include "ui/glyph_tiles.h"

namespace ui {

// A row of text on one ground, put together from pictures of its glyphs: blending their edges with
// what is behind them is most of what rows cost in a flood, and on a known ground each glyph needs
// it once. It shows what Qt would draw, pixel for pixel. Text that is not plain is drawn by Qt, and
// so is all on a screen whose scale is none of whole pixels.
class PrintedRow {
 public:
  // A row of that size in the painter's pixels, with nothing in it.
  void Begin(const QPainter& painter, QSize size, const QColor& ground);
  // At most one text in a place. The glyphs outlive Show.
  void Print(GlyphTiles& glyphs, QPointF baseline, const QString& text, const QColor& ink);
  // The row's ground, and what was printed, with its first pixel there. The painter's pen and font
  // are anybody's afterwards.
  void Show(QPainter& painter, QPoint place);

 private:
  // What Qt draws.
  struct Left {
    const PlainText& text;
    QPointF baseline;
    QString words;
    QColor ink;
  };

  void Put(const GlyphTiles::Tile& tile, QPoint at);

  QSize size_;
  QRgb ground_ = 0;
  int scale_ = 0;  // 0: none of whole pixels
  QRect all_;      // in pixels of the screen
  std::vector<QRgb> pixels_;
  std::vector<Left> left_;
};

}  // namespace ui
