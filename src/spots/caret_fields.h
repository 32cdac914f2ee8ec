#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "spots/spot.h"

namespace spots {

// A line's fields with carets between, numbered from 0. Points into the line.
class CaretFields {
 public:
  explicit CaretFields(std::string_view line);

  // The highest number.
  std::size_t Last() const { return last_; }
  // One of the first 20 fields; empty if the line hasn't got it.
  std::string_view operator[](std::size_t number) const { return first_[number]; }
  // Counted from the end: 0 is the last one. Empty if the line hasn't got it.
  std::string_view FromEnd(std::size_t number) const;

 private:
  std::string_view line_;
  std::array<std::string_view, 20> first_;
  std::size_t last_ = 0;
};

// Which field of a line goes into which text of the record.
struct FieldPlace {
  std::size_t number;
  std::string Spot::*text;
};

}  // namespace spots
