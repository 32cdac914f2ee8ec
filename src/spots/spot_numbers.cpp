#include "spots/spot_numbers.h"

#include "core/dates.h"

namespace spots {

SpotNumbers::SpotNumbers(const core::Settings& settings) : settings_(settings) {
  txtrtb2.ToolTip.Set("Spots in this view");
  SetupSpotNrs();
}

void SpotNumbers::SetupSpotNrs() { txtrtb2.Visible.Set(settings_.ShowSpotNrs); }

void SpotNumbers::ShowTime(platform::Milliseconds time) {
  txtTime.Caption.Set(" " + core::Seconds(time, 1, 3));
}

}  // namespace spots
