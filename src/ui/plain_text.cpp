#include "ui/plain_text.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QVarLengthArray>
#include <algorithm>

namespace ui {
namespace {

constexpr qsizetype kUsualLength = 128;  // longer text costs an allocation

}  // namespace

PlainText::PlainText(const QFont& font) : font_(font), raw_(QRawFont::fromFont(font)) {
  QString all;
  for (char16_t code = kFirst; code <= kLast; ++code) all += QChar(code);
  const QList<quint32> glyphs = raw_.glyphIndexesForString(all);
  if (glyphs.size() != all.size()) return;
  const QList<QPointF> advances = raw_.advancesForGlyphIndexes(glyphs);
  std::copy(glyphs.begin(), glyphs.end(), glyphs_.begin());
  std::transform(advances.begin(), advances.end(), widths_.begin(),
                 [](const QPointF& advance) { return advance.x(); });
}

bool PlainText::IsPlain(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char character) {
    return character >= static_cast<char>(kFirst) && character <= static_cast<char>(kLast);
  });
}

bool PlainText::Has(const QString& text) const {
  return std::all_of(text.begin(), text.end(), [this](QChar character) {
    const char16_t code = character.unicode();
    return code >= kFirst && code <= kLast && glyphs_[code - kFirst] != 0;
  });
}

double PlainText::WidthOf(const QString& text) const {
  if (!Has(text)) return QFontMetricsF(font_).horizontalAdvance(text);
  double width = 0;
  for (const QChar character : text) width += WidthOf(character);
  return width;
}

void PlainText::Draw(QPainter& painter, QPointF baseline, const QString& text) const {
  if (!Has(text)) {
    painter.setFont(font_);
    return painter.drawText(baseline, text);
  }
  QVarLengthArray<quint32, kUsualLength> glyphs;
  QVarLengthArray<QPointF, kUsualLength> places;
  double left = 0;
  for (const QChar character : text) {
    const std::size_t each = IndexOf(character);
    if (character != QLatin1Char(' ')) {
      glyphs.append(glyphs_[each]);
      places.append({left, 0});
    }
    left += widths_[each];
  }
  QGlyphRun run;
  run.setRawFont(raw_);
  run.setRawData(glyphs.constData(), places.constData(), static_cast<int>(glyphs.size()));
  painter.drawGlyphRun(baseline, run);
}

}  // namespace ui
