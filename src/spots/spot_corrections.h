#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "spots/node_facts.h"
#include "spots/shown_columns.h"
#include "spots/spot.h"

namespace spots {

// Corrects what the node says about the two stations of a spot: country, state and zones.
class SpotCorrections {
 public:
  // The operator's list of corrections. Edits the fields; true if it has an entry for the call, and
  // then nothing else corrects them.
  using ApplySpotFix =
      std::function<bool(std::string_view call, std::string& cty, std::string& state,
                         std::string& cq, std::string& itu, std::string& grid)>;

  explicit SpotCorrections(ApplySpotFix applySpotFix);

  // Another session: nothing is known of its node yet.
  void BeginSession() { nodeSendsStates_ = false; }

  // The two stations, each once for every spot, the DX first. What they find of the node's states
  // holds for the session.
  void FixDxSpot(Spot& spot, const NodeFacts& node, const ShownColumns& shown);
  void FixSpotterFields(Spot& spot, const NodeFacts& node, const ShownColumns& shown) const;

 private:
  ApplySpotFix applySpotFix_;
  bool nodeSendsStates_ = false;
};

}  // namespace spots
