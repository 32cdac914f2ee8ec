#pragma once

#include <QFont>
#include <QPainter>
#include <QRawFont>
#include <array>
#include <string_view>

namespace ui {

// Draws what is written in ASCII glyph by glyph. Laying text out costs Qt as much as drawing it,
// and there is nothing to lay out in such: no script, no mark above another, no direction. Text
// with any other character is drawn as Qt does it.
class PlainText {
 public:
  static constexpr char16_t kFirst = u' ';
  static constexpr char16_t kLast = u'~';
  static constexpr std::size_t kCount = kLast - kFirst + 1;
  // That all of it is characters of ASCII.
  static bool IsPlain(std::string_view text);
  // Of an ASCII character, from 0.
  static std::size_t IndexOf(QChar character) { return character.unicode() - std::size_t{kFirst}; }

  explicit PlainText(const QFont& font);

  const QFont& Font() const { return font_; }
  // That it is all drawn glyph by glyph.
  bool Has(const QString& text) const;
  // In pixels.
  double WidthOf(const QString& text) const;
  // Of a character that it has.
  double WidthOf(QChar character) const { return widths_[IndexOf(character)]; }
  // In the painter's pen; its font is anybody's afterwards.
  void Draw(QPainter& painter, QPointF baseline, const QString& text) const;

 private:
  QFont font_;
  QRawFont raw_;
  std::array<quint32, kCount> glyphs_{};  // 0: the font lacks it
  std::array<double, kCount> widths_{};
};

}  // namespace ui
