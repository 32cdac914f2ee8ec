#include <cmath>

#include "bytes.h"
#include "core/text.h"
#include "spots/classic_row.h"
#include "spots/dx_line.h"
#include "spots/expanded_row.h"
#include "spots/extended_line.h"
#include "spots/log_line.h"
#include "spots/logger_lines.h"
#include "spots/row_parts.h"
#include "spots/show_dx_line.h"

namespace {

constexpr session::NodeKind kKinds[] = {session::NodeKind::Unknown,    session::NodeKind::ArCluster,
                                        session::NodeKind::Spider,     session::NodeKind::Zelva,
                                        session::NodeKind::WinCluster, session::NodeKind::Skimmer};

// What has been read is logged, and comes back as it was; it is drawn and spoken whatever it is.
void Use(const spots::Spot& spot) {
  Expect(spot.Comment.size() <= 5000 && spot.DxCall.size() <= 5000);
  std::string text;
  spots::AppendLogLine(spot, spots::LogForm::Daily, text);
  Expect(text.find('\n') == text.size() - 1);
  spots::Spot again;
  if (spots::ParseLogLine(std::string_view(text).substr(0, text.size() - 2), again))
    Expect(again.SpotTime == spot.SpotTime);
  spots::RowShape shape;
  for (const bool expanded : {false, true}) {
    shape.shown.Expanded = shape.shown.DxCty = shape.shown.Comments = expanded;
    const spots::RowLayout layout = spots::ArPcScreenSetup(shape);
    std::size_t field = 0;
    if (expanded)
      spots::ExpandedRow(spot, layout, {}, text);
    else
      field = spots::ClassicRow(spot, layout, {}, text);
    const spots::TableRow row(text, spots::TableRow::Kind::Other, 1,
                              spots::RowSpotOf(spot, spots::Packed(shape), field));
    spots::Drawn(row);
    spots::PartsOf(row);
  }
  spots::LoggerLongLine(spot, {.spotterQth = true, .dxState = true, .membership = true}, text);
  spots::LoggerShortLine(spot, {.spotterQth = true, .dxState = true, .membership = true}, text);
}

}  // namespace

// Any line of any node makes a spot that can be used, or none.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view line = TextOf(data, size);
  const spots::WordFacts words = {.CountriesLoaded = size % 2 == 0,
                                  .isPrefix = [](std::string_view word) { return word == "DL"; }};
  for (const auto kind : kKinds) {
    const spots::NodeFacts node = {.kind = kind, .SessionUp = true};
    const spots::Moment now = {.dayNumber = 20'777, .date = "20-Nov-2026", .minutes = 3};
    spots::Spot spot;
    spot.LotwMark = " ";
    if (spots::ParseDxLine(line, node, words, now, spot)) Use(spot);
    if (spots::ParseShDxLine(line, node, words, spot)) Use(spot);
    if (spots::ParseAr17Line(line, spot) == spots::LineOutcome::Spot) Use(spot);
    if (spots::ParseZV11Line(line, node, true, spot) == spots::LineOutcome::Spot) Use(spot);
    if (spots::ParseLogLine(line, spot)) Use(spot);
  }
  return 0;
}
