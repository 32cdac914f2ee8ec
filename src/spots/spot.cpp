#include "spots/spot.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "core/text.h"

namespace spots {
namespace {

constexpr std::array<double, 10> kPowers = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};

// The value's shortest decimal number, which ends behind the point.
double RoundDecimally(double value, std::size_t decimals, double power) {
  std::array<char, 512> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                 std::chars_format::fixed);
  std::string_view fraction(buffer.data(), static_cast<std::size_t>(end.ptr - buffer.data()));
  const double whole = core::Val(core::ExtractToCharacter('.', fraction));
  if (fraction.size() <= decimals) return value;
  std::int64_t units = 0;
  for (const char digit : fraction.substr(0, decimals)) units = units * 10 + (digit - '0');
  if (fraction[decimals] > '4') ++units;
  return std::copysign((whole * power + static_cast<double>(units)) / power, value);
}

}  // namespace

void ClearSpotExtras(Spot& spot) {
  for (std::string* extra :
       {&spot.OrigGrid, &spot.DxGrid, &spot.DxItu, &spot.DxCq, &spot.DxCty, &spot.OrigCty,
        &spot.OrigState, &spot.DxState, &spot.OrigItu, &spot.OrigCq})
    extra->clear();
}

double RoundHalfUp(double value, int decimals) {
  if (!std::isfinite(value)) return value;
  const auto places = static_cast<std::size_t>(decimals);
  const double power = kPowers[places];
  const bool isRound = std::nearbyint(value * power) / power == value;
  return isRound ? value : RoundDecimally(value, places, power);
}

}  // namespace spots
