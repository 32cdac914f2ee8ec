#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/dates.h"
#include "core/error_log.h"
#include "core/settings.h"
#include "platform/platform.h"
#include "platform/tasks.h"
#include "spots/display_choice.h"
#include "spots/duplicates.h"
#include "spots/fix_form.h"
#include "spots/fix_list.h"
#include "spots/grid_recorder.h"
#include "spots/local_reject.h"
#include "spots/membership.h"
#include "spots/node_facts.h"
#include "spots/reference_data.h"
#include "spots/reject_form.h"
#include "spots/reject_lists.h"
#include "spots/spot_corrections.h"
#include "spots/spot_lines.h"
#include "spots/spot_log.h"
#include "spots/spot_numbers.h"
#include "spots/spot_pipeline.h"
#include "spots/spot_receivers.h"
#include "spots/spot_reload.h"
#include "spots/spot_requests.h"
#include "spots/spot_table.h"
#include "spots/spots_form.h"
#include "spots/word_facts.h"

namespace spots {

// Everything that spots are read, judged, kept and shown by, and how it hangs together.
class SpotParts {
 public:
  // What the parts ask of the session and of the program.
  struct Needs {
    SpotReceivers& receivers;
    const CountryFilter& countryFilter;
    std::function<NodeFacts()> nodeFacts;
    std::function<SlotSwitches()> slotSwitches;
    std::function<bool()> ar17Probing;  // the commands that follow the login have been sent
    std::function<std::string_view()> nodeCall;
    std::function<std::string_view()> showDxCommand;
    std::function<bool()> tncMode;
    std::function<bool()> multiNode;
    std::function<bool()> keepsBottomOfBand;
    std::function<bool(std::string_view line)> RcvdPrompt;
    std::function<platform::Milliseconds()> latency;
    // The missed spots have been asked for: the time until the prompt is measured.
    std::function<void()> timeCommand = [] {};
    std::function<void(std::string_view text)> send;  // the next four: to the node
    std::function<bool(std::string_view text)> sendAsIs;
    std::function<platform::Registration()> holdIntake;
    std::function<void(std::string_view line)> showRaw;
    std::function<void(std::string_view remark)> addToRawText;  // behind the present line
    std::function<void(platform::Files::Fault fault)> logTrouble;
    std::function<void(std::string_view text)> tell;  // shows a message
    std::function<void(Membership::List list)> updateMembers;
    std::function<void(std::string_view path)> fetchFixes;  // none: there is no host of lists
    std::function<void(std::string_view path)> openFixPage;
    std::function<void()> delayedWriteCfg;
    platform::FaultHandler onFault;
  };

  // All outlive the parts. `folder` is the program's.
  SpotParts(const platform::Platform& platform, core::Calendar& calendar, core::Settings& settings,
            core::ErrorLog& errorLog, const std::string& folder, Needs needs);
  ~SpotParts();

  // The settings have been read or changed.
  void TakeSettings();
  // Reads the files of the start: first those on countries, then the rest. What is wrong with that
  // of the countries the user has been told.
  void ReadFiles();
  // The end of the start: the log goes on, and what it holds comes back if that is wanted.
  void BeginLog();
  // What waits goes into a sorted view, ten times a second while there is one; counts are shown, and
  // the last hour follows the minute.
  void Tick();
  // Empties the table; what was in it may come again from the node or the log.
  void ClearSpots();
  // The session has ended.
  void Disconnected();
  // The program ends: what waits is written.
  void Close();

 private:
  Needs needs_;
  const platform::Platform platform_;
  core::Settings& settings_;
  core::Calendar& calendar_;
  const std::string folder_;
  WordFacts words_;
  GridRecorder gridRecorder_;

 public:
  Spot spot;  // the one at work
  ReferenceData reference;
  DisplayChoice display;
  FixList fixList;
  SpotCorrections corrections;
  LocalReject localReject;
  RejectLists rejectLists;
  Membership membership;
  Duplicates duplicates;
  SpotLog log;
  SpotTable table;
  SpotLines lines;  // the rows of the chain
  SpotPipeline pipeline;
  SpotReload reload;
  SpotRequests requests;
  SpotNumbers numbers;
  RejectForm rejectForm;  // frmReject
  FixForm fixForm;        // frmFixSpot
  SpotsForm spotsForm;    // frmSpots

 private:
  DisplayChoice::Needs NeedsOfDisplay();
  SpotPipeline::Steps StepsOfPipeline();
  SpotLines::Needs NeedsOfLines();
  SpotReload::Needs NeedsOfReload();
  SpotRequests::Needs NeedsOfRequests();
  bool ApplySpotFix(std::string_view call, FixTarget target);
  const WordFacts& WordsNow();
  void DisplayDx();
  void TakeDisplay();
  void ShowNumbers();
  void FollowReload(bool reloading);
  void DeleteOldLogs();

  int minute_ = -1;                                 // of the last tick, of the day
  std::optional<platform::Milliseconds> spotTook_;  // since the last tick
  std::vector<platform::Registration> kept_;
  platform::Registration displayed_;
  platform::Registration reloading_;
  platform::Registration counting_;
  platform::Registration deleting_;
};

}  // namespace spots
