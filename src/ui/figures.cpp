#include "ui/figures.h"

#include <algorithm>
#include <string>

#include "core/text.h"
#include "ui/one_line.h"

namespace ui {
namespace {

constexpr core::Position kLongest = 200;
constexpr qsizetype kGroup = 3;

bool IsDigit(char each) { return each >= '0' && each <= '9'; }

}  // namespace

QString Grouped(std::uint64_t count) { return Grouped(std::to_string(count)); }

QString Grouped(std::string_view digits) {
  if (!std::ranges::all_of(digits, IsDigit)) return OneLine(digits, kLongest);
  QString text = QString::fromLatin1(digits.data(), static_cast<qsizetype>(digits.size()));
  for (qsizetype place = text.size() - kGroup; place > 0; place -= kGroup)
    text.insert(place, QLatin1Char(','));
  return text;
}

}  // namespace ui
