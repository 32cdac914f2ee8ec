#pragma once

#include <functional>
#include <vector>

#include "core/controls.h"
#include "core/settings.h"

namespace program {

// What the program does by itself: when it starts, at each login, and when it is ended.
class StartOptions {
 public:
  struct Needs {
    std::function<void()> delayedWriteCfg;         // the user has changed a setting
    std::function<void()> askFilters;              // filters are wanted from now on
    std::function<void(bool wanted)> missedSpots;  // whether the next login asks for them
  };

  // The settings outlive it.
  StartOptions(core::Settings& settings, Needs needs);

  core::Check AutoStart;       // connects at the start
  core::Check ChkAskSettings;  // asks an AR-Cluster for the user's switches
  core::Check GetMissedOnes;   // asks for the spots of the time without a link
  core::Check AutoFilter;      // asks for the filters
  core::Check DontAsk;         // ends without asking

  // The settings have been read.
  void Load();

 private:
  core::Settings& settings_;
  Needs needs_;
  std::vector<platform::Registration> ticking_;
};

}  // namespace program
