#pragma once

#include <optional>
#include <string_view>

namespace session {

// How long a node has been up, in minutes, from a line of its login text: "Uptime 2 03:05" in days,
// hours and minutes, "Uptime:  3m 46s", "Uptime: 2d 3h 5m". Nothing if the line doesn't tell.
std::optional<float> UptimeMinutes(std::string_view line);

}  // namespace session
