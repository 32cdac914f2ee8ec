#pragma once

#include <array>
#include <bitset>

#include "core/controls.h"
#include "core/settings.h"

namespace filters {

// The switches of a user's profile at the node, by their index.
enum Switch : std::size_t {
  kDxSpots = 0,
  kBottomOfBand = 1,
  kUsState = 2,
  kDxGrid = 3,
  kWwv = 4,
  kAnnounce = 5,
  kWx = 6,
  kTalk = 7,
  kBell = 8,
  kLogins = 9,
  kCqZone = 10,
  kItuZone = 11,
  kWcy = 12,
  kBobToAnnouncement = 13,  // a local preference, never sent
  kTwoDigits = 14,
  kSelf = 15,
  kBeacon = 16,
  kSkimmer = 17,
  kSkimmerOwn = 18,
  kSkimmerDupes = 19,
};

// The two pages on which the profile stands that the node keeps of its user. Of a pair the first is
// what the node has told, the second what the user wants to have.
struct UserSettings {
  UserSettings();

  using Pair = std::array<core::TextBox, 2>;

  std::array<core::Check, 20> chkSettings;
  std::bitset<20> Told;  // the switches that the node has told of in this session
  Pair txtMyName;
  Pair txtMyQTH;
  Pair txtMyLocation;
  Pair txtMyEmail;
  Pair txtMyHomeNode;
  Pair txtMyQRA;
  std::array<core::Label, 2> fraUserInfo;  // how the personal data stand to the node's
  core::Label fraSettings;                 // the same of the switches

  // What a node has told of the personal data is no longer of account.
  void ForgetNode();
  // Puts the operator's own data into the second of each pair.
  void Take(const core::Settings& settings);
};

}  // namespace filters
