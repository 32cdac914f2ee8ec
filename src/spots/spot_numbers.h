#pragma once

#include <cstddef>
#include <string>

#include "core/controls.h"
#include "core/settings.h"
#include "platform/scheduler.h"

namespace spots {

// The display of "Show Spot Nrs", how many rows the view holds, and the time that a spot takes.
class SpotNumbers {
 public:
  // The settings outlive it.
  explicit SpotNumbers(const core::Settings& settings);

  core::Label txtrtb2;
  core::Label txtTime;  // " 0.003": seconds from the line of the last spot in the table to its row

  // The setting has been read or changed.
  void SetupSpotNrs();
  // The view holds that many rows.
  void ShowRows(std::size_t rows) { txtrtb2.Caption.Set(std::to_string(rows)); }
  void ShowTime(platform::Milliseconds time);

 private:
  const core::Settings& settings_;
};

}  // namespace spots
