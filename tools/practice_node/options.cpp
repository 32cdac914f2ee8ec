#include "practice_node/options.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "core/text.h"
#include "practice_node/wording.h"

namespace practice_node {
namespace {

constexpr double kHighestRate = 100'000;
constexpr SpiderVersion kNoPeculiarities = {"", "", false, false, false, false, 0};

// A whole text as a number within bounds, or nothing.
template <class Number>
std::optional<Number> ReadNumber(std::string_view text, Number low, Number high) {
  Number number{};
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = fault == std::errc{} && end == text.data() + text.size();
  if (!whole || !(number >= low && number <= high)) return std::nullopt;
  return number;
}

std::string SetKind(Options& options, std::string_view value) {
  const auto kind = KindNamed(value);
  if (!kind) return "there is no dialect \"" + std::string(value) + "\"";
  options.kind = *kind;
  return {};
}

std::string SetPort(Options& options, std::string_view value) {
  const auto port = ReadNumber<std::uint16_t>(value, 0, 65535);
  if (!port) return "a port is a number from 0 to 65535";
  options.port = *port;
  return {};
}

std::string SetRate(Options& options, std::string_view value) {
  const auto rate = ReadNumber<double>(value, 0, kHighestRate);
  if (!rate) return "a rate is a number from 0 to 100000, as in 0.5";
  options.rate = *rate;
  return {};
}

std::string SetSeed(Options& options, std::string_view value) {
  const auto seed = ReadNumber<std::uint32_t>(value, 0, 0xFFFF'FFFF);
  if (!seed) return "a seed is a whole number from 0 to 4294967295";
  options.seed = *seed;
  return {};
}

std::string SetSkimmers(Options& options, std::string_view value) {
  const auto percent = ReadNumber<std::size_t>(value, 0, 100);
  if (!percent) return "the part of the Skimmers is a number from 0 to 100";
  options.skimmersPercent = *percent;
  return {};
}

std::string SetVersion(Options& options, std::string_view value) {
  const bool known = std::any_of(kSpiderVersions.begin(), kSpiderVersions.end(),
                                 [&](const SpiderVersion& each) { return each.number == value; });
  if (!known) return "the versions of DXSpider are 1.55 and 1.57";
  options.spiderVersion = value;
  return {};
}

std::string SetNodeCall(Options& options, std::string_view value) {
  const bool plain = value.find_first_of(" %\r\n") == std::string_view::npos;
  if (value.empty() || !plain) return "a call holds no blanks";
  options.nodeCall = core::UCase(value);
  return {};
}

struct Row {
  enum class Takes { Nothing, Value, ValueOrNothing };
  std::string_view name;
  Takes takes;
  std::string_view value;  // its name in the help
  std::string_view help;
  // Empty, or what is wrong with the value.
  std::string (*set)(Options& options, std::string_view value);
};

constexpr Row::Takes kNothing = Row::Takes::Nothing;
constexpr Row::Takes kValue = Row::Takes::Value;
using Text = std::string_view;

// clang-format off
constexpr std::array<Row, 18> kRows = {{
    {"--dialect", kValue, "NAME", "ar, spider, clx, dxnet, wincluster, zelva or skimmer (spider)",
     SetKind},
    {"--all", kNothing, "", "all seven, in that order, on as many ports from --port on",
     [](Options& options, Text) { options.all = true; return std::string(); }},
    {"--port", kValue, "N", "port to listen on (7373); 0 takes a free one", SetPort},
    {"--address", kValue, "ADDRESS", "address to listen on (127.0.0.1: this machine alone)",
     [](Options& options, Text value) { options.address = value; return std::string(); }},
    {"--call", kValue, "CALL", "call of the node (N0DE-1)", SetNodeCall},
    {"--rate", kValue, "RATE", "spots, or lines of --play, a second (1); fractions allowed",
     SetRate},
    {"--seed", kValue, "N", "the same seed gives the same spots (1)", SetSeed},
    {"--skimmers", kValue, "PERCENT", "how many of the spots are those of Skimmers (25)",
     SetSkimmers},
    {"--play", kValue, "FILE", "send the lines of this file instead of spots, to each caller",
     [](Options& options, Text value) { options.playFile = value; return std::string(); }},
    {"--loop", kNothing, "", "begin the file again at its end",
     [](Options& options, Text) { options.loop = true; return std::string(); }},
    {"--once", kNothing, "", "play the file once (so it is without --loop)",
     [](Options& options, Text) { options.loop = false; return std::string(); }},
    {"--version-string", kValue, "VERSION", "of DXSpider: 1.57, or 1.55, which echoes (1.57)",
     SetVersion},
    {"--password", Row::Takes::ValueOrNothing, "WORD",
     "ask for a password: this word, or any if none is given",
     [](Options& options, Text value) { options.password = value; return std::string(); }},
    {"--refuse-arpc", kNothing, "", "as AR-Cluster, refuse \"set/dx_arpc on\"",
     [](Options& options, Text) { options.refuseArpc = true; return std::string(); }},
    {"--prompt-first", kNothing, "", "send lists of spots behind the prompt, as DXSpider 1.57 does",
     [](Options& options, Text) { options.promptFirst = true; return std::string(); }},
    {"--misbehave", kValue, "WHAT,...",
     "close, close-after=LINES, refuse, silent, stall[=LINE], nuls,\n"
     "escapes, iac, no-line-ends, flood=MEGABYTES",
     [](Options& options, Text value) { return AddMischief(value, options.mischief); }},
    {"--help", kNothing, "", "this list",
     [](Options& options, Text) { options.help = true; return std::string(); }},
    {"-h", kNothing, "", "the same",
     [](Options& options, Text) { options.help = true; return std::string(); }},
}};
// clang-format on

const Row* Find(std::string_view name) {
  const auto* found =
      std::find_if(kRows.begin(), kRows.end(), [&](const Row& each) { return each.name == name; });
  return found == kRows.end() ? nullptr : found;
}

// Takes one option and its value from the front of the arguments. Empty, or what is wrong.
std::string TakeOne(std::span<const std::string_view>& arguments, Options& options) {
  const auto argument = arguments.front();
  arguments = arguments.subspan(1);
  const auto equals =
      core::StartsWith(argument, "--") ? argument.find('=') : std::string_view::npos;
  const std::string name(argument.substr(0, equals));
  const Row* row = Find(name);
  if (!row) return "unknown option " + Quotable(name);
  if (equals != std::string_view::npos) {
    if (row->takes == kNothing) return name + " takes no value";
    const std::string wrong = row->set(options, argument.substr(equals + 1));
    return wrong.empty() ? wrong : name + ": " + wrong;
  }
  if (row->takes != kValue) return row->set(options, {});
  if (arguments.empty()) return name + " needs a value";
  const std::string wrong = row->set(options, arguments.front());
  arguments = arguments.subspan(1);
  return wrong.empty() ? wrong : name + ": " + wrong;
}

std::string Contradiction(const Options& options) {
  const bool tooHigh = options.all && options.port > 65535 - (kKinds - 1);
  if (tooHigh) return "--all needs seven ports from --port on";
  if (options.loop && options.playFile.empty()) return "--loop needs --play";
  return {};
}

}  // namespace

ParsedOptions ParseOptions(std::span<const std::string_view> arguments) {
  ParsedOptions parsed;
  while (!arguments.empty() && parsed.wrong.empty())
    parsed.wrong = TakeOne(arguments, parsed.options);
  if (parsed.wrong.empty()) parsed.wrong = Contradiction(parsed.options);
  return parsed;
}

std::string HelpText() {
  constexpr std::size_t kColumn = 28;
  std::string text =
      "molva-practice-node: a small cluster node to practise with\n"
      "usage: molva-practice-node [options]\n\n";
  for (const Row& row : kRows) {
    std::string option = "  " + std::string(row.name);
    if (row.takes == Row::Takes::ValueOrNothing) option += "[=" + std::string(row.value) + "]";
    if (row.takes == kValue) option += " " + std::string(row.value);
    for (const auto line : core::Split(row.help, "\n")) {
      text += PadRight(option, kColumn) + std::string(line) + "\n";
      option.clear();
    }
  }
  return text;
}

NodeFacts FactsOf(const Options& options, Kind kind) {
  const auto* version =
      std::find_if(kSpiderVersions.begin(), kSpiderVersions.end(),
                   [&](const SpiderVersion& each) { return each.number == options.spiderVersion; });
  SpiderVersion peculiarities = kind == Kind::Spider ? *version : kNoPeculiarities;
  peculiarities.promptsFirst = peculiarities.promptsFirst || options.promptFirst;
  return {.dialect = DialectOf(kind),
          .version = peculiarities,
          .call = options.nodeCall,
          .password = options.password,
          .knowsArpc = !options.refuseArpc,
          .mischief = options.mischief,
          .seed = options.seed};
}

StreamPlan StreamOf(const Options& options, std::shared_ptr<const std::vector<std::string>> lines) {
  return {.rate = options.rate,
          .seed = options.seed,
          .skimmersPercent = options.skimmersPercent,
          .lines = std::move(lines),
          .loop = options.loop};
}

std::vector<Kind> KindsOf(const Options& options) {
  if (!options.all) return {options.kind};
  std::vector<Kind> kinds;
  for (const Dialect& each : Dialects()) kinds.push_back(each.kind);
  return kinds;
}

std::vector<std::string> LinesOf(std::string_view bytes) {
  if (core::EndsWith(bytes, "\n")) bytes.remove_suffix(1);
  std::vector<std::string> lines;
  for (auto line : core::Split(bytes, "\n")) {
    if (core::EndsWith(line, "\r")) line.remove_suffix(1);
    lines.emplace_back(line);
  }
  return lines;
}

}  // namespace practice_node
