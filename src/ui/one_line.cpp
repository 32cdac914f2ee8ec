#include "ui/one_line.h"

#include <algorithm>

#include "platform/qt/qt_text.h"

namespace ui {
namespace {

constexpr char16_t kNewLineSymbol = 0x2424;
constexpr char16_t kDeleteSymbol = 0x2421;
constexpr char16_t kControlSymbols = 0x2400;

// Characters that a text document takes for its own structure.
bool IsStructure(char16_t code) {
  return code == 0xFDD0 || code == 0xFDD1 || code == QChar::ObjectReplacementCharacter;
}

bool TurnsDirection(char16_t code) {
  return (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

char16_t Harmless(char16_t code) {
  if (code >= u' ' && code < 0x7F) return code;  // nearly all of it
  if (code < u' ') return static_cast<char16_t>(kControlSymbols + code);
  if (code == 0x7F) return kDeleteSymbol;
  if (code == QChar::LineSeparator || code == QChar::ParagraphSeparator) return kNewLineSymbol;
  if (IsStructure(code) || TurnsDirection(code)) return QChar::ReplacementCharacter;
  return code;
}

// The first `longest` bytes, without a UTF-8 sequence that they would cut through.
std::string_view Beginning(std::string_view bytes, core::Position longest) {
  constexpr int kLongestTail = 3;
  const auto continues = [&bytes](core::Position at) {
    return (static_cast<unsigned char>(bytes[static_cast<std::size_t>(at)]) & 0xC0) == 0x80;
  };
  core::Position end = longest;
  while (end > 0 && longest - end < kLongestTail && continues(end)) --end;
  return core::Left(bytes, end);
}

}  // namespace

QString OneLine(std::string_view bytes, core::Position longest) {
  const bool whole = core::Len(bytes) <= longest;
  QString text = platform::qt::TextOf(whole ? bytes : Beginning(bytes, longest));
  for (QChar& character : text) character = QChar(Harmless(character.unicode()));
  if (!whole) text += QStringLiteral(" …");
  return text;
}

QString Literally(QString text) { return text.replace(QLatin1Char('&'), QLatin1String("&&")); }

QString Marked(QString caption, const QString& letter) {
  const auto at = letter.isEmpty() ? -1 : caption.indexOf(letter, 0, Qt::CaseInsensitive);
  return at < 0 ? caption : caption.insert(at, QLatin1Char('&'));
}

}  // namespace ui
