#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "practice_node/dialect.h"
#include "practice_node/mischief.h"
#include "practice_node/node.h"

namespace practice_node {

// What the program was started with.
struct Options {
  bool help = false;
  Kind kind = Kind::Spider;
  bool all = false;  // a port for each dialect, from `port` on
  std::string address = "127.0.0.1";
  std::uint16_t port = 7373;
  std::string nodeCall = "N0DE-1";
  double rate = 1;
  std::uint32_t seed = 1;
  std::size_t skimmersPercent = 25;
  std::string playFile;  // empty: spots
  bool loop = false;
  std::string spiderVersion = "1.57";
  std::optional<std::string> password;
  bool refuseArpc = false;
  bool promptFirst = false;
  MischiefPlan mischief;
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

// What a node of that kind is made with. The lines are those of the file to play; null: spots.
NodeFacts FactsOf(const Options& options, Kind kind);
StreamPlan StreamOf(const Options& options, std::shared_ptr<const std::vector<std::string>> lines);
// The kinds to start, in the order of their ports.
std::vector<Kind> KindsOf(const Options& options);

// Cuts a file into lines, at LF or CR LF.
std::vector<std::string> LinesOf(std::string_view bytes);

}  // namespace practice_node
