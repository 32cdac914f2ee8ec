#include "checks/picture_names.h"

#include <regex>

namespace checks {
namespace {

// What the first group of the pattern has matched, wherever it matches.
PictureNames Matches(const std::string& text, const std::regex& pattern) {
  PictureNames names;
  for (std::sregex_iterator each(text.begin(), text.end(), pattern), end; each != end; ++each)
    names.insert(each->str(1));
  return names;
}

}  // namespace

PictureNames ShownBy(const std::string& page) {
  static const std::regex kImage(R"(!\[[^\]]*\]\([^)]*pictures/([^)/]+)\.png\))");
  return Matches(page, kImage);
}

PictureNames MadeBy(const std::string& table) {
  static const std::regex kRow(R"re(Picture\(\s*"([^"]+)")re");
  return Matches(table, kRow);
}

}  // namespace checks
