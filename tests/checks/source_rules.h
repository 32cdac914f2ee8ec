#pragma once

#include <string>
#include <string_view>
#include <vector>

// The rules of the source tree that no compiler checks. Each looks at one file, named by its path
// below src/, and gives a line for every place that breaks the rule: "path:line: what".
namespace checks {

using Findings = std::vector<std::string>;

// A folder includes only itself and folders above it in the order of the design; Qt stays in ui/,
// platform/qt/ and main.cpp.
Findings FolderOrder(std::string_view path, std::string_view source);

// Clocks and timers of the system stay in platform/.
Findings NoClockOutsidePlatform(std::string_view path, std::string_view source);

// Nothing blocks and nothing runs an event loop inside another; main.cpp alone runs the one loop.
Findings NoNestedLoop(std::string_view path, std::string_view source);

}  // namespace checks
