#include "practice_node/spot_source.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "practice_node/wording.h"

namespace practice_node {
namespace {

using namespace std::chrono_literals;

constexpr std::size_t kSpotters = 40;
constexpr std::size_t kSkimmers = 24;
constexpr std::size_t kOnAir = 12;
constexpr std::size_t kLatest = 8;

constexpr std::size_t kHeardAgainPercent = 30;
constexpr std::size_t kRepeatedPercent = 5;
constexpr std::size_t kGridKnownPercent = 75;
constexpr std::size_t kOddFrequencyPercent = 4;
constexpr std::size_t kOddCallPercent = 4;
constexpr std::size_t kOddCommentPercent = 8;
constexpr std::size_t kWrongClockPercent = 4;

struct Segment {
  int low;  // kHz
  int high;
  int step;  // units of 100 Hz
  Mode mode;
};

constexpr std::array<Segment, 22> kSegments = {{
    {1811, 1837, 3, Mode::Cw},        {1840, 1840, 1, Mode::Digital},
    {3506, 3560, 2, Mode::Cw},        {3651, 3790, 10, Mode::Ssb},
    {7004, 7035, 1, Mode::Cw},        {7074, 7074, 1, Mode::Digital},
    {7080, 7190, 10, Mode::Ssb},      {10104, 10125, 1, Mode::Cw},
    {10136, 10136, 1, Mode::Digital}, {14004, 14060, 1, Mode::Cw},
    {14004, 14060, 1, Mode::Cw},      {14074, 14074, 1, Mode::Digital},
    {14150, 14320, 10, Mode::Ssb},    {18070, 18090, 1, Mode::Cw},
    {18115, 18160, 10, Mode::Ssb},    {21004, 21050, 1, Mode::Cw},
    {21205, 21350, 10, Mode::Ssb},    {24894, 24912, 1, Mode::Cw},
    {24915, 24915, 1, Mode::Digital}, {28005, 28050, 1, Mode::Cw},
    {28410, 28540, 10, Mode::Ssb},    {50110, 50160, 10, Mode::Ssb},
}};

constexpr std::array<Area, 22> kRare = {{
    {"ZL7", "ZL7", "OC", "", 32, 60, false, "AE"},  {"VK9", "VK9N", "OC", "", 32, 60, false, "RG"},
    {"3D2", "3D2", "OC", "", 32, 56, false, "RH"},  {"KH8", "KH8", "OC", "AS", 32, 62, false, "AH"},
    {"FO5", "FO", "OC", "", 32, 63, false, "BH"},   {"9M6", "9M6", "OC", "", 28, 54, false, "OJ"},
    {"XU7", "XU", "AS", "", 26, 49, false, "OK"},   {"V51", "V5", "AF", "", 38, 57, false, "JG"},
    {"5H3", "5H", "AF", "", 37, 53, false, "KI"},   {"FR4", "FR", "AF", "", 39, 53, false, "LG"},
    {"TF3", "TF", "EU", "", 40, 17, false, "HP"},   {"OX3", "OX", "NA", "", 40, 5, true, "GP"},
    {"CE0", "CE0Y", "SA", "", 12, 63, false, "DG"}, {"PJ4", "PJ4", "SA", "", 9, 11, false, "FK"},
    {"VP8", "VP8", "SA", "", 13, 16, false, "GD"},  {"JT1", "JT", "AS", "", 23, 32, true, "ON"},
    {"HS0", "HS", "AS", "", 26, 49, false, "OK"},   {"A45", "A4", "AS", "", 21, 39, false, "LL"},
    {"EK6", "EK", "AS", "", 21, 29, false, "LN"},   {"7Q7", "7Q", "AF", "", 37, 53, false, "KH"},
    {"KL7", "KL", "NA", "AK", 1, 1, true, "BP"},    {"VE8", "VE", "NA", "NT", 1, 3, true, "DP"},
}};

constexpr std::array<Area, 19> kCommon = {{
    {"DL", "DL", "EU", "", 14, 28, false, "JO"}, {"G", "G", "EU", "", 14, 27, false, "IO"},
    {"F", "F", "EU", "", 14, 27, false, "JN"},   {"I", "I", "EU", "", 15, 28, false, "JN"},
    {"EA", "EA", "EU", "", 14, 37, false, "IN"}, {"OH", "OH", "EU", "", 15, 18, false, "KP"},
    {"SM", "SM", "EU", "", 14, 18, false, "JO"}, {"SP", "SP", "EU", "", 15, 28, false, "JO"},
    {"OK", "OK", "EU", "", 15, 28, false, "JN"}, {"UA", "UA", "EU", "", 16, 29, true, "KO"},
    {"K8", "K", "NA", "MI", 4, 8, false, "EN"},  {"W8", "K", "NA", "OH", 4, 8, false, "EN"},
    {"W1", "K", "NA", "MA", 5, 8, false, "FN"},  {"N6", "K", "NA", "CA", 3, 6, false, "CM"},
    {"AA7", "K", "NA", "AZ", 3, 6, false, "DM"}, {"VE3", "VE", "NA", "ON", 4, 4, false, "FN"},
    {"VE2", "VE", "NA", "QC", 5, 4, true, "FN"}, {"JA", "JA", "AS", "", 25, 45, false, "PM"},
    {"PY", "PY", "SA", "", 11, 15, true, "GG"},
}};

constexpr std::array<std::string_view, 4> kNodes = {"N0DE-2", "N0DE-3", "N0DE-7", "N0DE-15"};

// Where a Skimmer stands, in front of its call. With one the call is long.
constexpr std::array<std::string_view, 4> kSkimmerPlaces = {"", "", "", "EA8/"};

constexpr std::array<std::string_view, 12> kCwComments = {
    "CW",    "CW up 1",    "up 2",        "599 in Ohio",
    "CQ",    "tnx QSO 73", "good sig",    "CW up 1-3",
    "QSX 2", "",           "NA only now", "weak but readable"};
constexpr std::array<std::string_view, 10> kSsbComments = {
    "SSB",      "59 in Munich", "USB up 5-10", "split 5 up", "calling CQ",
    "tnx nice", "big pile-up",  "59+10",       "",           "LSB/USB, by numbers"};
constexpr std::array<std::string_view, 5> kDigitalComments = {"FT8", "FT8 -12 dB", "FT8 1234 Hz",
                                                              "FT8 F/H", "tnx FT8"};

// What relays put behind the report of a Skimmer.
constexpr std::array<std::string_view, 6> kQualityMarks = {"", "", "", "V", "Q", "?"};

// Bottoms and tops of bands, and what lies outside; units of 100 Hz.
constexpr auto kOddFrequencies = std::to_array<int>({
    18000,  35000,   70000,  101000, 140000, 180680, 210000,  248900,  280000,
    500000, 1440000, 20000,  73000,  143500, 214500, 297000,  1360,    4725,
    17999,  41000,   101501, 135600, 275550, 701540, 1443000, 4322000, 12962000,
});

struct Extra {
  std::string_view front;
  std::string_view behind;
};

constexpr std::array<Extra, 8> kCallExtras = {{{"", "/P"},
                                               {"", "/M"},
                                               {"", "/MM"},
                                               {"", "/QRP"},
                                               {"", "/7"},
                                               {"", "/WAY"},
                                               {"VP2V/", ""},
                                               {"EA8/", ""}}};

// Latin-1, UTF-8, escapes and what looks like one, and all that is a mark somewhere.
constexpr auto kOddComments = std::to_array<std::string_view>({
    "gr\xFC\xDF"
    "e aus M\xFCnchen",
    "Gr\xC3\xBC\xC3\x9F"
    "e 73",
    "\xD0\xB4\xD0\xB0 73",
    "tnx \xF0\x9F\x98\x80",
    "100%25 copy %41",
    "100% copy, 5% QSB",
    "up%2C\"split\"",
    "^^ beam ^^",
    "\"QSX 14205\"",
    "59, tnx, 73",
    "QRV 2200Z",
    "JO62<TR>FN20",
    "<loud> now",
    "<b>loud</b> & clear",
    "=73= #1 'ok' \\o/",
    "  two  blanks  inside",
    "POTA US-2020                14",
    "up 2                       OH",
    "a comment far longer than what a line has room for",
});

constexpr std::array<std::chrono::minutes, 4> kClockErrors = {-5min, -2min, -1min, 1min};

}  // namespace

SpotSource::SpotSource(std::uint32_t seed, std::size_t skimmersPercent)
    : random_(seed), skimmersPercent_(skimmersPercent) {
  while (spotters_.size() < kSpotters) spotters_.push_back(MadeUpStation(OneOf(kCommon)));
  while (skimmers_.size() < kSkimmers) skimmers_.push_back(NewSkimmer());
}

Spot SpotSource::Next(platform::UtcTime now) {
  if (!latest_.empty() && Chance(kRepeatedPercent)) return OneOf(latest_);
  const bool bySkimmer = Chance(skimmersPercent_);
  Spot spot = SpotOf(Heard(bySkimmer), bySkimmer);
  spot.time = now;
  if (Chance(kWrongClockPercent)) spot.time += OneOf(kClockErrors);
  if (!bySkimmer) AddOddities(spot);
  Remember(spot);
  return spot;
}

// The standard's distributions differ from library to library; this doesn't.
std::size_t SpotSource::Below(std::size_t bound) {
  return static_cast<std::size_t>(random_()) % bound;
}

std::string SpotSource::Letters(std::size_t count) {
  std::string letters;
  while (letters.size() < count) letters += static_cast<char>('A' + Below(26));
  return letters;
}

std::string SpotSource::MadeUpCall(std::string_view prefix) {
  std::string call(prefix);
  const bool numbered = call.back() >= '0' && call.back() <= '9';
  if (!numbered) call += static_cast<char>('1' + Below(9));
  return call + Letters(2 + Below(2));
}

Station SpotSource::MadeUpStation(const Area& area) {
  Station station{.call = MadeUpCall(area.prefix), .area = area, .grid = {}};
  if (!Chance(kGridKnownPercent)) return station;
  station.grid = area.field;
  station.grid += static_cast<char>('0' + Below(10));
  station.grid += static_cast<char>('0' + Below(10));
  return station;
}

Station SpotSource::NewSkimmer() {
  Station station = MadeUpStation(OneOf(kCommon));
  station.call = std::string(OneOf(kSkimmerPlaces)) + station.call + "-#";
  return station;
}

SpotSource::Signal SpotSource::NewSignal(bool cwOnly) {
  const Segment* segment = &OneOf(kSegments);
  while (cwOnly && segment->mode != Mode::Cw) segment = &OneOf(kSegments);
  const auto steps = static_cast<std::size_t>((segment->high - segment->low) * 10 / segment->step);
  Signal signal{.tenths = segment->low * 10 + static_cast<int>(Below(steps + 1)) * segment->step,
                .station = MadeUpStation(Below(3) == 0 ? OneOf(kCommon) : OneOf(kRare)),
                .mode = segment->mode,
                .comment = {}};
  if (signal.mode == Mode::Cw) signal.comment = OneOf(kCwComments);
  if (signal.mode == Mode::Ssb) signal.comment = OneOf(kSsbComments);
  if (signal.mode == Mode::Digital) signal.comment = OneOf(kDigitalComments);
  if (onAir_.size() < kOnAir) {
    onAir_.push_back(signal);
  } else {
    onAir_[oldest_++ % kOnAir] = signal;
  }
  return signal;
}

SpotSource::Signal SpotSource::Heard(bool bySkimmer) {
  if (!onAir_.empty() && Chance(kHeardAgainPercent)) {
    const Signal& signal = OneOf(onAir_);
    if (!bySkimmer || signal.mode == Mode::Cw) return signal;
  }
  return NewSignal(bySkimmer);
}

Spot SpotSource::SpotOf(const Signal& signal, bool bySkimmer) {
  Spot spot{.tenths = signal.tenths,
            .dx = signal.station,
            .spotter = OneOf(bySkimmer ? skimmers_ : spotters_),
            .comment = bySkimmer ? SkimmerComment() : signal.comment,
            .time = {},
            .node = OneOf(kNodes),
            .variant = static_cast<std::uint32_t>(Below(1'000'000))};
  // No two Skimmers measure the same.
  if (bySkimmer) spot.tenths += static_cast<int>(Below(3)) - 1;
  return spot;
}

void SpotSource::AddOddities(Spot& spot) {
  if (Chance(kOddFrequencyPercent)) spot.tenths = OneOf(kOddFrequencies);
  if (Chance(kOddCommentPercent)) spot.comment = OneOf(kOddComments);
  if (!Chance(kOddCallPercent)) return;
  const Extra& extra = OneOf(kCallExtras);
  spot.dx.call = std::string(extra.front) + spot.dx.call + std::string(extra.behind);
}

std::string SpotSource::SkimmerComment() {
  constexpr std::size_t kMarkColumn = 29;  // counted from 0: the last one of a plain line's comment
  const std::string strength = std::to_string(3 + Below(38));
  const std::string speed = std::to_string(16 + Below(20));
  const std::string report = "CW    " + PadLeft(strength, 2) + " dB  " + speed + " WPM  CQ";
  const std::string_view mark = OneOf(kQualityMarks);
  return mark.empty() ? report : PadRight(report, kMarkColumn) + std::string(mark);
}

void SpotSource::Remember(const Spot& spot) {
  latest_.push_back(spot);
  if (latest_.size() > kLatest) latest_.pop_front();
}

}  // namespace practice_node
