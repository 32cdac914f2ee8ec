#include "ui/glyph_tiles.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <algorithm>

namespace ui {
namespace {

// More than there are colours of rows: a user who tries others leaves nothing behind.
constexpr std::size_t kMostLooks = 64;

const QRgb* LineOf(const QImage& image, int y) {
  return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

// Where something else than the ground is.
QRect InkOf(const QImage& image, QRgb ground) {
  QRect ink;
  const int width = image.width();
  for (int y = 0; y < image.height(); ++y) {
    const QRgb* line = LineOf(image, y);
    for (int x = 0; x < width; ++x)
      if (line[x] != ground) ink |= QRect(x, y, 1, 1);
  }
  return ink;
}

}  // namespace

void GlyphTiles::Use(const Look& look) {
  const auto found =
      std::find_if(sets_.begin(), sets_.end(), [&](const Set& each) { return each.look == look; });
  used_ = static_cast<std::size_t>(found - sets_.begin());
  if (found != sets_.end()) return;
  if (sets_.size() >= kMostLooks) sets_.clear();
  used_ = sets_.size();
  sets_.push_back({.look = look, .tiles = {}, .pixels = {}});
}

GlyphTiles::Tile GlyphTiles::Of(QChar character, double within) {
  const auto part = static_cast<std::size_t>(within * kParts);
  Set& set = sets_[used_];
  Kept& kept = set.tiles[PlainText::IndexOf(character) * kParts + part];
  if (!kept.drawn) kept = Draw(set, character, static_cast<double>(part) / kParts);
  return {.place = kept.place, .pixels = set.pixels.data() + kept.first};
}

GlyphTiles::Kept GlyphTiles::Draw(Set& set, QChar character, double within) const {
  const Look& look = set.look;
  // Room for what reaches over the glyph's own width.
  const int room = 2 * QFontMetrics(text_.Font()).height() * look.scale;
  QImage image(2 * room, 2 * room, QImage::Format_RGB32);
  image.setDevicePixelRatio(look.scale);
  image.fill(look.ground);
  {
    QPainter painter(&image);
    painter.setPen(QColor(look.ink));
    text_.Draw(painter, QPointF(room + within, room) / look.scale, character);
  }
  const QRect ink = InkOf(image, look.ground);
  const Kept kept{.drawn = true, .place = ink.translated(-room, -room), .first = set.pixels.size()};
  for (int y = ink.top(); y <= ink.bottom(); ++y) {
    const QRgb* line = LineOf(image, y) + ink.left();
    set.pixels.insert(set.pixels.end(), line, line + ink.width());
  }
  return kept;
}

}  // namespace ui
