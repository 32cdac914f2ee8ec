#include "spots/classic_row.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "core/text.h"

namespace spots {
namespace {

using core::InStr;
using core::Mid;
using core::Position;

constexpr std::size_t kSpotterAndFrequency = 17;
constexpr std::size_t kTail = 4;  // behind the time, for words on the spotter
constexpr std::size_t kHead = 39;
static_assert(kHead + kCommentWidth + kTimeWidth + kTail == kTableWidth);

constexpr Position kSpotterColumn = 7;
constexpr Position kFrequencyEnd = 24;
constexpr Position kFrequencyWidth = 11;
constexpr Position kCallColumn = 27;

void AppendPadded(std::string_view text, std::size_t width, std::string& row) {
  row += text;
  if (text.size() < width) row.append(width - text.size(), ' ');
}

void AppendRightAligned(double kHz, std::size_t width, std::string& row) {
  const std::size_t start = row.size();
  AppendFrequency(kHz, row);
  const std::size_t length = row.size() - start;
  if (length < width) row.insert(start, width - length, ' ');
}

}  // namespace

void AppendFrequency(double kHz, std::string& text) {
  std::array<char, 512> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), RoundHalfUp(kHz, 1),
                                 std::chars_format::fixed, 1);
  text.append(buffer.data(), end.ptr);
}

void ClassicRow(const Spot& spot, std::string& row) {
  row = "DX de ";
  row += spot.Spotter;
  row += ':';
  AppendRightAligned(
      spot.Freq, kSpotterAndFrequency - std::min(spot.Spotter.size(), kSpotterAndFrequency), row);
  row += ' ';
  row += spot.LotwMark;
  AppendPadded(spot.DxCall, kCallWidth, row);
  row += ' ';
  AppendPadded(std::string_view(spot.Comment).substr(0, kCommentWidth), kCommentWidth, row);
  row += spot.SpotTime;
  row += 'Z';
}

std::string Stars(int width) { return std::string(static_cast<std::size_t>(width), '*'); }

RowCalls LookUpCalls(std::string_view row) {
  const Position colon = InStr(kSpotterColumn, row, ":");
  if (colon == 0)
    return {.call = Mid(row, kCallColumn, kCallWidth), .spotter = {}, .frequency = {}};
  const std::string_view behind = core::LTrim(Mid(row, colon + 1));
  const Position wordEnd = core::Len(row) - core::Len(behind) + InStr(behind, " ") - 1;
  const Position end = std::max(wordEnd, kFrequencyEnd);
  const Position start = std::max(colon + 1, end - kFrequencyWidth + 1);
  return {.call = Mid(row, end - kFrequencyEnd + kCallColumn, kCallWidth),
          .spotter = Mid(row, kSpotterColumn, colon - kSpotterColumn),
          .frequency = core::Trim(Mid(row, start, end - start + 1))};
}

bool IsSkimmerRow(std::string_view row) { return row.find("-#") != std::string_view::npos; }

}  // namespace spots
