#include "spots/reference_data.h"

#include <utility>

#include "core/text.h"
#include "spots/cty_file.h"
#include "spots/grid_square.h"

namespace spots {

ReferenceData::ReferenceData(platform::Files& files, platform::Dialogs& dialogs, std::string folder)
    : files_(files), dialogs_(dialogs), folder_(std::move(folder)) {}

void ReferenceData::Read() {
  ReadWLCty(files_, dialogs_, folder_, countries);
  ReadStates();
}

void ReferenceData::ReadStates() { StateFile.Set(ReadState(files_, folder_, states)); }

void ReferenceData::SetHome(const Home& home) {
  if (home == home_) return;
  home_ = home;
  countries.SetHome(home);
  states.SetHome(home);
}

Heading ReferenceData::HeadingOf(const Spot& spot) const {
  Heading heading;
  if (FromLocation(spot, heading)) return heading;
  if (!spot.DxGrid.empty()) return FindHeadingGrid(home_, spot.DxGrid);
  const bool hasState = !core::Trim(spot.DxState).empty();
  if (!hasState || !states.FindHeadingState(spot.DxState, heading))
    countries.FindHeading(spot.DxCty, heading);
  return heading;
}

bool ReferenceData::FromLocation(const Spot& spot, Heading& heading) const {
  const core::Position slash = core::InStr(spot.OrigLocation, "/");
  if (slash == 0) return false;
  heading = Bearing(home_, {.latitude = core::Val(core::Left(spot.OrigLocation, slash - 1)),
                            .longitude = core::Val(core::Mid(spot.OrigLocation, slash + 1))});
  return true;
}

}  // namespace spots
