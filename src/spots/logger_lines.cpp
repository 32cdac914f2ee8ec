#include "spots/logger_lines.h"

#include <algorithm>
#include <string_view>

#include "core/text.h"
#include "spots/classic_row.h"

namespace spots {
namespace {

// Of the long line.
constexpr std::size_t kCallAndComment = 42;
constexpr std::size_t kMarkPlace = 68;

// Of the short line.
constexpr std::size_t kFrequency = 8;
constexpr std::size_t kUpToCall = 22;
constexpr std::size_t kDate = 11;
constexpr std::size_t kComment = 40;
constexpr std::size_t kLine = 78;

bool IsBlank(std::string_view text) { return core::Trim(text).empty(); }

// Puts the text there if nothing but blanks is in its way. False: something is.
bool PutOnBlanks(std::string_view text, std::size_t place, std::string& line) {
  if (place + text.size() > line.size()) return false;
  if (!IsBlank(std::string_view(line).substr(place, text.size()))) return false;
  line.replace(place, text.size(), text);
  return true;
}

void AppendCommentField(const Spot& spot, const LoggerLineOptions& options, std::string& line) {
  const std::size_t call = std::max(spot.DxCall.size(), kCallWidth);
  const std::size_t start = line.size();
  const std::size_t room = kCallAndComment - std::min(call, kCallAndComment);
  line += std::string_view(spot.Comment).substr(0, room);
  if (options.dxState && !IsBlank(spot.DxState)) (line += ' ') += spot.DxState;
  line.resize(start + room, ' ');
}

// The mark and the state just before the spotter, or the mark alone if there is no room for both.
void PutMarks(const Spot& spot, const LoggerLineOptions& options, std::size_t spotter,
              std::string& line) {
  constexpr std::size_t both = 3;
  const std::string_view mark = core::Left(spot.LotwMark, 1);
  const std::string_view state = core::Left(spot.DxState, 2);
  const bool roomForBoth = IsBlank(std::string_view(line).substr(spotter - both, both));
  if (options.dxState && roomForBoth && !IsBlank(state)) {
    line.replace(spotter - state.size(), state.size(), state);
    PutOnBlanks(mark, spotter - state.size() - 1, line);
  } else {
    PutOnBlanks(mark, spotter - 1, line);
  }
}

}  // namespace

void LoggerLongLine(const Spot& spot, const LoggerLineOptions& options, std::string& line) {
  line.clear();
  AppendHead(spot, line);
  line += "  ";
  AppendPadded(spot.DxCall, kCallWidth, line);
  line += ' ';
  AppendCommentField(spot, options, line);
  ((line += ' ') += spot.SpotTime) += 'Z';
  if (options.membership) PutOnBlanks(core::Left(spot.LotwMark, 1), kMarkPlace, line);
  if (!options.spotterQth) return;
  const std::string_view qth = IsBlank(spot.OrigState) ? spot.OrigCty : spot.OrigState;
  if (!IsBlank(qth)) (line += ' ') += qth;
}

void LoggerShortLine(const Spot& spot, const LoggerLineOptions& options, std::string& line) {
  line.clear();
  AppendFrequency(spot.Freq, line);
  if (line.size() < kFrequency) line.insert(0, kFrequency - line.size(), ' ');
  (line += "  ") += spot.DxCall;
  if (line.size() > kUpToCall) line += "  ";
  if (line.size() < kUpToCall) line.resize(kUpToCall, ' ');
  AppendRightAligned(spot.SpotDate, kDate, line);
  ((line += ' ') += spot.SpotTime) += "Z  ";
  const std::size_t start = line.size();
  const std::size_t spotter = spot.Spotter.size() + 2;
  const std::size_t end = std::max(kLine, start + spotter);
  line += std::string_view(spot.Comment).substr(0, kComment);
  line.resize(end - spotter, ' ');
  PutMarks(spot, options, line.size(), line);
  ((line += '<') += spot.Spotter) += '>';
}

}  // namespace spots
