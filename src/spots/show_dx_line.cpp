#include "spots/show_dx_line.h"

#include "core/text.h"
#include "spots/added_words.h"
#include "spots/spot_line.h"

namespace spots {
namespace {

using core::InStr;
using core::Left;
using core::Len;
using core::Mid;
using core::Position;

constexpr Position kFrequencyWidth = 10;
constexpr Position kFirstTimeMark = 35;  // the "Z" stands here or later
constexpr Position kFirstYear = 28;      // and "-2", which begins the year

}  // namespace

bool IsShowDxRow(std::string_view line) {
  if (core::ValInt(Left(line, kFrequencyWidth)) <= 1799) return false;
  const Position mark = InStr(kFirstTimeMark, line, "Z");
  const int year = core::ValInt(Mid(line, mark - 9, 4));
  return mark > 0 && year >= 2003 && year <= 2049;
}

bool ParseShDxLine(std::string_view line, const NodeFacts& node, const WordFacts& words,
                   Spot& spot) {
  const Position year = InStr(kFirstYear, line, "-2");
  const std::string_view rest = Mid(line, year + 12);
  const auto bracket = rest.rfind('<');
  if (line.size() > kLongestLine || year == 0 || bracket == std::string_view::npos) return false;
  spot.Freq = RoundHalfUp(core::Val(Left(line, kFrequencyWidth)), 1);
  spot.DxCall = core::Trim(Mid(line, node.IsWinCluster() ? 10 : 11, year - 17));
  spot.SpotDate = Mid(line, year - 6, 11);
  SetTime(Mid(line, year + 6, 4), spot);
  const std::string_view spotter = rest.substr(bracket + 1);
  SetSpotter(Left(spotter, Len(spotter) - 1), node, spot);
  ReadListComment(rest.substr(0, bracket), node, words, spot);
  return true;
}

}  // namespace spots
