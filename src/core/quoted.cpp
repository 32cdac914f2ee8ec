#include "core/quoted.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "core/text.h"

namespace core {
namespace {

// A sign, "0." and 324 digits: the smallest doubles without an exponent.
constexpr std::size_t kLongestNumber = 327;

std::string WithoutQuotes(std::string_view text) {
  std::string bare(text);
  std::erase(bare, '"');
  return bare;
}

}  // namespace

std::string QuotedField(std::string_view text) {
  std::string field = '"' + WithoutQuotes(text) + '"';
  std::replace_if(
      field.begin(), field.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return field;
}

std::string NumberField(double number) {
  if (!std::isfinite(number) || number == 0) return "0";
  std::array<char, kLongestNumber> digits;
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed);
  return {digits.data(), end.ptr};
}

std::string BooleanField(bool value) { return value ? "#TRUE#" : "#FALSE#"; }

std::string Record(std::initializer_list<std::string_view> fields) {
  std::string line;
  for (const std::string_view field : fields) line.append(field).append(",");
  if (!line.empty()) line.pop_back();
  return line + "\r\n";
}

RecordPair SplitRecord(std::string_view line) {
  const std::string_view first = ExtractToCharacter(',', line);
  return {WithoutQuotes(first), WithoutQuotes(line)};
}

std::string_view TakeLine(std::string_view& text) {
  std::string_view line = ExtractToCharacter('\n', text);
  if (EndsWith(line, "\r")) line.remove_suffix(1);
  return line;
}

std::vector<std::string_view> SplitLines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) lines.push_back(TakeLine(text));
  return lines;
}

}  // namespace core
