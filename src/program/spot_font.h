#pragma once

#include <string>

namespace program {

// The font of the table of spots, but for its size.
struct SpotFont {
  std::string family;  // empty: the program's own
  bool bold = false;
  bool italic = false;

  bool operator==(const SpotFont&) const = default;
};

}  // namespace program
