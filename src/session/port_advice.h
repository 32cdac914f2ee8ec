#pragma once

#include <string>
#include <string_view>

namespace session {

// What is wrong with a serial port and what to do next, for the user. `device` is its path, empty
// if none is chosen; `why` is what platform::SerialPort said.
std::string PortAdvice(std::string_view device, std::string_view why);

// The same for the local network's port, which is not opened again by what is sent.
std::string NetworkPortAdvice(std::string_view device, std::string_view why);

}  // namespace session
