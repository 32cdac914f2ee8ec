#include "filters/profile_report.h"

#include <algorithm>

#include "core/call.h"
#include "core/text.h"

namespace filters {
namespace {

struct SwitchLabel {
  std::string_view label;
  Switch which;
};

constexpr std::array kSwitchLabels = {
    SwitchLabel{"Req Announce", kAnnounce},
    SwitchLabel{"Show CQ Zone", kCqZone},
    SwitchLabel{"Show DX Grid", kDxGrid},
    SwitchLabel{"Show ITU Zone", kItuZone},
    SwitchLabel{"Req Beep", kBell},
    SwitchLabel{"Req BoB Spots", kBottomOfBand},
    SwitchLabel{"Req Self Spots", kSelf},
    SwitchLabel{"Req Beacon Spot", kBeacon},
    SwitchLabel{"Req SkimmerSpot", kSkimmer},
    SwitchLabel{"Req Skimmer Own", kSkimmerOwn},
    SwitchLabel{"Req SkimmerDupe", kSkimmerDupes},
    SwitchLabel{"Req DX Spots", kDxSpots},
    SwitchLabel{"Req Talk", kTalk},
    SwitchLabel{"Req WWV", kWwv},
    SwitchLabel{"Req WCY", kWcy},
    SwitchLabel{"Req WX", kWx},
    SwitchLabel{"Show US State", kUsState},
    SwitchLabel{"Dx 2 Digit Res", kTwoDigits},
    SwitchLabel{"Login Info Req", kLogins},
};

struct FieldLabel {
  std::string_view label;
  UserSettings::Pair UserSettings::*field;
};

constexpr std::array kFieldLabels = {
    FieldLabel{"Name", &UserSettings::txtMyName},
    FieldLabel{"Home QTH", &UserSettings::txtMyQTH},
    FieldLabel{"QTH", &UserSettings::txtMyQTH},
    FieldLabel{"Home Node", &UserSettings::txtMyHomeNode},
    FieldLabel{"Home node", &UserSettings::txtMyHomeNode},
    FieldLabel{"Locator", &UserSettings::txtMyQRA},
    FieldLabel{"Location", &UserSettings::txtMyLocation},
    FieldLabel{"Geogr. Location", &UserSettings::txtMyLocation},
};

// What stands before the user's call. The blanks behind a label tell the report from what a node
// says of a station.
constexpr std::array<std::string_view, 3> kOpenings = {
    "Callsign        : ", "Callsign: ", "User          : "};

bool IsCallOf(std::string_view text, std::string_view call) {
  const std::string base = core::BaseCall(call);
  if (!core::StartsWithIgnoringCase(text, base)) return false;
  const std::string_view behind = core::Mid(text, core::Len(base) + 1, 1);
  return behind.empty() || behind == "-" || behind == " ";
}

}  // namespace

std::optional<Entry> EntryOf(std::string_view line) {
  const core::Position colon = core::InStr(line, ":");
  const Entry entry = {.label = core::Trim(core::Left(line, colon - 1)),
                       .value = core::Trim(core::Mid(line, colon + 1))};
  if (colon == 0 || entry.label.empty()) return {};
  return entry;
}

bool OpensReport(std::string_view line, std::string_view call) {
  line = core::LTrim(line);
  if (core::StartsWith(line, "Buddies:")) return true;
  return std::any_of(kOpenings.begin(), kOpenings.end(), [&](std::string_view each) {
    return core::StartsWith(line, each) && IsCallOf(core::Mid(line, core::Len(each) + 1), call);
  });
}

std::optional<Switch> SwitchOf(std::string_view label) {
  const auto found = std::find_if(kSwitchLabels.begin(), kSwitchLabels.end(),
                                  [label](const SwitchLabel& each) { return each.label == label; });
  if (found == kSwitchLabels.end()) return {};
  return found->which;
}

UserSettings::Pair UserSettings::*FieldOf(std::string_view label) {
  const auto found = std::find_if(kFieldLabels.begin(), kFieldLabels.end(),
                                  [label](const FieldLabel& each) { return each.label == label; });
  return found == kFieldLabels.end() ? nullptr : found->field;
}

}  // namespace filters
