#include "practice_node/spot_source.h"

#include <string_view>

#include "practice_node/wording.h"

namespace practice_node {
namespace {

constexpr std::size_t kSpotters = 40;
constexpr std::size_t kOnAir = 12;
constexpr std::size_t kSpottedAgainPercent = 30;

enum class Mode { Cw, Ssb, Digital };

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

struct Area {
  std::string_view prefix;
  int zone;
  std::string_view field;  // first half of a grid
};

constexpr std::array<Area, 20> kRare = {{
    {"ZL7", 32, "AE"}, {"VK9", 30, "QH"}, {"3D2", 32, "RH"}, {"KH8", 32, "AH"}, {"FO5", 32, "BH"},
    {"9M6", 28, "OJ"}, {"XU7", 26, "OK"}, {"V51", 38, "JG"}, {"5H3", 37, "KI"}, {"FR4", 39, "LG"},
    {"TF3", 40, "HP"}, {"OX3", 40, "GP"}, {"CE0", 12, "DG"}, {"PJ4", 9, "FK"},  {"VP8", 13, "GD"},
    {"JT1", 23, "ON"}, {"HS0", 26, "OK"}, {"A45", 21, "LL"}, {"EK6", 21, "LN"}, {"7Q7", 37, "KH"},
}};

constexpr std::array<Area, 16> kCommon = {{
    {"DL", 14, "JO"},
    {"G", 14, "IO"},
    {"F", 14, "JN"},
    {"I", 15, "JN"},
    {"EA", 14, "IN"},
    {"OH", 15, "KP"},
    {"SM", 14, "JO"},
    {"SP", 15, "JO"},
    {"OK", 15, "JN"},
    {"UA", 16, "KO"},
    {"K", 4, "EN"},
    {"W", 5, "FN"},
    {"N", 3, "DM"},
    {"VE", 4, "FN"},
    {"JA", 25, "PM"},
    {"PY", 11, "GG"},
}};

constexpr std::array<std::string_view, 12> kCwComments = {
    "CW",    "CW up 1",    "up 2",        "599 in Ohio",
    "CQ",    "tnx QSO 73", "good sig",    "CW up 1-3",
    "QSX 2", "",           "NA only now", "weak but readable"};
constexpr std::array<std::string_view, 10> kSsbComments = {
    "SSB",      "59 in Munich", "USB up 5-10", "split 5 up", "calling CQ",
    "tnx nice", "big pile-up",  "59+10",       "",           "LSB/USB, by numbers"};
constexpr std::array<std::string_view, 5> kDigitalComments = {"FT8", "FT8 -12 dB", "FT8 1234 Hz",
                                                              "FT8 F/H", "tnx FT8"};

}  // namespace

SpotSource::SpotSource(std::uint32_t seed, Taste taste) : random_(seed), taste_(taste) {
  for (std::size_t i = 0; i < kSpotters; ++i) spotters_.push_back(NewSpotter());
}

Spot SpotSource::Next(platform::UtcTime now) {
  const bool again = !onAir_.empty() && Below(100) < kSpottedAgainPercent;
  Spot spot = again ? OneOf(onAir_) : NewStation();
  const Spotter& spotter = OneOf(spotters_);
  spot.spotter = spotter.call;
  spot.spotterGrid = spotter.grid;
  if (taste_ == Taste::Skimmer) spot.comment = SkimmerComment();
  spot.time = now;
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

SpotSource::Spotter SpotSource::NewSpotter() {
  const Area& area = OneOf(kCommon);
  std::string call = MadeUpCall(area.prefix);
  if (taste_ == Taste::Skimmer) call += "-#";
  std::string grid(area.field);
  grid += static_cast<char>('0' + Below(10));
  grid += static_cast<char>('0' + Below(10));
  return {std::move(call), std::move(grid)};
}

Spot SpotSource::NewStation() {
  const Segment* segment = &OneOf(kSegments);
  while (taste_ == Taste::Skimmer && segment->mode != Mode::Cw) segment = &OneOf(kSegments);
  const Area& area = Below(3) == 0 ? OneOf(kCommon) : OneOf(kRare);
  Spot spot;
  const auto steps = static_cast<std::size_t>((segment->high - segment->low) * 10 / segment->step);
  spot.tenths = segment->low * 10 + static_cast<int>(Below(steps + 1)) * segment->step;
  spot.call = MadeUpCall(area.prefix);
  spot.dxZone = area.zone;
  if (segment->mode == Mode::Cw) spot.comment = OneOf(kCwComments);
  if (segment->mode == Mode::Ssb) spot.comment = OneOf(kSsbComments);
  if (segment->mode == Mode::Digital) spot.comment = OneOf(kDigitalComments);
  if (onAir_.size() < kOnAir) {
    onAir_.push_back(spot);
  } else {
    onAir_[oldest_++ % kOnAir] = spot;
  }
  return spot;
}

std::string SpotSource::SkimmerComment() {
  const std::string strength = std::to_string(3 + Below(38));
  const std::string speed = std::to_string(16 + Below(20));
  return "CW    " + PadLeft(strength, 2) + " dB  " + speed + " WPM  CQ";
}

}  // namespace practice_node
