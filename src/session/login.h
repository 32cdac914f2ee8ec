#pragma once

#include <string_view>

#include "core/settings.h"
#include "session/connection.h"
#include "session/duelling.h"
#include "session/outgoing.h"
#include "session/session_state.h"
#include "session/tnc_link.h"

namespace session {

// Answers what a node asks before it lets anybody in.
class Login {
 public:
  Login(const core::Settings& settings, SessionState& state, Outgoing& outgoing,
        Connection& connection, Duelling& duelling, const TncLink& tncLink)
      : settings_(settings),
        state_(state),
        outgoing_(outgoing),
        connection_(connection),
        duelling_(duelling),
        tncLink_(tncLink) {}

  // A line handler: the first prompt of a connection gets the call. True claims the line.
  bool LoginPrompt(std::string_view line);

 private:
  const core::Settings& settings_;
  SessionState& state_;
  Outgoing& outgoing_;
  Connection& connection_;
  Duelling& duelling_;
  const TncLink& tncLink_;
};

}  // namespace session
