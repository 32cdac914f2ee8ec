#pragma once

#include <string_view>

namespace spots {

// Whether the text is a time of the day, "0000" to "2359".
constexpr bool IsClockTime(std::string_view hhmm) {
  if (hhmm.size() != 4) return false;
  for (const char byte : hhmm)
    if (byte < '0' || byte > '9') return false;
  return hhmm.substr(0, 2) <= "23" && hhmm[2] <= '5';
}

// The minutes of the day of a time that reads as a number like 2116.
constexpr int MinutesOfDay(int hhmm) { return hhmm / 100 * 60 + hhmm % 100; }

}  // namespace spots
