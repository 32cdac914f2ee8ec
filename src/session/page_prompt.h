#pragma once

#include <string_view>

#include "session/intake.h"
#include "session/outgoing.h"
#include "session/session_state.h"

namespace session {

// A line handler: a node that stops in the middle of a text is told to go on, and to stop no more.
// True claims the line.
bool PagePrompt(std::string_view line, const SessionState& state, Outgoing& outgoing,
                Intake& intake);

}  // namespace session
