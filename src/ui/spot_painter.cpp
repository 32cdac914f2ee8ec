#include "ui/spot_painter.h"

#include <QFontMetricsF>
#include <QObject>
#include <array>
#include <cmath>

#include "spots/row_parts.h"
#include "ui/fonts.h"
#include "ui/one_line.h"
#include "ui/spot_words.h"

namespace ui {
namespace {

constexpr int kRoom = 5;  // of a row, besides the height of its font
constexpr int kBarWidth = 3;
constexpr int kLeft = 8;  // of the first column
constexpr int kRuleMargin = 14;
constexpr core::Position kLongest = 200;

struct Head {
  const char* text;
  core::Position column;  // where it begins, or ends
  bool atEnd;
  bool sorts;
};

// Over the columns of the classic row.
constexpr std::array kHeads = {
    Head{QT_TR_NOOP("Spotter"), 6, false, false}, Head{QT_TR_NOOP("Freq"), 24, true, false},
    Head{QT_TR_NOOP("DX"), 26, false, false}, Head{QT_TR_NOOP("Comment"), 39, false, false},
    Head{QT_TR_NOOP("UTC ↓"), 75, true, true}};

}  // namespace

SpotPainter::SpotPainter(int pixels) : font_(FixedFont(pixels)), callFont_(font_) {
  callFont_.setWeight(QFont::DemiBold);
  const QFontMetrics metrics(font_);
  rowHeight_ = metrics.height() + kRoom;
  baseline_ = kRoom / 2 + metrics.ascent();
  characterWidth_ = QFontMetricsF(font_).horizontalAdvance(QLatin1Char('0'));
}

int SpotPainter::ColumnAt(core::Position column) const {
  return kLeft + static_cast<int>(std::lround(static_cast<double>(column) * characterWidth_));
}

void SpotPainter::Draw(QPainter& painter, const Row& row, const SpotColours& colours) const {
  if (row.selected) painter.fillRect(0, row.top, row.width, rowHeight_, colours.selection);
  if (row.row.IsStars())
    DrawStars(painter, row, colours);
  else
    DrawSpot(painter, row, colours);
}

void SpotPainter::DrawSpot(QPainter& painter, const Row& row, const SpotColours& colours) const {
  painter.fillRect(0, row.top + 1, kBarWidth, rowHeight_ - 2, colours.OfBand(row.row.Band()));
  for (const spots::DrawnField& field : spots::Drawn(row.row)) {
    painter.setPen(colours.OfInk(field.ink, row.row.Band()));
    painter.setFont(field.ink == spots::Ink::Call ? callFont_ : font_);
    painter.drawText(ColumnAt(field.place) - row.scrolled, row.top + baseline_,
                     OneLine(field.text, kLongest));
  }
}

void SpotPainter::DrawStars(QPainter& painter, const Row& row, const SpotColours& colours) const {
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

void SpotPainter::DrawHeads(QPainter& painter, int height, int scrolled,
                            const SpotColours& colours) const {
  for (const Head& head : kHeads) {
    QFont font = InterfaceFont();
    if (head.sorts) font.setWeight(QFont::DemiBold);
    painter.setFont(font);
    painter.setPen(head.sorts ? colours.text : colours.dim);
    const QString text = QObject::tr(head.text);
    const int width = painter.fontMetrics().horizontalAdvance(text);
    const int left = ColumnAt(head.column) - (head.atEnd ? width : 0) - scrolled;
    painter.drawText(QRect(left, 0, width + 1, height), Qt::AlignLeft | Qt::AlignVCenter, text);
  }
}

}  // namespace ui
