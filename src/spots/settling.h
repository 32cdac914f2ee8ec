#pragma once

#include <functional>
#include <optional>

#include "platform/scheduler.h"
#include "spots/node_facts.h"

namespace spots {

// The start of a session, before the node has said whether it sends extended lines: plain ones are
// dropped, and an empty line asks the node on.
class Settling {
 public:
  // `sendSettlingLine` sends the empty line; it is called once a second at most.
  Settling(const platform::Scheduler& scheduler, std::function<void()> sendSettlingLine);

  // Whether a plain line that comes now is dropped.
  bool Drops(const NodeFacts& node);

 private:
  const platform::Scheduler& scheduler_;
  std::function<void()> sendSettlingLine_;
  std::optional<platform::Milliseconds> sentAt_;
};

}  // namespace spots
