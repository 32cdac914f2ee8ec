#pragma once

#include <QPainter>

#include "core/text.h"
#include "program/spot_font.h"
#include "spots/row_parts.h"
#include "spots/table_row.h"
#include "ui/glyph_tiles.h"
#include "ui/printed_row.h"
#include "ui/spot_colours.h"

namespace ui {

// Draws rows of spots in a font of fixed width: every field stands at its column.
class SpotPainter {
 public:
  SpotPainter(const program::SpotFont& font, int pixels);

  int RowHeight() const { return rowHeight_; }
  // How many pixels the columns before it take, counted from 0.
  int ColumnAt(core::Position column) const;
  // How many pixels that many columns take.
  int WidthOf(core::Position columns) const { return ColumnAt(columns) - ColumnAt(0); }
  // Behind how many of those pixels there is nothing of the row but its ground; of a row that may
  // reach anywhere INT_MAX.
  int EndOf(const spots::TableRow& row) const;
  // The column at that many pixels, counted from 1; less before the first.
  int ColumnOf(int pixels) const;

  struct Row {
    const spots::TableRow& row;
    int top;       // where it stands in the picture
    int width;     // of the picture
    int scrolled;  // how far its text has moved to the left
    bool selected;
    std::size_t spotsBehind;  // of a separator: down to the next one
  };
  void Draw(QPainter& painter, const Row& row, const SpotColours& colours);

 private:
  void DrawSpot(QPainter& painter, const Row& row, const SpotColours& colours);
  void DrawStars(QPainter& painter, const Row& row, const SpotColours& colours) const;
  int EndOf(const spots::DrawnRow& row) const;
  QString Fitting(const QString& text, const QFont& font, int room) const;

  GlyphTiles text_;
  GlyphTiles calls_;
  PrintedRow printed_;
  int rowHeight_;
  int baseline_;
  double characterWidth_;
};

}  // namespace ui
