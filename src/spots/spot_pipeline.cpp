#include "spots/spot_pipeline.h"

#include <utility>

#include "core/escapes.h"
#include "session/feed_options.h"
#include "spots/bands.h"
#include "spots/bottom_of_band.h"
#include "spots/classic_row.h"
#include "spots/county.h"
#include "spots/expanded_row.h"
#include "spots/spot_date.h"

namespace spots {
namespace {

using session::FeedOption;
using session::Feeds;

constexpr MidnightLimits kMidnight = {.late = 2340, .early = 20};

bool HasCalls(const Spot& spot) { return spot.DxCall.size() >= 2 && spot.Spotter.size() >= 3; }

}  // namespace

SpotPipeline::SpotPipeline(Steps steps, Needs needs)
    : steps_(steps), spot_(steps.spot), needs_(std::move(needs)) {}

// A duplicate goes on only while a list runs that was asked for: to those who asked.
void SpotPipeline::DisplayDx() {
  if (!IsAccepted()) return;
  InferMissingDate();
  if (steps_.duplicates.IsDupe(spot_)) {
    if (steps_.list.SpotListBusy()) DisplayDxPart2(Mark::Duplicate);
    return;
  }
  if (!steps_.duplicates.Admit(spot_)) return;
  steps_.log.Write(spot_);
  if (!spot_.RawLine.empty()) steps_.receivers.ForwardRawToLoggers(spot_.RawLine);
  DisplayDxPart2(Mark::None);
}

// Corrects the spot_ between the tests that go by what the node said and those that don't.
bool SpotPipeline::IsAccepted() {
  const NodeFacts node = needs_.nodeFacts();
  const ShownColumns& shown = steps_.display.Shown();
  if (spot_.Freq == 0) return false;
  if (NamesCountry()) steps_.rejects.NoteCountryWord();
  steps_.corrections.FixDxSpot(spot_, node, shown);
  if (RejectCounty(spot_, steps_.settings)) return false;
  if (steps_.localReject.LocalRejectSpot(spot_, node, needs_.zv11Seen())) return false;
  steps_.corrections.FixSpotterFields(spot_, node, shown);
  if (!HasCalls(spot_)) return false;
  if (steps_.rejects.RejectDX(spot_)) return false;
  return steps_.members.MarkSpot(spot_);
}

bool SpotPipeline::NamesCountry() const {
  const CtyTable& countries = steps_.reference.countries;
  if (spot_.DxCty.empty() || spot_.DxCty == "??" || spot_.DxCty == "QQ") return false;
  return countries.CtyCount() < 0 || countries.HasPrefix(spot_.DxCty);
}

void SpotPipeline::InferMissingDate() {
  if (spot_.SpotDate.empty())
    InferDate(spot_.SpotHHMM, MomentNow(steps_.calendar), kMidnight, spot_.SpotDate);
}

void SpotPipeline::DisplayDxPart2(Mark mark) {
  core::RepairEscapes(spot_.Comment, ' ' + 1);
  if (spot_.LotwMark.empty()) spot_.LotwMark = " ";
  MakeLoggerLine();
  if (steps_.list.SpotListBusy()) FeedListToLoggers();
  if (mark == Mark::Duplicate) return;
  MakeRow();
}

LoggerLineOptions SpotPipeline::LineOptions() const {
  return {.spotterQth = Feeds(steps_.settings, FeedOption::SpotterQth),
          .dxState = Feeds(steps_.settings, FeedOption::DxState),
          .membership = steps_.settings.ShLoTW || steps_.settings.SheQSL};
}

void SpotPipeline::MakeLoggerLine() {
  longLine_.clear();
  if (!Reloading && steps_.receivers.TakesLines()) LoggerLongLine(spot_, LineOptions(), longLine_);
}

void SpotPipeline::FeedListToLoggers() {
  if (longLine_.empty() || !Feeds(steps_.settings, FeedOption::Spots)) return;
  steps_.receivers.FeedLogWindow(longLine_);
  if (Feeds(steps_.settings, FeedOption::LiveSpotFormat))
    return steps_.receivers.FeedLoggers(longLine_);
  LoggerShortLine(spot_, LineOptions(), shortLine_);
  steps_.receivers.FeedLoggers(shortLine_);
}

void SpotPipeline::MakeRow() {
  const RowLayout& layout = steps_.display.Layout();
  if (layout.IsExpanded()) {
    MakeExpandedRow(layout);
    return UpdateText5(0);
  }
  const ClassicOptions options = {.withoutMark = Feeds(steps_.settings, FeedOption::TabFormat)};
  UpdateText5(ClassicRow(spot_, layout, options, row_));
}

void SpotPipeline::MakeExpandedRow(const RowLayout& layout) {
  const ShownColumns& shown = layout.shape.shown;
  Heading heading;
  if (shown.Bearing || shown.Distance) heading = steps_.reference.HeadingOf(spot_);
  ExpandedRow(
      spot_, layout,
      {.bearing = heading.CurBearing,
       .distance = heading.CurDistance,
       .countryName = shown.CountryName ? steps_.reference.countries.CountryName(spot_.DxCty)
                                        : std::string_view()},
      row_);
}

void SpotPipeline::UpdateText5(std::size_t commentField) {
  SpotReceivers& receivers = steps_.receivers;
  SpotTable& table = steps_.table;
  const bool skimmer = IsSkimmer(spot_);
  if (skimmer) table.NoteSkimmer();
  if (!Reloading) receivers.TellBuddies(spot_, longLine_);
  if (!skimmer && !needs_.keepsBottomOfBand() && BoBtoAnn(spot_, row_, announcement_)) {
    if (!steps_.list.ShDxCollecting() && !Reloading)
      receivers.Announce(announcement_, spot_.Spotter);
    return;
  }
  const int band = BandOf(spot_.Freq);
  if (band == kAllBands) return;
  const TableRow row(row_, skimmer ? TableRow::Kind::Skimmer : TableRow::Kind::Other, band,
                     RowSpotOf(spot_, Packed(steps_.display.Layout().shape), commentField));
  const bool alarm = receivers.CheckAlarm(spot_, row_);
  if (alarm) table.AddAlarm(row);
  table.rail.Increment(BandAt(band).label);
  if (alarm && !Reloading) receivers.WaveQue("Alert");
  if (!Reloading) FeedLoggers();
  table.CountUnseen(band);
  table.Add(row);
  ++SpotsShown;
  if (band == table.rail.SelectedBand() && steps_.list.ShDxDone && !Reloading)
    receivers.WaveQue("DxAlert");
}

void SpotPipeline::FeedLoggers() {
  if (longLine_.empty() || steps_.list.SpotListBusy()) return;
  steps_.receivers.FeedLogWindow(longLine_);
  if (!Feeds(steps_.settings, FeedOption::Spots)) return;
  steps_.receivers.FeedLoggers(Feeds(steps_.settings, FeedOption::TabFormat) ? row_ : longLine_);
}

}  // namespace spots
