#pragma once

#include <functional>
#include <list>
#include <string>
#include <string_view>

#include "platform/task.h"

namespace platform {

// Told the name of a Task that ended with an exception, and what the exception says.
using FaultHandler = std::function<void(std::string_view name, std::string_view what)>;

// The Tasks that a subsystem has started; its last member, so that they go before what they use.
// Destroying it cancels them all; no Task destroys its own subsystem.
class Tasks {
 public:
  Tasks(Scheduler& scheduler, FaultHandler onFault);
  Tasks(const Tasks&) = delete;
  Tasks& operator=(const Tasks&) = delete;
  ~Tasks();

  // Runs the Task up to its first wait. It is let go when it has ended. `name` goes into a fault.
  void Start(std::string name, Task<> task);

  // Cancels all: those that wait at once, those on whose stack this is called in the next turn.
  void CancelAll();

  bool Idle() const { return running_.empty(); }

 private:
  struct Entry {
    std::string name;
    Task<> task;
    std::shared_ptr<detail::TaskRoot> root;
    Registration cancelling;
  };
  using Entries = std::list<Entry>;

  void Ended(Entries::iterator entry);

  Scheduler& scheduler_;
  FaultHandler onFault_;
  Entries running_;
};

}  // namespace platform
