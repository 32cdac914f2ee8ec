#include "session/mode_switch.h"

#include <string>
#include <utility>

#include "core/pause.h"

namespace session {
namespace {

// A session that has not ended by then is left as it is.
constexpr int kMostPauses = 20;

}  // namespace

ModeSwitch::ModeSwitch(const platform::Platform& platform, core::Settings& settings,
                       Session& session, Needs needs)
    : dialogs_(platform.dialogs),
      settings_(settings),
      session_(session),
      needs_(std::move(needs)),
      radio_(RadioClus.Click.Add([this] { tasks_.Start("RadioClus", ChooseRadio()); })),
      telnet_(TelnetClus.Click.Add([this] { tasks_.Start("TelnetClus", ChooseTelnet()); })),
      tasks_(platform.scheduler, needs_.onFault) {}

platform::Task<> ModeSwitch::ChooseRadio() {
  const bool interrupts = session_.timers.Enabled(TimerId::Reconnect) && !session_.state.LoggedIn;
  if (interrupts) session_.connection.InterruptReconnect();
  const bool ended = co_await EndOther(true);
  if (!ended) co_return;
  Take(true);
  // No form is to hide the question.
  if (interrupts) co_await AskAboutReconnect();
  AskWhatTheTncLacks();
}

platform::Task<> ModeSwitch::AskAboutReconnect() {
  platform::Message question{.title = "Disabled",
                             .text =
                                 "Auto Reconnect has been temporarily disabled.\n"
                                 "Do you wish to re-enable now?\n"
                                 "Pressing \"Connect\" will also re-enable it.",
                             .kind = platform::Message::Kind::Question,
                             .answers = {platform::Answer::Yes, platform::Answer::No}};
  const platform::Answer answer = co_await dialogs_.Ask(std::move(question));
  if (answer == platform::Answer::Yes) session_.connection.ResumeReconnect();
}

platform::Task<> ModeSwitch::ChooseTelnet() {
  const bool ended = co_await EndOther(false);
  if (!ended) co_return;
  session_.nodeAddress.EnsureNode();
  settings_.NodeNumberedAddress.clear();
  if (!session_.state.LoggedIn) session_.connection.InterruptReconnect();
  needs_.delayedWriteCfg();
  Take(false);
  needs_.openNodes();
}

bool ModeSwitch::HoldsOther(bool overTnc) const {
  return session_.state.TncMode != overTnc && session_.state.Phase.Get() != LinkPhase::Disconnected;
}

// Still, or the last words to its TNC are on their way.
bool ModeSwitch::Ends(bool overTnc) const {
  return HoldsOther(overTnc) || !session_.tncLink.MSComm1->AllWritten();
}

platform::Task<bool> ModeSwitch::EndOther(bool overTnc) {
  if (HoldsOther(overTnc) && session_.state.LoggedIn) {
    const bool may = co_await MayEnd();
    if (!may) co_return false;
  }
  if (!HoldsOther(overTnc)) co_return true;
  session_.connection.cmdDisconnect.Press();
  for (int pauses = 0; Ends(overTnc) && pauses < kMostPauses; ++pauses)
    co_await platform::Delay(core::kPause);
  co_return !HoldsOther(overTnc);
}

platform::Task<bool> ModeSwitch::MayEnd() {
  platform::Message question{.title = "Molva Desk",
                             .text = "This ends the link to " + session_.state.ConnectedNodeCall +
                                     ".\nDo you wish to go on?",
                             .kind = platform::Message::Kind::Question,
                             .answers = {platform::Answer::Yes, platform::Answer::No}};
  const platform::Answer answer = co_await dialogs_.Ask(std::move(question));
  co_return answer == platform::Answer::Yes;
}

void ModeSwitch::Take(bool overTnc) {
  if (settings_.TncMode == overTnc) return;
  settings_.TncMode = overTnc;
  needs_.delayedWriteCfg();
  needs_.takeMode();
  if (!overTnc)
    session_.tncLink.CloseComm1();
  else if (settings_.TncPort != 0)
    session_.tncLink.OpenComm1();
}

void ModeSwitch::AskWhatTheTncLacks() {
  if (!settings_.TncMode) return;  // the user has turned back
  if (settings_.TncPort == 0)
    needs_.askPort();
  else if (!TncScript::HasSteps(settings_))
    needs_.askScript();
}

}  // namespace session
