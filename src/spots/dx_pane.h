#pragma once

#include <cstddef>
#include <deque>
#include <functional>

#include "core/observers.h"
#include "spots/table_row.h"

namespace spots {

// RtbDx: the coloured rows on view, oldest first. As bounded as the store that they come from.
class DxPane {
 public:
  // What happened: the first `removed` rows went, then `added` rows came at the end. `allNew`: that
  // is all of them each time, since another band or view is shown.
  struct Change {
    std::size_t removed = 0;
    std::size_t added = 0;
    bool allNew = false;
  };

  const std::deque<TableRow>& Rows() const { return rows_; }

  // Told of each change until the result goes; what stands here already is told as all new at once.
  platform::Registration Observe(std::function<void(const Change&)> observer);

  void Append(const TableRow& row);
  // The first spots leave, and the separators between them.
  void RemoveSpots(std::size_t spots);
  void Redraw(const std::deque<TableRow>& rows);

 private:
  std::deque<TableRow> rows_;
  core::Observers<const Change&> observers_;
};

}  // namespace spots
