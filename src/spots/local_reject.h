#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "core/controls.h"
#include "core/settings.h"
#include "spots/node_facts.h"
#include "spots/spot.h"

namespace spots {

// What the filters that are in force at the node say of countries.
struct CountryFilter {
  virtual ~CountryFilter() = default;
  virtual bool LimitsDxCountries() const = 0;
  // Whether the country of that prefix is ticked among those of the DX station.
  virtual bool DxCountryTicked(std::string_view prefix) const = 0;
};

// Applies the node's country filters once more at home: nodes let spots through.
class LocalReject {
 public:
  // All outlive this. `delayedWriteCfg` keeps the operator's choice.
  LocalReject(core::Settings& settings, const CountryFilter& filter,
              std::function<void()> delayedWriteCfg);

  core::Check CorrectErrors;  // the menu's switch; disabled where the node gives no hold for it
  core::Label lblFilterErrors;

  // Ticks the switch as the settings say.
  void Load();
  // The filter has changed: the next spot may still have been let through by the old one.
  void SkipNext() { skipNext_ = true; }

  // True to drop the spot, which is counted. `zv11Seen`: extended lines have come.
  bool LocalRejectSpot(const Spot& spot, const NodeFacts& node, bool zv11Seen);

 private:
  bool Applies(const NodeFacts& node, bool zv11Seen);
  void Count(const Spot& spot);

  core::Settings& settings_;
  const CountryFilter& filter_;
  std::function<void()> delayedWriteCfg_;
  bool skipNext_ = false;
  std::uint64_t errors_ = 0;
  platform::Registration choosing_;
};

}  // namespace spots
