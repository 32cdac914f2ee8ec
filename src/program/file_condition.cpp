#include "program/file_condition.h"

#include <algorithm>
#include <array>
#include <string>

namespace program {
namespace {

using spots::FileState;

struct Loss {
  std::string_view file;
  std::string_view what;
  std::string_view ifDamaged;
};
constexpr auto kBroughtBack = " Delete it, and the next start puts a good one in its place.";
constexpr std::array kLosses = {
    Loss{"state.dat", "bearings go by the country alone", kBroughtBack},
    Loss{"reject.dat", "spots that you reject may show", ""},
    Loss{"fixspots.dat", "corrections of yours are missing", ""},
    Loss{"lotw.txt", "LoTW marks are missing", " Put a good one there."},
    Loss{"eqsl.txt", "eQSL marks are missing", " Put a good one there."},
};

std::string_view Wrong(FileState state) {
  if (state == FileState::Unreadable) return "can't be read";
  return state == FileState::TooLong ? "is too long to be read whole" : "is damaged";
}

std::string TextOf(const spots::FileReport& report) {
  std::string text = std::string(report.name).append(" ").append(Wrong(report.state));
  const auto loss = std::find_if(kLosses.begin(), kLosses.end(),
                                 [&](const Loss& each) { return each.file == report.name; });
  if (loss == kLosses.end()) return text + ".";
  text.append(": ").append(loss->what).append(".");
  return report.state == FileState::Damaged ? text.append(loss->ifDamaged) : text;
}

}  // namespace

void ShowFiles(Conditions& conditions, const spots::FileReports& reports) {
  for (const spots::FileReport& report : reports)
    if (report.state != FileState::Read && report.state != FileState::Missing)
      conditions.Raise({.key = std::string(report.name), .text = TextOf(report), .button = {}});
}

}  // namespace program
