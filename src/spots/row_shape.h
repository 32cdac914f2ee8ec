#pragma once

#include <cstdint>

#include "spots/shown_columns.h"

namespace spots {

inline constexpr int kDefaultSpotWidth = 79;
inline constexpr int kLeastSpotWidth = 45;
inline constexpr int kMostSpotWidth = 130;

// What decides how a row is laid out. A row keeps that of its time, so that it can still be read
// when the operator has chosen anew.
struct RowShape {
  ShownColumns shown;
  int spotWidth = kDefaultSpotWidth;  // of a classic row, from kLeastSpotWidth to kMostSpotWidth
};

// The shape in one number, and back.
std::uint32_t Packed(const RowShape& shape);
RowShape Unpacked(std::uint32_t shape);

}  // namespace spots
