#include "core/locator.h"

#include <array>
#include <cmath>
#include <cstdlib>

#include "core/text.h"

namespace core {
namespace {

// What one pair of characters may be, and what each step of it is worth in minutes of arc: from
// west to east by its first character, from south to north by its second.
struct LetterPair {
  char first;
  char last;
  double east;
  double north;
};
constexpr std::array kPairs = {LetterPair{'A', 'R', 1200, 600}, LetterPair{'0', '9', 120, 60},
                               LetterPair{'A', 'X', 5, 2.5}};
constexpr std::size_t kSquare = 4;
constexpr std::size_t kWhole = 2 * kPairs.size();

constexpr int kMinutesInDegree = 60;
constexpr double kWestEnd = -180 * kMinutesInDegree;
constexpr double kSouthEnd = -90 * kMinutesInDegree;

bool Fits(char byte, const LetterPair& pair) {
  const char letter = UCase(byte);
  return letter >= pair.first && letter <= pair.last;
}

int Degrees(long minutes) { return static_cast<int>(std::labs(minutes) / kMinutesInDegree); }
int Rest(long minutes) { return static_cast<int>(std::labs(minutes) % kMinutesInDegree); }

}  // namespace

std::size_t LocatorStart(std::string_view text) {
  std::size_t good = 0;
  while (good < text.size() && good < kWhole && Fits(text[good], kPairs[good / 2])) ++good;
  return good;
}

std::optional<Location> CentreOfLocator(std::string_view text) {
  const bool complete = text.size() == kSquare || text.size() == kWhole;
  if (!complete || LocatorStart(text) != text.size()) return std::nullopt;
  double east = kWestEnd;
  double north = kSouthEnd;
  for (std::size_t at = 0; at < text.size(); at += 2) {
    const LetterPair& pair = kPairs[at / 2];
    east += (UCase(text[at]) - pair.first) * pair.east;
    north += (UCase(text[at + 1]) - pair.first) * pair.north;
  }
  const LetterPair& smallest = kPairs[text.size() / 2 - 1];
  const long longitude = std::lround(east + smallest.east / 2);
  const long latitude = std::lround(north + smallest.north / 2);
  return Location{Degrees(latitude),  Rest(latitude),  latitude < 0 ? 'S' : 'N',
                  Degrees(longitude), Rest(longitude), longitude < 0 ? 'W' : 'E'};
}

}  // namespace core
