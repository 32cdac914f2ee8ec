#include "spots/row_shape.h"

#include <array>

namespace spots {
namespace {

using Switch = bool ShownColumns::*;

constexpr std::array<Switch, 20> kSwitches = {
    &ShownColumns::Expanded,  &ShownColumns::Wide,       &ShownColumns::Node,
    &ShownColumns::DxCty,     &ShownColumns::DxState,    &ShownColumns::DxCq,
    &ShownColumns::DxItu,     &ShownColumns::DxGrid,     &ShownColumns::OrigCty,
    &ShownColumns::OrigState, &ShownColumns::OrigCq,     &ShownColumns::OrigItu,
    &ShownColumns::OrigGrid,  &ShownColumns::Comments,   &ShownColumns::Bearing,
    &ShownColumns::Date,      &ShownColumns::Distance,   &ShownColumns::Kilometres,
    &ShownColumns::SpotterIp, &ShownColumns::CountryName};
static_assert(sizeof(ShownColumns) == kSwitches.size(), "every switch has its bit");

// The width stands above the switches.
constexpr std::uint32_t kWidthUnit = 1U << kSwitches.size();

}  // namespace

std::uint32_t Packed(const RowShape& shape) {
  std::uint32_t bits = static_cast<std::uint32_t>(shape.spotWidth) * kWidthUnit;
  std::uint32_t bit = 1;
  for (const Switch shown : kSwitches) {
    if (shape.shown.*shown) bits |= bit;
    bit <<= 1;
  }
  return bits;
}

RowShape Unpacked(std::uint32_t shape) {
  RowShape unpacked;
  unpacked.spotWidth = static_cast<int>(shape / kWidthUnit);
  std::uint32_t bit = 1;
  for (const Switch shown : kSwitches) {
    unpacked.shown.*shown = (shape & bit) != 0;
    bit <<= 1;
  }
  return unpacked;
}

}  // namespace spots
