#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "spots/row_store.h"
#include "spots/sort_key.h"
#include "spots/table_row.h"

namespace spots {

// Now in UTC, for the sorted views.
struct SortMoment {
  int minutes = 0;  // of the day
  int day = 1;      // of the month
};

// The summary of the last hour: each station once a band, unless it has moved by 30 kHz, in the
// order of the frequencies; as many as there is room for, the newest ones.
class DxSort {
 public:
  // All anew from a store.
  void Rebuild(const std::deque<TableRow>& rows, const SortMoment& now);
  // Rows that have come since. All they do is counted as one call each.
  void Add(const std::vector<TableRow>& rows, const SortMoment& now);
  // Lets go of what has become too old, or too much.
  void Refresh(const SortMoment& now);

  // Whether the times count anew since it was asked last: the hour before midnight has begun, or
  // the clock has been set, and what was let go of may be of the last hour again. A rebuild is due.
  bool CountsAnew(const SortMoment& now);

  // As many items are kept; 0: any number.
  void SetRoom(std::size_t items) { room_ = items; }

  template <class Use>
  void ForEach(Use use) const {
    for (const Item& item : items_) use(item.row);
  }
  bool IsEmpty() const { return items_.empty(); }
  // "Last Hour", or "Since 2145" by the oldest on show where there was no room for all of it.
  const std::string& Title() const { return title_; }
  int SortWindow() const { return window_; }  // in minutes

 private:
  struct Item {
    SortKey<32> key;
    int minute;  // over midnight counted on
    int day;     // of the month; 0: not on show
    TableRow row;
  };

  static bool Before(const Item& a, const Item& b);
  static bool SameStation(const Item& a, const Item& b);
  Item ItemOf(const TableRow& row, const SortMoment& now) const;
  void Grow(std::size_t calls);
  void Prune(const SortMoment& now);
  void FitRoom(const SortMoment& now);
  void MakeTitle(int now);

  std::vector<Item> items_;
  std::vector<Item> kept_;  // while pruning
  std::string title_ = "Last Hour";
  int window_ = 60;
  int since_ = 0;  // of what is older something may have been let go; counted as the items are
  std::size_t room_ = 0;
  bool dayFlag_ = false;  // it has been before the last hour of the day
  int minute_ = 0;        // of the day, when CountsAnew was asked last
};

}  // namespace spots
