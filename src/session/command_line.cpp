#include "session/command_line.h"

#include <algorithm>
#include <utility>

namespace session {

CommandLine::CommandLine(Outgoing& outgoing, const SessionState& state, Needs needs)
    : outgoing_(outgoing),
      state_(state),
      needs_(std::move(needs)),
      entering_(txtCmdLine.Return.Add([this] { Enter(); })) {}

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
  cmdRawplus[kRestoreRaw].Enabled.Set(true);
  cmdRawplus[kMaximiseRaw].Enabled.Set(true);
  Put(line);
  if (!line.empty() && HistoryPos == 0) CommandHistory.push_front(line);
  HistoryPos = 0;
  txtCmdLine.Text.Set({});
}

void CommandLine::Put(const std::string& line) {
  if (state_.TncMode && line == "*") {
    needs_.sendAutobaud();
    return;
  }
  if (!state_.TncMode && needs_.weatherInFront()) needs_.beginFreshWeatherPage();
  outgoing_.SendAsIs(line);
}

}  // namespace session
