#pragma once

#include <cstddef>
#include <deque>
#include <string>

#include "core/controls.h"
#include "session/outgoing.h"

namespace session {

// The line in which the operator types to the node, with the lines he typed before.
class CommandLine {
 public:
  explicit CommandLine(Outgoing& outgoing);

  core::TextBox txtCmdLine;

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
  void ShowHistory();

  Outgoing& outgoing_;
  std::deque<std::string> CommandHistory;
  std::size_t HistoryPos = 0;  // counts from 1; 0: nothing is recalled
  platform::Registration entering_;
};

}  // namespace session
