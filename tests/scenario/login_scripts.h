#pragma once

#include <string>
#include <vector>

#include "scenario/play.h"

// A login of K1TST-2 at a node of each software.
const std::vector<Script>& LoginScripts();

// The one of that name.
const Script& LoginScript(const std::string& name);
