#pragma once

#include <array>
#include <functional>

#include "core/controls.h"
#include "core/settings.h"

namespace program {

// How large the text of each view is, in pixels, as the user has it.
class TextSizes {
 public:
  static constexpr int kUsual = 13;
  static constexpr int kLeast = 8;
  static constexpr int kMost = 32;

  enum View { Raw, LoginMsg, Dx, kViews };

  // The settings outlive it. `delayedWriteCfg` is called for each change of the user's.
  TextSizes(core::Settings& settings, std::function<void()> delayedWriteCfg)
      : settings_(settings), delayedWriteCfg_(std::move(delayedWriteCfg)) {}

  std::array<core::Property<int>, kViews> Size{
      {core::Property<int>(kUsual), core::Property<int>(kUsual), core::Property<int>(kUsual)}};

  // The settings have been read.
  void Load();
  // The user's act: larger or smaller by so many pixels, within the bounds.
  void Change(View view, int by);

 private:
  core::Settings& settings_;
  std::function<void()> delayedWriteCfg_;
};

}  // namespace program
