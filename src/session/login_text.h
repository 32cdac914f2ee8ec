#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/settings.h"
#include "core/text_page.h"
#include "session/duelling.h"
#include "session/intake.h"
#include "session/outgoing.h"
#include "session/requests.h"
#include "session/session_state.h"
#include "session/timers.h"

namespace session {

// What the node has to say before its first prompt. Its software is recognised by it.
class LoginText {
 public:
  // `profileAsked`: the question for the profile is on its way.
  LoginText(const core::Settings& settings, SessionState& state, Outgoing& outgoing, Intake& intake,
            Duelling& duelling, Timers& timers, LoginRequests& requests,
            std::function<void()> profileAsked);

  core::TextPage rtbLoginMsg;

  // The software of the node has become known.
  std::function<void()> onKind;

  // A line handler that claims nothing: takes every line that nothing else has taken, until the
  // first prompt.
  void updatetxtLoginMsg(std::string_view line);

 private:
  void Collect(std::string_view line);
  void FirstPrompt();
  void NameConnectedNode();
  platform::Task<> AskMissedSpots(std::uint64_t session);

  const core::Settings& settings_;
  SessionState& state_;
  Outgoing& outgoing_;
  Intake& intake_;
  Duelling& duelling_;
  Timers& timers_;
  LoginRequests& requests_;
  std::function<void()> profileAsked_;
};

}  // namespace session
