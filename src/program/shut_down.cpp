#include <chrono>

#include "core/pause.h"
#include "program/program.h"

using namespace std::chrono_literals;

namespace program {
namespace {

using platform::Answer;
using platform::Delay;

constexpr auto kClosingWait = 2000ms;
constexpr auto kMailWait = 20ms;
constexpr const char* kEndTitle = "Molva Desk - End Program";

}  // namespace

void Program::RequestClose(Close how) {
  if (ending_ || (asking_ && how == Close::Ask)) return;
  if (Loading) {
    Quit();
    return;
  }
  tasks_.Start("ShutDown", ShutDown(how));
}

platform::Task<> Program::ShutDown(Close how) {
  if (how == Close::Ask) {
    asking_ = true;
    const bool agreed = co_await MayEnd();
    asking_ = false;
    if (!agreed || ending_) co_return;  // a signal to end asks nobody
  }
  ending_ = true;
  session.connection.AutoReconnect.Value.Set(false);
  if (WindowHasMoved()) {
    WriteCfg();
    co_await Delay(4 * core::kPause);
  }
  if (session.state.TncMode) {
    session.tncScript.DisconnectTNC();
  } else if (session.WinsockOut->State() == platform::SocketState::Connected) {
    session.outgoing.Send("bye");
    co_await Delay(6 * core::kPause);
  } else {
    session.connection.ForceClose();
  }
  co_await Delay(kClosingWait);
  session.WinsockOut->Close();
  session.tncLink.MSComm1->Close();
  session.localNetwork.MSComm2->Close();
  spotParts.Close();
  Quit();
}

platform::Task<bool> Program::MayEnd() {
  if (!settings.QuietExit) {
    const bool agreed = co_await UserAgrees();
    if (!agreed) co_return false;
  }
  const bool done = co_await MailIsDone();
  co_return done;
}

platform::Task<bool> Program::UserAgrees() {
  platform::Message question{.title = "Molva Desk",
                             .text = "Do you really want to end this program? ",
                             .kind = platform::Message::Kind::Plain,
                             .answers = {Answer::Ok, Answer::Cancel}};
  if (const int loggers = standIns.LoggersConnected(); loggers > 0) {
    question.title = kEndTitle;
    question.text += "\nThere are " + std::to_string(loggers) +
                     " other logging programs connected.\n"
                     "Ending this program will terminate their data feed.";
    question.kind = platform::Message::Kind::Warning;
  }
  const Answer answer = co_await platform_.dialogs.Ask(std::move(question));
  co_return answer == Answer::Ok;
}

platform::Task<bool> Program::MailIsDone() {
  while (standIns.MailBusy()) {
    platform::Message question{.title = kEndTitle,
                               .text = "Can't close until CDO MSG completes.",
                               .kind = platform::Message::Kind::Plain,
                               .answers = {Answer::Ok, Answer::Cancel}};
    const Answer answer = co_await platform_.dialogs.Ask(std::move(question));
    if (answer == Answer::Cancel) co_return false;
    if (standIns.MailBusy()) co_await Delay(kMailWait);
  }
  co_return true;
}

bool Program::WindowHasMoved() const {
  const FormPlace& now = form.Get();
  return now.left != settings.FormLeft || now.top != settings.FormTop;
}

void Program::Quit() {
  ending_ = true;
  needs_.quit();
}

}  // namespace program
