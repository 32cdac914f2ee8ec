#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "spots/spot.h"

namespace spots {

// The row of the table in the classic display:
//   DX de DL1ABC:    14025.0  3Y0J         CW up 2                        2210Z
// Its columns, from 1: the spotter from 7, the frequency up to 24, the mark of members at 26, the
// call from 27, the comment from 40, the time up to 75. A spotter and a frequency that leave no
// room for each other, and a call of more than 12 characters, shift what stands behind them.

inline constexpr int kTableWidth = 79;
inline constexpr std::size_t kCallWidth = 12;
inline constexpr std::size_t kCommentWidth = 31;
inline constexpr std::size_t kTimeWidth = 5;

// Makes it in `row`.
void ClassicRow(const Spot& spot, std::string& row);

// A frequency as rows show it: with one decimal, rounded half up.
void AppendFrequency(double kHz, std::string& text);

// A separator of that many asterisks.
std::string Stars(int width);

// What a press on a row goes by. The views point into the row.
struct RowCalls {
  std::string_view call;  // the call's 12 columns, with the blanks
  std::string_view spotter;
  std::string_view frequency;
};

// Total: what a row doesn't have is empty.
RowCalls LookUpCalls(std::string_view row);

// Whether a Skimmer's spot made the row.
bool IsSkimmerRow(std::string_view row);

}  // namespace spots
