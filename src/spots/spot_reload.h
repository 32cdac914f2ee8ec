#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "core/controls.h"
#include "core/dates.h"
#include "core/settings.h"
#include "platform/files.h"
#include "platform/tasks.h"
#include "spots/spot.h"

namespace spots {

// Reads the spot log back into the table, so that it survives a restart. It goes in pieces, and the
// window lives on; what comes from the node waits meanwhile.
class SpotReload {
 public:
  static constexpr int kMostHours = 366 * 24;  // that it goes back

  struct Needs {
    std::function<void()> closeLog;                      // so that all that was logged can be read
    std::function<platform::Registration()> holdIntake;  // until the result goes
    std::function<void(std::string_view text)> showRaw;  // a line of the raw view
    // The steps of a spot that comes from the log, in their order. A duplicate by the normal test,
    // a Skimmer's spot too, goes no farther than isDupe.
    std::function<bool(const Spot& spot)> isDupe;
    std::function<void(const Spot& spot)> record;
    std::function<bool(const Spot& spot)> rejectCounty;  // true drops it from the table alone
    std::function<void(Spot& spot)> show;
  };

  // The references outlive it; `folder` is the program's. `scheduler` and `onFault` are those of
  // its Task.
  SpotReload(platform::Scheduler& scheduler, platform::Files& files, core::Calendar& calendar,
             const core::Settings& settings, std::string folder, Needs needs,
             platform::FaultHandler onFault);

  core::Property<bool> Reloading{false};       // no sound, no drawing while it lasts; its end draws
  core::Property<std::uint64_t> SpotsRead{0};  // in this reload, duplicates included; by hundreds

  // Begins. Nothing if a reload is under way.
  void ReloadSpots();
  // Ends the reload behind the line that it is at.
  void Stop() { stop_ = true; }

 private:
  class Scratch;

  platform::Task<> Reload();
  int SetLimit();  // today
  platform::Task<> ReloadDay(int day);
  void TakeLines(std::string_view& rest, int day, Scratch& scratch);
  void TakeSpot(int day, Scratch& scratch);

  platform::Files& files_;
  core::Calendar& calendar_;
  const core::Settings& settings_;
  const std::string folder_;
  const Needs needs_;
  bool stop_ = false;
  int limit_ = 0;  // only spots behind this minute are shown
  std::uint64_t spotsRead_ = 0;
  Spot spot_;  // at work
  platform::Tasks tasks_;
};

}  // namespace spots
