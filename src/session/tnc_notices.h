#pragma once

#include <functional>
#include <string_view>

#include "core/controls.h"
#include "session/clockwork.h"
#include "session/connection.h"
#include "session/intake.h"
#include "session/outgoing.h"
#include "session/session_state.h"
#include "session/tnc_link.h"
#include "session/tnc_script.h"

namespace session {

// What a TNC, or a node in between, says of the link itself. Line handlers; true claims the line.
class TncNotices {
 public:
  TncNotices(SessionState& state, Connection& connection, Outgoing& outgoing, Intake& intake,
             TncLink& tncLink, const TncScript& tncScript, Clockwork& clockwork,
             const core::Settings& settings);

  int RetriedOut = 0;         // links that the TNC gave up, in this run of the program
  core::Label lblRetriedOut;  // lblInactivity(1): "Retried out = 2"

  // The link has ended.
  bool TncDisconnectNotice(std::string_view line);
  // There is one. A script that runs may be waiting for that very line: it isn't claimed then.
  bool TncConnectedNotice(std::string_view line);
  // The link has begun once more, at the other end alone: it can't be used.
  bool ReconnectedNotice(std::string_view line);
  bool RetryNotice(std::string_view line);
  // The node knows no "SH/TNC".
  bool ShTNC(std::string_view line);

 private:
  bool TellsOfTheEnd(std::string_view line) const;
  void ShowEnd(std::string_view line);
  platform::Task<> EndReconnected(std::uint64_t session);

  SessionState& state_;
  Connection& connection_;
  Outgoing& outgoing_;
  Intake& intake_;
  TncLink& tncLink_;
  const TncScript& tncScript_;
  Clockwork& clockwork_;
  const core::Settings& settings_;
};

}  // namespace session
