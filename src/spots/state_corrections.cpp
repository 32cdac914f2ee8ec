#include "spots/state_corrections.h"

#include <algorithm>
#include <array>

#include "core/text.h"

namespace spots {
namespace {

constexpr std::array<Possession, 7> kPossessions = {{
    {"KH0", "MP", "27", "64"},
    {"KH2", "GU", "27", "64"},
    {"KH6", "HI", "31", "61"},
    {"KH8", "AS", "32", "63"},
    {"KL", "AK", " 1", "*1"},
    {"KP2", "VI", " 8", "11"},
    {"KP4", "PR", " 8", "11"},
}};

struct Province {
  std::array<std::string_view, 3> keys;  // none is empty
  std::string_view state;
  std::string_view cq;
  std::string_view itu;
};

constexpr std::array<Province, 14> kProvinceRows = {{
    {{"8", "VE8", "NT"}, "NT", "*2", "  "},
    {{"7", "VE7", "BC"}, "BC", " 3", " 2"},
    {{"6", "VE6", "AB"}, "AB", " 4", " 2"},
    {{"5", "VE5", "SK"}, "SK", " 4", " 3"},
    {{"4", "VE4", "MB"}, "MB", " 4", " 3"},
    {{"3", "VE3", "ON"}, "ON", " 4", " 4"},
    {{"2", "VE2", "QC"}, "QC", "*5", "*4"},
    {{"1", "VE1", "NS"}, "NS", " 5", " 9"},
    {{"9", "VE9", "NB"}, "NB", " 5", " 9"},
    {{"VY1", "YT", "YT"}, "YT", " 1", " 2"},
    {{"VY2", "PE", "PE"}, "PE", " 5", " 9"},
    {{"VO1", "NL", "NL"}, "NL", " 5", " 9"},
    {{"VO2", "LB", "LB"}, "LB", " 2", " 9"},
    {{"VY0", "NU", "NU"}, "NU", " ", " "},
}};

struct StateZones {
  std::string_view state;
  std::string_view cq;
  std::string_view itu;
};

// The District of Columbia is in none of the tables.
constexpr std::array<StateZones, 48> kStateZones = {{
    {"AL", " 4", " 8"}, {"AR", " 4", " 7"}, {"AZ", " 3", " 6"}, {"CA", " 3", " 6"},
    {"CO", " 4", " 7"}, {"CT", " 5", " 8"}, {"DE", " 5", " 8"}, {"FL", " 5", " 8"},
    {"GA", " 5", " 8"}, {"IA", " 4", " 7"}, {"ID", " 3", " 6"}, {"IL", " 4", " 8"},
    {"IN", " 4", " 8"}, {"KS", " 4", " 7"}, {"KY", " 4", " 8"}, {"LA", " 4", " 7"},
    {"MA", " 5", " 8"}, {"MD", " 5", " 8"}, {"ME", " 5", " 8"}, {"MI", " 4", " 8"},
    {"MN", " 4", " 7"}, {"MO", " 4", " 7"}, {"MS", " 4", " 7"}, {"MT", " 4", " 7"},
    {"NC", " 5", " 8"}, {"ND", " 4", " 7"}, {"NE", " 4", " 7"}, {"NH", " 5", " 8"},
    {"NJ", " 5", " 8"}, {"NM", " 4", " 7"}, {"NV", " 3", " 6"}, {"NY", " 5", " 8"},
    {"OH", " 4", " 8"}, {"OK", " 4", " 7"}, {"OR", " 3", " 6"}, {"PA", " 5", " 8"},
    {"RI", " 5", " 8"}, {"SC", " 5", " 8"}, {"SD", " 4", " 7"}, {"TN", " 4", " 8"},
    {"TX", " 4", " 7"}, {"UT", " 3", " 6"}, {"VA", " 5", " 8"}, {"VT", " 5", " 8"},
    {"WA", " 3", " 6"}, {"WI", " 4", " 8"}, {"WV", " 5", " 8"}, {"WY", " 4", " 7"},
}};

constexpr bool ComesBefore(const StateZones& row, std::string_view state) {
  return row.state < state;
}

static_assert(std::is_sorted(kStateZones.begin(), kStateZones.end(),
                             [](const auto& a, const auto& b) { return a.state < b.state; }));

// The row of the table whose field is that text; nothing if there is none.
template <class Table, class Field>
auto RowOf(const Table& table, Field field, std::string_view text) {
  const auto at =
      std::find_if(table.begin(), table.end(), [&](const auto& row) { return row.*field == text; });
  return at == table.end() ? nullptr : &*at;
}

std::string_view ProvinceKey(std::string_view state, std::string_view call) {
  constexpr core::Position kBehindPrefix = 4;
  const core::Position slash = core::InStr(call, "/");
  if (slash == 0) return state;
  return slash == kBehindPrefix ? core::Left(call, 3) : core::Mid(call, slash + 1);
}

}  // namespace

const Possession* PossessionOf(std::string_view country) {
  return RowOf(kPossessions, &Possession::country, country);
}

void ProvinceFromCall(std::string& state, std::string_view call, std::string& cq,
                      std::string& itu) {
  const std::string_view key = ProvinceKey(state, call);
  for (const Province& row : kProvinceRows) {
    if (std::find(row.keys.begin(), row.keys.end(), key) == row.keys.end()) continue;
    state = row.state;
    cq = row.cq;
    itu = row.itu;
    return;
  }
}

void StateToCountry(std::string& state, std::string& country, std::string& cq, std::string& itu) {
  if (state == "  ") {
    state.clear();
    return;
  }
  if (const Possession* possession = RowOf(kPossessions, &Possession::state, state)) {
    country = possession->country;
    cq = possession->cq;
    return;
  }
  country = "K";
  if (state.empty()) cq = itu = "  ";
  const auto zones = std::lower_bound(kStateZones.begin(), kStateZones.end(), state, ComesBefore);
  if (zones == kStateZones.end() || zones->state != state) return;
  cq = zones->cq;
  itu = zones->itu;
}

}  // namespace spots
