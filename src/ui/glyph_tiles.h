#pragma once

#include <QRgb>
#include <array>
#include <vector>

#include "ui/plain_text.h"

namespace ui {

// Pictures of the glyphs of plain text, each as Qt draws it in an ink on a ground. One is drawn
// when it is first asked for; those of a look lie together, as they are used.
class GlyphTiles {
 public:
  struct Look {
    QRgb ink;
    QRgb ground;
    int scale;  // pixels of the screen for one of the painter's

    bool operator==(const Look&) const = default;
  };
  // In pixels of the screen.
  struct Tile {
    QRect place;         // of its pixels, from the one in which the glyph begins on the baseline
    const QRgb* pixels;  // line by line
  };

  explicit GlyphTiles(const QFont& font) : text_(font) {}

  const PlainText& Text() const { return text_; }
  // From here on the tiles are of that look.
  void Use(const Look& look);
  // The tile of a character that the text has, and that begins that far within its pixel: from 0 to
  // below 1. Valid until the next call.
  Tile Of(QChar character, double within);

 private:
  // Qt tells places within a pixel apart by quarters.
  static constexpr int kParts = 4;

  struct Kept {
    bool drawn = false;
    QRect place;
    std::size_t first = 0;  // of the pixels
  };
  struct Set {
    Look look;
    std::array<Kept, PlainText::kCount * kParts> tiles{};
    std::vector<QRgb> pixels;
  };

  Kept Draw(Set& set, QChar character, double within) const;

  PlainText text_;
  std::vector<Set> sets_;
  std::size_t used_ = 0;
};

}  // namespace ui
