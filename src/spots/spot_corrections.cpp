#include "spots/spot_corrections.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/call.h"
#include "core/text.h"
#include "spots/state_corrections.h"

namespace spots {
namespace {

using core::StartsWith;

// Countries of the K prefixes that have no state.
constexpr std::array<std::string_view, 6> kWithoutStates = {"KH3",  "KH4",  "KH5",
                                                            "KH5K", "KH7K", "KH9"};

struct CallArea {
  char digit;
  std::string_view cq;
  std::string_view itu;
};

constexpr std::array<CallArea, 10> kCallAreas = {{
    {'1', " 5", " 8"},
    {'2', " 5", " 8"},
    {'3', " 5", " 8"},
    {'4', "  ", " 8"},
    {'8', "  ", " 8"},
    {'5', " 4", " 7"},
    {'0', " 4", " 7"},
    {'6', " 3", " 6"},
    {'7', "  ", " 6"},
    {'9', " 4", " 8"},
}};

bool HasNoStates(std::string_view country) {
  return std::find(kWithoutStates.begin(), kWithoutStates.end(), country) != kWithoutStates.end();
}

// Of a call with a slash: "W7/DL1ABC", "AA7/DL1ABC", "K1ABC/7".
char CallAreaOf(std::string_view call) {
  const core::Position slash = core::InStr(call, "/");
  return slash == 3 || slash == 4 ? call[static_cast<std::size_t>(slash) - 2] : call.back();
}

void FixByCallArea(Spot& spot) {
  const char area = CallAreaOf(spot.DxCall);
  const auto row = std::find_if(kCallAreas.begin(), kCallAreas.end(),
                                [&](const CallArea& known) { return known.digit == area; });
  if (row == kCallAreas.end()) return;
  spot.DxCq = row->cq;
  spot.DxItu = row->itu;
}

bool IsMovedUsCall(const Spot& spot) {
  return StartsWith(spot.DxCty, "K") && core::InStr(spot.DxCall, "/") > 0;
}

// False if there is no such country, but one of call areas.
bool FixByCountry(Spot& spot) {
  if (HasNoStates(spot.DxCty)) {
    spot.DxState = "  ";
    return true;
  }
  const Possession* possession = PossessionOf(spot.DxCty);
  if (possession == nullptr) return false;
  spot.DxState = possession->state;
  spot.DxCq = possession->cq;
  spot.DxItu = possession->itu;
  return true;
}

// Whether the state of the DX decides about its country.
bool StateDecides(const Spot& spot) {
  if (spot.DxCty == "CE9" || spot.DxCty == "KG4") return !spot.DxState.empty();
  if (const Possession* possession = PossessionOf(spot.DxCty))
    return spot.DxState != possession->state;
  return StartsWith(spot.DxCty, "K");
}

bool ShowsSpotterFields(const ShownColumns& shown) {
  return shown.OrigCq || shown.OrigItu || shown.OrigCty || shown.OrigState;
}

// A spotter that the node places in Antarctica without any more. Calls of Japan and of the United
// States are given at home too; those of the bases stay there.
void FixAntarcticSpotter(Spot& spot) {
  const std::string call = core::Nossid(spot.Spotter);
  if (StartsWith(call, "8J")) {
    const bool isBase = call == "8J1RL";
    spot.OrigCty = "JA";
    spot.OrigCq = isBase ? "39" : "25";
    spot.OrigItu = isBase ? "67" : "45";
    return;
  }
  const bool isBase = call.size() == 6 && (StartsWith(call, "KC4AA") || StartsWith(call, "KC4US"));
  if (!StartsWith(call, "KC4") || isBase) return;
  spot.OrigCty = "K";
  spot.OrigCq = spot.OrigItu = "  ";
}

}  // namespace

SpotCorrections::SpotCorrections(ApplySpotFix applySpotFix)
    : applySpotFix_(std::move(applySpotFix)) {}

void SpotCorrections::FixDxSpot(Spot& spot, const NodeFacts& node, const ShownColumns& shown) {
  const bool isFixed =
      applySpotFix_(spot.DxCall, spot.DxCty, spot.DxState, spot.DxCq, spot.DxItu, spot.DxGrid);
  if (isFixed || node.IsZelva()) return;
  if (node.IsSpider() && !spot.DxState.empty()) nodeSendsStates_ = true;
  if (spot.DxCty == "VE") ProvinceFromCall(spot.DxState, spot.DxCall, spot.DxCq, spot.DxItu);
  if (shown.DxCty && spot.DxCty == "??") spot.DxCty = "QQ";
  if (IsMovedUsCall(spot) && !FixByCountry(spot)) {
    FixByCallArea(spot);
    return;
  }
  if (!nodeSendsStates_)
    spot.DxState = std::string(core::Trim(spot.DxState));
  else if (StateDecides(spot))
    StateToCountry(spot.DxState, spot.DxCty, spot.DxCq, spot.DxItu);
}

void SpotCorrections::FixSpotterFields(Spot& spot, const NodeFacts& node,
                                       const ShownColumns& shown) const {
  if (node.IsZelva()) return;
  const bool isFixed = applySpotFix_(spot.Spotter, spot.OrigCty, spot.OrigState, spot.OrigCq,
                                     spot.OrigItu, spot.OrigGrid);
  if (isFixed || !ShowsSpotterFields(shown)) return;
  const std::string_view country = core::Trim(spot.OrigCty);
  const bool isAntarctic = StartsWith(country, "CE9");
  if (StartsWith(country, "K") || (isAntarctic && !spot.OrigState.empty()))
    StateToCountry(spot.OrigState, spot.OrigCty, spot.OrigCq, spot.OrigItu);
  else if (isAntarctic)
    FixAntarcticSpotter(spot);
  else if (spot.OrigCty == "VE")
    ProvinceFromCall(spot.OrigState, "", spot.OrigCq, spot.OrigItu);
}

}  // namespace spots
