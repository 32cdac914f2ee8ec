#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include "spots/row_shape.h"

namespace spots {

// The fields of a row, by their number in ColumnStart.
enum class Column {
  Freq,
  Time,
  DxCall,
  Spotter,
  Node,
  DxCty,
  DxState,
  DxCq,
  DxItu,
  DxGrid,
  OrigCty,
  OrigState,
  OrigCq,
  OrigItu,
  OrigGrid,
  Comment,
  Bearing,
  Day,
  Distance,
  SpotterIp,
};
inline constexpr std::size_t kColumnCount = 20;

inline constexpr int kNotShown = 0;
inline constexpr int kToRowEnd = 1 << 20;

// Where the fields of a row stand.
//
// Classic: a head of fixed columns, the comment, then the time and a tail for words on the spotter.
// One word on the DX station stands at the end of the comment, a blank before the time; its columns
// and those of the word on the spotter are the same for all that may stand there.
// Expanded: each field in a column of its own, the comment last.
struct RowLayout {
  RowShape shape;
  std::array<int, kColumnCount> ColumnStart{};  // from 1; kNotShown: not in this row
  std::array<int, kColumnCount> ColumnWidth{};
  int FullWidth = 0;  // of a row; an expanded one's without its comment

  int Start(Column column) const { return ColumnStart[static_cast<std::size_t>(column)]; }
  int Width(Column column) const { return ColumnWidth[static_cast<std::size_t>(column)]; }
  bool Shows(Column column) const { return Start(column) != kNotShown; }
  bool IsExpanded() const { return shape.shown.Expanded; }
};

// Allocates nothing.
RowLayout ArPcScreenSetup(const RowShape& shape);

// Buttons that sort: their numbers are those of the columns, but for the first two and this one.
inline constexpr int kLastHour = 0;   // the summary of the last hour
inline constexpr int kTimeOrder = 1;  // as the spots came
inline constexpr int kSpotterIpOrder = 15;

// The column that a button sorts by.
Column SortColumn(int button);

// A button over its column.
struct SortButton {
  int button;
  int column;  // where the field begins, from 1
  int width;   // of the field
  bool atEnd;  // the field is right-aligned
  std::string_view caption;
};

// The buttons of the columns on show, from left to right. Fields that share a column share the
// button of the first of them.
std::vector<SortButton> OptDisplayPositions(const RowLayout& layout);

}  // namespace spots
