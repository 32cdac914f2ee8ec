#include "spots/cty_table.h"

#include <algorithm>
#include <utility>

#include "core/quoted.h"
#include "core/text.h"

namespace spots {
namespace {

constexpr std::ptrdiff_t kLeastLines = 300;
constexpr std::size_t kLongestLine = 255;
constexpr std::size_t kLongestPrefix = 15;

constexpr std::string_view kMarionPrefix = "ZS8";
constexpr std::string_view kMarionIsland =
    "Marion Island:            38:  57:  AF:  -46.88:   -37.72:    -3.0:  ZS8:";

constexpr core::Position kContinentColumn = 37;

struct ContinentColumn {
  std::string_view continent;
  std::size_t column;
};
constexpr std::array<ContinentColumn, 7> kContinentColumns = {
    {{"NA", 0}, {"EU", 1}, {"AF", 2}, {"AS", 3}, {"SA", 4}, {"AN", 4}, {"OC", 5}}};

// name:CQ zone:ITU zone:continent:latitude:longitude:offset:prefix:
using Fields = std::array<std::string_view, 8>;
enum Field { kName = 0, kLatitude = 4, kLongitude = 5, kPrefix = 7 };

Fields FieldsOf(std::string_view line) {
  Fields fields;
  for (std::string_view& field : fields) field = core::ExtractToCharacter(':', line);
  return fields;
}

bool IsCountryLine(std::string_view line) {
  return line.size() <= kLongestLine && core::EndsWith(line, ":");
}

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text.append(line).append("\r\n");
  return text;
}

}  // namespace

std::optional<std::string> CtyTable::Read(std::string_view text) {
  Clear();
  text = text.substr(0, kMostBytes);
  if (std::count(text.begin(), text.end(), '\n') < kLeastLines) return {};
  const bool isComplete = core::InStrIgnoringCase(text, kMarionPrefix) > 0;
  // What stands behind the last line end never counts.
  text = text.substr(0, text.rfind('\n') + 1);
  while (!text.empty() && rows_.size() < kMostRows) {
    const std::string_view line = core::TakeLine(text);
    if (IsCountryLine(line)) AddLine(core::UCase(line));
  }
  if (!isComplete) AddLine(kMarionIsland);
  CutColumns();
  IndexPrefixes();
  if (isComplete || std::ssize(headerLines_) <= kLeastLines) return {};
  return Joined(headerLines_);
}

void CtyTable::Clear() {
  headerLines_.clear();
  rows_.clear();
  known_.clear();
  for (Columns* columns : {&prefixes_, &names_})
    for (auto& column : *columns) column.clear();
  continentLast_.fill(-1);
  lastColumn_ = 0;
}

void CtyTable::SetHome(const Home& home) {
  if (home == home_) return;
  home_ = home;
  for (Row& row : rows_) row.heading = Bearing(home_, row.position);
}

void CtyTable::AddLine(std::string_view line) {
  const Fields fields = FieldsOf(line);
  std::string prefix(core::LTrim(fields[kPrefix]));
  std::string name = core::UCase(fields[kName]);
  // Entities of one award's list alone.
  if (core::StartsWith(prefix, "*")) {
    prefix.erase(0, 1);
    name += " (WAE Country)";
  }
  const bool isNone = prefix.empty() || prefix.size() > kLongestPrefix;
  if (isNone || rows_.size() == kMostRows) return;
  const core::Coordinates position{.latitude = core::Val(fields[kLatitude]),
                                   .longitude = core::Val(fields[kLongitude])};
  headerLines_.emplace_back(line);
  rows_.push_back({prefix, position, Bearing(home_, position)});
  EnterByContinent(core::Mid(line, kContinentColumn, 2), std::move(prefix), std::move(name));
}

// A country of no known continent takes the first place of the column that was entered last.
void CtyTable::EnterByContinent(std::string_view continent, std::string prefix, std::string name) {
  const auto known = std::find_if(kContinentColumns.begin(), kContinentColumns.end(),
                                  [&](const auto& row) { return row.continent == continent; });
  std::size_t row = 0;
  if (known != kContinentColumns.end()) {
    lastColumn_ = known->column;
    row = static_cast<std::size_t>(++continentLast_[lastColumn_]);
  }
  for (Columns* columns : {&prefixes_, &names_}) {
    auto& column = (*columns)[lastColumn_];
    column.resize(std::max(column.size(), row + 1));
  }
  prefixes_[lastColumn_][row] = std::move(prefix);
  names_[lastColumn_][row] = std::move(name);
}

void CtyTable::CutColumns() {
  std::size_t longest = 0;
  for (const auto& column : prefixes_) longest = std::max(longest, column.size());
  for (Columns* columns : {&prefixes_, &names_})
    for (auto& column : *columns) column.resize(longest);
}

// Of equal prefixes the first row counts, but for the name it is the first one by columns. A
// country that another one has taken the place of has no name.
void CtyTable::IndexPrefixes() {
  for (std::size_t row = 0; row < rows_.size(); ++row)
    known_.try_emplace(rows_[row].Prefix, Known{.row = row, .name = {}});
  for (std::size_t column = 0; column < kContinents; ++column)
    for (std::size_t row = 0; row < prefixes_[column].size(); ++row) {
      const auto known = known_.find(prefixes_[column][row]);
      if (known != known_.end() && known->second.name.empty())
        known->second.name = names_[column][row];
    }
}

const CtyTable::Known* CtyTable::Find(std::string_view prefix) const {
  std::array<char, kLongestPrefix> key{};
  if (prefix.size() > key.size()) return nullptr;
  std::transform(prefix.begin(), prefix.end(), key.begin(),
                 [](char byte) { return core::UCase(byte); });
  const auto known = known_.find(std::string_view(key.data(), prefix.size()));
  return known == known_.end() ? nullptr : &known->second;
}

bool CtyTable::FindHeading(std::string_view prefix, Heading& current) const {
  const Known* known = Find(prefix);
  current = known != nullptr ? rows_[known->row].heading : Heading{};
  return known != nullptr;
}

std::string_view CtyTable::CountryName(std::string_view prefix) const {
  const Known* known = Find(prefix);
  return known != nullptr ? std::string_view(known->name) : std::string_view();
}

}  // namespace spots
