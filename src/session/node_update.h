#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/controls.h"
#include "core/endpoints.h"
#include "core/error_log.h"
#include "core/settings.h"
#include "platform/http.h"
#include "platform/tasks.h"
#include "session/node_directory.h"

namespace session {

// fraUpdate: fetches a newer list of nodes in place of the file. Whatever goes wrong, the old list
// stays.
class NodeUpdate {
 public:
  struct Needs {
    std::function<void()> delayedWriteCfg;
    platform::FaultHandler onFault;
  };

  // All outlive it.
  NodeUpdate(platform::Scheduler& scheduler, platform::Http& http, platform::Files& files,
             NodeDirectory& directory, const core::Endpoints& endpoints, core::Settings& settings,
             core::ErrorLog& errorLog, Needs needs);

  core::Label fraUpdate;                  // its heading
  std::array<core::Label, 2> lblVersion;  // what the two below are
  core::Label lblInstalled;               // the version of the present file
  core::Label lblAvailable;               // what there is to fetch
  std::array<core::Label, 2> lblWarning;  // what a new list costs, where one can be had
  core::Label lblResult;                  // how the update goes, or went
  // Per cent; 0 while it is not known, and unless an update runs or went well.
  core::Property<int> ProgressBar1{0};
  core::Property<bool> Fetching{false};
  core::Button cmdNode;  // begins the update, and stops one that runs
  core::Check Check1;    // newer lists are not offered any more

  // Shows the state of things, for a form that opens.
  void Load();
  // There is a newer list, as the version exchange has found.
  void OfferNewer();
  // Ends an update that runs.
  void Stop();

  // Lists are far shorter; what is longer is none.
  static constexpr std::size_t kLongestList = std::size_t{16} << 20;

 private:
  void Press();
  platform::Task<> Fetch();
  std::string Address() const;
  void ShowProgress(std::uint64_t received, std::uint64_t expected);
  void Take(const platform::Http::Answer& answer);
  void Fail(const std::string& why, int number, std::string_view description);
  void ShowVersions(std::string_view available);

  platform::Http& http_;
  platform::Files& files_;
  NodeDirectory& directory_;
  const core::Endpoints& endpoints_;
  core::Settings& settings_;
  core::ErrorLog& errorLog_;
  Needs needs_;
  std::vector<platform::Registration> watching_;
  platform::Tasks tasks_;
};

}  // namespace session
