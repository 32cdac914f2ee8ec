#pragma once

#include <deque>
#include <vector>

#include "spots/dx_sort.h"
#include "spots/row_layout.h"
#include "spots/sort_key.h"
#include "spots/table_row.h"

namespace spots {

// All rows of a store in the order of one column, those that are empty there left out. Within what
// is equal the order is that of the times, over midnight too, then of the frequencies.
class AllSort {
 public:
  // By the column of that button. `folding`: in the order of the spotters' addresses each spotter
  // stands once.
  void Rebuild(const std::deque<TableRow>& rows, int button, bool folding, const SortMoment& now);

  template <class Use>
  void ForEach(Use use) const {
    for (const Item& item : items_) use(item.row);
  }

 private:
  struct Item {
    SortKey<30> key;
    TableRow row;
  };

  void AddItem(const TableRow& row, Column column, const SortMoment& now);
  void MarkSharedAddresses();

  std::vector<Item> items_;
  std::vector<TableRow> spotters_;  // while folding
  RowLayout layout_;                // of the row before
  std::uint32_t shape_ = 0;
};

}  // namespace spots
