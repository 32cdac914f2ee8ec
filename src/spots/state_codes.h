#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace spots {

// The states and provinces by their codes, and whose calls go with them. Labrador is apart from
// Newfoundland; the District of Columbia counts as a state.

inline constexpr std::array<std::string_view, 51> kUsStates = {
    "AK", "AL", "AR", "AZ", "CA", "CO", "CT", "DC", "DE", "FL", "GA", "HI", "IA",
    "ID", "IL", "IN", "KS", "KY", "LA", "MA", "MD", "ME", "MI", "MN", "MO", "MS",
    "MT", "NC", "ND", "NE", "NH", "NJ", "NM", "NV", "NY", "OH", "OK", "OR", "PA",
    "RI", "SC", "SD", "TN", "TX", "UT", "VA", "VT", "WA", "WI", "WV", "WY"};

inline constexpr std::array<std::string_view, 14> kProvinces = {
    "AB", "BC", "LB", "MB", "NB", "NL", "NS", "NT", "NU", "ON", "PE", "QC", "SK", "YT"};

static_assert(std::is_sorted(kUsStates.begin(), kUsStates.end()));
static_assert(std::is_sorted(kProvinces.begin(), kProvinces.end()));

constexpr bool IsUsState(std::string_view word) {
  return std::binary_search(kUsStates.begin(), kUsStates.end(), word);
}

constexpr bool IsProvince(std::string_view word) {
  return std::binary_search(kProvinces.begin(), kProvinces.end(), word);
}

// In capitals only, as nodes send them.
constexpr bool IsStateCode(std::string_view word) { return IsUsState(word) || IsProvince(word); }

// Calls of the United States begin with K, N, W, or AA to AL.
constexpr bool BeginsLikeUsCall(std::string_view call) {
  if (call.empty()) return false;
  if (call[0] != 'A') return call[0] == 'K' || call[0] == 'N' || call[0] == 'W';
  return call.size() > 1 && call[1] >= 'A' && call[1] <= 'L';
}

// Those of Canada begin with VA to VG, VO or VY.
constexpr bool BeginsLikeCanadianCall(std::string_view call) {
  if (call.size() < 2 || call[0] != 'V') return false;
  return (call[1] >= 'A' && call[1] <= 'G') || call[1] == 'O' || call[1] == 'Y';
}

// Whether the state or province may be that of the call, which begins like those of its country.
// False for what is no state.
constexpr bool CallFitsState(std::string_view call, std::string_view state) {
  if (IsUsState(state)) return BeginsLikeUsCall(call);
  return IsProvince(state) && BeginsLikeCanadianCall(call);
}

}  // namespace spots
