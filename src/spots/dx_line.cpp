#include "spots/dx_line.h"

#include "core/text.h"
#include "spots/added_words.h"
#include "spots/clock_time.h"
#include "spots/spot_line.h"

namespace spots {
namespace {

using core::InStr;
using core::Left;
using core::Len;
using core::LTrim;
using core::Mid;
using core::Position;
using core::Right;

constexpr Position kSpotterColumn = 7;

constexpr MidnightLimits kMidnight = {.late = 2345, .early = 15};

// Where the colon stands that a digit follows at once; 0 if there is none.
Position GluedColon(std::string_view word) {
  for (Position at = InStr(word, ":"); at > 0; at = InStr(at + 1, word, ":")) {
    const std::string_view next = Mid(word, at + 1, 1);
    if (next >= "0" && next <= "9") return at;
  }
  return 0;
}

// Each of these takes its piece from the front of `tail`, which keeps what stands behind it.

bool TakeSpotter(std::string_view& tail, const NodeFacts& node, Spot& spot) {
  const Position blank = InStr(tail, " ");
  if (blank == 0) return false;
  std::string_view word = Left(tail, blank - 1);
  if (const Position colon = GluedColon(word); colon > 0) {
    word = Left(word, colon);
    tail = Mid(tail, colon + 1);
  } else {
    tail = LTrim(tail.substr(word.size()));
  }
  if (core::EndsWith(word, ":")) word.remove_suffix(1);
  SetSpotter(word, node, spot);
  return true;
}

bool TakeFrequency(std::string_view& tail, Spot& spot) {
  const Position blank = InStr(tail, " ");
  if (blank == 0) return false;
  spot.Freq = core::Val(Left(tail, blank - 1));
  tail = Mid(tail, blank + 1);
  return true;
}

bool TakeCall(std::string_view& tail, Spot& spot) {
  tail = LTrim(tail);
  const Position blank = InStr(tail, " ");
  if (blank == 0) return false;
  spot.DxCall = Left(tail, blank - 1);
  tail = Mid(tail, blank + 1);
  return true;
}

constexpr Position kTimeWidth = 5;  // with its "Z"

bool IsTimeAt(Position at, std::string_view text) {
  if (at < 1 || !IsClockTime(Mid(text, at, 4))) return false;
  const std::string_view behind = Mid(text, at + kTimeWidth, 1);
  // At the end of a line the time may touch the comment.
  return behind.empty() || (behind == " " && (at == 1 || Mid(text, at - 1, 1) == " "));
}

// Where the last word like "2116Z" begins; 0 if there is none.
Position LastTime(std::string_view text) {
  for (auto z = text.rfind('Z'); z != std::string_view::npos; z = text.rfind('Z', z - 1)) {
    const Position at = static_cast<Position>(z) + 1 - (kTimeWidth - 1);
    if (IsTimeAt(at, text)) return at;
    if (z == 0) break;
  }
  return 0;
}

struct Ending {
  std::string_view before;
  std::string_view time;
  std::string_view behind;
};

// Of a line that shows no time: the place is counted from the line's end, or from its last word.
Ending PresumedEnding(std::string_view text) {
  constexpr Position kEnd = 10;
  const std::string_view last = Right(text, kEnd);
  const Position blank = InStr(6, last, " ");
  const Position time = blank > 0 ? blank - kTimeWidth : 6;
  const std::string_view behind = blank > 0 ? Mid(last, blank + 1) : std::string_view();
  return {Left(text, Len(text) + time - kEnd - 1), Mid(last, time, 4), behind};
}

Ending EndingOf(std::string_view text) {
  const Position time = LastTime(text);
  if (time == 0) return PresumedEnding(text);
  return {Left(text, time - 1), Mid(text, time, 4), Mid(text, time + kTimeWidth)};
}

}  // namespace

bool ParseDxLine(std::string_view line, const NodeFacts& node, const WordFacts& words,
                 const Moment& now, Spot& spot) {
  if (line.size() > kLongestLine) return false;
  EmptyPlainFields(spot);
  std::string_view tail = Mid(line, kSpotterColumn);
  if (!TakeSpotter(tail, node, spot) || !TakeFrequency(tail, spot) || !TakeCall(tail, spot))
    return false;
  if (node.IsWinCluster()) spot.DxCq = Right(line, 2);
  const Ending ending = EndingOf(tail);
  SetTime(ending.time, spot);
  ReadComment(ending.before, node, words, spot);
  if (!node.IsWinCluster()) ReadOrigText(ending.behind, node, words, spot);
  InferDate(spot.SpotHHMM, now, kMidnight, spot.SpotDate);
  return true;
}

}  // namespace spots
