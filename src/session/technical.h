#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "core/controls.h"

namespace session {

// The figures of the technical page: what has been counted since the program was started. Each part
// of the program writes its own labels.
struct Technical {
  static constexpr std::size_t kEscapedErrors = 10;

  Technical();

  // [kEscapedErrors] "Escaped Errors = 7".
  std::array<core::Label, 15> lblTech;
  std::array<core::Label, 2> lblTechnical;  // of the next try over a TNC: "Retry in 3"

  void ShowEscapedErrors(int count);
};

}  // namespace session
