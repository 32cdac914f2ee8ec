#pragma once

#include <string_view>

#include "platform/files.h"

namespace core {

// A file's fault as it is reported: the number and the words of the error log.
struct FaultName {
  int number;
  std::string_view description;
};
FaultName NameOf(platform::Files::Fault fault);

}  // namespace core
