#include "spots/spot_numbers.h"

namespace spots {

SpotNumbers::SpotNumbers(const core::Settings& settings) : settings_(settings) {
  txtrtb2.ToolTip.Set("Spots in this view");
  SetupSpotNrs();
}

void SpotNumbers::SetupSpotNrs() { txtrtb2.Visible.Set(settings_.ShowSpotNrs); }

}  // namespace spots
