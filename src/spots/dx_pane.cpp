#include "spots/dx_pane.h"

namespace spots {

platform::Registration DxPane::Observe(std::function<void(const Change&)> observer) {
  observer({.removed = 0, .added = rows_.size(), .allNew = true});
  return observers_.Add(std::move(observer));
}

void DxPane::Append(const TableRow& row) {
  rows_.push_back(row);
  observers_.Tell({.removed = 0, .added = 1, .allNew = false});
}

void DxPane::RemoveSpots(std::size_t spots) {
  std::size_t removed = 0;
  for (; spots > 0 && !rows_.empty(); ++removed) {
    if (!rows_.front().IsStars()) --spots;
    rows_.pop_front();
  }
  if (removed > 0) observers_.Tell({.removed = removed, .added = 0, .allNew = false});
}

void DxPane::Redraw(const std::deque<TableRow>& rows) {
  const std::size_t removed = rows_.size();
  rows_ = rows;
  observers_.Tell({.removed = removed, .added = rows_.size(), .allNew = true});
}

}  // namespace spots
