#pragma once

#include <cstddef>
#include <deque>
#include <vector>

#include "spots/all_sort.h"
#include "spots/dx_sort.h"
#include "spots/row_layout.h"
#include "spots/table_row.h"

namespace spots {

// The rows of the selected store in another order than that of their coming. New ones wait until
// the next Run, which takes them in one go.
class SortedView {
 public:
  // Another order begins, by the number of its button; kTimeOrder: none.
  void Begin(int button, bool folding);
  bool IsActive() const { return button_ != kTimeOrder; }

  // A row has come into the selected store.
  void Queue(const TableRow& row);
  // The selected store is another one, or has lost rows.
  void Renew();
  // As many rows are in sight; 0: not known.
  void SetPaneRows(int rows);

  bool HasWork() const { return renew_ || !queue_.empty(); }
  // Brings the order up to date. `rows`: all of the selected store.
  void Run(const std::deque<TableRow>& rows, const SortMoment& now);
  // Lets go of what has become too old for the last hour.
  void Refresh(const std::deque<TableRow>& rows, const SortMoment& now);

  // What is to be shown, from the top; the title of the last hour behind it.
  std::deque<TableRow> Rows(bool reversed) const;

 private:
  void RunDxSort(const std::deque<TableRow>& rows, const SortMoment& now);

  int button_ = kTimeOrder;
  bool folding_ = true;
  bool renew_ = false;
  std::vector<TableRow> queue_;
  DxSort dxSort_;
  AllSort allSort_;
};

}  // namespace spots
