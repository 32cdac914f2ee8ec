#pragma once

#include <array>

#include "program/conditions.h"
#include "spots/spot_parts.h"

namespace program {

// Raises a condition for each file of the spots that is there and of no use, or not of all its use;
// one that is read or written well clears it. What is missing is none.
class FileConditions {
 public:
  // Both outlive this.
  FileConditions(Conditions& conditions, spots::SpotParts& parts);

 private:
  std::array<platform::Registration, 5> watched_;
};

}  // namespace program
