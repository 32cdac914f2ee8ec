#pragma once

#include "core/controls.h"

namespace program {

// The raw view: below the page, or alone in the window.
class RawPane {
 public:
  // The two of cmdRawplus that belong to it; both outlive it.
  RawPane(core::Button& restore, core::Button& maximise);

  core::Property<bool> Maximised;

  // The user's act.
  void Turn();

 private:
  void Follow();

  core::Button& restore_;
  core::Button& maximise_;
  platform::Registration restoring_;
  platform::Registration maximising_;
};

}  // namespace program
