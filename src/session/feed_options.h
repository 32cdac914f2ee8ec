#pragma once

#include "core/settings.h"

namespace session {

// What logging programs and the local network may get, by the user's choice. The number is the
// option's bit in the setting.
enum class FeedOption {
  SpotterQth = 0,
  Spots = 1,
  Profile = 2,
  Wwv = 3,
  Announcements = 4,
  LoginMessage = 7,
  Talk = 9,
  FiltersAndSettings = 10,
  LiveSpotFormat = 12,  // spots of a list look like live ones
  DxState = 14,
  TabFormat = 19,   // spots look as in the table
  SkimmerMark = 20,  // the "-#" of a Skimmer's call
};

inline bool Feeds(const core::Settings& settings, FeedOption option) {
  return (settings.SendToLog >> static_cast<int>(option) & 1) != 0;
}

}  // namespace session
