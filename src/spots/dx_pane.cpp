#include "spots/dx_pane.h"

#include <utility>

namespace spots {

platform::Registration DxPane::Observe(std::function<void(const Change&)> observer) {
  observer({.removed = 0, .added = rows_.size(), .allNew = true});
  return observers_.Add(std::move(observer));
}

void DxPane::Append(const TableRow& row) {
  if (newestFirst_) {
    rows_.push_front(row);
    TellRenewed(rows_.size() - 1);
  } else {
    rows_.push_back(row);
    observers_.Tell({.removed = 0, .added = 1});
  }
}

void DxPane::RemoveSpots(std::size_t spots) {
  const std::size_t before = rows_.size();
  while (spots > 0 && !rows_.empty()) {
    const TableRow& oldest = newestFirst_ ? rows_.back() : rows_.front();
    if (!oldest.IsStars()) --spots;
    newestFirst_ ? rows_.pop_back() : rows_.pop_front();
  }
  const std::size_t removed = before - rows_.size();
  if (removed == 0) return;
  if (newestFirst_)
    TellRenewed(before);
  else
    observers_.Tell({.removed = removed, .added = 0});
}

void DxPane::Redraw(const std::deque<TableRow>& rows) {
  const std::size_t removed = rows_.size();
  if (newestFirst_)
    rows_.assign(rows.rbegin(), rows.rend());
  else
    rows_ = rows;
  observers_.Tell({.removed = removed, .added = rows_.size(), .allNew = true});
}

void DxPane::Refresh(std::deque<TableRow> rows) {
  const std::size_t before = rows_.size();
  rows_ = std::move(rows);
  TellRenewed(before);
}

void DxPane::TellRenewed(std::size_t before) {
  observers_.Tell({.removed = before, .added = rows_.size(), .allNew = true, .sameList = true});
}

}  // namespace spots
