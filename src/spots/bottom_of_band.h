#pragma once

#include <string>
#include <string_view>

#include "spots/spot.h"

namespace spots {

// Whether the spot is on the very bottom edge of a band, where it is an announcement and no spot
// for the table. `displayLine` is its row. If it is, `announcement` becomes what is announced,
// of which the spotter is the sender.
bool BoBtoAnn(const Spot& spot, std::string_view displayLine, std::string& announcement);

}  // namespace spots
