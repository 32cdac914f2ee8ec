#include "ui/spot_painter.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>
#include <limits>

#include "ui/fonts.h"
#include "ui/one_line.h"
#include "ui/spot_words.h"

namespace ui {
namespace {

constexpr int kRoom = 5;  // of a row, besides the height of its font
constexpr int kBarWidth = 3;
constexpr int kLeft = 8;  // of the first column
constexpr int kRuleMargin = 14;
constexpr core::Position kLongest = 300;
constexpr QChar kEllipsis(0x2026);

QFont CallFont(const program::SpotFont& wanted, int pixels) {
  QFont font = FixedFont(wanted, pixels);
  font.setWeight(wanted.bold ? QFont::Black : QFont::DemiBold);
  return font;
}

// The columns from a field to the next one of its row.
int RoomOf(const spots::DrawnField& field, const spots::DrawnRow& row) {
  int end = kLongest;
  for (const spots::DrawnField& other : row)
    if (other.place > field.place) end = std::min(end, other.place);
  return end - field.place;
}

bool IsCut(const spots::DrawnField& field, std::string_view whole) {
  return field.text.data() == whole.data() && field.text.size() < whole.size();
}

// A call that is longer than its column says so.
QString TextOf(const spots::DrawnField& field, const spots::TableRow& row) {
  QString text = OneLine(field.text, kLongest);
  if (IsCut(field, row.DxCall()) || IsCut(field, row.Spotter()))
    text.replace(text.size() - 1, 1, kEllipsis);
  return text;
}

const QColor& GroundOf(const SpotPainter::Row& row, const SpotColours& colours) {
  return row.selected ? colours.selection : colours.ground;
}

}  // namespace

SpotPainter::SpotPainter(const program::SpotFont& font, int pixels)
    : text_(FixedFont(font, pixels)), calls_(CallFont(font, pixels)) {
  const QFontMetrics metrics(text_.Text().Font());
  rowHeight_ = metrics.height() + kRoom;
  baseline_ = kRoom / 2 + metrics.ascent();
  characterWidth_ = QFontMetricsF(text_.Text().Font()).horizontalAdvance(QLatin1Char('0'));
}

int SpotPainter::ColumnAt(core::Position column) const {
  return kLeft + static_cast<int>(std::lround(static_cast<double>(column) * characterWidth_));
}

int SpotPainter::ColumnOf(int pixels) const {
  return static_cast<int>(std::floor((pixels - kLeft) / characterWidth_)) + 1;
}

int SpotPainter::EndOf(const spots::TableRow& row) const {
  return row.IsStars() ? std::numeric_limits<int>::max() : EndOf(spots::Drawn(row));
}

int SpotPainter::EndOf(const spots::DrawnRow& row) const {
  core::Position end = 0;
  for (const spots::DrawnField& field : row) {
    if (!PlainText::IsPlain(field.text)) return std::numeric_limits<int>::max();
    end = std::max(end, field.place + core::Len(field.text));
  }
  return ColumnAt(end + 1);  // slanted letters lean over
}

void SpotPainter::Draw(QPainter& painter, const Row& row, const SpotColours& colours) {
  if (row.row.IsStars())
    DrawStars(painter, row, colours);
  else
    DrawSpot(painter, row, colours);
}

void SpotPainter::DrawSpot(QPainter& painter, const Row& row, const SpotColours& colours) {
  const int band = row.row.Band();
  const spots::DrawnRow drawn = spots::Drawn(row.row);
  const QColor& ground = GroundOf(row, colours);
  const int end = std::clamp(EndOf(drawn) - row.scrolled, 0, row.width);
  painter.fillRect(end, row.top, row.width - end, rowHeight_, ground);
  printed_.Begin(painter, {end, rowHeight_}, ground);
  for (const spots::DrawnField& field : drawn) {
    GlyphTiles& glyphs = field.ink == spots::Ink::Call ? calls_ : text_;
    const QString text =
        Fitting(TextOf(field, row.row), glyphs.Text().Font(), RoomOf(field, drawn));
    printed_.Print(glyphs, QPointF(ColumnAt(field.place) - row.scrolled, baseline_), text,
                   colours.OfInk(field.ink, band));
  }
  printed_.Show(painter, {0, row.top});
  if (row.row.IsSpot())
    painter.fillRect(0, row.top + 1, kBarWidth, rowHeight_ - 2, colours.OfBand(band));
}

// Characters of a foreign script may be wider than a column.
QString SpotPainter::Fitting(const QString& text, const QFont& font, int room) const {
  const auto isPlain = [](QChar character) { return character.unicode() < 0x80; };
  if (text.size() <= room && std::all_of(text.begin(), text.end(), isPlain)) return text;
  const auto pixels = static_cast<int>(std::ceil(room * characterWidth_));
  return QFontMetrics(font).elidedText(text, Qt::ElideRight, pixels);
}

void SpotPainter::DrawStars(QPainter& painter, const Row& row, const SpotColours& colours) const {
  painter.fillRect(0, row.top, row.width, rowHeight_, GroundOf(row, colours));
  const QString words = NewSince(row.row, row.spotsBehind);
  painter.setFont(InterfaceFont());
  const int width = painter.fontMetrics().horizontalAdvance(words) + 2 * kRuleMargin;
  const QRect place((row.width - width) / 2, row.top, width, rowHeight_);
  painter.setPen(colours.caution);
  painter.drawText(place, Qt::AlignCenter, words);
  painter.setPen(QPen(colours.caution, 1, Qt::DashLine));
  const int middle = row.top + rowHeight_ / 2;
  painter.drawLine(kRuleMargin, middle, place.left(), middle);
  painter.drawLine(place.right(), middle, row.width - kRuleMargin, middle);
}

}  // namespace ui
