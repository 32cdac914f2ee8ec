#pragma once

#include "platform/name_lookup.h"

namespace platform::qt {

// Asks the system's resolver. Addresses come in its order, IPv6 ones among them.
class QtNameLookup final : public NameLookup {
 public:
  Task<std::vector<std::string>> Resolve(std::string host) override;
};

}  // namespace platform::qt
