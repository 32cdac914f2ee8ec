#pragma once

#include <functional>
#include <optional>
#include <string>

namespace program {

// Gives the value of an environment variable, or nothing.
using Environment = std::function<std::optional<std::string>(const std::string& name)>;

// Where the program keeps its files: MOLVA_HOME, else molva-desk under XDG_DATA_HOME, else under
// ~/.local/share. Empty or relative values of XDG_DATA_HOME count as none.
std::string ProgramFolder(const Environment& environment);

}  // namespace program
