#include "spots/bottom_of_band.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "core/text.h"

namespace spots {
namespace {

constexpr std::array<double, 4> kEdges = {1800, 3500, 10100, 14000};
constexpr std::array<std::string_view, 6> kShownEdges = {" 18068.0", " 21000.0", " 24890.0",
                                                         " 28000.0", " 50000.0", " 144000.0"};

constexpr std::size_t kSpotterWidth = 11;

bool EndsInEdge(std::string_view text) {
  return std::any_of(kShownEdges.begin(), kShownEdges.end(),
                     [&](std::string_view edge) { return text.ends_with(edge); });
}

// All edges end alike: one walk over the line looks for them all.
bool ShowsEdge(std::string_view line) {
  constexpr std::string_view kEnd = ".0";
  for (auto at = line.find(kEnd); at != line.npos; at = line.find(kEnd, at + 1))
    if (EndsInEdge(line.substr(0, at + kEnd.size()))) return true;
  return false;
}

bool IsEdge(double frequency) {
  return std::find(kEdges.begin(), kEdges.end(), frequency) != kEdges.end();
}

void AppendSpotter(std::string_view call, std::string& line) {
  const std::size_t end = line.size() + kSpotterWidth;
  line.append(call.substr(0, kSpotterWidth)) += ':';
  line.resize(end, ' ');
}

void AppendNumber(double number, std::string& line) {
  std::array<char, 32> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  line.append(digits.data(), end.ptr);
}

void AppendTime(int hhmm, std::string& line) {
  line += core::Digits(static_cast<unsigned>(std::max(hhmm, 0)), 4);
}

}  // namespace

bool BoBtoAnn(const Spot& spot, std::string_view displayLine, std::string& announcement) {
  if (!IsEdge(spot.Freq) && !ShowsEdge(displayLine)) return false;
  announcement = core::Left(spot.SpotDate, 6);
  announcement += ' ';
  AppendTime(spot.SpotHHMM, announcement);
  announcement += "Z BoB Dx< ";
  AppendSpotter(spot.Spotter, announcement);
  announcement += spot.DxCall;
  announcement += ' ';
  AppendNumber(spot.Freq, announcement);
  announcement += ' ';
  announcement += spot.Comment;
  return true;
}

}  // namespace spots
