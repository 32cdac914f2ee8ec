#pragma once

#include <cstddef>
#include <deque>
#include <functional>

#include "core/observers.h"
#include "spots/table_row.h"

namespace spots {

// RtbDx: the coloured rows on view, from the top. As bounded as the store that they come from.
class DxPane {
 public:
  // What happened: the first `removed` rows went, then `added` rows came at the end. `allNew`: that
  // is all of them each time. `sameList`: of what is all new, most was there before; who reads it
  // stays where he is.
  struct Change {
    std::size_t removed = 0;
    std::size_t added = 0;
    bool allNew = false;
    bool sameList = false;
  };

  const std::deque<TableRow>& Rows() const { return rows_; }

  // Told of each change until the result goes; what stands here already is told as all new at once.
  platform::Registration Observe(std::function<void(const Change&)> observer);

  // From the next Redraw on the newest row stands at the top; else at the end.
  void SetNewestFirst(bool newestFirst) { newestFirst_ = newestFirst; }

  void Append(const TableRow& row);
  // The oldest spots leave, and the separators between them.
  void RemoveSpots(std::size_t spots);
  // `rows` stand from the oldest to the newest.
  void Redraw(const std::deque<TableRow>& rows);
  // The same rows in an order of their own, from the top, with a few that came or went.
  void Refresh(std::deque<TableRow> rows);

 private:
  void TellRenewed(std::size_t before);

  std::deque<TableRow> rows_;
  bool newestFirst_ = false;
  core::Observers<const Change&> observers_;
};

}  // namespace spots
