#pragma once

#include <functional>
#include <string_view>

#include "core/controls.h"
#include "session/connection.h"
#include "session/duelling.h"
#include "session/intake.h"
#include "session/keep_alive.h"
#include "session/outgoing.h"
#include "session/requests.h"
#include "session/session_state.h"

namespace session {

// Settles whether the node sends the extended spot lines, and what the columns are called then.
class Ar17 {
 public:
  struct Needs {
    std::function<void()> settled;  // the display of spots is to follow
  };

  Ar17(platform::Scheduler& scheduler, SessionState& state, Outgoing& outgoing, Intake& intake,
       Connection& connection, Duelling& duelling, const KeepAlive& keepAlive,
       LoginRequests& requests, Needs needs);

  core::Label lblStatus;   // what the node can do, in words
  core::Label lblDxState;  // the captions of two columns in frmAR17
  core::Label lblOrigState;

  // The call has gone out: a node that names no software counts as refusing after some seconds, an
  // AR-Cluster after a while if it never prompts for the question.
  void LoggedIn();
  // An AR-Cluster has been asked for them. Silence counts as its refusal after a while, until it
  // answers.
  void Asked();
  // The session has ended.
  void Forget();

  // A line handler; true claims the line.
  bool ArpcReply(std::string_view line);

 private:
  bool Accepted(std::string_view line);
  bool Refused(std::string_view line);
  void RefusedBySoftware();
  bool CallIsRefused(std::string_view line);
  void WaitForAnswer();
  void TakeSilenceForRefusal();
  void Settle();
  void GoOn();

  platform::Scheduler& scheduler_;
  SessionState& state_;
  Outgoing& outgoing_;
  Intake& intake_;
  Connection& connection_;
  Duelling& duelling_;
  const KeepAlive& keepAlive_;
  LoginRequests& requests_;
  Needs needs_;
  platform::Registration overdue_;
  platform::Registration silent_;
};

}  // namespace session
