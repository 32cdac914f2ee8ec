#include "core/file_fault.h"

namespace core {

FaultName NameOf(platform::Files::Fault fault) {
  using Fault = platform::Files::Fault;
  switch (fault) {
    case Fault::Denied:
      return {70, "Permission denied"};
    case Fault::Full:
      return {61, "Disk full"};
    case Fault::NotFound:
      return {76, "Path not found"};
    default:
      return {57, "Device I/O error"};
  }
}

}  // namespace core
