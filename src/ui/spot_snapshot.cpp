#include "ui/spot_snapshot.h"

#include <algorithm>
#include <utility>

namespace ui {

SpotSnapshot::SpotSnapshot(spots::DxPane& pane, std::function<void()> changed)
    : pane_(pane), changed_(std::move(changed)) {
  observing_ = pane.Observe([this](const spots::DxPane::Change& change) { Collect(change); });
}

void SpotSnapshot::Collect(const spots::DxPane::Change& change) {
  removed_ = std::min(removed_ + change.removed, rows_.size());
  allNew_ = allNew_ || change.allNew;
  anotherList_ = anotherList_ || (change.allNew && !change.sameList);
  changed_();
}

SpotSnapshot::Batch SpotSnapshot::Take() {
  Batch batch{.removed = allNew_ ? rows_.size() : removed_, .allNew = allNew_};
  batch.sameList = allNew_ && !anotherList_;
  removed_ = 0;
  allNew_ = false;
  anotherList_ = false;
  first_ += static_cast<Number>(batch.removed);
  const auto gone = static_cast<std::ptrdiff_t>(batch.removed);
  rows_.erase(rows_.begin(), rows_.begin() + gone);
  const std::deque<spots::TableRow>& now = pane_.Rows();
  batch.added = now.size() - rows_.size();
  rows_.insert(rows_.end(), now.end() - static_cast<std::ptrdiff_t>(batch.added), now.end());
  return batch;
}

}  // namespace ui
