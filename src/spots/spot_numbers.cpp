#include "spots/spot_numbers.h"

namespace spots {

SpotNumbers::SpotNumbers(const core::Settings& settings) : settings_(settings) {
  txtrtb2.ToolTip.Set("Spots in this view");
  SetupSpotNrs();
}

void SpotNumbers::SetupSpotNrs() { txtrtb2.Visible.Set(settings_.ShowSpotNrs); }

std::string FixNr(int n) {
  const std::string number = std::to_string(n) + " ";
  return n < 10 ? " " + number : number;
}

}  // namespace spots
