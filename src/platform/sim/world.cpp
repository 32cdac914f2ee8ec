#include "platform/sim/world.h"

namespace platform::sim {

World::World() = default;
World::~World() = default;

bool VirtualScheduler::Step(Milliseconds end) {
  const auto next = queue_.NextDue();
  if (!next || *next > end) return false;
  AdvanceTo(*next);
  return queue_.RunFirst(now_);
}

void World::Run(Milliseconds duration) {
  const Milliseconds end = scheduler.Now() + duration;
  while (scheduler.Step(end)) {
  }
  scheduler.AdvanceTo(end);
}

bool World::RunUntil(const std::function<bool()>& condition, Milliseconds most) {
  const Milliseconds end = scheduler.Now() + most;
  while (!condition())
    if (!scheduler.Step(end)) return condition();
  return true;
}

}  // namespace platform::sim
