#include <array>
#include <random>

#include "core/file_fault.h"
#include "core/password_file.h"
#include "core/quoted.h"
#include "core/text.h"
#include "program/data_files.h"
#include "program/program.h"
#include "program/save_condition.h"

namespace program {
namespace {

using session::TimerId;
using Fault = platform::Files::Fault;

struct DataFile {
  const char* name;
  std::string_view content;
};

// What the program brings along. A file that is missing is put in place at every start.
constexpr std::array kDataFiles = {
    DataFile{"endpoints.cfg",
             "\"MOLVA-1\",\"\"\r\n\"Node List\",\"\"\r\n\"Data\",\"\"\r\n\"Version\",\"\"\r\n"},
    DataFile{"state.dat", kStateFile},
};

constexpr int kLastPort = 65535;

constexpr auto kCantWrite = "Error writing to HD.";
constexpr auto kCheckPermission =
    "             Check Permission\n\n              TEXT 2\n              TEXT 3\n\n"
    "              TEXT 5";

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

void Program::Start() { tasks_.Start("Start", StartUp()); }

platform::Task<> Program::StartUp() {
  static constexpr std::array kSteps = {
      Step{"PrepareFolder", &Program::PrepareFolder},
      Step{"ReadDebugCfg", &Program::ReadDebugCfg},
      Step{"ReadCfg", &Program::ReadCfg},
      Step{"ClearDebugCfg", &Program::ClearDebugCfg},
      Step{"BringDataFiles", &Program::BringDataFiles},
      Step{"StartLogger", &Program::StartLogger},
      Step{"ReadPassword", &Program::ReadPassword},
      Step{"PrepareSession", &Program::PrepareSession},
      Step{"ReadSpotFiles", &Program::ReadSpotFiles},
      Step{"EndLoading", &Program::EndLoading},
      Step{"BeginSpotLog", &Program::BeginSpotLog},
      Step{"AskWhatIsMissing", &Program::AskWhatIsMissing},
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
    if (!fault.empty()) errorLog.ReportError(std::string("load form1 ") + step.name, 0, fault);
  }
}

platform::Task<> Program::PrepareFolder() {
  folderIsNew_ = !platform_.files.Exists(folder_);
  const Fault made = platform_.files.MakeFolder(folder_);
  Primary = platform_.files.Lock(Path("molva.lock"));
  configuration_ = std::make_unique<core::Configuration>(
      platform_.files, platform_.dialogs, calendar, errorLog, folder_, Primary, folderIsNew_);
  saved_ = configuration_->LastWrite.Observe([this](platform::Files::Fault fault) {
    ShowSaved(conditions, fault, [this] { WriteCfg(); });
  });
  NoteWrite("PrepareFolder", made);
  CaptionSetup();
  co_return;
}

void Program::NoteWrite(const char* step, Fault fault) {
  if (fault == Fault::None) return;
  const core::FaultName name = core::NameOf(fault);
  errorLog.ReportError(std::string("load form1 ") + step, name.number, name.description);
  if (fault == Fault::Denied || fault == Fault::NotFound) TellUnwritable(fault);
}

// Once: the configuration, which can't be written there either, counts as told.
void Program::TellUnwritable(Fault fault) {
  if (configuration_->LastWrite.Get() != Fault::None) return;
  messageForm.Show(kCantWrite, kCheckPermission);
  configuration_->LastWrite.Set(fault);
}

platform::Task<> Program::ReadDebugCfg() {
  const auto content = platform_.files.Read(Path("debug.cfg"));
  std::string_view rest = content.bytes;
  const core::RecordPair record = core::SplitRecord(core::TakeLine(rest));
  errorLog.DebugMode = core::Trim(record.first) == "yes";
  DebuggingOn.Value.Set(errorLog.DebugMode);
  if (errorLog.DebugMode) session.linkText.lblclock[1].ForeColour.Set(core::kRed);
  co_return;
}

// The switch lasts for one run.
platform::Task<> Program::ClearDebugCfg() {
  NoteWrite("ClearDebugCfg", WriteDebugCfg(false));
  co_return;
}

Fault Program::WriteDebugCfg(bool on) {
  return platform_.files.Replace(Path("debug.cfg"),
                                 core::Record({core::QuotedField(on ? "yes" : "no")}));
}

platform::Task<> Program::BringDataFiles() {
  for (const DataFile& file : kDataFiles) Bring(file.name, file.content);
  if (!platform_.files.Exists(Path("cty.dat"))) BringCountryFile();
  endpoints = core::ReadEndpoints(platform_.files, folder_);
  nodeDirectory.Load();
  co_return;
}

void Program::BringCountryFile() {
  const auto countries = platform_.files.Read(kCountryFile);
  if (!countries.bytes.empty()) Bring("cty.dat", countries.bytes);
}

void Program::Bring(const char* file, std::string_view content) {
  if (!platform_.files.Exists(Path(file)))
    NoteWrite("BringDataFiles", platform_.files.Replace(Path(file), content));
}

platform::Task<> Program::ReadCfg() {
  core::Configuration::Loaded loaded = co_await configuration_->ReadCfg();
  if (loaded.exit) {
    Quit();
    co_return;
  }
  settings = std::move(loaded.settings);
  settings.MyCall = core::Trim(settings.MyCall);  // nodes refuse one with a blank
  configurationIsNew_ = loaded.created;
}

// A port that another program has is passed over.
platform::Task<> Program::StartLogger() {
  if (!settings.LoggingProgram) co_return;
  for (int& port = settings.LoggerPort; !standIns.EnableLogger(port) && port < kLastPort;) {
    const std::string taken = std::to_string(port++);
    platform_.dialogs.Tell({.title = "Molva Desk",
                            .text = "Telnet port " + taken +
                                    " already open on this computer\n\nTrying port " +
                                    std::to_string(port)});
  }
}

platform::Task<> Program::ReadPassword() {
  session.outgoing.NodePassword = core::ReadPassword(platform_.files, Path("molva.pwd"));
  co_return;
}

platform::Task<> Program::PrepareSession() {
  session.connection.AutoReconnect.Value.Set(settings.AutoReconnect);
  session.state.UserDisconnected = true;
  session.state.WantMissedSpots = session.state.FirstConnect = settings.GetMissedOnes;
  session.nodeAddress.EnsureNode();
  RenameDefaultNode();
  TakeMode();
  session.timers.SetInterval(TimerId::Reconnect, RetryInterval(needs_.seed));
  form.Set({.left = settings.FormLeft,
            .top = settings.FormTop,
            .width = settings.FormWidth,
            .height = settings.FormHeight,
            .inputHeight = settings.InputHeight,
            .maximised = settings.FormMaximized});
  views.Begin(settings.StartTab);
  ApplySettings();
  co_return;
}

// A stored host of the default node is that node, whatever it was called and reached by.
void Program::RenameDefaultNode() {
  if (endpoints.molva1.empty()) return;
  if (core::InStrIgnoringCase(settings.NodeHost, endpoints.molva1) == 0) return;
  const session::DefaultNode node = nodeDirectory.Default();
  settings.NodeCall = node.call;
  settings.NodePort = node.port;
}

platform::Task<> Program::ReadSpotFiles() {
  spotParts.ReadFiles();
  co_return;
}

platform::Task<> Program::EndLoading() {
  Loading = false;
  session.timers.Begin();
  co_return;
}

platform::Task<> Program::BeginSpotLog() {
  spotParts.BeginLog();
  co_return;
}

bool Program::KnowsUser() const {
  return !settings.MyCall.empty() && !settings.MyName.empty() && !settings.MyQth.empty();
}

// None of these forms holds anything up. Who has said who he is sees the missing offset among the
// conditions.
platform::Task<> Program::AskWhatIsMissing() {
  offsetWaits_ = settings.GmtOffset.empty() && !KnowsUser();
  if (configurationIsNew_)
    userInfo.Show();
  else
    YieldToUserInfo(false);
  co_return;
}

platform::Task<> Program::AutoStart() {
  if (settings.AutoStart) session.connection.cmdConnect.Press();
  if (settings.TncMode) session.tncLink.OpenComm1();
  co_return;
}

}  // namespace program
