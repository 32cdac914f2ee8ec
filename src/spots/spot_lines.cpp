#include "spots/spot_lines.h"

#include <utility>

#include "spots/dx_line.h"
#include "spots/extended_line.h"
#include "spots/grid_square.h"
#include "spots/show_dx_line.h"
#include "spots/spot_date.h"
#include "spots/spot_line.h"

namespace spots {
namespace {

// A shorter row of a list is cut off.
constexpr std::size_t kShortRow = 74;

}  // namespace

SpotLines::SpotLines(platform::Scheduler& scheduler, core::Calendar& calendar, Spot& spot,
                     Needs needs)
    : clockCheck(calendar),
      list(scheduler, ListNeeds()),
      calendar_(calendar),
      spot_(spot),
      needs_(std::move(needs)),
      settling_(scheduler, needs_.sendEmptyLine) {}

SpotList::Needs SpotLines::ListNeeds() {
  return {
      .RcvdPrompt = [this](std::string_view line) { return needs_.RcvdPrompt(line); },
      .sessionUp = [this] { return needs_.nodeFacts().SessionUp; },
      .directoryRuns = [this] { return needs_.directoryRuns(); },
      .latency = [this] { return needs_.latency(); },
      .newestFirst = [this] { return !needs_.nodeFacts().IsZelva(); },
      .replayBegins =
          [this] {
            if (!Zv11Seen) EmptyPlainFields(spot_);
          },
      .replay = [this](std::string_view row) { Replay(row); },
      .sort = [this] { needs_.sort(); },
  };
}

bool SpotLines::dx(std::string_view line) {
  if (Zv11Seen || !line.starts_with(kDxLineStart)) return false;
  const NodeFacts node = needs_.nodeFacts();
  if (settling_.Drops(node)) return true;
  if (ParseDxLine(line, node, needs_.wordFacts(), MomentNow(calendar_), spot_)) Display();
  return true;
}

bool SpotLines::ar17(std::string_view line) {
  if (!line.starts_with(kAr17Start)) return false;
  // Extended or not, a line that comes before the format is settled lets the node be asked on.
  if (!needs_.ar17Probing()) settling_.Drops(needs_.nodeFacts());
  Link(line);
  switch (ParseAr17Line(line, spot_)) {
    case LineOutcome::FieldError:
      errors.CountAr17();
      break;
    case LineOutcome::Spot:
      clockCheck.Check(spot_);
      Display();
      break;
    case LineOutcome::None:
      break;
  }
  return true;
}

bool SpotLines::ZV11CarrotCounter(std::string_view line) {
  if (!line.starts_with(kZv11Start)) return false;
  if (list.ShDxDone)
    ReadZV11(line);
  else
    list.ZV11_SpotsOthers(line);
  Zv11Seen = true;
  return true;
}

void SpotLines::ReadZV11(std::string_view line) {
  const NodeFacts node = needs_.nodeFacts();
  const bool keepsGrids = node.IsSpider() && needs_.keepsGrids();
  const LineOutcome outcome = ParseZV11Line(line, node, keepsGrids, spot_);
  if (outcome == LineOutcome::FieldError) errors.CountZv11(line);
  if (outcome != LineOutcome::Spot) return;
  if (spot_.ExpandedLine) {
    Link(line);
    if (!list.ShDxCollecting()) clockCheck.Check(spot_);  // a list may be of any age
  }
  if (keepsGrids) RecordGrids();
  Display();
}

void SpotLines::RecordGrids() {
  if (ValidGrid4(spot_.OrigGrid)) needs_.RecordGrid(spot_.OrigGrid, spot_.Spotter);
  if (ValidGrid4(spot_.DxGrid)) needs_.RecordGrid(spot_.DxGrid, spot_.DxCall);
}

void SpotLines::ReadShDx(std::string_view row) {
  spot_.ExpandedLine = false;
  if (ParseShDxLine(row, needs_.nodeFacts(), needs_.wordFacts(), spot_)) Display();
}

void SpotLines::Replay(std::string_view row) {
  if (Zv11Seen || needs_.nodeFacts().IsZelva())
    ReadZV11(row);
  else if (row.size() > kShortRow)
    ReadShDx(row);
}

void SpotLines::Link(std::string_view line) {
  if (!needs_.txtDDEsend || line.size() > kLongestLine) return;
  linked_ = line;
  linked_.append(" (").append(needs_.nodeCall()).append(")");
  needs_.txtDDEsend(linked_);
}

// Whatever becomes of the spot, the next one has nothing of it.
void SpotLines::Display() {
  const platform::Registration clearing([this] {
    ClearSpotExtras(spot_);
    spot_.RawLine.clear();
  });
  needs_.DisplayDx();
}

void SpotLines::Disconnected() {
  Zv11Seen = false;
  list.Disconnected();
  errors.Forget();
  clockCheck.Forget();
}

}  // namespace spots
