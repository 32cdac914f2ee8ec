#include "session/port_advice.h"

#include <array>

namespace session {
namespace {

struct Advice {
  std::string_view why;
  std::string_view says;  // behind the device
};

constexpr std::string_view kGone = "the device has gone";

constexpr std::array kAdvice = {
    Advice{"busy", " is in use by another program. Close that program, or choose another device."},
    Advice{"no such device", " is not there. Plug it in, or choose another device."},
    Advice{"no permission",
           " is not open to you. Have yourself added to its group (mostly dialout), and log in "
           "again."},
    Advice{kGone, " has gone. Plug it in again, or choose another device."},
};

}  // namespace

std::string PortAdvice(std::string_view device, std::string_view why) {
  if (device.empty()) return "No port is chosen. Choose one.";
  std::string text(device);
  for (const Advice& each : kAdvice)
    if (each.why == why) return text.append(each.says);
  return text.append(" did not open: ").append(why).append(". Choose other settings or a device.");
}

std::string NetworkPortAdvice(std::string_view device, std::string_view why) {
  if (device.empty() || why != kGone) return PortAdvice(device, why);
  return std::string(device) +
         " has gone. Plug it in again and press Apply under Connection, or choose another device.";
}

}  // namespace session
