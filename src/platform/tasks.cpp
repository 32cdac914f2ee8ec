#include "platform/tasks.h"

#include <cassert>

namespace platform {
namespace {

std::string What(const std::exception_ptr& fault) {
  try {
    std::rethrow_exception(fault);
  } catch (const std::exception& known) {
    return known.what();
  } catch (...) {
    return "unknown exception";
  }
}

}  // namespace

Tasks::Tasks(Scheduler& scheduler, FaultHandler onFault)
    : scheduler_(scheduler), onFault_(std::move(onFault)) {}

Tasks::~Tasks() {
  for ([[maybe_unused]] const Entry& entry : running_) assert(entry.root->running == 0);
}

void Tasks::Start(std::string name, Task<> task) {
  auto root = std::make_shared<detail::TaskRoot>(scheduler_);
  const auto entry =
      running_.insert(running_.end(), Entry{std::move(name), std::move(task), root, {}});
  entry->task.promise().onEnd = [this, entry] { Ended(entry); };
  entry->task.Start(std::move(root));
}

void Tasks::CancelAll() {
  for (auto entry = running_.begin(); entry != running_.end();) {
    const auto each = entry++;
    if (each->root->running == 0)
      running_.erase(each);
    else
      each->cancelling = scheduler_.Post([this, each] { running_.erase(each); });
  }
}

void Tasks::Ended(Entries::iterator entry) {
  Entry ended = std::move(*entry);
  running_.erase(entry);
  if (const auto fault = ended.task.promise().fault) onFault_(ended.name, What(fault));
}

}  // namespace platform
