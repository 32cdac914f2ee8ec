#pragma once

#include <string_view>

#include "core/controls.h"

namespace spots {

// The extended lines of the session with a wrong number of fields, for the technical page.
class SpotErrors {
 public:
  SpotErrors() { Forget(); }

  core::Label lblAr17Errors;  // "AR17 Errors = 3"; hidden until there is one
  core::Label lblZv11Errors;  // the same, with the last such line for its tool tip

  void CountAr17();
  void CountZv11(std::string_view line);
  // The session has ended.
  void Forget();

 private:
  int ar17_ = 0;
  int zv11_ = 0;
};

}  // namespace spots
