#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/controls.h"
#include "platform/scheduler.h"

namespace spots {

// The list of recent spots that a node gives on request: its rows are kept until it has ended, and
// then go into the table, the oldest first.
//
// A list ends with the node's prompt. Some nodes prompt first: such a list ends when no row has
// come for a second. One whose prompt nobody knows ends when none has come for ten, also if the
// node has only said that there are none.
class SpotList {
 public:
  struct Needs {
    std::function<bool(std::string_view line)> RcvdPrompt;
    std::function<bool()> sessionUp;
    std::function<bool()> directoryRuns;              // a list of mail is being read
    std::function<platform::Milliseconds()> latency;  // of the link, as keep-alives found it
    std::function<bool()> newestFirst;                // the node's order; else the oldest
    std::function<void()> replayBegins;
    std::function<void(std::string_view row)> replay;
    std::function<void()> sort;  // the list has ended: the table is sorted and drawn
  };

  SpotList(platform::Scheduler& scheduler, Needs needs);

  core::Label lblSeconds;  // from the request to the first row: "001.25", from 10 s on "012.5"
  core::Label lblBeyondLatency;  // how much of that is not the link's: "0.75"
  core::Label lblCount;          // rows of the list

  // The list that a session begins with is finished, and none has been asked for since: spots are
  // live.
  bool ShDxDone = false;
  bool ShDxCollecting() const { return collecting_; }  // a list has begun and not ended
  bool SpotListBusy() const { return busy_; }  // the list was asked for by the user or a logger

  // The node has been asked for the spots that were missed.
  void AskedForMissed();
  // The user or a logger has asked it for a list.
  void AskedForSpots();
  // The session has ended.
  void Disconnected();

  // An extended line while ShDxDone is clear: it is taken for a row.
  void ZV11_SpotsOthers(std::string_view line);
  // A line handler for what isn't extended; true claims the line.
  bool CollectShDxLine(std::string_view line);

 private:
  static constexpr std::size_t kSlots = 100;

  void Await();
  void Begin();
  void Store(std::string_view row);
  void ShowTimes();
  void Prompted();
  bool OnlySilenceEnds() const;
  void WaitForSilence();
  bool EndedTooSoon() const;
  void Reopen();
  void End();
  void ReplayShDxLines();

  platform::Scheduler& scheduler_;
  Needs needs_;
  std::array<std::string, kSlots> ShDxBuffer_;  // filled from its end
  std::size_t count_ = 0;                       // rows that came, kept or not
  bool collecting_ = false;
  bool busy_ = false;
  bool promptedFirst_ = false;
  std::optional<platform::Milliseconds> requestedAt_;
  std::optional<platform::Milliseconds> endedEmptyAt_;
  platform::Registration silence_;
};

}  // namespace spots
