#include "spots/spot_line.h"

#include "core/text.h"

namespace spots {

void EmptyPlainFields(Spot& spot) {
  for (std::string* field :
       {&spot.SpotDate, &spot.OrigState, &spot.OrigCty, &spot.DxCty, &spot.DxCq, &spot.Node,
        &spot.Comment, &spot.DxGrid, &spot.OrigGrid, &spot.OrigLocation, &spot.SpotterIp})
    field->clear();
  spot.ExpandedLine = false;
}

void SetSpotter(std::string_view call, const NodeFacts& node, Spot& spot) {
  spot.Spotter = call;
  if (node.IsClx())
    for (char& byte : spot.Spotter) byte = core::UCase(byte);
}

void SetTime(std::string_view hhmm, Spot& spot) {
  spot.SpotTime = hhmm;
  spot.SpotHHMM = core::ValInt(hhmm);
}

}  // namespace spots
