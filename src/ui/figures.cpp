#include "ui/figures.h"

#include <algorithm>

#include "core/text.h"
#include "ui/one_line.h"

namespace ui {
namespace {

constexpr core::Position kLongest = 40;
constexpr qsizetype kGroup = 3;

}  // namespace

QString Grouped(std::uint64_t count) { return Grouped(std::to_string(count)); }

QString Grouped(std::string_view digits) {
  QString text = OneLine(digits, kLongest);
  if (!std::ranges::all_of(digits, [](char each) { return each >= '0' && each <= '9'; }))
    return text;
  for (qsizetype place = text.size() - kGroup; place > 0; place -= kGroup)
    text.insert(place, QLatin1Char(','));
  return text;
}

}  // namespace ui
