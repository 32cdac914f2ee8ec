#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

// The form of the data files: one record a line, its fields quoted texts or bare numbers, joined by
// commas. Text in, text out.
namespace core {

// The text in double quotes. So that it stays one field of one line, its own double quotes are left
// out (reading drops them too) and each byte of a line end becomes a blank.
std::string QuotedField(std::string_view text);

// The shortest decimal digits that read back as this number, never with an exponent. 0 for what is
// no finite number.
std::string NumberField(double number);

// #TRUE# or #FALSE#, which some keys have in place of -1 and 0.
std::string BooleanField(bool value);

// The fields joined by commas, with CR LF behind them.
std::string Record(std::initializer_list<std::string_view> fields);

// The two sides of a line's first comma, without any double quotes. The second is empty if there is
// no comma; it may hold further commas.
struct RecordPair {
  std::string first;
  std::string second;

  bool operator==(const RecordPair&) const = default;
};
RecordPair SplitRecord(std::string_view line);

// Takes the first line from `text` and gives it without its end, CR LF or LF. What stands behind
// the last line end is a line too, unless it is empty.
std::string_view TakeLine(std::string_view& text);
std::vector<std::string_view> SplitLines(std::string_view text);

}  // namespace core
