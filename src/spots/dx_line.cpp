#include "spots/dx_line.h"

#include "core/text.h"

namespace spots {
namespace {

using core::InStr;
using core::Left;
using core::Len;
using core::LTrim;
using core::Mid;
using core::Position;
using core::Right;
using core::Trim;

// Nodes send less than a hundred characters. What is far beyond that is no spot.
constexpr std::size_t kLongestLine = 4096;

constexpr Position kSpotterColumn = 7;

constexpr MidnightLimits kMidnight = {.late = 2345, .early = 15};

void EmptyPlainFields(Spot& spot) {
  for (std::string* field : {&spot.SpotDate, &spot.OrigState, &spot.OrigCty, &spot.DxCty,
                             &spot.DxCq, &spot.Node, &spot.Comment, &spot.DxGrid, &spot.OrigGrid})
    field->clear();
}

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
  spot.Spotter = word;
  if (node.IsClx())
    for (char& byte : spot.Spotter) byte = core::UCase(byte);
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
  const Position blank = InStr(2, tail, " ");
  if (blank == 0) return false;
  spot.DxCall = LTrim(Left(tail, blank - 1));
  tail = Mid(tail, blank + 1);
  return true;
}

// The time and the word behind it, if there is one, from the end of `tail`.
void TakeTime(std::string_view& tail, const NodeFacts& node, Spot& spot) {
  constexpr Position kEnd = 10;
  const std::string_view last = Right(tail, kEnd);
  const Position blank = InStr(6, last, " ");
  const Position time = blank > 0 ? blank - 5 : 6;
  if (blank > 0 && !node.IsWinCluster()) spot.OrigCty = Mid(last, blank + 1);
  spot.SpotTime = Mid(last, time, 4);
  spot.SpotHHMM = core::ValInt(spot.SpotTime);
  tail = Left(tail, Len(tail) + time - kEnd - 1);
}

// A word of up to five characters that two blanks set apart at the end of a comment, with the
// blanks behind it: a country, or a zone.
std::string_view ExtractTrailingCty(std::string_view text) {
  if (Len(text) < 24) return {};
  std::string_view word = LTrim(Right(text, 8));
  for (const Position length : {7, 6, 5, 4}) {
    if (Len(word) < length) return word;
    word = LTrim(Right(text, length));
  }
  return Len(word) >= 3 ? std::string_view() : word;
}

void TakeComment(std::string_view tail, const NodeFacts& node, Spot& spot) {
  if (!core::EndsWith(tail, " ")) {
    spot.Comment = node.KeepsLeadingBlanks() ? tail : LTrim(tail);
    return;
  }
  const std::string_view word = ExtractTrailingCty(tail);
  spot.Comment = Trim(Left(tail, Len(tail) - Len(word)));
  std::string_view country = Trim(word);
  if (core::StartsWith(country, "+")) country.remove_prefix(1);
  spot.DxCty = country;
}

}  // namespace

bool ParseDxLine(std::string_view line, const NodeFacts& node, const Moment& now, Spot& spot) {
  if (line.size() > kLongestLine) return false;
  EmptyPlainFields(spot);
  std::string_view tail = Mid(line, kSpotterColumn);
  if (!TakeSpotter(tail, node, spot) || !TakeFrequency(tail, spot) || !TakeCall(tail, spot))
    return false;
  if (node.IsWinCluster()) spot.DxCq = Right(line, 2);
  TakeTime(tail, node, spot);
  TakeComment(tail, node, spot);
  InferDate(spot.SpotHHMM, now, kMidnight, spot.SpotDate);
  return true;
}

}  // namespace spots
