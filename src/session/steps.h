#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>

#include "platform/tasks.h"

namespace session {

// Work that line handlers have put off, done one after the other in the order of pushing. While
// there is any, the node's text waits.
class Steps {
 public:
  // `changed` is told when Busy changes.
  Steps(platform::Scheduler& scheduler, platform::FaultHandler onFault,
        std::function<void()> changed);

  // Begins in a later turn. `name` goes into the error log if the step fails; the next one is done
  // all the same.
  void Push(std::string name, platform::Task<> step);

  // Drops what has not begun. The step that runs goes on to its end.
  void DropWaiting() { waiting_.clear(); }

  bool Busy() const { return busy_; }
  // How many have been pushed, ever.
  std::uint64_t Pushed() const { return pushed_; }

 private:
  struct Step {
    std::string name;
    platform::Task<> task;
  };

  platform::Task<> DoAll();

  platform::Scheduler& scheduler_;
  platform::FaultHandler onFault_;
  std::function<void()> changed_;
  std::deque<Step> waiting_;
  bool busy_ = false;
  std::uint64_t pushed_ = 0;
  platform::Registration starting_;
  platform::Tasks tasks_;
};

}  // namespace session
