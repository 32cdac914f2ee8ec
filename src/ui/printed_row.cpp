#include "ui/printed_row.h"

#include <QImage>
#include <algorithm>
#include <cmath>

namespace ui {
namespace {

constexpr int kLargestScale = 7;

// The pixels of the screen for one of the painter's; 0 if they are not whole.
int WholeScale(const QPainter& painter) {
  const QTransform& transform = painter.deviceTransform();
  if (transform.type() > QTransform::TxScale || transform.m11() != transform.m22()) return 0;
  const auto whole = static_cast<int>(transform.m11());
  return whole > 0 && whole <= kLargestScale && whole == transform.m11() ? whole : 0;
}

// Qt counts in 64ths of a pixel, and takes what is one short of the next part for that.
double AsQtTakesIt(double pixels) { return (std::floor(pixels * 64) + 1) / 64; }

}  // namespace

void PrintedRow::Begin(const QPainter& painter, QSize size, const QColor& ground) {
  size_ = size;
  ground_ = ground.rgb();
  left_.clear();
  scale_ = WholeScale(painter);
  all_ = QRect({0, 0}, size * scale_);
  const auto line = static_cast<std::size_t>(all_.width());
  const auto lines = static_cast<std::size_t>(all_.height());
  pixels_.resize(line * lines);
  // Copying a line is much quicker than filling it.
  std::fill_n(pixels_.data(), std::min(line, pixels_.size()), ground_);
  for (std::size_t i = 1; i < lines; ++i)
    std::copy_n(pixels_.data(), line, pixels_.data() + i * line);
}

void PrintedRow::Print(GlyphTiles& glyphs, QPointF baseline, const QString& text,
                       const QColor& ink) {
  if (scale_ == 0 || !glyphs.Text().Has(text))
    return left_.push_back({glyphs.Text(), baseline, text, ink});
  glyphs.Use({.ink = ink.rgb(), .ground = ground_, .scale = scale_});
  const int y = static_cast<int>(std::lround(baseline.y() * scale_));
  double left = baseline.x() * scale_;
  for (const QChar character : text) {
    const double from = AsQtTakesIt(left);
    const double pixel = std::floor(from);
    if (character != QLatin1Char(' '))
      Put(glyphs.Of(character, from - pixel), {static_cast<int>(pixel), y});
    left += glyphs.Text().WidthOf(character) * scale_;
  }
}

// What is ground in the tile leaves a neighbour that reaches in there as it is.
void PrintedRow::Put(const GlyphTiles::Tile& tile, QPoint at) {
  const QRect place = tile.place.translated(at);
  const QRect seen = place & all_;
  if (seen.isEmpty()) return;
  const int width = seen.width();
  const QPoint skipped = seen.topLeft() - place.topLeft();
  const qsizetype tileLine = place.width(), line = all_.width();
  const QRgb* from = tile.pixels + skipped.y() * tileLine + skipped.x();
  QRgb* to = pixels_.data() + seen.top() * line + seen.left();
  for (int lines = seen.height(); lines > 0; --lines, from += tileLine, to += line)
    for (int x = 0; x < width; ++x) to[x] = from[x] != ground_ ? from[x] : to[x];
}

void PrintedRow::Show(QPainter& painter, QPoint place) {
  if (scale_ == 0) {
    painter.fillRect(QRect(place, size_), QColor(ground_));
  } else {
    QImage image(reinterpret_cast<const uchar*>(pixels_.data()), all_.width(), all_.height(),
                 QImage::Format_RGB32);
    image.setDevicePixelRatio(scale_);
    painter.drawImage(place, image);
  }
  for (const Left& each : left_) {
    painter.setPen(each.ink);
    each.text.Draw(painter, place + each.baseline, each.words);
  }
}

}  // namespace ui
