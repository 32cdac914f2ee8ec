#pragma once

#include "program/conditions.h"
#include "spots/file_state.h"

namespace program {

// Raises a condition for each file that is there and of no use, or not of all its use. What is
// missing is none.
void ShowFiles(Conditions& conditions, const spots::FileReports& reports);

}  // namespace program
