#include "session/steps.h"

#include <exception>
#include <optional>

namespace session {

Steps::Steps(platform::Scheduler& scheduler, platform::FaultHandler onFault,
             std::function<void()> changed)
    : scheduler_(scheduler),
      onFault_(std::move(onFault)),
      changed_(std::move(changed)),
      tasks_(scheduler, onFault_) {}

void Steps::Push(std::string name, platform::Task<> step) {
  ++pushed_;
  waiting_.push_back({std::move(name), std::move(step)});
  if (busy_) return;
  busy_ = true;
  changed_();
  starting_ = scheduler_.Post([this] { tasks_.Start("Steps", DoAll()); });
}

platform::Task<> Steps::DoAll() {
  while (!waiting_.empty()) {
    Step step = std::move(waiting_.front());
    waiting_.pop_front();
    std::optional<std::string> fault;
    try {
      co_await std::move(step.task);
    } catch (const std::exception& known) {
      fault = known.what();
    } catch (...) {
      fault = "unknown exception";
    }
    if (fault) onFault_(step.name, *fault);
  }
  busy_ = false;
  changed_();
}

}  // namespace session
