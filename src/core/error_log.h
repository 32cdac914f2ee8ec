#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/dates.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/tasks.h"

namespace core {

// "error.log": what went wrong, one quoted line for each report:
//   "2026-01-05 21:07:09  ReadCfg - Error #53 File not found"
// The time is local. The file only grows.
class ErrorLog {
 public:
  // All three outlive the log. The folder is the one that holds the program's data files.
  ErrorLog(platform::Files& files, platform::Dialogs& dialogs, const Calendar& calendar,
           std::string folder);

  // Reports are shown in a dialog too.
  bool DebugMode = false;

  // `where` is the routine's name. Line ends in the texts become blanks, double quotes single ones.
  void ReportError(std::string_view where, int number, std::string_view description);

  // Reports a Task that failed, under its name and the number 0.
  platform::FaultHandler FaultHandler();

  // Reports that the disk did not take whole.
  std::size_t LostLines() const { return lostLines_; }

 private:
  void Append(std::string line);
  void Show(std::string_view where, int number, std::string_view description);

  platform::Files& files_;
  platform::Dialogs& dialogs_;
  const Calendar& calendar_;
  const std::string path_;
  std::size_t lostLines_ = 0;
};

}  // namespace core
