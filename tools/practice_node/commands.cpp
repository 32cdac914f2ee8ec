#include "practice_node/commands.h"

#include <algorithm>
#include <array>

#include "core/text.h"
#include "practice_node/reports.h"
#include "practice_node/spot_search.h"
#include "practice_node/wording.h"

namespace practice_node {
namespace {

template <Field field>
void SetField(Caller& caller, std::string_view argument) {
  caller.profile()[field] = argument;
  const auto& words = caller.facts().dialect.fields[static_cast<std::size_t>(field)];
  caller.SayLine(std::string(words.answer) + std::string(argument));
}

void SetLocation(Caller& caller, std::string_view argument) {
  if (argument.empty() || argument.front() < '0' || argument.front() > '9')
    caller.SayLine("SET/LOCATION command error");
  else
    SetField<Field::Location>(caller, argument);
}

void SetPrompt(Caller& caller, std::string_view argument) { caller.profile().prompt = argument; }

template <bool on>
void SetEcho(Caller& caller, std::string_view) {
  caller.profile().echo = on;
  caller.Say(on ? "Echoing enabled" : "Echoing disabled");
}

void SetPage(Caller& caller, std::string_view argument) {
  caller.Say("Page Length is now %W", argument);
}

void SetLanguage(Caller& caller, std::string_view argument) {
  caller.profile().language = Quotable(argument);
  caller.Say("Language is now %W", argument);
}

void SetResolution(Caller& caller, std::string_view argument) {
  caller.profile().Set(Toggle::TwoDigits, argument == "2");
  caller.Say("Resolution is now %W digits", argument);
}

void SetArpc(Caller& caller, std::string_view argument) {
  const bool accepted = caller.facts().knowsArpc && core::SameIgnoringCase(argument, "on");
  if (accepted) caller.EnableArpc();
  caller.Say(accepted ? "DX ArPc enabled" : "SET/DX_ARPC command error");
}

void ShowFilters(Caller& caller, std::string_view) { caller.Say(caller.facts().dialect.filters); }

// The latest of what is asked for, in the order of the dialect.
std::vector<std::string> FoundSpots(const Caller& caller, const SpotSearch& search) {
  const SpotStyle style = caller.Style();
  const auto line = caller.facts().dialect.shape == Shape::Zv11 ? SpotLine : ListRow;
  std::vector<std::string> rows;
  const auto& spots = caller.house().Spots();
  for (auto spot = spots.rbegin(); spot != spots.rend() && rows.size() < search.count; ++spot)
    if (Matches(*spot, search)) rows.push_back(line(*spot, style));
  if (caller.facts().dialect.oldestFirst) std::reverse(rows.begin(), rows.end());
  return rows;
}

void ShowSpots(Caller& caller, std::string_view argument) {
  const Dialect& dialect = caller.facts().dialect;
  auto rows = FoundSpots(caller, ReadSearch(argument, dialect.dashInRanges));
  if (rows.empty() && !dialect.nothingFound.empty())
    rows.push_back(Expand(dialect.nothingFound, {{'W', Quotable(argument)}}));
  caller.SayList(rows);
}

void Accept(Caller&, std::string_view) {}

void Bye(Caller& caller, std::string_view) {
  caller.Say(caller.facts().dialect.farewell);
  caller.HangUp();
}

void Help(Caller& caller, std::string_view);

// clang-format off
constexpr auto kEverywhere = std::to_array<Command>({
    {"bye", Bye}, {"b", Bye}, {"quit", Bye}, {"q", Bye}, {"exit", Bye},
    {"help", Help}, {"?", Help},
    {"sh/dx", ShowSpots},
});

constexpr auto kPersonal = std::to_array<Command>({
    {"set/name", SetField<Field::Name>}, {"set/qth", SetField<Field::Qth>},
    {"set/location", SetLocation}, {"set/qra", SetField<Field::Grid>},
    {"set/home", SetField<Field::HomeNode>}, {"set/homenode", SetField<Field::HomeNode>},
    {"set/email", SetField<Field::Email>},
    {"sh/station", ReportStation}, {"sh/filter", ShowFilters},
});

constexpr auto kSpider = std::to_array<Command>({
    {"stat/user", ReportUser}, {"sh/mydx", ShowSpots},
    {"set/prompt", SetPrompt}, {"set/page", SetPage},
    {"set/lang", SetLanguage}, {"set/language", SetLanguage},
    {"set/echo", SetEcho<true>}, {"unset/echo", SetEcho<false>},
});

constexpr auto kZelva = std::to_array<Command>({
    {"stat/user", ReportUser}, {"sh/settings", ReportUser}, {"sh/mydx", ShowSpots},
    {"set/res", SetResolution}, {"keepalive", Accept}, {"set/molva", Accept},
    {"set/echo", SetEcho<true>}, {"unset/echo", SetEcho<false>},
});

constexpr auto kArCluster = std::to_array<Command>({
    {"sh/settings", ReportSwitches}, {"set/dx_arpc", SetArpc}, {"keepalive", Accept},
});

constexpr auto kClx = std::to_array<Command>({{"sh/settings", ReportSwitchTable}});

constexpr auto kDxNet = std::to_array<Command>({
    {"sh/settings", ReportSwitches}, {"set/page", SetPage},
});

constexpr auto kWinCluster = std::to_array<Command>({{"sh/settings", ReportSwitches}});

using Commands = std::span<const Command>;

// In the order of Kind. The first that knows a command answers it.
constexpr std::array<std::array<Commands, 3>, kKinds> kCommands = {{
    {kArCluster, kPersonal, kEverywhere},
    {kSpider, kPersonal, kEverywhere},
    {kClx, kPersonal, kEverywhere},
    {kDxNet, kPersonal, kEverywhere},
    {kWinCluster, kPersonal, kEverywhere},
    {kZelva, kPersonal, kEverywhere},
    {Commands(), Commands(), kEverywhere},
}};
// clang-format on

const std::array<Commands, 3>& CommandsFor(const Caller& caller) {
  return kCommands[static_cast<std::size_t>(caller.facts().dialect.kind)];
}

void Help(Caller& caller, std::string_view) {
  std::string names;
  for (const Commands commands : CommandsFor(caller))
    for (const Command& each : commands) names += " " + std::string(each.name);
  caller.SayLine("This practice node knows:" + names);
}

bool IsNamed(const ToggleWords& toggle, std::string_view word) {
  return !word.empty() &&
         std::find(toggle.words.begin(), toggle.words.end(), word) != toggle.words.end();
}

// "set/wwv", "set/nowwv", "unset/wwv".
bool AnswerToggle(Caller& caller, std::string_view name) {
  const bool unset = core::StartsWith(name, "unset/");
  if (!unset && !core::StartsWith(name, "set/")) return false;
  const auto word = name.substr(name.find('/') + 1);
  const auto behindNo = core::StartsWith(word, "no") ? word.substr(2) : std::string_view();
  for (const ToggleWords& each : kToggleWords) {
    const bool plain = IsNamed(each, word);
    if (!plain && !IsNamed(each, behindNo)) continue;
    if (LabelOf(each, caller.facts().dialect.kind).empty()) return false;
    const bool on = plain && !unset;
    caller.profile().Set(each.toggle, on);
    caller.Say(on ? each.on : each.off);
    return true;
  }
  return false;
}

struct Request {
  std::string name;  // as a table has it
  std::string_view argument;
};

// "SHOW/DX/25 on 20m" asks for "sh/dx" with "25 on 20m".
Request Understand(std::string_view line) {
  auto end = std::min(line.find(' '), line.size());
  const auto verb = line.find('/');
  if (verb < end) end = std::min(end, line.find('/', verb + 1));
  std::string name = core::LCase(line.substr(0, end));
  if (core::StartsWith(name, "show/")) name = "sh/" + name.substr(5);
  const auto argument = line.substr(std::min(end + 1, line.size()));
  return {std::move(name), core::Trim(argument)};
}

}  // namespace

bool AnswerCommand(Caller& caller, std::string_view line) {
  const Request request = Understand(line);
  for (const Commands commands : CommandsFor(caller)) {
    const auto found = std::find_if(commands.begin(), commands.end(),
                                    [&](const Command& each) { return each.name == request.name; });
    if (found == commands.end()) continue;
    found->answer(caller, request.argument);
    return true;
  }
  return AnswerToggle(caller, request.name);
}

}  // namespace practice_node
