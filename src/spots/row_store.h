#pragma once

#include <cstddef>
#include <deque>

#include "spots/table_row.h"

namespace spots {

// The rows of one band in one view, oldest first. Each counts its characters and two more, for the
// line end before it.
class RowStore {
 public:
  const std::deque<TableRow>& Rows() const { return rows_; }
  std::size_t Characters() const { return characters_; }

  void Append(const TableRow& row);

  // These take whole rows from the front and say how many spots were among them.
  // Keeps as many rows as fit into the last `characters`.
  std::size_t KeepLast(std::size_t characters);
  // Takes what stands before the last row that begins within the first `position` characters.
  std::size_t CutBefore(std::size_t position);

  // Takes the separators out.
  void ClearStars();
  void Clear();

 private:
  std::size_t RemoveRows(std::size_t rows);

  std::deque<TableRow> rows_;
  std::size_t characters_ = 0;
};

}  // namespace spots
