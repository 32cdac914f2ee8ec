#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <variant>

#include "core/settings.h"

// The keys of the configuration file. Reading and writing both follow the one table.
namespace core {

// A key behind a number of so many digits; the number of the first one is given.
template <class Values>
struct Family {
  Values Settings::*member;
  unsigned first;
  std::size_t digits;
};
using ColourFamily = Family<decltype(Settings::SpotColor)>;
using FrequencyFamily = Family<decltype(Settings::Freq)>;

// A text in the rows of a stored table, which are written one after the other with all their
// columns; the first column begins a row when it is read.
template <class Row>
struct Column {
  std::string Row::*text;
};

// Stands for the time of writing, which is never read.
struct WritingTime {};

// What an old key does when it is read.
using OldAction = void (*)(Settings& settings, std::string_view value);

// Where a key's value is kept.
using Member =
    std::variant<std::string Settings::*, int Settings::*, double Settings::*, bool Settings::*,
                 Column<TncStep>, Column<WebPage>, Column<StartedProgram>, ColourFamily,
                 FrequencyFamily, WritingTime, OldAction>;

struct SettingRow;
using WriteRule = bool (*)(const Settings& settings, const SettingRow& row);
bool Always(const Settings& settings, const SettingRow& row);
bool Never(const Settings& settings, const SettingRow& row);
bool IfChanged(const Settings& settings, const SettingRow& row);  // differs from its default
bool IfOneOf(const Settings& settings, const SettingRow& row);    // the value is one of the words
bool IfHighPort(const Settings& settings, const SettingRow& row);
bool IfLotw(const Settings& settings, const SettingRow& row);
bool IfEqsl(const Settings& settings, const SettingRow& row);

// Plain: a text is quoted, a number bare, a flag 0 or -1.
// UpperCase: a text that reading puts in upper case.
// Boolean: a flag as #TRUE# or #FALSE#.
// Words: a flag as the first or the second of the words, quoted; a text that is one of the words.
enum class Form { Plain, UpperCase, Boolean, Words };

struct SettingRow {
  std::string_view key;
  Member member;
  Form form = Form::Plain;
  WriteRule written = Always;
  std::span<const std::string_view> words = {};
};

// All keys, in the order in which they are written, the old ones last.
std::span<const SettingRow> SettingRows();

// The row of that key; of a family, that of the key without its number. Null if there is none.
const SettingRow* FindSettingRow(std::string_view key);

}  // namespace core
