#pragma once

#include <array>
#include <cstddef>
#include <deque>
#include <functional>
#include <string>

#include "core/controls.h"
#include "session/outgoing.h"
#include "session/session_state.h"

namespace session {

// The line in which the operator types to the node, with the lines he typed before.
class CommandLine {
 public:
  struct Needs {
    std::function<void()> sendAutobaud;           // "*" to the TNC
    std::function<bool()> weatherInFront;         // the weather page is on show
    std::function<void()> beginFreshWeatherPage;  // for the reply to the next command
  };

  CommandLine(Outgoing& outgoing, const SessionState& state, Needs needs);

  core::TextBox txtCmdLine;
  // The buttons beside the text pages. Each command enables [3] and [7].
  std::array<core::Button, 13> cmdRawplus;
  // Those of the raw view itself.
  static constexpr std::size_t kRestoreRaw = 3;
  static constexpr std::size_t kMaximiseRaw = 7;

  // The Up and Down keys: the line typed before the one on show, and the one after it. They stop at
  // the ends.
  void HistoryUp();
  void HistoryDown();
  // Any other key but Return: what is on show is the operator's own again.
  void OtherKey() { HistoryPos = 0; }

  // Newest first.
  const std::deque<std::string>& History() const { return CommandHistory; }

 private:
  void Enter();
  void Put(const std::string& line);
  void ShowHistory();

  Outgoing& outgoing_;
  const SessionState& state_;
  Needs needs_;
  std::deque<std::string> CommandHistory;
  std::size_t HistoryPos = 0;  // counts from 1; 0: nothing is recalled
  platform::Registration entering_;
};

}  // namespace session
