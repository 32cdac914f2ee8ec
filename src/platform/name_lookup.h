#pragma once

#include <string>
#include <vector>

#include "platform/task.h"

namespace platform {

class NameLookup {
 public:
  virtual ~NameLookup() = default;
  // The dotted addresses of a host, the preferred one first; none if the name is not known.
  virtual Task<std::vector<std::string>> Resolve(std::string host) = 0;
};

}  // namespace platform
