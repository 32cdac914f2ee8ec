#include "session/command_line.h"

#include <algorithm>

namespace session {

CommandLine::CommandLine(Outgoing& outgoing)
    : outgoing_(outgoing), entering_(txtCmdLine.Return.Add([this] { Enter(); })) {}

void CommandLine::HistoryUp() {
  HistoryPos = std::min(HistoryPos + 1, CommandHistory.size());
  ShowHistory();
}

void CommandLine::HistoryDown() {
  HistoryPos = HistoryPos > 1 ? HistoryPos - 1 : std::min<std::size_t>(1, CommandHistory.size());
  ShowHistory();
}

void CommandLine::ShowHistory() {
  if (HistoryPos > 0) txtCmdLine.Text.Set(CommandHistory[HistoryPos - 1]);
}

void CommandLine::Enter() {
  const std::string line = txtCmdLine.Text.Get();
  outgoing_.SendAsIs(line);
  if (!line.empty() && HistoryPos == 0) CommandHistory.push_front(line);
  HistoryPos = 0;
  txtCmdLine.Text.Set({});
}

}  // namespace session
