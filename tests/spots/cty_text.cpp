#include "cty_text.h"

#include <array>
#include <cstdio>

#include "core/text.h"

std::string Country::Line() const {
  std::array<char, 200> line{};
  std::snprintf(line.data(), line.size(),
                "%-26s14:  27:  %s:%8.2f:%9.2f:    -1.0:%5s:", (std::string(name) + ":").c_str(),
                std::string(continent).c_str(), latitude, longitude, std::string(prefix).c_str());
  return line.data();
}

std::string FillerPrefix(int i) { return "Q" + core::Digits(static_cast<unsigned>(i), 3); }

std::string CtyTextWithoutMarion(const std::vector<std::string>& lines, int fillers,
                                 std::string_view lineEnd) {
  std::string text;
  for (const std::string& line : lines) text.append(line).append(lineEnd);
  for (int i = 0; i < fillers; ++i) {
    const std::string prefix = FillerPrefix(i);
    const Country filler{.name = "Filler", .continent = "AF", .prefix = prefix};
    text.append(filler.Line()).append(lineEnd);
    text.append("    ").append(prefix).append(",=").append(prefix).append("/A;").append(lineEnd);
  }
  return text;
}

std::string CtyText(const std::vector<std::string>& lines, std::string_view lineEnd) {
  const Country marion{.name = "Pr. Edward & Marion Is.",
                       .continent = "AF",
                       .latitude = -46.88,
                       .longitude = -37.72,
                       .prefix = "ZS8"};
  return CtyTextWithoutMarion(lines, 310, lineEnd).append(marion.Line()).append(lineEnd);
}
