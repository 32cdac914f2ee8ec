#include "practice_node/spot_lines.h"

#include <algorithm>
#include <array>
#include <vector>

#include "core/text.h"
#include "practice_node/wording.h"

namespace practice_node {
namespace {

constexpr std::size_t kFrequencyEnd = 24;
constexpr std::size_t kCallWidth = 12;
constexpr std::size_t kCommentWidth = 30;
constexpr std::size_t kListDateColumn = 23;
constexpr std::size_t kListCommentWidth = 28;

using Fields = std::vector<std::string>;

std::string Frequency(const Spot& spot) {
  return std::to_string(spot.tenths / 10) + "." + std::to_string(spot.tenths % 10);
}

std::string Spotter(const Spot& spot, const SpotStyle& style) {
  return style.lowerCaseSpotter ? core::LCase(spot.spotter.call) : spot.spotter.call;
}

template <class Table>
const auto& Chosen(const Table& table, const Spot& spot) {
  return table[spot.variant % table.size()];
}

std::string GridOf(const Station& station) { return station.grid; }
std::string StateOf(const Station& station) { return std::string(station.area.state); }
std::string ItuOf(const Station& station) { return std::to_string(station.area.itu); }
std::string CqOf(const Station& station) { return std::to_string(station.area.cq); }
std::string CountryOf(const Station& station) { return std::string(station.area.country); }
// AR-Cluster and its relatives write some countries so.
std::string PlusCountryOf(const Station& station) { return "+" + CountryOf(station); }
std::string StateOrCountryOf(const Station& station) {
  return station.area.state.empty() ? CountryOf(station) : StateOf(station);
}
std::string ExactGridOf(const Station& station) {
  return station.grid.empty() ? CountryOf(station) : "(" + station.grid + "xl)";
}
std::string CountryAndZoneOf(const Station& station) {
  return CountryOf(station) + " " + CqOf(station);
}

using Word = std::string (*)(const Station&);

struct Slot {
  bool SpotStyle::*wanted;
  Word word;
};

constexpr std::array<Slot, 4> kSlots = {{
    {&SpotStyle::grid, GridOf},
    {&SpotStyle::state, StateOf},
    {&SpotStyle::itu, ItuOf},
    {&SpotStyle::cq, CqOf},
}};

// On the DX station, in front of the time.
constexpr std::array<Word, 7> kEndings = {CountryOf,     CountryOf, CountryOf,       CountryOf,
                                          PlusCountryOf, CqOf,      StateOrCountryOf};
// On the spotter, behind it.
constexpr std::array<Word, 7> kTrailers = {
    StateOrCountryOf, CountryOf, StateOrCountryOf, GridOf, CqOf, ExactGridOf, CountryAndZoneOf};

// Empty if nothing of what is wanted is known.
std::string SlotWord(const Station& station, const SpotStyle& style) {
  for (const Slot& slot : kSlots) {
    std::string word = style.*slot.wanted ? slot.word(station) : std::string();
    if (!word.empty()) return word;
  }
  return {};
}

std::string Cut(std::string_view text, std::size_t width) {
  return PadRight(text.substr(0, width), width);
}

// The comment, as wide as told, and a word at its end. Two blanks are in front of the word, or the
// one of DXSpider.
std::string WithEnding(const Spot& spot, const std::string& word, std::size_t gap,
                       std::size_t width) {
  if (word.empty()) return Cut(spot.comment, width);
  return PadRight(spot.comment.substr(0, width - word.size() - gap), width - word.size()) + word;
}

std::string Ending(const Spot& spot) { return Chosen(kEndings, spot)(spot.dx); }

std::string LiveComment(const Spot& spot, const SpotStyle& style) {
  if (style.country) return WithEnding(spot, Ending(spot), 2, kCommentWidth);
  return WithEnding(spot, SlotWord(spot.dx, style), 1, kCommentWidth);
}

std::string Trailer(const Spot& spot, const SpotStyle& style) {
  const std::string word =
      style.qth ? Chosen(kTrailers, spot)(spot.spotter) : SlotWord(spot.spotter, style);
  return word.empty() ? word : " " + word;
}

std::string PlainLine(const Spot& spot, const SpotStyle& style) {
  std::string line = "DX de " + Spotter(spot, style) + ":";
  line += PadLeft(Frequency(spot), kFrequencyEnd - std::min(kFrequencyEnd, line.size()));
  line += "  " + PadRight(spot.dx.call, kCallWidth) + " " + LiveComment(spot, style) + " ";
  line += TimeText(spot.time) + Trailer(spot, style);
  if (style.zone) line += " " + core::Digits(static_cast<unsigned>(spot.dx.area.cq), 2);
  return line;
}

std::string WithoutCarets(std::string_view text) {
  std::string escaped;
  for (const char each : text) escaped += each == '^' ? std::string("%5E") : std::string(1, each);
  return escaped;
}

std::string Joined(std::string line, const Fields& fields) {
  for (const std::string& each : fields) line += "^" + each;
  return line;
}

std::string Ar17Line(const Spot& spot, const SpotStyle& style) {
  const Area& dx = spot.dx.area;
  const Area& spotter = spot.spotter.area;
  const std::string country = spot.variant % 5 == 0 ? PlusCountryOf(spot.dx) : CountryOf(spot.dx);
  return Joined("AR17",
                {"0", Frequency(spot), spot.dx.call, DateText(spot.time), TimeText(spot.time),
                 WithoutCarets(spot.comment), Spotter(spot, style), std::string(spot.node), country,
                 std::string(dx.continent), std::string(dx.state), CqOf(spot.dx), ItuOf(spot.dx),
                 std::string(spotter.continent), std::string(spotter.country),
                 std::string(spotter.state), "", ""});
}

// A Zelva Cluster marks the zones of countries that have several.
std::string ZoneText(int zone, const Area& area) {
  if (area.spansZones && zone < 10) return "*" + std::to_string(zone);
  return core::Digits(static_cast<unsigned>(zone), 2);
}

std::string MarkedCountry(const Spot& spot, const Area& area) {
  const std::string country(area.country);
  const std::array<std::string, 4> forms = {
      country, country, std::string(area.continent) + "-" + country, country + "(CTY)"};
  return Chosen(forms, spot);
}

// The middle of the grid as "latitude/longitude" in degrees, north and west positive.
std::string LocationText(const std::string& grid) {
  if (grid.empty()) return {};
  const int south = (grid[1] - 'A') * 10 + (grid[3] - '0') - 90;
  const std::string latitude =
      south < 0 ? "-" + std::to_string(-south - 1) + ".5" : std::to_string(south) + ".5";
  const int west = 179 - (grid[0] - 'A') * 20 - (grid[2] - '0') * 2;
  return latitude + "/" + std::to_string(west);
}

std::string TimeWithoutZone(platform::UtcTime time) { return TimeText(time).substr(0, 4); }

// Up to the grids, without the tag.
Fields Zv11Fields(const Spot& spot, const SpotStyle& style) {
  const Area& dx = spot.dx.area;
  const Area& spotter = spot.spotter.area;
  return {Frequency(spot),
          spot.dx.call,
          DateText(spot.time),
          TimeWithoutZone(spot.time),
          WithoutCarets(spot.comment),
          Spotter(spot, style),
          "",
          "",
          std::string(spot.node),
          ZoneText(dx.itu, dx),
          ZoneText(dx.cq, dx),
          ZoneText(spotter.itu, spotter),
          ZoneText(spotter.cq, spotter),
          std::string(dx.state),
          std::string(spotter.state),
          MarkedCountry(spot, dx),
          MarkedCountry(spot, spotter),
          spot.dx.grid,
          spot.spotter.grid};
}

// What a line of full length has behind the grids: the place of the spotter and, of an operator,
// the address that he sent it from.
Fields Zv11Tail(const Spot& spot) {
  const std::string place = LocationText(spot.spotter.grid);
  if (IsSkimmer(spot)) return {place};
  return {"", "", place, "192.0.2." + std::to_string(spot.variant % 250 + 1)};
}

// The lengths that lines come in.
struct Zv11Form {
  std::uint32_t upToPercent;  // of the lines have this form or one above it
  std::size_t fields;         // to cut the line to, with the tag; 0: full length
  bool closed;                // and one more field, which holds `last`
  std::string_view last;
};

constexpr std::array<Zv11Form, 7> kZv11Forms = {{
    {88, 0, true, ""},
    {92, 0, true, "1"},
    {94, 20, true, ""},
    {96, 20, false, ""},
    {97, 19, false, ""},
    {98, 18, false, ""},
    {100, 15, false, ""},
}};

std::string Zv11Line(const Spot& spot, const SpotStyle& style) {
  const auto* form = std::find_if(kZv11Forms.begin(), kZv11Forms.end(), [&](const Zv11Form& each) {
    return spot.variant % 100 < each.upToPercent;
  });
  Fields fields = Zv11Fields(spot, style);
  if (form->fields > 0) {
    fields.resize(form->fields - 1);
  } else {
    const Fields tail = Zv11Tail(spot);
    fields.insert(fields.end(), tail.begin(), tail.end());
  }
  if (form->closed) fields.emplace_back(form->last);
  return Joined("ZV11", fields);
}

// In the order of Shape.
constexpr std::array kLines = {PlainLine, Ar17Line, Zv11Line};

}  // namespace

std::string SpotLine(const Spot& spot, const SpotStyle& style) {
  return kLines[static_cast<std::size_t>(style.shape)](spot, style);
}

std::string ListRow(const Spot& spot, const SpotStyle& style) {
  std::string row = PadRight(PadLeft(Frequency(spot), 8), style.listCall - 1);
  row = PadRight(row + spot.dx.call, kListDateColumn - 1);
  row += DateText(spot.time) + " " + TimeText(spot.time) + "  ";
  // One blank is between the word and the "<".
  row += style.country ? WithEnding(spot, Ending(spot), 2, kListCommentWidth - 1) + " "
                       : Cut(spot.comment, kListCommentWidth);
  return row + PadLeft("<" + Spotter(spot, style), 7) + ">";
}

}  // namespace practice_node
