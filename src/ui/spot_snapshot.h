#pragma once

#include <cstdint>
#include <deque>
#include <functional>

#include "spots/dx_pane.h"

namespace ui {

// The rows that are on the screen. They follow those of the table in batches, when they are told
// to, so that what is on the screen and what a press finds there are the same.
class SpotSnapshot {
 public:
  // Every row has a number of its own, the next one's is one more. It keeps it while it is here.
  using Number = std::int64_t;

  struct Batch {
    std::size_t removed = 0;  // from the front
    std::size_t added = 0;    // at the end
    bool allNew = false;      // that is all of them each time
    bool sameList = false;    // of what is all new, most was there before

    bool IsEmpty() const { return removed == 0 && added == 0 && !allNew; }
  };

  // The pane outlives it. `changed` is called for every change of the pane.
  SpotSnapshot(spots::DxPane& pane, std::function<void()> changed);

  const std::deque<spots::TableRow>& Rows() const { return rows_; }
  Number First() const { return first_; }
  Number End() const { return first_ + static_cast<Number>(rows_.size()); }
  bool Holds(Number row) const { return row >= First() && row < End(); }
  // Of a row that is here.
  const spots::TableRow& Row(Number row) const {
    return rows_[static_cast<std::size_t>(row - first_)];
  }

  // Takes what has happened since the last time.
  Batch Take();

 private:
  void Collect(const spots::DxPane::Change& change);

  spots::DxPane& pane_;
  std::function<void()> changed_;
  std::deque<spots::TableRow> rows_;
  Number first_ = 0;
  std::size_t removed_ = 0;  // of those here, how many have left the pane
  bool allNew_ = false;
  bool anotherList_ = false;
  platform::Registration observing_;
};

}  // namespace ui
