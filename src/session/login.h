#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/settings.h"
#include "core/text_page.h"
#include "session/connection.h"
#include "session/outgoing.h"
#include "session/session_state.h"

namespace session {

// Answers what a node asks before it lets anybody in, and collects what it has to say then.
class Login {
 public:
  Login(const core::Settings& settings, SessionState& state, Outgoing& outgoing,
        Connection& connection)
      : settings_(settings), state_(state), outgoing_(outgoing), connection_(connection) {}

  // Line handlers; true claims the line.
  bool LoginPrompt(std::string_view line);
  // Takes every line that nothing else has taken, while the login text runs.
  void updatetxtLoginMsg(std::string_view line);
  // Behind the first prompt of the node nothing it says is a prompt of the login any more.
  void LoginSequence(std::string_view line);

 private:
  const core::Settings& settings_;
  SessionState& state_;
  Outgoing& outgoing_;
  Connection& connection_;
};

}  // namespace session
