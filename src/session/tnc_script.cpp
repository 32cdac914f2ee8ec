#include "session/tnc_script.h"

#include <algorithm>
#include <utility>

#include "core/text.h"
#include "session/port_advice.h"

namespace session {
namespace {

using Progress = TncStepMark::Progress;

platform::Milliseconds TimeOutOf(const core::TncStep& step) {
  constexpr double kMilliseconds = 1000;
  const double seconds = std::min<double>(core::Val(step.TimeOut), TncScript::kLongestTimeOut);
  return platform::Milliseconds{static_cast<int>(seconds * kMilliseconds)};
}

// A step that awaits nothing in particular takes anything that is said.
bool Answers(std::string_view line, std::string_view reply) {
  if (reply.empty()) return !core::Trim(line).empty();
  return core::InStrIgnoringCase(line, reply) > 0;
}

}  // namespace

TncScript::TncScript(const core::Settings& settings, SessionState& state, Outgoing& outgoing,
                     TncLink& tncLink, Timers& timers, Needs needs)
    : settings_(settings),
      state_(state),
      outgoing_(outgoing),
      tncLink_(tncLink),
      timers_(timers),
      needs_(std::move(needs)) {
  timers_.SetDuty(TimerId::ConnectScript, [this] { TimedOut(); });
}

std::vector<TncScript::Step> TncScript::StepsIn(const core::Settings& settings) {
  std::vector<Step> steps;
  const std::size_t rows = std::min(settings.TncSteps.size(), kMostSteps);
  for (std::size_t row = 0; row < rows; ++row) {
    const core::TncStep& texts = settings.TncSteps[row];
    if (TimeOutOf(texts).count() > 0) steps.push_back({texts, row});
  }
  return steps;
}

void TncScript::Connect() {
  for (TncStepMark& mark : steps) {
    mark.progress.Set(Progress::Idle);
    mark.ForeColour.Set(ColourOf(Progress::Idle));
  }
  script_ = StepsIn(settings_);
  ScriptStep = 0;
  if (script_.empty()) {
    End("there is no connect script");
    needs_.noScript();
    return;
  }
  ScriptRunning = true;
  tncLink_.BeginLink();
  needs_.beginning();
  if (!tncLink_.OpenComm1())
    outgoing_.updateText2(PortAdvice(tncLink_.MSComm1->CommPort, tncLink_.Trouble.Get()));
  BeginStep();
  state_.txtNode.Caption.Set(Now().texts.Command);
}

void TncScript::BeginStep() {
  needs_.stepBegins();
  Mark(Progress::Waiting);
  timers_.SetInterval(TimerId::ConnectScript, TimeOutOf(Now().texts));
  timers_.Restart(TimerId::ConnectScript);
  outgoing_.Send(Now().texts.Command);
}

void TncScript::Mark(Progress progress) {
  TncStepMark& mark = steps[Now().row];
  mark.progress.Set(progress);
  mark.ForeColour.Set(ColourOf(progress));
}

core::Colour TncScript::ColourOf(Progress progress) const {
  const core::Colour colours[] = {core::kThemeColour, settings_.ColourNodeTrying,
                                  settings_.ColourNodeConn, settings_.ColourNodeDisc};
  return colours[static_cast<std::size_t>(progress)];
}

void TncScript::Recolour() {
  for (TncStepMark& mark : steps) mark.ForeColour.Set(ColourOf(mark.progress.Get()));
}

bool TncScript::Netrom(std::string_view line) {
  if (!ScriptRunning || !Answers(line, Now().texts.Reply)) return false;
  Mark(Progress::Answered);
  if (++ScriptStep < static_cast<int>(script_.size()))
    BeginStep();
  else
    Finish(line);
  return true;
}

void TncScript::Finish(std::string_view line) {
  Stop();
  tncLink_.ShowLinked();
  needs_.linked();
  state_.txtNode.Caption.Set(std::string(line));
}

void TncScript::TimedOut() {
  std::string why;
  if (std::exchange(ScriptRunning, false) && !state_.UserDisconnected) {
    Mark(Progress::TimedOut);
    outgoing_.updateText2("Connect attempt time out.  Connect Response of: \"" + Now().texts.Reply +
                          "\" not received!");
    // A session that has ended meanwhile has told its reason.
    if (state_.Phase.Get() != LinkPhase::Disconnected) why = WhyNoReply();
  }
  timers_.Disable(TimerId::ConnectScript);
  if (!state_.TncMode) return;
  HangUp();
  End(std::move(why));
}

std::string TncScript::WhyNoReply() const {
  return tncLink_.MSComm1->PortOpen() ? "the TNC gave no reply in time" : tncLink_.WhyClosed();
}

void TncScript::DisconnectTNC() {
  if (!state_.TncMode) return;
  HangUp();
  End({});
}

void TncScript::HangUp() {
  if (tncLink_.MSComm1->PortOpen()) {
    if (state_.LoggedIn) {
      outgoing_.Send("BYE");
      tncLink_.Rest();
    }
    if (!tncLink_.CallAndDisconnect()) {
      tncLink_.SendCtrlC();
      outgoing_.Send("DISC");
    }
  }
  outgoing_.updateText2("   <- Disconnect in progress " + state_.ConnectedNodeCall);
  needs_.drop();
}

void TncScript::End(std::string why) {
  Stop();
  needs_.ended(std::move(why));
}

void TncScript::Stop() {
  ScriptRunning = false;
  timers_.Disable(TimerId::ConnectScript);
}

void TncScript::Abandon() {
  if (ScriptRunning) Mark(Progress::Idle);
  Stop();
}

void TncScript::PortLost() {
  const bool underWay = ScriptRunning || state_.Phase.Get() == LinkPhase::Connected;
  if (!state_.TncMode || !underWay) return;
  End("the TNC's port has gone");
  state_.txtNode.Caption.Set("The TNC's port has gone: look at its cable");
  tncLink_.ShowLost();
}

}  // namespace session
