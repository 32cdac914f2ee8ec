#include "program/text_sizes.h"

#include <algorithm>
#include <cmath>

namespace program {
namespace {

// The size of the spot table is stored in points, as fonts are chosen; 0 is the usual one.
constexpr double kPointsPerPixel = 0.75;

int Bounded(int pixels) { return std::clamp(pixels, TextSizes::kLeast, TextSizes::kMost); }

int PixelsOf(double points) {
  if (!(points > 0)) return TextSizes::kUsual;
  return static_cast<int>(std::lround(std::min(points, 1000.0) / kPointsPerPixel));
}

}  // namespace

void TextSizes::Load() {
  Size[Raw].Set(Bounded(settings_.RawSize));
  Size[LoginMsg].Set(Bounded(settings_.LoginSize));
  Size[Dx].Set(Bounded(PixelsOf(settings_.DxSize)));
}

void TextSizes::Change(View view, int by) {
  const int pixels = Bounded(Size[view].Get() + by);
  if (pixels == Size[view].Get()) return;
  Size[view].Set(pixels);
  if (view == Raw) settings_.RawSize = pixels;
  if (view == LoginMsg) settings_.LoginSize = pixels;
  if (view == Dx) settings_.DxSize = pixels * kPointsPerPixel;
  delayedWriteCfg_();
}

}  // namespace program
