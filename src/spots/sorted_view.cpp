#include "spots/sorted_view.h"

#include <algorithm>

namespace spots {
namespace {

// All rows that wait are in the store too: where many do, it is cheaper to begin anew.
constexpr std::size_t kMostWaiting = 2000;

constexpr int kRowsForOthers = 4;  // of the pane, in the summary
constexpr int kOwnColour = 0;

}  // namespace

void SortedView::Begin(int button, bool folding) {
  button_ = button;
  folding_ = folding;
  Renew();
}

void SortedView::Queue(const TableRow& row) {
  if (!IsActive() || renew_) return;
  if (queue_.size() == kMostWaiting) return Renew();
  queue_.push_back(row);
}

void SortedView::Renew() {
  queue_.clear();
  renew_ = IsActive();
}

void SortedView::SetPaneRows(int rows) {
  dxSort_.SetRoom(rows > 0 ? static_cast<std::size_t>(std::max(rows - kRowsForOthers, 1)) : 0);
}

void SortedView::Run(const std::deque<TableRow>& rows, const SortMoment& now) {
  if (button_ == kLastHour)
    RunDxSort(rows, now);
  else if (IsActive())
    allSort_.Rebuild(rows, button_, folding_, now);
  renew_ = false;
  queue_.clear();
}

void SortedView::Refresh(const std::deque<TableRow>& rows, const SortMoment& now) {
  if (HasWork() || button_ != kLastHour) return Run(rows, now);
  if (dxSort_.CountsAnew(now))
    dxSort_.Rebuild(rows, now);
  else
    dxSort_.Refresh(now);
}

void SortedView::RunDxSort(const std::deque<TableRow>& rows, const SortMoment& now) {
  const bool anew = dxSort_.CountsAnew(now) || renew_;
  if (anew)
    dxSort_.Rebuild(rows, now);
  else
    dxSort_.Add(queue_, now);
}

std::deque<TableRow> SortedView::Rows(bool reversed) const {
  std::deque<TableRow> rows;
  const auto add = [&](const TableRow& row) {
    if (reversed)
      rows.push_front(row);
    else
      rows.push_back(row);
  };
  if (button_ != kLastHour) {
    allSort_.ForEach(add);
    return rows;
  }
  dxSort_.ForEach(add);
  if (!rows.empty()) rows.emplace_back(dxSort_.Title(), TableRow::Kind::Title, kOwnColour);
  return rows;
}

}  // namespace spots
