#pragma once

#include <memory>

#include "core/settings.h"
#include "platform/platform.h"
#include "platform/task.h"

namespace program {

// Starts the practice node where it is wanted. What was started ends with this.
class PracticeNode {
 public:
  // Both outlive it.
  PracticeNode(const platform::Platform& platform, const core::Settings& settings);

  // The chosen node is about to be called. If it is the practice node and nothing listens at its
  // address, starts it, and ends when it listens, has ended, or takes too long. Otherwise ends at
  // once.
  platform::Task<> Wake();

 private:
  bool IsChosen() const;
  bool AddressIsFree() const;
  void Start();
  bool IsStarting();

  platform::Platform platform_;
  const core::Settings& settings_;
  std::unique_ptr<platform::ChildProgram> child_;
};

}  // namespace program
