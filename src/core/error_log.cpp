#include "core/error_log.h"

#include <algorithm>

#include "core/quoted.h"

namespace core {

ErrorLog::ErrorLog(platform::Files& files, platform::Dialogs& dialogs, const Calendar& calendar,
                   std::string folder)
    : files_(files),
      dialogs_(dialogs),
      calendar_(calendar),
      path_(std::move(folder) + "/error.log") {}

void ErrorLog::ReportError(std::string_view where, int number, std::string_view description) {
  Append(TimeStamp(calendar_.Now())
             .append("  ")
             .append(where)
             .append(" - Error #")
             .append(std::to_string(number))
             .append(" ")
             .append(description));
  if (DebugMode) Show(where, number, description);
}

platform::FaultHandler ErrorLog::FaultHandler() {
  return [this](std::string_view name, std::string_view what) { ReportError(name, 0, what); };
}

void ErrorLog::Append(std::string line) {
  std::replace(line.begin(), line.end(), '"', '\'');
  const auto fault = files_.Append(path_, Record({QuotedField(line)}));
  if (fault != platform::Files::Fault::None) ++lostLines_;
}

void ErrorLog::Show(std::string_view where, int number, std::string_view description) {
  platform::Message message;
  message.title = std::string("Function or Sub - ").append(where);
  message.text = "Unexpected error #" + std::to_string(number) + " occurred: ";
  message.text.append(description).append("\n");
  message.kind = platform::Message::Kind::Critical;
  message.answers = {platform::Answer::Retry, platform::Answer::Cancel};
  dialogs_.Tell(std::move(message));
}

}  // namespace core
