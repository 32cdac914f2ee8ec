#include "spots/member_files.h"

#include <algorithm>

#include "core/quoted.h"
#include "core/text.h"

namespace spots {
namespace {

constexpr core::Position kLotwColumn = 14;
constexpr core::Position kLotwColumns = 5;
constexpr std::size_t kLeastLotwLines = 1000;
constexpr std::string_view kAgMark = " AG ";
constexpr std::string_view kSortedMark = " MOLVA SORTED ";
constexpr std::string_view kFetchedMark = "LIST OF AG MEMBERS AS OF ";
constexpr std::string_view kLineEnd = "\r\n";

bool Holds(std::string_view text, std::string_view what) {
  return text.find(what) != std::string_view::npos;
}

bool MayBeCall(std::string_view text) { return !text.empty() && text.size() <= kLongestMember; }

void TakeColumn(std::string_view column, LotwFile& file) {
  if (Holds(column, "+)")) {
    ++file.skipped;
    return;
  }
  const std::string_view call = core::Trim(column.substr(0, column.find('(')));
  if (!call.empty()) file.calls.push_back(call);
}

// The number that the title begins with, behind its blank.
std::size_t SortedCount(std::string_view title) {
  std::string_view rest = core::Mid(title, 2);
  return static_cast<std::size_t>(std::max(core::ValInt(core::ExtractToCharacter(' ', rest)), 0));
}

void TakeSorted(std::string_view text, EqslFile& file) {
  const std::size_t count = std::min(SortedCount(file.title), kMostMembers);
  while (!text.empty() && file.calls.size() < count) {
    const std::string_view call = core::TakeLine(text);
    if (MayBeCall(call)) file.calls.push_back(call);
  }
  file.whole = file.calls.size() >= count;
}

void TakeFetched(std::string_view text, EqslFile& file) {
  while (!text.empty() && file.calls.size() < kMostMembers) {
    const std::string_view call = core::LTrim(core::TakeLine(text));
    if (MayBeCall(call)) file.calls.push_back(call);
  }
  file.whole = text.empty();
  std::sort(file.calls.begin(), file.calls.end());
}

}  // namespace

std::optional<LotwFile> ParseLotw(std::string_view text) {
  if (core::TakeLine(text) != "LOTW") return std::nullopt;
  LotwFile file;
  const bool lineEnds = text.ends_with('\n');
  std::size_t lines = 1;
  bool ended = false;
  for (; !text.empty() && file.calls.size() < kMostMembers; ++lines) {
    const std::string_view line = core::TakeLine(text);
    ended = ended || line.starts_with("&&");
    if (ended || line.starts_with("&")) continue;
    for (core::Position column = 0; column < kLotwColumns; ++column)
      TakeColumn(core::Mid(line, column * kLotwColumn + 1, kLotwColumn), file);
  }
  if (lines < kLeastLotwLines) return std::nullopt;
  file.whole = ended || lineEnds;
  return file;
}

std::optional<EqslFile> ParseEqsl(std::string_view text) {
  EqslFile file;
  file.title = core::TakeLine(text);
  if (!Holds(file.title, kAgMark)) return std::nullopt;
  file.sorted = Holds(file.title, kSortedMark);
  if (!file.sorted && !Holds(file.title, kFetchedMark)) return std::nullopt;
  file.sorted ? TakeSorted(text, file) : TakeFetched(text, file);
  return file;
}

std::string FormatEqsl(const EqslFile& file) {
  std::string text = " " + std::to_string(file.calls.size());
  text.append(kSortedMark).append(file.title).append(kLineEnd);
  for (const std::string_view call : file.calls) text.append(call).append(kLineEnd);
  return text;
}

}  // namespace spots
