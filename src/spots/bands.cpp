#include "spots/bands.h"

#include "core/text.h"
#include "spots/classic_row.h"

namespace spots {

int BandOf(double kHz) {
  for (int band = 1; band < kBandCount; ++band)
    if (kHz >= BandAt(band).from && kHz <= BandAt(band).to) return band;
  return 0;
}

int GetBand(std::string_view row) {
  const double kHz = core::Val(LookUpCalls(row).frequency);
  int nearest = 0;
  double edge = 0;
  for (int band = 1; band < kBandCount; ++band) {
    const double from = BandAt(band).from;
    if (from > kHz || from < edge) continue;
    nearest = band;
    edge = from;
  }
  return nearest;
}

}  // namespace spots
