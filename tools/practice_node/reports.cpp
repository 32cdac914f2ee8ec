#include "practice_node/reports.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/text.h"
#include "practice_node/wording.h"

namespace practice_node {
namespace {

constexpr std::size_t kUsualLabelWidth = 15;

struct Row {
  std::string_view label;
  std::string value;
};
using Rows = std::vector<Row>;

std::string YesNo(bool yes) { return yes ? "Yes" : "No"; }

void AddIfKnown(Rows& rows, std::string_view label, const std::string& value) {
  if (!value.empty()) rows.push_back({label, value});
}

void AddPersonal(Rows& rows, const Profile& profile) {
  AddIfKnown(rows, "Home Node", profile[Field::HomeNode]);
  AddIfKnown(rows, "Home QTH", profile[Field::Qth]);
  AddIfKnown(rows, "Language", profile.language);
  AddIfKnown(rows, "Location", profile[Field::Location]);
  AddIfKnown(rows, "Locator", profile[Field::Grid]);
  AddIfKnown(rows, "Name", profile[Field::Name]);
}

void AddToggles(Rows& rows, const Caller& caller, const Profile& profile) {
  for (const ToggleWords& each : kToggleWords) {
    const auto label = LabelOf(each, caller.facts().dialect.kind);
    if (!label.empty()) rows.push_back({label, YesNo(profile.Has(each.toggle))});
  }
}

Rows UserRows(Caller& caller) {
  const Profile& profile = caller.profile();
  const bool late = caller.facts().version.fitsLabels;
  Rows rows;
  if (caller.facts().dialect.kind == Kind::Spider) rows.push_back({"Buddies", ""});
  rows.push_back({"Callsign", profile.call});
  AddPersonal(rows, profile);
  AddToggles(rows, caller, profile);
  rows.push_back({"Req Echo", YesNo(profile.echo)});
  AddIfKnown(rows, "Required Prompt", profile.prompt);
  rows.push_back({"Type of User", "U"});
  if (late) rows.push_back({"Users Here", std::to_string(caller.house().Users())});
  return rows;
}

std::size_t LongestLabel(const Rows& rows) {
  std::size_t longest = 0;
  for (const Row& row : rows) longest = std::max(longest, row.label.size());
  return longest;
}

std::string_view State(bool on) { return on ? "Enabled" : "Inhibited"; }

}  // namespace

void ReportUser(Caller& caller, std::string_view) {
  const Rows rows = UserRows(caller);
  const std::size_t width =
      caller.facts().version.fitsLabels ? LongestLabel(rows) : kUsualLabelWidth;
  for (const Row& row : rows) {
    const std::string label = PadLeft(row.label, width) + ":";
    caller.SayLine(row.value.empty() ? label : label + " " + row.value);
  }
}

void ReportSwitches(Caller& caller, std::string_view) {
  caller.Say("Current switch settings for %C:");
  for (const ToggleWords& each : kToggleWords) {
    const auto label = LabelOf(each, caller.facts().dialect.kind);
    const auto state = State(caller.profile().Has(each.toggle));
    if (!label.empty()) caller.SayLine(std::string(label) + std::string(state));
  }
}

void ReportSwitchTable(Caller& caller, std::string_view) {
  struct Column {
    std::size_t begin;  // counted from 1
    std::optional<Toggle> toggle;
  };
  constexpr std::array<Column, 6> kColumns = {{{3, Toggle::Announcements},
                                               {9, std::nullopt},
                                               {15, Toggle::Beep},
                                               {20, Toggle::DxSpots},
                                               {26, std::nullopt},
                                               {35, Toggle::Logins}}};
  std::string values;
  for (const Column& column : kColumns) {
    const bool on = column.toggle && caller.profile().Has(*column.toggle);
    values = PadRight(values, column.begin - 1) + (on ? "ON" : "OFF");
  }
  caller.SayLine("  Ann   Ansi Beep   DX  DXdeDX  Login");
  caller.SayLine(values);
}

void ReportStation(Caller& caller, std::string_view argument) {
  const std::string call = argument.empty() ? caller.call() : core::UCase(Quotable(argument));
  const auto& dialect = caller.facts().dialect;
  auto profile = caller.house().FindProfile(call);
  // CLX is asked for the call without its SSID.
  if (!profile && core::StartsWith(caller.call(), call + "-"))
    profile = caller.house().FindProfile(caller.call());
  const std::string shown = dialect.lowerCase ? core::LCase(call) : call;
  caller.SayLine(std::string(dialect.stationLabel) + shown);
  for (std::size_t i = 0; profile && i < kFields; ++i) {
    const auto& label = dialect.fields[i].label;
    const std::string& value = (*profile)[static_cast<Field>(i)];
    if (!label.empty() && !value.empty()) caller.SayLine(std::string(label) + value);
  }
}

}  // namespace practice_node
