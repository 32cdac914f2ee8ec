#pragma once

#include <array>
#include <bitset>
#include <optional>
#include <string>
#include <string_view>

namespace practice_node {

// The personal data that a node keeps of a user.
enum class Field { Name, Qth, Location, Grid, HomeNode, Email };
inline constexpr std::size_t kFields = 6;

// What a user can have switched on and off.
enum class Toggle {
  DxSpots,
  BottomOfBand,
  SpotterQth,
  DxCountry,
  Wwv,
  Wcy,
  Wx,
  Announcements,
  Talk,
  Beep,
  Logins,
  CqZone,
  ItuZone,
  TwoDigits,
  SelfSpots,
  Beacons,
  Skimmer,
  OwnSkimmer,
  SkimmerDupes,
};
inline constexpr std::size_t kToggles = 19;

// How the dialects name a switch. An empty word: the dialects of that column don't have it.
struct ToggleWords {
  Toggle toggle;
  bool atFirst;                           // for a new user
  std::array<std::string_view, 2> words;  // of "set/..."
  std::string_view spiderLabel;           // in the report of DXSpider
  std::string_view zelvaLabel;            // in the one of Zelva Cluster
  std::string_view title;                 // in the report of the others
  std::string_view on;                    // the answer; %C is the user's call
  std::string_view off;
};

// clang-format off
inline constexpr std::array<ToggleWords, kToggles> kToggleWords = {{
    {Toggle::DxSpots, true, {"dx", "dx_ann"}, "Req DX Spots", "Req DX Spots", "DX Spots - ",
     "DX Spots enabled for %C", "DX Spots disabled for %C"},
    {Toggle::BottomOfBand, true, {"bob", "dx_bob"}, "", "Req BoB Spots",
     "DX Bottom of Band Spots - ",
     "Bottom of Band Spots enabled for %C", "Bottom of Band Spots disabled for %C"},
    {Toggle::SpotterQth, false, {"usstate", "dxsqth"}, "Show US State", "Show US State",
     "DX Spotter QTH - ", "US State enabled for %C", "US State disabled for %C"},
    {Toggle::DxCountry, false, {"dxgrid", "dxscty"}, "Show DX Grid", "Show DX Grid",
     "DX Spot CTY - ", "DX Grid enabled for %C", "DX Grid disabled for %C"},
    {Toggle::Wwv, true, {"wwv", ""}, "Req WWV", "Req WWV", "WWV Spots - ",
     "WWV enabled for %C", "WWV disabled for %C"},
    {Toggle::Wcy, true, {"wcy", ""}, "Req WCY", "Req WCY", "",
     "WCY enabled for %C", "WCY disabled for %C"},
    {Toggle::Wx, true, {"wx", ""}, "Req WX", "Req WX", "WX Announcements - ",
     "WX enabled for %C", "WX disabled for %C"},
    {Toggle::Announcements, true, {"ann", "announce"}, "Req Announce", "Req Announce",
     "Announcements - ", "Announces enabled for %C", "Announces disabled for %C"},
    {Toggle::Talk, true, {"talk", ""}, "Req Talk", "Req Talk", "Talk - ",
     "Talk enabled for %C", "Talk disabled for %C"},
    {Toggle::Beep, true, {"beep", ""}, "Req Beep", "Req Beep", "Beep/Bell - ",
     "Beeps are now on", "Beeps are now off"},
    {Toggle::Logins, false, {"login", "logininfo"}, "Login Info Req", "Login Info Req",
     "Login - ", "Login announcements enabled for %C", "Login announcements disabled for %C"},
    {Toggle::CqZone, false, {"dxcq", ""}, "Show CQ Zone", "Show CQ Zone", "",
     "DX CQ Zones enabled for %C", "DX CQ Zones disabled for %C"},
    {Toggle::ItuZone, false, {"dxitu", ""}, "Show ITU Zone", "Show ITU Zone", "",
     "DX ITU Zones enabled for %C", "DX ITU Zones disabled for %C"},
    {Toggle::TwoDigits, false, {"", ""}, "", "Dx 2 Digit Res", "",
     "Resolution is now 2 digits", "Resolution is now 1 digit"},
    {Toggle::SelfSpots, true, {"selfspots", ""}, "", "Req Self Spots", "",
     "Self Spots enabled for %C", "Self Spots disabled for %C"},
    {Toggle::Beacons, true, {"beaconspot", ""}, "", "Req Beacon Spot", "",
     "Beacon Spots enabled for %C", "Beacon Spots disabled for %C"},
    {Toggle::Skimmer, true, {"skimmer", ""}, "", "Req SkimmerSpot", "",
     "Skimmer Spots enabled for %C", "Skimmer Spots disabled for %C"},
    {Toggle::OwnSkimmer, false, {"own", ""}, "", "Req Skimmer Own", "",
     "Own Skimmer Spots enabled for %C", "Own Skimmer Spots disabled for %C"},
    {Toggle::SkimmerDupes, false, {"skimmerdupes", ""}, "", "Req SkimmerDupe", "",
     "Skimmer Dupes enabled for %C", "Skimmer Dupes disabled for %C"},
}};
// clang-format on

// What a node knows of one user, for as long as it runs.
class Profile {
 public:
  explicit Profile(std::string_view callOfUser) : call(callOfUser) {
    for (const ToggleWords& each : kToggleWords) Set(each.toggle, each.atFirst);
  }

  const std::string call;  // upper case, with its SSID
  std::string language;    // empty: never set
  std::string prompt;      // the pattern that the user has set; empty: the dialect's
  bool echo = true;

  std::string& operator[](Field field) { return fields_[static_cast<std::size_t>(field)]; }
  const std::string& operator[](Field field) const {
    return fields_[static_cast<std::size_t>(field)];
  }
  bool Has(Toggle toggle) const { return toggles_.test(static_cast<std::size_t>(toggle)); }
  void Set(Toggle toggle, bool on) { toggles_.set(static_cast<std::size_t>(toggle), on); }

 private:
  std::array<std::string, kFields> fields_;
  std::bitset<kToggles> toggles_;
};

}  // namespace practice_node
