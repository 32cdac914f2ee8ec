#include "ui/kept_place.h"

#include <algorithm>

namespace ui {
namespace {

using Number = KeptPlace::Number;

template <class Is>
std::optional<Number> FindIf(const SpotSnapshot& now, Is is) {
  const auto found = std::find_if(now.Rows().begin(), now.Rows().end(), is);
  if (found == now.Rows().end()) return std::nullopt;
  return now.First() + static_cast<Number>(found - now.Rows().begin());
}

// Copies of a row share its text.
std::optional<Number> FindSame(const spots::TableRow& row, const SpotSnapshot& now) {
  return FindIf(now, [text = row.Text().data()](const spots::TableRow& each) {
    return each.Text().data() == text;
  });
}

// An order may make a row anew.
std::optional<Number> FindEqual(const spots::TableRow& row, const SpotSnapshot& now) {
  return FindIf(now,
                [text = row.Text()](const spots::TableRow& each) { return each.Text() == text; });
}

}  // namespace

KeptPlace::KeptPlace(const SpotSnapshot& rows, Number first, int count,
                     std::optional<Number> current, Number anchor)
    : current_(Copy(rows, current)), anchor_(Copy(rows, anchor)) {
  for (Number row = first; row < first + count && rows.Holds(row); ++row)
    inSight_.push_back(rows.Row(row));
}

KeptPlace::Row KeptPlace::Copy(const SpotSnapshot& rows, std::optional<Number> row) {
  if (!row || !rows.Holds(*row)) return std::nullopt;
  return rows.Row(*row);
}

std::optional<Number> KeptPlace::Find(const Row& row, const SpotSnapshot& now) {
  if (!row) return std::nullopt;
  const auto same = FindSame(*row, now);
  return same ? same : FindEqual(*row, now);
}

std::optional<KeptPlace::Found> KeptPlace::FirstLeft(const SpotSnapshot& now) const {
  if (inSight_.empty()) return std::nullopt;
  if (const auto top = Find(inSight_.front(), now)) return Found{*top, 0};
  for (std::size_t place = 1; place < inSight_.size(); ++place)
    if (const auto row = FindSame(inSight_[place], now))
      return Found{*row, static_cast<int>(place)};
  return std::nullopt;
}

}  // namespace ui
