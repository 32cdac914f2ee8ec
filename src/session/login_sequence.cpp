#include "session/login_sequence.h"

#include <chrono>
#include <utility>

#include "core/text.h"

using namespace std::chrono_literals;

namespace session {
namespace {

constexpr auto kBetweenSends = 100ms;

// The last word of a greeting is a version or a build number; older ones name the version third.
constexpr double kFirstWithMyDx = 1.52;
constexpr double kFirstOldStyleWithMyDx = 58.304;
constexpr std::size_t kLeastLastIndex = 4;
constexpr std::size_t kVersionIndex = 2;

// A prompt names the caller in front: "K1TST-2 de N0NODE 2148Z >".
bool IsOwnPrompt(std::string_view line, std::string_view ownCall) {
  const std::string caller = std::string(core::Trim(ownCall)) + " de ";
  return core::EndsWith(line, ">") && core::InStrIgnoringCase(line, caller) > 0;
}

}  // namespace

bool SpiderHasMyDx(std::string_view greeting) {
  const auto words = core::Split(core::Trim(greeting), " ");
  if (words.size() <= kLeastLastIndex) return false;
  return core::Val(words.back()) > kFirstWithMyDx ||
         core::Val(core::Mid(words[kVersionIndex], 2)) > kFirstOldStyleWithMyDx;
}

LoginSequence::LoginSequence(const core::Settings& settings, SessionState& state,
                             Outgoing& outgoing, Intake& intake, LoginRequests& requests,
                             Needs needs)
    : settings_(settings),
      state_(state),
      outgoing_(outgoing),
      intake_(intake),
      requests_(requests),
      needs_(std::move(needs)) {}

void LoginSequence::Run(std::string_view line) {
  if (!state_.LoggedIn) {
    state_.LoginFinished = false;
    state_.SunDone = false;
    return;
  }
  if ((state_.IsZelva() || state_.TncMode) && core::StartsWith(line, "password:")) {
    outgoing_.SendPassword();
    if (!outgoing_.NodePassword.empty()) state_.NodeSentPassword = true;
    return;
  }
  if (state_.RcvdPrompt(line) || IsOwnPrompt(line, state_.LoginCall(settings_.MyCall)))
    state_.Prompted = true;
  if (!state_.LoginFinished) {
    FirstSteps(line);
  } else if (!std::exchange(state_.SunDone, true)) {
    if (settings_.Sun) requests_.AskSunTimes();
  }
}

void LoginSequence::FirstSteps(std::string_view line) {
  switch (state_.Kind) {
    case NodeKind::Zelva:
    case NodeKind::DxNet:
    case NodeKind::Clx:
      state_.LoginFinished = true;
      break;
    case NodeKind::Spider:
      SpiderSteps(line);
      break;
    case NodeKind::ArCluster:
    case NodeKind::WinCluster:
    case NodeKind::Skimmer:
    case NodeKind::Unknown:
      ArSteps(line);
      break;
  }
}

// The greeting names the software; where the one before the login has done so, the prompt does.
void LoginSequence::SpiderSteps(std::string_view line) {
  if (core::InStrIgnoringCase(line, "DXSpider") == 0) return;
  const bool isGreeting = core::InStr(line, "DXSpider") > 0;  // not the prompt, in lower case
  state_.UseMyDx = isGreeting && SpiderHasMyDx(line);
  state_.ShowDxCommand = state_.UseMyDx ? "sh/mydx" : "sh/dx";
  state_.LoginFinished = true;
  needs_.profileAsked();
  outgoing_.SendAsIs("stat/user");
}

void LoginSequence::ArSteps(std::string_view line) {
  if (!core::EndsWith(line, "arc >")) return;
  state_.LoginFinished = true;
  intake_.PushStep("LoginSequence", AskAr(state_.Sessions));
}

platform::Task<> LoginSequence::AskAr(std::uint64_t session) {
  co_await platform::Delay(kBetweenSends);
  if (state_.Sessions != session) co_return;
  if (settings_.AskSettings && !std::exchange(state_.RequestedSettings, true))
    outgoing_.Send("sh/settings");
  co_await platform::Delay(kBetweenSends);
  if (state_.Sessions != session) co_return;
  outgoing_.Send(settings_.DxARPCoff ? "dont_set/dx_arpc on" : "set/dx_arpc on");
  needs_.ar17Asked();
}

bool LoginSequence::ArFirstPrompt(std::string_view line) {
  if (!state_.IsArCluster() || !state_.LoggedIn || !settings_.AutoFilter) return false;
  if (state_.FirstPromptDone || !state_.RcvdPrompt(line)) return false;
  state_.FirstPromptDone = state_.Prompted = true;
  outgoing_.Send("sh/filter");
  outgoing_.Send("sh/settings");
  state_.RequestedSettings = true;
  return true;
}

}  // namespace session
