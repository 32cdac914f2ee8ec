#include "core/settings.h"

#include <algorithm>
#include <tuple>
#include <utility>
#include <variant>

#include "core/location.h"
#include "core/quoted.h"
#include "core/settings_table.h"
#include "core/settings_values.h"
#include "core/text.h"

namespace core {
namespace {

constexpr int kUsualSpotMemory = 200;

// A stored table: where it is, its first column, which of its rows are written.
template <class Row>
struct Table;

template <>
struct Table<TncStep> {
  static constexpr auto kRows = &Settings::TncSteps;
  static constexpr auto kFirst = &TncStep::Command;
  static constexpr std::size_t kMost = 6;
  static bool Written(const TncStep& step) { return Val(step.TimeOut) != 0; }
};

template <>
struct Table<WebPage> {
  static constexpr auto kRows = &Settings::WebPages;
  static constexpr auto kFirst = &WebPage::Page;
  static bool Written(const WebPage&) { return true; }
};

template <>
struct Table<StartedProgram> {
  static constexpr auto kRows = &Settings::ProgramStart;
  static constexpr auto kFirst = &StartedProgram::Command;
  static bool Written(const StartedProgram&) { return true; }
};

// "07Freq" is the row of "Freq" and the digits "07".
struct FoundKey {
  const SettingRow* row = nullptr;
  std::string_view digits;
};

FoundKey FindKey(std::string_view key) {
  const std::size_t digits = std::min(key.find_first_not_of("0123456789"), key.size());
  return {FindSettingRow(key.substr(digits)), key.substr(0, digits)};
}

template <class Values>
unsigned FamilyEnd(const Family<Values>& family) {
  return family.first + static_cast<unsigned>(std::tuple_size_v<Values>);
}

// Puts one line's value where its row says.
class SettingReader {
 public:
  SettingReader(Settings& settings, FoundKey key, std::string_view value)
      : settings_(settings), row_(*key.row), digits_(key.digits), value_(value) {}

  template <class Value>
  void operator()(Value Settings::*member) {
    if (digits_.empty()) ReadValue(row_, value_, settings_.*member);
  }

  template <class Row>
  void operator()(Column<Row> column) {
    if (!digits_.empty()) return;
    auto& rows = settings_.*Table<Row>::kRows;
    if (column.text == Table<Row>::kFirst) rows.emplace_back();
    if (!rows.empty()) rows.back().*column.text = value_;
  }

  template <class Values>
  void operator()(const Family<Values>& family) {
    for (unsigned number = family.first; number < FamilyEnd(family); ++number)
      if (Digits(number, family.digits) == digits_)
        ReadValue(row_, value_, (settings_.*family.member)[number - family.first]);
  }

  void operator()(WritingTime) {}

  void operator()(OldAction action) {
    if (digits_.empty()) action(settings_, value_);
  }

 private:
  Settings& settings_;
  const SettingRow& row_;
  const std::string_view digits_;
  const std::string_view value_;
};

void ReadLine(Settings& settings, std::string_view line) {
  const RecordPair record = SplitRecord(line);
  const FoundKey key = FindKey(record.first);
  if (!key.row) return;
  std::visit(SettingReader(settings, key, record.second), key.row->member);
}

bool IsWhole(std::string_view line) {
  const std::size_t comma = line.find(',');
  return comma < line.size() - 1 && std::count(line.begin(), line.end(), '"') % 2 == 0;
}

void Complete(Settings& settings) {
  if (settings.WebPages.empty()) settings.WebPages = Settings{}.WebPages;
  if (settings.TncSteps.size() > Table<TncStep>::kMost)
    settings.TncSteps.resize(Table<TncStep>::kMost);
  for (int* memory : {&settings.SpotMemoryAll, &settings.SpotMemorySingle})
    if (*memory <= 0) *memory = kUsualSpotMemory;
  if (const auto location = ParseLocation(settings.MyLocation))
    settings.MyLocation = FormatLocation(*location);
}

// Writes the lines of one row of the table of keys; those of a stored table with its first column.
class SettingWriter {
 public:
  SettingWriter(const Settings& settings, std::string_view dts) : settings_(settings), dts_(dts) {
    text_.reserve(8192);
  }

  void Write(const SettingRow& row) {
    if (!row.written(settings_, row)) return;
    row_ = &row;
    std::visit(*this, row.member);
  }

  std::string Text() { return std::move(text_); }

  template <class Value>
  void operator()(Value Settings::*member) {
    Add(row_->key, ValueField(*row_, settings_.*member));
  }

  template <class Row>
  void operator()(Column<Row> column) {
    if (column.text != Table<Row>::kFirst) return;
    for (const Row& stored : settings_.*Table<Row>::kRows)
      if (Table<Row>::Written(stored)) AddColumns(stored);
  }

  template <class Values>
  void operator()(const Family<Values>& family) {
    const Values& values = settings_.*family.member;
    for (unsigned number = family.first; number < FamilyEnd(family); ++number)
      Add(Digits(number, family.digits).append(row_->key),
          ValueField(*row_, values[number - family.first]));
  }

  void operator()(WritingTime) { Add(row_->key, QuotedField(dts_)); }
  void operator()(OldAction) {}

 private:
  void Add(std::string_view key, std::string_view field) {
    text_ += Record({QuotedField(key), field});
  }

  template <class Row>
  void AddColumns(const Row& stored) {
    for (const SettingRow& row : SettingRows())
      if (const auto* column = std::get_if<Column<Row>>(&row.member))
        Add(row.key, QuotedField(stored.*column->text));
  }

  const Settings& settings_;
  const std::string_view dts_;
  const SettingRow* row_ = nullptr;
  std::string text_;
};

}  // namespace

Settings ParseSettings(std::string_view text) {
  Settings settings;
  settings.WebPages.clear();
  const bool ended = EndsWith(text, "\n");
  while (!text.empty()) {
    const std::string_view line = TakeLine(text);
    const bool last = text.empty();
    if (!line.empty() && (!last || ended || IsWhole(line))) ReadLine(settings, line);
  }
  Complete(settings);
  return settings;
}

std::string FormatSettings(const Settings& settings, std::string_view dts) {
  SettingWriter writer(settings, dts);
  for (const SettingRow& row : SettingRows()) writer.Write(row);
  return writer.Text();
}

}  // namespace core
