#include "practice_tnc/options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

#include "core/text.h"

namespace practice_tnc {
namespace {

using Text = std::string_view;

constexpr double kMostSeconds = 86'400;
constexpr double kMostSpots = 1000;

template <class Number>
std::optional<Number> ReadNumber(Text text, Number low, Number high) {
  Number number{};
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = fault == std::errc{} && end == text.data() + text.size();
  if (!whole || !(number >= low && number <= high)) return std::nullopt;
  return number;
}

std::string SetSeconds(platform::Milliseconds& time, Text value) {
  constexpr double kMilliseconds = 1000;
  const auto seconds = ReadNumber<double>(value, 0, kMostSeconds);
  if (!seconds) return "seconds are a number from 0 to 86400, as in 0.5";
  time = platform::Milliseconds{static_cast<int>(*seconds * kMilliseconds)};
  return {};
}

std::string SetNode(Options& options, Text value) {
  const std::size_t colon = value.rfind(':');
  const auto port = colon == Text::npos
                        ? std::nullopt
                        : ReadNumber<std::uint16_t>(value.substr(colon + 1), 1, 65535);
  if (!port || colon == 0) return "a node is HOST:PORT";
  options.ownNode = false;
  options.plan.host = value.substr(0, colon);
  options.plan.port = *port;
  return {};
}

std::string SetCall(Options& options, Text value) {
  if (value.empty() || value.find_first_of(" \r\n") != Text::npos) return "a call holds no blanks";
  options.plan.call = core::UCase(value);
  return {};
}

std::string SetRate(Options& options, Text value) {
  const auto rate = ReadNumber<double>(value, 0, kMostSpots);
  if (!rate) return "a rate is a number from 0 to 1000, as in 0.5";
  options.rate = *rate;
  return {};
}

std::string SetFailures(Options& options, Text value) {
  const auto count = ReadNumber<unsigned>(value, 0, 1'000'000);
  if (!count) return "a count is a whole number from 0 to 1000000";
  options.plan.failures = *count;
  return {};
}

std::string SetSeed(Options& options, Text value) {
  const auto seed = ReadNumber<std::uint32_t>(value, 0, 0xFFFF'FFFF);
  if (!seed) return "a seed is a whole number from 0 to 4294967295";
  options.plan.seed = *seed;
  return {};
}

template <bool TncPlan::*Switch>
std::string TurnOn(Options& options, Text) {
  options.plan.*Switch = true;
  return {};
}

struct Row {
  Text name;
  Text value;  // its name in the help; empty: the option takes none
  Text help;
  // Empty, or what is wrong with the value.
  std::string (*set)(Options& options, Text value);
};

// clang-format off
constexpr std::array<Row, 13> kRows = {{
    {"--call", "CALL", "call of the station, MYCALL (K1TST)", SetCall},
    {"--node", "HOST:PORT", "the node that every call leads to (a practice node of its own)",
     SetNode},
    {"--rate", "RATE", "spots a second of its own node (1); fractions allowed", SetRate},
    {"--link", "PATH", "make PATH lead to the pseudo-terminal, so that its name stays the same",
     [](Options& options, Text value) { options.linkPath = value; return std::string(); }},
    {"--try-seconds", "SECONDS", "what an attempt to connect takes (2)",
     [](Options& options, Text value) { return SetSeconds(options.plan.perTry, value); }},
    {"--retry-out", "COUNT", "so many attempts fail at first: retry limit exceeded (0)",
     SetFailures},
    {"--drop-after", "SECONDS", "each link ends by itself after so long (0: never)",
     [](Options& options, Text value) { return SetSeconds(options.plan.dropAfter, value); }},
    {"--reconnect", "", "instead of ending it, the other end begins it anew",
     TurnOn<&TncPlan::reconnects>},
    {"--echo", "", "send back what is typed", TurnOn<&TncPlan::echo>},
    {"--silent", "", "never say a word", TurnOn<&TncPlan::silent>},
    {"--garbage", "", "answer with noise (the command NOISE and a count gives it once)",
     TurnOn<&TncPlan::garbage>},
    {"--seed", "N", "the same seed gives the same noise (1)", SetSeed},
    {"--help", "", "this list",
     [](Options& options, Text) { options.help = true; return std::string(); }},
}};
// clang-format on

// Takes one option and its value from the front of the arguments. Empty, or what is wrong.
std::string TakeOne(std::span<const Text>& arguments, Options& options) {
  const Text argument = arguments.front();
  arguments = arguments.subspan(1);
  const std::size_t equals = argument.find('=');
  const std::string name(argument.substr(0, equals));
  const auto* row = std::ranges::find(kRows, name, &Row::name);
  if (row == kRows.end()) return "unknown option " + name;
  if (row->value.empty())
    return equals == Text::npos ? row->set(options, {}) : name + " takes no value";
  Text value = equals == Text::npos ? Text() : argument.substr(equals + 1);
  if (equals == Text::npos) {
    if (arguments.empty()) return name + " needs a value";
    value = arguments.front();
    arguments = arguments.subspan(1);
  }
  const std::string wrong = row->set(options, value);
  return wrong.empty() ? wrong : name + ": " + wrong;
}

}  // namespace

ParsedOptions ParseOptions(std::span<const std::string_view> arguments) {
  ParsedOptions parsed;
  while (!arguments.empty() && parsed.wrong.empty())
    parsed.wrong = TakeOne(arguments, parsed.options);
  return parsed;
}

std::string HelpText() {
  constexpr std::size_t kColumn = 26;
  std::string text =
      "molva-practice-tnc: a packet TNC on a pseudo-terminal, to practise with\n"
      "usage: molva-practice-tnc [options]\n\n"
      "It prints the line that makes its terminal port 17 in ports.cfg. Its commands:\n"
      "CONNECT CALL, DISCONNECT, CONVERSE, MYCALL, NOISE COUNT, and Ctrl-C.\n\n";
  for (const Row& row : kRows) {
    std::string option = "  " + std::string(row.name);
    if (!row.value.empty()) option += " " + std::string(row.value);
    option.resize(std::max(kColumn, option.size() + 1), ' ');
    text += option + std::string(row.help) + "\n";
  }
  return text;
}

}  // namespace practice_tnc
