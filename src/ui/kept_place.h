#pragma once

#include <optional>
#include <vector>

#include "ui/spot_snapshot.h"

namespace ui {

// Where the reader is in a list that is about to be made anew: the rows in sight, from the top, and
// those that he has chosen. They are found again by what they are, wherever they have gone.
class KeptPlace {
 public:
  using Number = SpotSnapshot::Number;

  // `rows` are those in sight of the whole, of which `first` is the first; `current` and `anchor`
  // may be anywhere.
  KeptPlace(const SpotSnapshot& rows, Number first, int count, std::optional<Number> current,
            Number anchor);

  struct Found {
    Number row;  // now
    int place;   // of it among those that were in sight, from 0
  };
  // The uppermost row in sight that is still in the list.
  std::optional<Found> FirstLeft(const SpotSnapshot& now) const;
  // The chosen ones, if they are still in the list.
  std::optional<Number> Current(const SpotSnapshot& now) const { return Find(current_, now); }
  std::optional<Number> Anchor(const SpotSnapshot& now) const { return Find(anchor_, now); }

 private:
  using Row = std::optional<spots::TableRow>;

  static Row Copy(const SpotSnapshot& rows, std::optional<Number> row);
  static std::optional<Number> Find(const Row& row, const SpotSnapshot& now);

  std::vector<spots::TableRow> inSight_;
  Row current_;
  Row anchor_;
};

}  // namespace ui
