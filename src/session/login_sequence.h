#pragma once

#include <functional>
#include <string_view>

#include "core/settings.h"
#include "session/intake.h"
#include "session/outgoing.h"
#include "session/requests.h"
#include "session/session_state.h"

namespace session {

// What each software is told and asked behind the login, so that it sends what the program reads.
class LoginSequence {
 public:
  struct Needs {
    std::function<void()> profileAsked;  // "stat/user" is on its way
    std::function<void()> ar17Asked;     // so is the question for the extended spot lines
  };

  LoginSequence(const core::Settings& settings, SessionState& state, Outgoing& outgoing,
                Intake& intake, LoginRequests& requests, Needs needs);

  // A line handler that claims nothing: the steps behind the login prompt.
  void Run(std::string_view line);
  // A line handler; true claims the line: an AR-Cluster's first prompt is answered with requests.
  bool ArFirstPrompt(std::string_view line);

 private:
  void FirstSteps(std::string_view line);
  void SpiderSteps(std::string_view line);
  void ArSteps(std::string_view line);
  platform::Task<> AskAr(std::uint64_t session);

  const core::Settings& settings_;
  SessionState& state_;
  Outgoing& outgoing_;
  Intake& intake_;
  LoginRequests& requests_;
  Needs needs_;
};

// Whether the version that a DXSpider's greeting names lists spots through the user's own filter.
bool SpiderHasMyDx(std::string_view greeting);

}  // namespace session
