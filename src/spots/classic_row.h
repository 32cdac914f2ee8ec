#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "spots/row_layout.h"
#include "spots/spot.h"
#include "spots/table_row.h"

namespace spots {

// The row of the table in the classic display:
//   DX de DL1ABC:    14025.0  3Y0J         CW up 2                    KH6 2210Z   JA
// Its columns, from 1: the spotter from 7, the frequency up to 24, the mark of members at 26, the
// call from 27, the comment from 40, then the time, the day of the month, and a word on the spotter
// as the layout says. A spotter and a frequency that leave no room for each other, and a call of
// more than 12 characters, shift what stands behind them. Wide comments do so too.

inline constexpr std::size_t kCallWidth = 12;
inline constexpr std::size_t kTimeWidth = 5;

struct ClassicOptions {
  bool withoutMark = false;  // a blank in place of the mark of members
};

// Makes it in `row`; gives how many columns there are from its comment to its time.
std::size_t ClassicRow(const Spot& spot, const RowLayout& layout, const ClassicOptions& options,
                       std::string& row);

// A frequency as rows show it: with one decimal, rounded half up.
void AppendFrequency(double kHz, std::string& text);

// The day of the month in a date, 2 wide and right-aligned; blanks if there is none.
void AppendDay(std::string_view date, std::string& text);

// Text in a field of that width. A longer one keeps its length.
void AppendPadded(std::string_view text, std::size_t width, std::string& row);
void AppendRightAligned(std::string_view text, std::size_t width, std::string& row);

// "DX de ", the spotter, the colon and the frequency: the first 24 columns of a plain line.
void AppendHead(const Spot& spot, std::string& row);

// A separator of that many asterisks.
std::string Stars(int width);

// What a press on a row goes by.
struct RowCalls {
  std::string_view call;
  std::string_view spotter;
  std::string_view frequency;
};

// Of a row of the table: the whole calls, and the frequency that it shows. All empty if no spot
// made the row.
RowCalls LookUpCalls(const TableRow& row);

}  // namespace spots
