#pragma once

#include <span>
#include <string>
#include <string_view>

#include "practice_tnc/tnc.h"

namespace practice_tnc {

// What the program was started with.
struct Options {
  bool help = false;
  TncPlan plan;
  bool ownNode = true;   // no --node: one of its own stands at the far end
  double rate = 1;       // of its spots, a second
  std::string linkPath;  // a name that leads to the pseudo-terminal; empty: none
};

struct ParsedOptions {
  Options options;
  std::string wrong;  // what is wrong, for the user; empty if all is right
};

// The arguments behind the program's name. A value follows its option behind "=" or as the next
// argument.
ParsedOptions ParseOptions(std::span<const std::string_view> arguments);

// What --help prints: all options, a line each.
std::string HelpText();

}  // namespace practice_tnc
