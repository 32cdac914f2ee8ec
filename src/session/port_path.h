#pragma once

#include <string>

namespace session {

inline constexpr int kSerialPorts = 32;

// The device that a serial port's number in the settings stands for unless it is named: 1 to 16 are
// the ports of the machine itself, 17 to 32 those that are plugged in. Empty for any other number.
std::string PortPath(int number);

}  // namespace session
