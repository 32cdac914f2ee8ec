#pragma once

#include <string>
#include <string_view>

#include "spots/row_layout.h"
#include "spots/spot.h"

namespace spots {

// What others have found out about a spot. Empty: not known, or not on show.
struct RowExtras {
  std::string_view bearing = {};      // "045", degrees
  std::string_view distance = {};     // in the unit on show
  std::string_view countryName = {};  // of the DX station
};

// The row of the table in the expanded display, in `row`: each field at its column, cut to it, and
// the comment behind them. The mark of members stands behind the frequency, and before the country.
// `layout` is an expanded one.
void ExpandedRow(const Spot& spot, const RowLayout& layout, const RowExtras& extras,
                 std::string& row);

}  // namespace spots
