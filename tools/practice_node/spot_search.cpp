#include "practice_node/spot_search.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/text.h"
#include "practice_node/bands.h"

namespace practice_node {
namespace {

using Range = SpotSearch::Range;

constexpr std::size_t kMostSpotsListed = 500;
constexpr Range kNowhere = {1, 0};

// Other words for bands.
constexpr std::array<Band, 2> kNicknames = {{
    {"3", 3500, 4000},
    {"2000", 900'000, 11'000'000},
}};

bool IsNumber(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

Range RangeOf(const Band& band) {
  return {static_cast<double>(band.low), static_cast<double>(band.high)};
}

Range BandNamed(std::string_view name) {
  const auto isNamed = [&](const Band& band) { return band.name == name; };
  const auto* band = std::find_if(kBands.begin(), kBands.end(), isNamed);
  if (band != kBands.end()) return RangeOf(*band);
  band = std::find_if(kNicknames.begin(), kNicknames.end(), isNamed);
  return band == kNicknames.end() ? kNowhere : RangeOf(*band);
}

// "20m", "3500-4000", "3500/4000".
bool ReadRange(std::string_view word, bool takesDash, SpotSearch& search) {
  const auto between = word.find_first_of("-/");
  if (between == std::string_view::npos) {
    const bool isBand =
        core::UCase(word.back()) == 'M' && IsNumber(word.substr(0, word.size() - 1));
    if (isBand) search.ranges.push_back(BandNamed(word.substr(0, word.size() - 1)));
    return isBand;
  }
  const auto low = word.substr(0, between);
  const auto high = word.substr(between + 1);
  if (!IsNumber(low) || !IsNumber(high)) return false;
  const bool taken = takesDash || word[between] == '/';
  search.ranges.push_back(taken ? Range{core::Val(low), core::Val(high)} : kNowhere);
  return true;
}

void ReadExpression(std::string_view text, SpotSearch& search) {
  constexpr std::string_view kAbove = "freq>";
  constexpr std::string_view kBelow = "freq<";
  for (auto at = core::InStrIgnoringCase(text, kAbove); at > 0;
       at = core::InStrIgnoringCase(at + 1, text, kAbove)) {
    const auto upper = core::InStrIgnoringCase(at, text, kBelow);
    if (upper == 0) return;
    search.ranges.push_back({core::Val(core::Mid(text, at + core::Len(kAbove))),
                             core::Val(core::Mid(text, upper + core::Len(kBelow)))});
  }
}

// The words of a request, one after the other.
class Reader {
 public:
  Reader(bool takesDash, SpotSearch& search) : takesDash_(takesDash), search_(search) {}

  void Take(std::string_view word) {
    if (core::SameIgnoringCase(word, "on")) return;
    if (std::exchange(spotterNext_, core::SameIgnoringCase(word, "by"))) {
      search_.spotter = core::UCase(word);
    } else if (spotterNext_) {
      return;
    } else if (IsNumber(word)) {
      TakeNumber(word);
    } else if (!ReadRange(word, takesDash_, search_)) {
      search_.call = core::UCase(word.substr(0, word.find('*')));
    }
  }

 private:
  void TakeNumber(std::string_view word) {
    if (std::exchange(counted_, true)) {
      search_.ranges.push_back(BandNamed(word));
      return;
    }
    const auto count = static_cast<std::size_t>(core::ValInt(word));
    if (count > 0) search_.count = std::min(count, kMostSpotsListed);
  }

  const bool takesDash_;
  SpotSearch& search_;
  bool counted_ = false;
  bool spotterNext_ = false;
};

}  // namespace

SpotSearch ReadSearch(std::string_view argument, bool takesDash) {
  SpotSearch search;
  Reader reader(takesDash, search);
  const auto where = core::InStrIgnoringCase(argument, "where ");
  if (where > 0) ReadExpression(core::Mid(argument, where), search);
  const auto words = where > 0 ? core::Left(argument, where - 1) : argument;
  for (const auto word : core::Split(words, " "))
    if (!word.empty()) reader.Take(word);
  return search;
}

bool Matches(const Spot& spot, const SpotSearch& search) {
  const double frequency = spot.tenths / 10.0;
  const bool inRange = search.ranges.empty() ||
                       std::any_of(search.ranges.begin(), search.ranges.end(), [&](const Range& r) {
                         return frequency >= r.low && frequency <= r.high;
                       });
  return inRange && core::StartsWith(spot.dx.call, search.call) &&
         core::StartsWith(spot.spotter.call, search.spotter);
}

}  // namespace practice_node
