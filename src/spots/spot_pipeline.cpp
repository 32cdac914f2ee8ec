#include "spots/spot_pipeline.h"

#include <utility>

#include "core/escapes.h"
#include "spots/bands.h"
#include "spots/classic_row.h"
#include "spots/dx_line.h"
#include "spots/spot_date.h"

namespace spots {
namespace {

constexpr MidnightLimits kMidnight = {.late = 2340, .early = 20};

bool HasCalls(const Spot& spot) { return spot.DxCall.size() >= 2 && spot.Spotter.size() >= 3; }

}  // namespace

SpotPipeline::SpotPipeline(const platform::Scheduler& scheduler, core::Calendar& calendar,
                           const core::Settings& settings, Needs needs)
    : table(calendar, settings),
      calendar_(calendar),
      needs_(std::move(needs)),
      settling_(scheduler, needs_.sendSettlingLine) {}

bool SpotPipeline::dx(std::string_view line) {
  if (Zv11Seen || !line.starts_with(kDxLineStart)) return false;
  const NodeFacts node = needs_.nodeFacts();
  if (settling_.Drops(node)) return true;
  if (ParseDxLine(line, node, WordFacts{}, MomentNow(calendar_), spot)) DisplayDx();
  ClearSpotExtras(spot);
  return true;
}

void SpotPipeline::DisplayDx() {
  if (spot.Freq == 0) return;
  if (!HasCalls(spot)) return;
  spot.LotwMark = " ";
  InferMissingDate();
  DisplayDxPart2();
}

void SpotPipeline::InferMissingDate() {
  if (spot.SpotDate.empty())
    InferDate(spot.SpotHHMM, MomentNow(calendar_), kMidnight, spot.SpotDate);
}

void SpotPipeline::DisplayDxPart2() {
  core::RepairEscapes(spot.Comment, ' ' + 1);
  const RowLayout layout = ArPcScreenSetup({});
  const std::size_t commentField = ClassicRow(spot, layout, {}, row_);
  UpdateText5(row_, Packed(layout.shape), commentField);
}

void SpotPipeline::UpdateText5(std::string_view row, std::uint32_t shape,
                               std::size_t commentField) {
  const bool skimmer = IsSkimmer(spot);
  if (skimmer) table.NoteSkimmer();
  const int band = BandOf(spot.Freq);
  if (band == kAllBands) return;
  table.rail.Increment(BandAt(band).label);
  table.CountUnseen(band);
  table.Add({row, skimmer ? TableRow::Kind::Skimmer : TableRow::Kind::Other, band,
             RowSpotOf(spot, shape, commentField)});
  ++SpotsShown;
}

}  // namespace spots
