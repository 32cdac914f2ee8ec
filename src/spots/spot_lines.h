#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/dates.h"
#include "platform/scheduler.h"
#include "spots/clock_check.h"
#include "spots/node_facts.h"
#include "spots/settling.h"
#include "spots/spot.h"
#include "spots/spot_errors.h"
#include "spots/spot_list.h"
#include "spots/word_facts.h"

namespace spots {

// The rows of the chain for lines of spots and for lists of them. What they read goes the way of
// every spot.
class SpotLines {
 public:
  struct Needs {
    std::function<NodeFacts()> nodeFacts;
    std::function<const WordFacts&()> wordFacts;
    std::function<bool()> ar17Probing;    // the commands that follow the login have been sent
    std::function<void()> sendEmptyLine;  // to the node
    std::function<std::string_view()> nodeCall;
    // Takes the line with the node's call, for the other copy of the program. None: it goes
    // nowhere.
    std::function<void(std::string_view text)> txtDDEsend;
    std::function<bool()> keepsGrids;  // there is a list of grids by calls
    // Takes the grid of a call.
    std::function<void(std::string_view grid, std::string_view call)> RecordGrid;
    std::function<void()> DisplayDx;  // the route of the spot that has been read
    std::function<bool(std::string_view line)> RcvdPrompt;
    std::function<bool()> directoryRuns;              // a list of mail is being read
    std::function<platform::Milliseconds()> latency;  // of the link
    std::function<void()> sort;                       // a list has ended
  };

  // `spot` is the record at work, which outlives this.
  SpotLines(platform::Scheduler& scheduler, core::Calendar& calendar, Spot& spot, Needs needs);

  SpotErrors errors;
  ClockCheck clockCheck;
  SpotList list;

  bool Zv11Seen = false;  // the session sends its spots in extended lines: plain ones say no more

  // Line handlers; true claims the line.
  bool dx(std::string_view line);
  bool ar17(std::string_view line);
  bool ZV11CarrotCounter(std::string_view line);
  bool CollectShDxLine(std::string_view line) { return list.CollectShDxLine(line); }

  // The session has ended.
  void Disconnected();

 private:
  void ReadZV11(std::string_view line);
  void ReadShDx(std::string_view row);
  void Replay(std::string_view row);
  void Link(std::string_view line);
  void RecordGrids();
  void Display();
  SpotList::Needs ListNeeds();

  core::Calendar& calendar_;
  Spot& spot_;
  Needs needs_;
  Settling settling_;
  std::string linked_;  // being sent
};

}  // namespace spots
