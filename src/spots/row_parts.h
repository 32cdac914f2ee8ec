#pragma once

#include <string_view>

namespace spots {

// The fields of a classic row, for who draws it or speaks it. The views point into the row, so that
// they tell their columns too.
struct RowParts {
  std::string_view head;  // what stands before the spotter
  std::string_view spotter;
  std::string_view frequency;
  std::string_view mark;  // of members; a blank: none
  std::string_view call;
  std::string_view comment;
  std::string_view time;  // "2116Z"
  std::string_view tail;  // what stands behind the time
};

// Total: what a row doesn't have is empty, and a row that is of another kind is all head.
RowParts PartsOf(std::string_view row);

}  // namespace spots
