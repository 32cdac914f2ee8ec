#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "core/controls.h"
#include "core/dates.h"
#include "core/settings.h"
#include "spots/recent_spots.h"
#include "spots/skimmer_ring.h"
#include "spots/spot.h"
#include "spots/spot_minute.h"

namespace spots {

// What becomes of a spot that is no duplicate.
struct Gating {
  bool recorded = false;
  bool goesOn = false;  // else it is dropped

  bool operator==(const Gating&) const = default;
};

// With confirmation a Skimmer's call must be heard twice: the first report is recorded and dropped,
// the second goes on.
constexpr Gating GateOf(bool newSkimmerCall, bool skimmerConfirm) {
  return {.recorded = newSkimmerCall || !skimmerConfirm,
          .goesOn = !newSkimmerCall || !skimmerConfirm};
}

// Which spots have been there before. Asked of each spot with IsDupe, and then told with Admit of
// those that are no duplicates. Nothing is forgotten when a session ends.
class Duplicates {
 public:
  struct Needs {
    std::function<void(std::string_view remark)> addToRawText;  // behind the present line
  };

  // Both outlive this.
  Duplicates(core::Calendar& calendar, const core::Settings& settings, Needs needs);

  core::Label SkimmerDupes;  // "Skimmer Dupes =  12.50%", on show if the settings say so
  // Skimmers' calls must be heard twice. A wish that the user has told his node: for those to set
  // who read it there.
  bool SkimmerConfirm = false;

  // What the last look for a Skimmer's call has left: there was none within reach. It decides on
  // the spots of others too, until the next look.
  bool NewSkimmerCall() const { return newSkimmerCall_; }

  // Sets SpotMinute of the spot, which has its date and time.
  bool IsDupe(Spot& spot);
  // The normal test alone, for spots that come from the log. They have their SpotMinute.
  bool IsRepeated(const Spot& spot) const { return recent_.Hold(spot); }
  // Records the spot that was just asked about, or not. False if it is dropped.
  bool Admit(const Spot& spot);
  void RecordDxSpot(const Spot& spot);

  // What is cleared from the table may come again.
  void Forget();

  // Brings the label up to date. Called now and then: the share changes with every other spot.
  void UpdateSkimmerDupeDisplay();

 private:
  bool IsSkimmerDupe(const Spot& spot);
  bool dupefoundskm(const Spot& spot);
  bool IsConfirmedDupe(SkimmerRing::Entry& entry);
  bool IsOwnCall(std::string_view call) const;

  core::Calendar& calendar_;
  const core::Settings& settings_;
  Needs needs_;
  SpotMinutes minutes_;
  RecentSpots recent_;
  SkimmerRing skimmers_;
  std::uint64_t skimmerSpots_ = 0;
  std::uint64_t skimmerDupes_ = 0;
  bool newSkimmerCall_ = false;
  bool shareChanged_ = false;
};

}  // namespace spots
