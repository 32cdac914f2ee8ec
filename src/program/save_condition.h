#pragma once

#include <functional>

#include "platform/files.h"
#include "program/conditions.h"

namespace program {

// Raises the condition that the settings could not be written, by how the last try ended; a try
// that succeeded clears it. `save` tries again.
void ShowSaved(Conditions& conditions, platform::Files::Fault fault, std::function<void()> save);

// Raises the condition that spots go unlogged, by what became of the last ones.
void ShowLogged(Conditions& conditions, platform::Files::Fault fault);

}  // namespace program
