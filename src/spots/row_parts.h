#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "spots/row_layout.h"
#include "spots/table_row.h"

namespace spots {

// The fields of a row, for who speaks it. The views point into the row. Calls are whole.
struct RowParts {
  std::string_view head;  // what stands before the spotter
  std::string_view spotter;
  std::string_view frequency;
  std::string_view mark;  // of members; a blank: none
  std::string_view call;
  std::string_view comment;
  std::string_view time;  // "2116Z"
  std::string_view tail;  // what else there is on the stations
};

// Total: what a row doesn't have is empty, and one that no spot made is all head.
RowParts PartsOf(const TableRow& row);

// How a field is drawn.
enum class Ink { Dim, Text, Band, Call };

// A field as it is drawn: cut to the room that its columns have, at a place that no other field of
// the row can shift.
struct DrawnField {
  std::string_view text;
  int place = 0;  // the column where it begins, from 0
  Ink ink = Ink::Dim;
};

class DrawnRow {
 public:
  void Add(std::string_view text, int place, Ink ink) {
    if (!text.empty()) fields_[count_++] = {text, place, ink};
  }
  const DrawnField* begin() const { return fields_.data(); }
  const DrawnField* end() const { return fields_.data() + count_; }

 private:
  std::array<DrawnField, kColumnCount + 2> fields_;
  std::size_t count_ = 0;
};

// What there is to draw of a row of spots.
DrawnRow Drawn(const TableRow& row);

// The text of a column of the row, blanks around it trimmed; empty if the row doesn't show it.
// `layout` is that of the row's shape.
std::string_view FieldOf(const TableRow& row, const RowLayout& layout, Column column);

}  // namespace spots
