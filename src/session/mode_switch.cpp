#include "session/mode_switch.h"

#include <utility>

namespace session {

ModeSwitch::ModeSwitch(platform::Scheduler& scheduler, platform::Dialogs& dialogs,
                       core::Settings& settings, SessionState& state, Connection& connection,
                       Timers& timers, Needs needs)
    : dialogs_(dialogs),
      settings_(settings),
      state_(state),
      connection_(connection),
      timers_(timers),
      needs_(std::move(needs)),
      radioChosen_(RadioClus.Click.Add([this] { ChooseRadio(); })),
      telnetChosen_(TelnetClus.Click.Add([this] { ChooseTelnet(); })),
      tasks_(scheduler, needs_.onFault) {}

void ModeSwitch::ChooseRadio() {
  settings_.TncMode = state_.TncMode = true;
  if (!timers_.Enabled(TimerId::Reconnect) || state_.LoggedIn) return;
  StopReconnecting();
  tasks_.Start("RadioClus", AskToReconnect());
}

void ModeSwitch::ChooseTelnet() {
  settings_.TncMode = state_.TncMode = false;
  settings_.NodeNumberedAddress.clear();
  if (!state_.LoggedIn) StopReconnecting();
  needs_.openNodes();
}

void ModeSwitch::StopReconnecting() {
  connection_.AutoReconnect.Value.Set(false);
  state_.UserDisconnected = true;
}

platform::Task<> ModeSwitch::AskToReconnect() {
  platform::Message question{.title = "Disabled",
                             .text = "Auto Reconnect has been temporarily disabled.\n"
                                     "Do you wish to re-enable now?\n"
                                     "Pressing \"Connect\" will also re-enable it.",
                             .kind = platform::Message::Kind::Question,
                             .answers = {platform::Answer::Yes, platform::Answer::No}};
  const platform::Answer answer = co_await dialogs_.Ask(std::move(question));
  if (answer != platform::Answer::Yes) co_return;
  state_.UserDisconnected = false;
  connection_.AutoReconnect.Value.Set(true);
}

}  // namespace session
