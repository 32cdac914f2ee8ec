#include <gmock/gmock.h>

#include <fstream>
#include <regex>
#include <sstream>

#include "practice_node/options.h"

namespace {

// In a manual page a minus is written with a backslash in front.
std::string ManualPage() {
  std::ostringstream page;
  page << std::ifstream(MOLVA_MANUAL_PAGE).rdbuf();
  return std::regex_replace(page.str(), std::regex(R"(\\-)"), "-");
}

TEST(ManualPage, NamesEveryOptionOfTheHelp) {
  const std::string page = ManualPage();
  const std::string help = practice_node::HelpText();
  const std::regex option("\n  (--?[a-z-]+)");
  int options = 0;
  for (std::sregex_iterator each(help.begin(), help.end(), option), end; each != end; ++each) {
    ++options;
    EXPECT_THAT(page, testing::ContainsRegex("\n[.](B|BI|BR) .*" + each->str(1))) << each->str(1);
  }
  EXPECT_GT(options, 15);
}

}  // namespace
