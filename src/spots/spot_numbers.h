#pragma once

#include <cstddef>
#include <string>

#include "core/controls.h"
#include "core/settings.h"

namespace spots {

// The display of "Show Spot Nrs": how many rows the view holds.
class SpotNumbers {
 public:
  // The settings outlive it.
  explicit SpotNumbers(const core::Settings& settings);

  core::Label txtrtb2;

  // The setting has been read or changed.
  void SetupSpotNrs();
  // The view holds that many rows.
  void ShowRows(std::size_t rows) { txtrtb2.Caption.Set(std::to_string(rows)); }

 private:
  const core::Settings& settings_;
};

}  // namespace spots
