#include "platform/qt/qt_text.h"

#include <algorithm>
#include <array>

namespace platform::qt {
namespace {

// What Windows-1252 has at 0x80 to 0x9F; its five gaps stand for themselves.
constexpr std::array<char16_t, 32> kWindows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

QChar SingleByte(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  if (code >= 0x80 && code <= 0x9F) return QChar(kWindows1252[code - 0x80U]);
  return QChar(char16_t{code});
}

std::size_t LengthByLead(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  if (code < 0x80) return 1;
  return code < 0xE0 ? 2 : code < 0xF0 ? 3 : 4;
}

}  // namespace

QString TextOf(std::string_view bytes) {
  const auto isPlain = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
  if (std::all_of(bytes.begin(), bytes.end(), isPlain))
    return QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QString text;
  while (!bytes.empty()) {
    const std::size_t length = std::min(LengthByLead(bytes.front()), bytes.size());
    const QUtf8StringView sequence(bytes.data(), static_cast<qsizetype>(length));
    const bool isUtf8 = length > 1 && sequence.isValidUtf8();
    if (isUtf8)
      text += sequence.toString();
    else
      text += SingleByte(bytes.front());
    bytes.remove_prefix(isUtf8 ? length : 1);
  }
  return text;
}

}  // namespace platform::qt
