#pragma once

namespace spots {

// What the operator has chosen to see of a spot. The rows follow it, and so do the corrections: a
// field that is not on show is not corrected either.
struct ShownColumns {
  bool Expanded = false;  // the expanded display; else the classic one
  bool Wide = false;      // comments at their full length
  bool Node = false;
  bool DxCty = false;
  bool DxState = false;
  bool DxCq = false;
  bool DxItu = false;
  bool DxGrid = false;
  bool OrigCty = false;
  bool OrigState = false;
  bool OrigCq = false;
  bool OrigItu = false;
  bool OrigGrid = false;
  bool Comments = false;
  bool Bearing = false;
  bool Date = false;
  bool Distance = false;
  bool Kilometres = false;  // distances; else miles
  bool SpotterIp = false;
  bool CountryName = false;  // before the comment
};

}  // namespace spots
