#include "filters/user_settings.h"

#include <string>

namespace filters {
namespace {

constexpr std::array kCaptions = {"DX Spots", "BoB",    "Spotter QTH", "DX Country", "WWV",
                                  "Announce", "Wx Ann", "Talk",        "Bell",       "Logins",
                                  "CQ",       "ITU",    "WCY",         "BoB=Ann",    "2 dig",
                                  "Self",     "Beacon", "Skimmer",     "SkOwn",      "Sk Dupe"};

}  // namespace

UserSettings::UserSettings() {
  static_assert(kCaptions.size() == std::tuple_size_v<decltype(chkSettings)>);
  for (std::size_t i = 0; i < chkSettings.size(); ++i) chkSettings[i].Caption.Set(kCaptions[i]);
}

void UserSettings::ForgetNode() {
  Told.reset();
  for (Pair* pair : {&txtMyName, &txtMyQTH, &txtMyLocation, &txtMyEmail, &txtMyHomeNode, &txtMyQRA})
    (*pair)[0].Text.Set({});
}

void UserSettings::Take(const core::Settings& settings) {
  txtMyName[1].Text.Set(settings.MyName);
  txtMyQTH[1].Text.Set(settings.MyQth);
  txtMyLocation[1].Text.Set(settings.MyLocation);
  txtMyEmail[1].Text.Set(settings.MyEmail);
  txtMyHomeNode[1].Text.Set(settings.HomeCluster);
  txtMyQRA[1].Text.Set(settings.MyGrid);
}

}  // namespace filters
