#pragma once

#include <QFont>
#include <QPainter>
#include <QRawFont>
#include <array>

namespace ui {

// Draws what is written in ASCII glyph by glyph. Laying text out costs Qt as much as drawing it,
// and there is nothing to lay out in such: no script, no mark above another, no direction. Text
// with any other character is drawn as Qt does it.
class PlainText {
 public:
  explicit PlainText(const QFont& font);

  const QFont& Font() const { return font_; }
  // In pixels.
  double WidthOf(const QString& text) const;
  // In the painter's pen; its font is anybody's afterwards.
  void Draw(QPainter& painter, QPointF baseline, const QString& text) const;

 private:
  static constexpr char16_t kFirst = u' ';
  static constexpr char16_t kLast = u'~';
  static constexpr std::size_t kCount = kLast - kFirst + 1;

  bool Has(const QString& text) const;

  QFont font_;
  QRawFont raw_;
  std::array<quint32, kCount> glyphs_{};  // 0: the font lacks it
  std::array<double, kCount> widths_{};
};

}  // namespace ui
