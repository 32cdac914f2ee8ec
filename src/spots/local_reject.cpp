#include "spots/local_reject.h"

#include <utility>

namespace spots {

LocalReject::LocalReject(core::Settings& settings, const CountryFilter& filter,
                         std::function<void()> delayedWriteCfg)
    : settings_(settings), filter_(filter), delayedWriteCfg_(std::move(delayedWriteCfg)) {
  CorrectErrors.Caption.Set("Correct Filter Errors");
  lblFilterErrors.Visible.Set(false);
  choosing_ = CorrectErrors.Click.Add([this] {
    settings_.CorrectErrors = CorrectErrors.Value.Get();
    delayedWriteCfg_();
  });
  Load();
}

void LocalReject::Load() { CorrectErrors.Value.Set(settings_.CorrectErrors); }

bool LocalReject::LocalRejectSpot(const Spot& spot, const NodeFacts& node, bool zv11Seen) {
  if (std::exchange(skipNext_, false)) return false;
  if (!Applies(node, zv11Seen) || spot.OrigCty.empty()) return false;
  if (!filter_.LimitsDxCountries() || filter_.DxCountryTicked(spot.DxCty)) return false;
  Count(spot);
  return true;
}

bool LocalReject::Applies(const NodeFacts& node, bool zv11Seen) {
  if (node.IsSpider()) {
    // This kind takes no correction: the switch says so once there would be something to correct.
    if (zv11Seen && CorrectErrors.Value.Get()) CorrectErrors.Enabled.Set(false);
    return false;
  }
  if (node.IsArCluster()) {
    if (node.Ar17Refused) return false;
    CorrectErrors.Enabled.Set(true);
  }
  return CorrectErrors.Value.Get() && CorrectErrors.Enabled.Get();
}

void LocalReject::Count(const Spot& spot) {
  ++errors_;
  lblFilterErrors.Caption.Set("Cluster Filter Errors (DxCty) = " + std::to_string(errors_));
  lblFilterErrors.ToolTip.Set(spot.DxCty);
  lblFilterErrors.Visible.Set(true);
}

}  // namespace spots
