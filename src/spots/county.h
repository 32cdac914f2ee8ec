#pragma once

#include "core/settings.h"
#include "spots/spot.h"

namespace spots {

// Whether the spot is to be dropped as one of a station that is mobile in a county: behind the
// first "/" of its call stand three letters or more that aren't "QRP". Needs its switch.
bool RejectCounty(const Spot& spot, const core::Settings& settings);

}  // namespace spots
