#include "spots/row_store.h"

namespace spots {
namespace {

std::size_t SizeOf(const TableRow& row) { return row.Text().size() + 2; }

}  // namespace

void RowStore::Append(const TableRow& row) {
  rows_.push_back(row);
  characters_ += SizeOf(row);
}

std::size_t RowStore::KeepLast(std::size_t characters) {
  std::size_t rows = 0;
  for (std::size_t left = characters_; left > characters; ++rows) left -= SizeOf(rows_[rows]);
  return RemoveRows(rows);
}

std::size_t RowStore::CutBefore(std::size_t position) {
  std::size_t rows = 0;
  for (std::size_t begins = 1; rows + 1 < rows_.size(); ++rows) {
    begins += SizeOf(rows_[rows]);
    if (begins > position) break;
  }
  return RemoveRows(rows);
}

std::size_t RowStore::RemoveRows(std::size_t rows) {
  std::size_t spots = rows;
  for (; rows > 0; --rows) {
    characters_ -= SizeOf(rows_.front());
    if (rows_.front().IsStars()) --spots;
    rows_.pop_front();
  }
  return spots;
}

void RowStore::Clear() {
  rows_.clear();
  characters_ = 0;
}

void RowStore::ClearStars() {
  std::erase_if(rows_, [this](const TableRow& row) {
    if (row.IsStars()) characters_ -= SizeOf(row);
    return row.IsStars();
  });
}

}  // namespace spots
