#pragma once

#include <string>
#include <string_view>

#include "core/controls.h"
#include "core/dates.h"
#include "core/error_log.h"
#include "core/settings.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/task.h"

namespace core {

// The call of a second copy, so that both can log in: the base call and "-16", or "-14" if the
// first copy has that one. Empty for an empty call.
std::string SecondaryCall(std::string_view myCall, std::string_view primaryCall);

// The settings on disk: "molva.cfg" in the program's folder, or "molva2.cfg" for a second copy of
// the program, each with its backup, the same name and ".bak" behind it. All of them can be read by
// their owner alone.
class Configuration {
 public:
  // The first four outlive the configuration. `folderIsNew`: this run of the program has created
  // the folder, so that there is nothing to ask about.
  Configuration(platform::Files& files, platform::Dialogs& dialogs, const Calendar& calendar,
                ErrorLog& errorLog, std::string folder, bool primary, bool folderIsNew = false);

  struct Loaded {
    Settings settings;
    bool exit = false;     // the program is to end, and nothing has been or will be written
    bool created = false;  // there was no configuration; this is a new one
  };

  // Reads the file. One that is empty or can't be read ends the program once the user has seen the
  // message (in a second copy "Retry" reads again). For one that is missing the user is asked for
  // the backup, then for a new one, and "No" to that ends the program 2 seconds later. A new one is
  // written at once; in a new folder there is no question, and its GMT offset is the system's.
  // A second copy gets its call changed.
  platform::Task<Loaded> ReadCfg();

  // Writes the file: whatever happens it then holds the old settings or the new ones, whole. The
  // backup takes them too if it is smaller. A failure is told and logged once, until a write
  // succeeds again. Does nothing before ReadCfg has given settings to go on with.
  void WriteCfg(const Settings& settings);

  // How the last try to write ended.
  Property<platform::Files::Fault> LastWrite{platform::Files::Fault::None};

 private:
  platform::Task<platform::Files::Content> Open(std::string path, bool mayBeEmpty);
  platform::Task<platform::Files::Content> OpenBackup();
  platform::Task<bool> AskToCreate();

  Loaded Take(Settings settings);
  Loaded Create();
  platform::Files::Fault Write(std::string_view text);
  void TellFault(platform::Files::Fault fault);

  platform::Files& files_;
  platform::Dialogs& dialogs_;
  const Calendar& calendar_;
  ErrorLog& errorLog_;
  const std::string primaryPath_;
  const std::string path_;
  const std::string backupPath_;
  const bool primary_;
  const bool folderIsNew_;
  bool loaded_ = false;
};

}  // namespace core
