#include "program/program.h"

#include <array>
#include <chrono>
#include <random>

#include "core/password_file.h"
#include "core/version.h"

using namespace std::chrono_literals;

namespace program {
namespace {

using platform::Answer;
using platform::Delay;
using session::TimerId;

constexpr auto kPause = 250ms;
constexpr auto kClosingWait = 2000ms;

// Comes with the program, so that there is always a node to talk to.
const session::DefaultNode kPracticeNode = {"N0DE-1", "127.0.0.1", "7373"};

// Picked once a run, so that many clients of one node don't return together after its failure.
platform::Milliseconds RetryInterval(std::uint32_t seed) {
  std::mt19937 random(seed);
  return platform::Milliseconds{std::uniform_int_distribution<int>(55000, 65000)(random)};
}

}  // namespace

struct Program::Step {
  const char* name;
  platform::Task<> (Program::*run)();
};

Program::Program(const platform::Platform& platform, std::string folder, Needs needs)
    : platform_(platform),
      folder_(std::move(folder)),
      needs_(std::move(needs)),
      calendar(platform.clock),
      errorLog(platform.files, platform.dialogs, calendar, folder_),
      chain_(*this),
      session(platform_, calendar, settings,
              {.chain = chain_,
               .feed = feed_,
               .defaultNode = kPracticeNode,
               .askUserInfo = [this] { AskUserInfo(); },
               .onFault = errorLog.FaultHandler()}),
      tasks_(platform.scheduler, errorLog.FaultHandler()) {}

void Program::Start() {
  tasks_.Start("Start", StartUp());
}

platform::Task<> Program::StartUp() {
  static constexpr std::array kSteps = {
      Step{"PrepareFolder", &Program::PrepareFolder},
      Step{"ReadCfg", &Program::ReadCfg},
      Step{"ReadPassword", &Program::ReadPassword},
      Step{"PrepareSession", &Program::PrepareSession},
      Step{"EndLoading", &Program::EndLoading},
      Step{"AutoStart", &Program::AutoStart},
  };
  for (const Step& step : kSteps) {
    if (ending_) co_return;
    std::string fault;
    try {
      co_await (this->*step.run)();
    } catch (const std::exception& known) {
      fault = known.what();
    }
    if (!fault.empty()) errorLog.ReportError(std::string("load form1: ") + step.name, 0, fault);
  }
}

platform::Task<> Program::PrepareFolder() {
  folderIsNew_ = !platform_.files.Exists(folder_);
  platform_.files.MakeFolder(folder_);
  Primary = platform_.files.Lock(folder_ + "/molva.lock");
  CaptionSetup();
  co_return;
}

platform::Task<> Program::ReadCfg() {
  core::Configuration configuration(platform_.files, platform_.dialogs, calendar, errorLog, folder_,
                                    Primary, folderIsNew_);
  core::Configuration::Loaded loaded = co_await configuration.ReadCfg();
  settings = std::move(loaded.settings);
  if (loaded.exit) Quit();
}

platform::Task<> Program::ReadPassword() {
  session.outgoing.NodePassword = core::ReadPassword(platform_.files, folder_ + "/molva.pwd");
  co_return;
}

platform::Task<> Program::PrepareSession() {
  calendar.GmtOffset = settings.GmtOffset;
  session.connection.AutoReconnect.Value.Set(settings.AutoReconnect);
  session.state.UserDisconnected = true;
  session.intake.stopLists.Build(settings.MyCall);
  session.timers.SetInterval(TimerId::Reconnect, RetryInterval(needs_.seed));
  CaptionSetup();
  co_return;
}

platform::Task<> Program::EndLoading() {
  Loading = false;
  session.timers.Begin();
  session.linkText.Tick();
  co_return;
}

platform::Task<> Program::AutoStart() {
  if (settings.AutoStart) session.connection.cmdConnect.Press();
  co_return;
}

void Program::RequestClose(Close how) {
  if (ending_) return;
  ending_ = true;
  if (Loading) {
    Quit();
    return;
  }
  tasks_.Start("ShutDown", ShutDown(how));
}

platform::Task<> Program::ShutDown(Close how) {
  if (how == Close::Ask && !settings.QuietExit) {
    const bool agreed = co_await UserAgrees();
    if (!agreed) {
      ending_ = false;
      co_return;
    }
  }
  session.connection.AutoReconnect.Value.Set(false);
  if (session.WinsockOut->State() == platform::SocketState::Connected) {
    session.outgoing.Send("bye");
    co_await Delay(6 * kPause);
  } else {
    session.connection.ForceClose();
  }
  co_await Delay(kClosingWait);
  session.WinsockOut->Close();
  Quit();
}

platform::Task<bool> Program::UserAgrees() {
  platform::Message question{.title = "Molva Desk",
                             .text = "Do you really want to end this program? ",
                             .kind = platform::Message::Kind::Plain,
                             .answers = {Answer::Ok, Answer::Cancel}};
  const Answer answer = co_await platform_.dialogs.Ask(std::move(question));
  co_return answer == Answer::Ok;
}

void Program::Quit() {
  ending_ = true;
  needs_.quit();
}

void Program::CaptionSetup() {
  title.Set("Molva Desk " + std::string(core::kProgramVersion) +
            (settings.MyCall.empty() ? "" : " @ " + settings.MyCall));
}

void Program::AskUserInfo() {
  platform_.dialogs.Tell(
      {.title = "Molva Desk",
       .text = "Your call, name and QTH are needed to log in.\nWrite them into " + folder_ +
               "/molva.cfg and start again."});
}

}  // namespace program
