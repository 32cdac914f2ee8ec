#include "core/escapes.h"

#include <string_view>

#include "core/text.h"

namespace core {
namespace {

int HexDigit(char digit) {
  if (digit >= '0' && digit <= '9') return digit - '0';
  const char lower = LCase(digit);
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

// The byte that the escape at `at` names; 0 if there is none.
unsigned EscapedByte(std::string_view text, std::size_t at) {
  if (at + 2 >= text.size()) return 0;
  const int high = HexDigit(text[at + 1]);
  const int low = HexDigit(text[at + 2]);
  return high < 0 || low < 0 ? 0 : static_cast<unsigned>(high * 16 + low);
}

}  // namespace

int RepairEscapes(std::string& text, unsigned least) {
  std::size_t read = text.find('%');
  if (read == std::string::npos) return 0;
  int repaired = 0;
  std::size_t written = read;
  while (read < text.size()) {
    if (text[read] != '%') {
      text[written++] = text[read++];
      continue;
    }
    const unsigned byte = EscapedByte(text, read);
    if (byte < least) break;
    ++repaired;
    read += 2;
    text[read] = static_cast<char>(byte);
    if (byte != '%') text[written++] = text[read++];
  }
  text.erase(written, read - written);
  return repaired;
}

}  // namespace core
