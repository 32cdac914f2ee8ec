#pragma once

#include <functional>

#include "core/controls.h"
#include "core/settings.h"
#include "platform/colour_scheme.h"

namespace program {

// Light or dark: what the user chose, else what the desktop has.
class Appearance {
 public:
  // The settings outlive it. `delayedWriteCfg` is called for each choice of the user's.
  Appearance(core::Settings& settings, std::function<void()> delayedWriteCfg);

  core::Choice optTheme;  // System, Light, Dark
  core::Property<platform::ColourScheme> OnShow{platform::ColourScheme::Light};

  // The settings have been read.
  void Load();
  // What the desktop has, at the start and whenever it changes.
  void SystemHas(platform::ColourScheme scheme);

 private:
  enum Option { System, Light, Dark };

  void Choose();
  void Follow();

  core::Settings& settings_;
  std::function<void()> delayedWriteCfg_;
  platform::ColourScheme system_ = platform::ColourScheme::Light;
  platform::Registration choosing_;
};

}  // namespace program
