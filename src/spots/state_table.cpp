#include "spots/state_table.h"

#include <algorithm>

#include "core/quoted.h"
#include "core/text.h"

namespace spots {
namespace {

constexpr std::size_t kMostLines = 500;
constexpr std::size_t kLongestLine = 255;

constexpr core::Position kLatitudeColumn = 30;
constexpr core::Position kLongitudeColumn = 38;
constexpr core::Position kNumberWidth = 7;

StateTable::Row RowOf(std::string_view line) {
  return {.code = std::string(core::Left(line, 2)),
          .position = {.latitude = core::Val(core::Mid(line, kLatitudeColumn, kNumberWidth)),
                       .longitude = core::Val(core::Mid(line, kLongitudeColumn, kNumberWidth))},
          .heading = {}};
}

bool HasPosition(const StateTable::Row& row) {
  return row.position.latitude != 0 && row.position.longitude != 0;
}

}  // namespace

bool StateTable::Read(std::string_view text) {
  text = text.substr(0, kMostBytes);
  core::TakeLine(text);
  std::string_view rest = text;
  if (core::InStr(core::TakeLine(rest), "ALABAMA") == 0) return false;
  lines_.clear();
  while (!text.empty() && lines_.size() < kMostLines) {
    const std::string_view line = core::TakeLine(text);
    if (!line.empty() && line.size() <= kLongestLine) lines_.emplace_back(line);
  }
  std::sort(lines_.begin(), lines_.end());
  rows_.clear();
  for (const std::string& line : lines_)
    if (rows_.size() < kMostRows) rows_.push_back(RowOf(line));
  ComputeHeadings();
  return true;
}

bool StateTable::IsComplete() const {
  return rows_.size() == kMostRows && std::all_of(rows_.begin(), rows_.end(), HasPosition);
}

void StateTable::SetHome(const Home& home) {
  if (home == home_) return;
  home_ = home;
  ComputeHeadings();
}

void StateTable::ComputeHeadings() {
  Heading last;
  for (Row& row : rows_) {
    if (HasPosition(row)) last = Bearing(home_, row.position);
    row.heading = last;
  }
}

bool StateTable::FindHeadingState(std::string_view state, Heading& current) const {
  const auto at =
      std::lower_bound(rows_.begin(), rows_.end(), state,
                       [](const Row& row, std::string_view code) { return row.code < code; });
  const bool found = !state.empty() && at != rows_.end() && at->code == state;
  current = found ? at->heading : Heading{};
  return found;
}

FileState ReadState(platform::Files& files, const std::string& folder, StateTable& table) {
  const auto content = files.Read(folder + "/state.dat");
  if (content.fault != platform::Files::Fault::None) return StateOf(content.fault);
  const bool taken = table.Read(content.bytes);
  return taken && table.IsComplete() ? FileState::Read : FileState::Damaged;
}

}  // namespace spots
