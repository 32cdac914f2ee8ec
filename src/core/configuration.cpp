#include "core/configuration.h"

#include <utility>

#include "core/call.h"
#include "core/file_fault.h"
#include "core/text.h"

namespace core {
namespace {

using namespace std::chrono_literals;
using platform::Answer;
using platform::Message;
using Content = platform::Files::Content;
using Fault = platform::Files::Fault;

constexpr auto kPrimaryFile = "/molva.cfg";
constexpr auto kSecondaryFile = "/molva2.cfg";

Message DeniedMessage(bool primary) {
  return {"Molva Desk  -  Critical Error", "Access to configuration file is Denied.",
          Message::Kind::Critical,
          primary ? std::vector{Answer::Cancel} : std::vector{Answer::Retry, Answer::Cancel}};
}

Message BackupMessage(const std::string& path, const std::string& backupPath) {
  return {"Configuration File Not Found - Use Backup?",
          "Configuration File = " + path + "\nBackup File = " + backupPath +
              "\n\nUse Backup Configuration File?\n\nSelect Yes to use backup file."
              "\n    Select No to create new file.",
          Message::Kind::Question,
          {Answer::Yes, Answer::No}};
}

Message CreateMessage() {
  return {"Configuration File Not Found - Create One?",
          "Select Yes to create file.\n   Select No to exit.",
          Message::Kind::Question,
          {Answer::Yes, Answer::No}};
}

Message WriteFaultMessage() {
  return {"Molva Desk",
          "This user account does not have permission to write files to the hard drive\n"
          "The \"System Administrator\" must update permission.",
          Message::Kind::Warning,
          {Answer::Ok}};
}

}  // namespace

std::string SecondaryCall(std::string_view myCall, std::string_view primaryCall) {
  const std::string base = BaseCall(myCall);
  if (base.empty()) return {};
  const std::string usual = base + "-16";
  return usual == primaryCall ? base + "-14" : usual;
}

Configuration::Configuration(platform::Files& files, platform::Dialogs& dialogs,
                             const Calendar& calendar, ErrorLog& errorLog, std::string folder,
                             bool primary, bool folderIsNew)
    : files_(files),
      dialogs_(dialogs),
      calendar_(calendar),
      errorLog_(errorLog),
      primaryPath_(folder + kPrimaryFile),
      path_(folder + (primary ? kPrimaryFile : kSecondaryFile)),
      backupPath_(path_ + ".bak"),
      primary_(primary),
      folderIsNew_(folderIsNew) {}

platform::Task<Configuration::Loaded> Configuration::ReadCfg() {
  Content content = co_await Open(path_, false);
  if (content.fault == Fault::NotFound) content = co_await OpenBackup();
  if (content.fault == Fault::Denied) co_return Loaded{{}, true, false};
  if (!content.bytes.empty()) co_return Take(ParseSettings(content.bytes));
  const bool create = co_await AskToCreate();
  if (create) co_return Create();
  co_await platform::Delay(2000ms);
  co_return Loaded{{}, true, false};
}

// A file that is there but gives nothing is asked about until it does or the program is to end,
// which is the fault Denied.
platform::Task<Content> Configuration::Open(std::string path, bool mayBeEmpty) {
  for (;;) {
    Content content = files_.Read(path);
    if (content.fault == Fault::NotFound) co_return content;
    if (content.fault == Fault::None && (mayBeEmpty || !content.bytes.empty())) co_return content;
    Message message = DeniedMessage(primary_);
    const Answer answer = co_await dialogs_.Ask(std::move(message));
    if (primary_ || answer != Answer::Retry) co_return Content{Fault::Denied, {}};
  }
}

platform::Task<Content> Configuration::OpenBackup() {
  if (!files_.Exists(backupPath_)) co_return Content{Fault::NotFound, {}};
  Message message = BackupMessage(path_, backupPath_);
  const Answer answer = co_await dialogs_.Ask(std::move(message));
  if (answer != Answer::Yes) co_return Content{Fault::NotFound, {}};
  Content content = co_await Open(backupPath_, true);
  co_return content;
}

platform::Task<bool> Configuration::AskToCreate() {
  if (folderIsNew_) co_return true;
  Message message = CreateMessage();
  const Answer answer = co_await dialogs_.Ask(std::move(message));
  co_return answer == Answer::Yes;
}

Configuration::Loaded Configuration::Take(Settings settings) {
  if (!primary_) {
    const Settings first = ParseSettings(files_.Read(primaryPath_).bytes);
    settings.MyCall = SecondaryCall(settings.MyCall, first.MyCall);
  }
  loaded_ = true;
  return {std::move(settings), false, false};
}

Configuration::Loaded Configuration::Create() {
  Settings settings;
  if (folderIsNew_) settings.GmtOffset = "Ok";
  loaded_ = true;
  WriteCfg(settings);
  return {std::move(settings), false, true};
}

void Configuration::WriteCfg(const Settings& settings) {
  if (!loaded_) return;
  const std::string dts = calendar_.EnglishDate() + ' ' + calendar_.GmtTime();
  const Fault fault = Write(FormatSettings(settings, dts));
  if (fault != Fault::None && LastWrite.Get() == Fault::None) TellFault(fault);
  LastWrite.Set(fault);
}

// The backup never shrinks: a file that lost settings can't replace it. Private, for the passwords
// of the mail and call book services are in there.
Fault Configuration::Write(std::string_view text) {
  const Fault fault = files_.Replace(path_, text, platform::Files::Access::Private);
  if (fault != Fault::None || text.size() <= files_.Size(backupPath_)) return fault;
  return files_.Replace(backupPath_, text, platform::Files::Access::Private);
}

void Configuration::TellFault(Fault fault) {
  const FaultName name = NameOf(fault);
  errorLog_.ReportError("WriteCfg", name.number, name.description);
  dialogs_.Tell(WriteFaultMessage());
}

}  // namespace core
