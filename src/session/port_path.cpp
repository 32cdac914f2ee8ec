#include "session/port_path.h"

namespace session {
namespace {

constexpr int kPortsOfAKind = kSerialPorts / 2;

}  // namespace

std::string PortPath(int number) {
  if (number < 1 || number > kSerialPorts) return {};
  if (number <= kPortsOfAKind) return "/dev/ttyS" + std::to_string(number - 1);
  return "/dev/ttyUSB" + std::to_string(number - kPortsOfAKind - 1);
}

}  // namespace session
