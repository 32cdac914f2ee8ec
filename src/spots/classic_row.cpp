#include "spots/classic_row.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "core/text.h"

namespace spots {
namespace {

constexpr std::size_t kSpotterAndFrequency = 17;
constexpr std::size_t kShortField = 3;
constexpr std::size_t kLongField = 5;

bool IsBlank(std::string_view text) { return core::Trim(text).empty(); }

std::string_view DxWord(const Spot& spot, const ShownColumns& shown) {
  if (shown.DxState && !IsBlank(spot.DxState)) return spot.DxState;
  if (shown.DxCty) return spot.DxCty;
  if (shown.DxCq) return spot.DxCq;
  if (shown.DxItu) return spot.DxItu;
  return shown.DxGrid ? std::string_view(spot.DxGrid) : std::string_view();
}

struct Word {
  std::string_view text;
  std::size_t field = 0;
};

Word SpotterWord(const Spot& spot, const ShownColumns& shown) {
  if (shown.OrigCty) {
    const bool state = shown.OrigState && !IsBlank(spot.OrigState);
    return {state ? spot.OrigState : spot.OrigCty, kLongField};
  }
  if (shown.OrigState) return {spot.OrigState, kShortField};
  if (shown.OrigCq) return {spot.OrigCq, kShortField};
  if (shown.OrigItu) return {spot.OrigItu, kShortField};
  return shown.OrigGrid ? Word{spot.OrigGrid, kLongField} : Word{};
}

// The comment and behind it, a blank before the time, the word; the comment gives way to it.
std::size_t AppendComment(const Spot& spot, const RowLayout& layout, std::string& row) {
  const std::string_view word = core::Trim(DxWord(spot, layout.shape.shown));
  const std::size_t taken = word.empty() ? 0 : word.size() + 2;
  auto field = static_cast<std::size_t>(layout.Width(Column::Comment));
  if (layout.shape.shown.Wide)
    field = std::max(field, spot.Comment.size() + std::max<std::size_t>(taken, 1));
  const bool fits = taken <= field;
  const std::size_t room = field - (fits ? taken : 0);
  AppendPadded(std::string_view(spot.Comment).substr(0, room), room, row);
  if (fits && taken > 0) ((row += ' ') += word) += ' ';
  return field;
}

}  // namespace

void AppendFrequency(double kHz, std::string& text) {
  std::array<char, 512> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), RoundHalfUp(kHz, 1),
                                 std::chars_format::fixed, 1);
  text.append(buffer.data(), end.ptr);
}

void AppendDay(std::string_view date, std::string& text) {
  const core::Position dash = core::InStr(date, "-");
  AppendRightAligned(core::Right(core::Trim(core::Left(date, dash - 1)), 2), 2, text);
}

void AppendPadded(std::string_view text, std::size_t width, std::string& row) {
  row += text;
  if (text.size() < width) row.append(width - text.size(), ' ');
}

void AppendRightAligned(std::string_view text, std::size_t width, std::string& row) {
  if (text.size() < width) row.append(width - text.size(), ' ');
  row += text;
}

void AppendHead(const Spot& spot, std::string& row) {
  row += "DX de ";
  row += spot.Spotter;
  row += ':';
  const std::size_t start = row.size();
  AppendFrequency(spot.Freq, row);
  const std::size_t taken = row.size() - start + spot.Spotter.size();
  if (taken < kSpotterAndFrequency) row.insert(start, kSpotterAndFrequency - taken, ' ');
}

std::size_t ClassicRow(const Spot& spot, const RowLayout& layout, const ClassicOptions& options,
                       std::string& row) {
  row.clear();
  AppendHead(spot, row);
  row += ' ';
  AppendPadded(options.withoutMark ? std::string_view() : spot.LotwMark, 1, row);
  AppendPadded(spot.DxCall, kCallWidth, row);
  row += ' ';
  const std::size_t commentField = AppendComment(spot, layout, row);
  row += spot.SpotTime;
  row += 'Z';
  if (layout.shape.shown.Date) AppendDay(spot.SpotDate, row += ' ');
  const Word word = SpotterWord(spot, layout.shape.shown);
  AppendRightAligned(core::Trim(word.text).substr(0, word.field), word.field, row);
  row.resize(core::RTrim(row).size());
  return commentField;
}

std::string Stars(int width) { return std::string(static_cast<std::size_t>(width), '*'); }

}  // namespace spots
