#pragma once

#include <string>
#include <string_view>
#include <vector>

// The line of a country as the file has it.
struct Country {
  std::string_view name = "Isle of Man";
  std::string_view continent = "EU";
  double latitude = 54.20;
  double longitude = 4.53;
  std::string_view prefix = "GD";

  std::string Line() const;
};

// Prefix of the i-th of the countries that fill up a file: "Q000" and so on.
std::string FillerPrefix(int i);

// A file of these lines between 310 countries of no interest in Africa and Marion Island.
std::string CtyText(const std::vector<std::string>& lines, std::string_view lineEnd = "\r\n");
// The same without Marion Island, and with that many others.
std::string CtyTextWithoutMarion(const std::vector<std::string>& lines, int fillers = 310,
                                 std::string_view lineEnd = "\r\n");
