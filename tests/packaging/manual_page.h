#pragma once

#include <gmock/gmock.h>

#include <fstream>
#include <regex>
#include <sstream>
#include <string>

namespace packaging {

// The source of a manual page, with each minus as it is read.
inline std::string ManualPage(const char* file) {
  std::ostringstream page;
  page << std::ifstream(file).rdbuf();
  return std::regex_replace(page.str(), std::regex(R"(\\-)"), "-");
}

// The page has a heading for each option that stands at the start of a line of the help, and the
// help has at least so many.
inline void ExpectEveryOption(const std::string& page, const std::string& help, int least) {
  const std::regex option("\n  (--?[a-z-]+)");
  int options = 0;
  for (std::sregex_iterator each(help.begin(), help.end(), option), end; each != end; ++each) {
    ++options;
    EXPECT_THAT(page, testing::ContainsRegex("\n[.](B|BI|BR) .*" + each->str(1))) << each->str(1);
  }
  EXPECT_GE(options, least);
}

}  // namespace packaging
