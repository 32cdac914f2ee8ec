#include "spots/bands.h"

namespace spots {

int BandOf(double kHz) {
  for (int band = 1; band < kBandCount; ++band)
    if (kHz >= BandAt(band).from && kHz <= BandAt(band).to) return band;
  return 0;
}

}  // namespace spots
