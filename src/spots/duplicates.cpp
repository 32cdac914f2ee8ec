#include "spots/duplicates.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>
#include <utility>

#include "core/text.h"

namespace spots {
namespace {

constexpr int kOld = 5;  // minutes from now: a Skimmer's spot beyond that is never a duplicate
constexpr double kMostHertz = 1e15;

bool IsSkimmers(const Spot& spot) { return spot.Spotter.ends_with('#'); }

std::int64_t HertzOf(const Spot& spot) {
  return std::llround(std::clamp(spot.Freq * 1000, -kMostHertz, kMostHertz));
}

// " 12.50", and " 05.00": two digits at least before the point.
std::string Percentage(std::uint64_t part, std::uint64_t whole) {
  const auto hundredths = static_cast<unsigned>((part * 20'000 + whole) / (whole * 2));
  return ' ' + core::Digits(hundredths / 100, 2) + '.' + core::Digits(hundredths % 100, 2);
}

}  // namespace

Duplicates::Duplicates(core::Calendar& calendar, const core::Settings& settings, Needs needs)
    : calendar_(calendar), settings_(settings), needs_(std::move(needs)), minutes_(calendar) {
  SkimmerDupes.Visible.Set(false);
}

bool Duplicates::IsDupe(Spot& spot) {
  spot.SpotMinute = minutes_.Of(spot);
  return IsSkimmers(spot) ? IsSkimmerDupe(spot) : recent_.Hold(spot);
}

bool Duplicates::IsSkimmerDupe(const Spot& spot) {
  ++skimmerSpots_;
  if (std::abs(spot.SpotMinute - MinuteNow(calendar_)) >= kOld) return false;
  if (!dupefoundskm(spot)) return false;
  ++skimmerDupes_;
  shareChanged_ = true;
  return true;
}

bool Duplicates::dupefoundskm(const Spot& spot) {
  if (settings_.ShowOwnSkimmerSpots && IsOwnCall(spot.DxCall)) return false;
  if (settings_.AllowSkimmerDupes) return false;
  const auto [answer, entry] = skimmers_.Find(HertzOf(spot), spot.DxCall, spot.SpotMinute);
  newSkimmerCall_ = answer == SkimmerRing::Answer::NotFound;
  if (answer != SkimmerRing::Answer::Found) return false;
  return !SkimmerConfirm || IsConfirmedDupe(*entry);
}

bool Duplicates::IsConfirmedDupe(SkimmerRing::Entry& entry) {
  const bool seen = std::exchange(entry.seen, true);
  needs_.addToRawText(seen ? " **** Dupe ****" : " **** New One ****");
  return seen;
}

bool Duplicates::IsOwnCall(std::string_view call) const {
  std::string_view own = settings_.MyCall;
  return SameText(call, core::ExtractToCharacter('-', own));
}

bool Duplicates::Admit(const Spot& spot) {
  const Gating gating = GateOf(newSkimmerCall_, SkimmerConfirm);
  if (gating.recorded) RecordDxSpot(spot);
  return gating.goesOn;
}

void Duplicates::RecordDxSpot(const Spot& spot) {
  if (IsSkimmers(spot)) skimmers_.Record(HertzOf(spot), spot.DxCall, spot.SpotMinute);
  recent_.Record(spot);
}

void Duplicates::Forget() {
  recent_ = {};
  skimmers_ = {};
  newSkimmerCall_ = false;
}

void Duplicates::UpdateSkimmerDupeDisplay() {
  SkimmerDupes.Visible.Set(settings_.ShowSkimmerDupes);
  if (!shareChanged_) return;
  shareChanged_ = false;
  SkimmerDupes.Caption.Set("Skimmer Dupes = " + Percentage(skimmerDupes_, skimmerSpots_) + '%');
}

}  // namespace spots
