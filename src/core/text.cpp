#include "core/text.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>

namespace core {
namespace {

std::size_t Held(Position count, std::size_t most) {
  return count < 0 ? 0 : std::min(static_cast<std::size_t>(count), most);
}

bool EqualIgnoringCase(char a, char b) { return UCase(a) == UCase(b); }

bool IsDigit(char byte) { return byte >= '0' && byte <= '9'; }

// from_chars knows "inf", "nan" and a sign of its own, which are no numbers here.
bool BeginsNumber(std::string_view text) {
  if (StartsWith(text, ".")) text.remove_prefix(1);
  return !text.empty() && IsDigit(text.front());
}

template <class Find>
Position FindFrom(Position start, std::string_view text, Find find) {
  if (start < 1 || start > Len(text)) return 0;
  const std::size_t at = find(static_cast<std::size_t>(start - 1));
  return at == std::string_view::npos ? 0 : static_cast<Position>(at) + 1;
}

}  // namespace

Position Len(std::string_view text) { return static_cast<Position>(text.size()); }

std::string_view Left(std::string_view text, Position count) {
  return text.substr(0, Held(count, text.size()));
}

std::string_view Right(std::string_view text, Position count) {
  return text.substr(text.size() - Held(count, text.size()));
}

std::string_view Mid(std::string_view text, Position start) { return Mid(text, start, Len(text)); }

std::string_view Mid(std::string_view text, Position start, Position count) {
  if (start < 1 || start > Len(text)) return {};
  return Left(text.substr(static_cast<std::size_t>(start - 1)), count);
}

Position InStr(std::string_view text, std::string_view what) { return InStr(1, text, what); }

Position InStr(Position start, std::string_view text, std::string_view what) {
  return FindFrom(start, text, [&](std::size_t from) { return text.find(what, from); });
}

Position InStrIgnoringCase(std::string_view text, std::string_view what) {
  return InStrIgnoringCase(1, text, what);
}

Position InStrIgnoringCase(Position start, std::string_view text, std::string_view what) {
  return FindFrom(start, text, [&](std::size_t from) {
    const auto found = std::search(text.begin() + static_cast<Position>(from), text.end(),
                                   what.begin(), what.end(), EqualIgnoringCase);
    if (found == text.end()) return std::string_view::npos;
    return static_cast<std::size_t>(found - text.begin());
  });
}

bool StartsWith(std::string_view text, std::string_view beginning) {
  return text.starts_with(beginning);
}

bool EndsWith(std::string_view text, std::string_view ending) { return text.ends_with(ending); }

bool SameIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), EqualIgnoringCase);
}

bool StartsWithIgnoringCase(std::string_view text, std::string_view beginning) {
  return SameIgnoringCase(text.substr(0, beginning.size()), beginning);
}

double Val(std::string_view text) {
  text = LTrim(text);
  const bool negative = StartsWith(text, "-");
  if (negative || StartsWith(text, "+")) text.remove_prefix(1);
  if (!BeginsNumber(text)) return 0;
  double number = 0;
  const auto end = std::from_chars(text.data(), text.data() + text.size(), number);
  if (end.ec != std::errc{}) return 0;
  return negative ? 0 - number : number;
}

int ValInt(std::string_view text) {
  constexpr double kLeast = std::numeric_limits<int>::min();
  constexpr double kMost = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(Val(text), kLeast, kMost));
}

std::string_view LTrim(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return text;
}

std::string_view RTrim(std::string_view text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string_view Trim(std::string_view text) { return LTrim(RTrim(text)); }

char UCase(char byte) {
  return byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 'a' + 'A') : byte;
}

char LCase(char byte) {
  return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

std::string UCase(std::string_view text) {
  std::string upper(text);
  for (char& byte : upper) byte = UCase(byte);
  return upper;
}

std::string LCase(std::string_view text) {
  std::string lower(text);
  for (char& byte : lower) byte = LCase(byte);
  return lower;
}

std::vector<std::string_view> Split(std::string_view text, std::string_view separator) {
  if (text.empty()) return {};
  if (separator.empty()) return {text};
  std::vector<std::string_view> pieces;
  std::size_t at = text.find(separator);
  for (; at != std::string_view::npos; at = text.find(separator)) {
    pieces.push_back(text.substr(0, at));
    text.remove_prefix(at + separator.size());
  }
  pieces.push_back(text);
  return pieces;
}

std::string_view ExtractToCharacter(char delimiter, std::string_view& work) {
  const std::size_t at = std::min(work.find(delimiter), work.size());
  const std::string_view taken = work.substr(0, at);
  work.remove_prefix(std::min(at + 1, work.size()));
  return taken;
}

std::string Digits(unsigned number, std::size_t width) {
  std::string digits = std::to_string(number);
  if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
  return digits;
}

}  // namespace core
