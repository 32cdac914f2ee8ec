#include "spots/spot_parts.h"

#include <utility>

#include "core/location.h"
#include "spots/county.h"
#include "spots/log_files.h"
#include "spots/spot_date.h"

namespace spots {

SpotParts::SpotParts(const platform::Platform& platform, core::Calendar& calendar,
                     core::Settings& settings, core::ErrorLog& errorLog, const std::string& folder,
                     Needs needs)
    : needs_(std::move(needs)),
      platform_(platform),
      settings_(settings),
      calendar_(calendar),
      folder_(folder),
      gridRecorder_(platform.files, platform.scheduler, calendar, folder),
      reference(platform.files, platform.dialogs, folder),
      display(settings, NeedsOfDisplay()),
      fixList(platform.files, platform.scheduler, errorLog, folder),
      corrections([this](std::string_view call, std::string& cty, std::string& state,
                         std::string& cq, std::string& itu, std::string& grid) {
        return ApplySpotFix(call, {cty, state, cq, itu, grid});
      }),
      localReject(settings, needs_.countryFilter, needs_.delayedWriteCfg),
      rejectLists(platform.files, settings, folder + "/reject.dat"),
      membership(platform.files, folder, settings, needs_.updateMembers),
      duplicates(calendar, settings, {.addToRawText = needs_.addToRawText}),
      log(platform.scheduler, platform.files, calendar, settings, folder, needs_.logTrouble),
      table(calendar, settings),
      lines(platform.scheduler, calendar, spot, NeedsOfLines()),
      pipeline(StepsOfPipeline(), {.nodeFacts = needs_.nodeFacts,
                                   .zv11Seen = [this] { return lines.Zv11Seen; },
                                   .keepsBottomOfBand = needs_.keepsBottomOfBand}),
      reload(platform.scheduler, platform.files, calendar, settings, folder, NeedsOfReload(),
             needs_.onFault),
      requests(settings, NeedsOfRequests()),
      numbers(settings),
      rejectForm(rejectLists, settings, {.delayedWriteCfg = needs_.delayedWriteCfg}),
      fixForm(fixList, settings, errorLog,
              {.fetch = needs_.fetchFixes, .openPage = needs_.openFixPage}),
      spotsForm(settings, reload,
                {.settingsChanged = needs_.delayedWriteCfg,
                 .loggingChanged = [this] { log.EnableLoggingSpots(); },
                 .setupSpotNrs = [this] { ShowNumbers(); }}) {
  words_.isPrefix = [this](std::string_view word) { return reference.countries.HasPrefix(word); };
  if (!needs_.fetchFixes) {
    for (core::Button* button : {&fixForm.cmdWebUpdate, &fixForm.cmdHelp}) {
      button->Enabled.Set(false);
      button->ToolTip.Set("No host of lists is set");
    }
  }
  kept_.push_back(fixForm.optFixSpot.Click.Add(needs_.delayedWriteCfg));
  for (core::Check* check : {&membership.showlotw, &membership.showeqsl, &membership.RejectNot,
                             &membership.LotwChecker, &membership.eQSLchecker})
    kept_.push_back(check->Click.Add(needs_.delayedWriteCfg));
  displayed_ = display.Applied.Add([this] {
    TakeDisplay();
    needs_.delayedWriteCfg();
  });
  reloading_ = reload.Reloading.Observe([this](bool reloading) { FollowReload(reloading); });
  counting_ = table.RtbDx.Observe([this](const DxPane::Change&) {
    if (numbers.txtrtb2.Visible.Get()) numbers.ShowRows(table.RtbDx.Rows().size());
  });
}

SpotParts::~SpotParts() = default;

DisplayChoice::Needs SpotParts::NeedsOfDisplay() {
  return {.nodeAddsWords = [this] { return !needs_.nodeFacts().IsSpider(); },
          .send = needs_.send,
          .tell = needs_.tell};
}

SpotPipeline::Steps SpotParts::StepsOfPipeline() {
  return {.spot = spot,
          .settings = settings_,
          .calendar = calendar_,
          .corrections = corrections,
          .localReject = localReject,
          .rejects = rejectLists,
          .members = membership,
          .duplicates = duplicates,
          .log = log,
          .display = display,
          .reference = reference,
          .list = lines.list,
          .table = table,
          .receivers = needs_.receivers};
}

SpotLines::Needs SpotParts::NeedsOfLines() {
  return {.nodeFacts = needs_.nodeFacts,
          .wordFacts = [this]() -> const WordFacts& { return WordsNow(); },
          .ar17Probing = needs_.ar17Probing,
          .sendEmptyLine = [this] { needs_.send(""); },
          .nodeCall = needs_.nodeCall,
          .txtDDEsend = nullptr,
          .keepsGrids = [this] { return gridRecorder_.HasGridList(); },
          .RecordGrid =
              [this](std::string_view grid, std::string_view call) {
                gridRecorder_.RecordGrid(grid, call, needs_.nodeFacts());
              },
          .DisplayDx = [this] { DisplayDx(); },
          .RcvdPrompt = needs_.RcvdPrompt,
          .directoryRuns = [] { return false; },
          .latency = needs_.latency,
          .sort = [this] { table.RunDxQue(); }};
}

const WordFacts& SpotParts::WordsNow() {
  words_.CountriesLoaded = reference.countries.CtyCount() >= 0;
  words_.Slots = needs_.slotSwitches();
  return words_;
}

SpotReload::Needs SpotParts::NeedsOfReload() {
  return {.closeLog = [this] { log.Close(); },
          .holdIntake = needs_.holdIntake,
          .showRaw = needs_.showRaw,
          .isDupe = [this](const Spot& each) { return duplicates.IsRepeated(each); },
          .record = [this](const Spot& each) { duplicates.RecordDxSpot(each); },
          .rejectCounty = [this](const Spot& each) { return RejectCounty(each, settings_); },
          .show =
              [this](Spot& each) {
                std::swap(spot, each);
                pipeline.DisplayDxPart2(SpotPipeline::Mark::None);
                std::swap(spot, each);
              }};
}

SpotRequests::Needs SpotParts::NeedsOfRequests() {
  return {.node =
              [this] {
                return SpotRequests::Node{.kind = needs_.nodeFacts().kind,
                                          .ShowDxCommand = std::string(needs_.showDxCommand()),
                                          .TncMode = needs_.tncMode()};
              },
          .filter = [] { return MissedFilter{}; },
          .sendAsIs = needs_.sendAsIs,
          .listRequested = [this] { lines.list.AskedForSpots(); },
          .setShDxDone = [this](bool done) { lines.list.ShDxDone = done; },
          .missedRequested =
              [this] {
                needs_.timeCommand();
                lines.list.AskedForMissed();
              },
          .settingsChanged = needs_.delayedWriteCfg};
}

bool SpotParts::ApplySpotFix(std::string_view call, FixTarget target) {
  const NodeFacts node = needs_.nodeFacts();
  return fixList.ApplySpotFix(call, target,
                              {.shown = display.Shown(),
                               .node = node,
                               .ShDxCollecting = lines.list.ShDxCollecting(),
                               .MultiNode = needs_.multiNode()});
}

void SpotParts::TakeSettings() {
  display.Read();
  TakeDisplay();
  localReject.Load();
  rejectForm.Load();
  membership.TakeSettings();
  requests.Load();
  ShowNumbers();
}

void SpotParts::TakeDisplay() {
  reference.SetHome({.position = core::LatitudeLongitude(settings_.MyLocation),
                     .kilometres = display.Shown().Kilometres});
  table.SetTableWidth(display.Layout().FullWidth);
}

void SpotParts::ReadFiles() {
  reference.Read();
  rejectLists.ReadReject();
  fixList.ReadFixSpots();
  membership.ReadLotw();
  membership.ReadeQSL();
}

void SpotParts::BeginLog() {
  lines.list.ShDxDone = !settings_.GetMissedOnes;  // then no list is asked for
  log.EnableLoggingSpots();
  if (settings_.LogDxSpots && settings_.LoadLogFileOnStartup) {
    spotsForm.Show();
    reload.ReloadSpots();
  }
  // A reload may want files that are too old to be kept.
  deleting_ = reload.Reloading.Observe([this](bool reloading) {
    if (!reloading) DeleteOldLogs();
  });
}

void SpotParts::DeleteOldLogs() {
  if (settings_.DeleteDxLogs)
    DeleteLogFiles(platform_.files, calendar_, folder_, settings_.KeepSpotsDays);
}

void SpotParts::FollowReload(bool reloading) {
  pipeline.Reloading = reloading;
  if (!reloading) return table.EndReload();
  table.BeginReload();
  // What is on show stands in the log: it would be there, and be counted, twice.
  if (!settings_.LogDxSpots) return;
  ClearSpots();
  table.ForgetCounts();
}

// A row of another order than that of time comes on view with a tick.
void SpotParts::DisplayDx() {
  const std::uint64_t shown = pipeline.SpotsShown;
  const platform::Milliseconds began = platform_.scheduler.Now();
  pipeline.DisplayDx();
  if (pipeline.SpotsShown != shown && table.optSortBy.Get() == kTimeOrder)
    spotTook_ = platform_.scheduler.Now() - began;
}

void SpotParts::Tick() {
  table.RunDxQue();
  if (spotTook_) numbers.ShowTime(*std::exchange(spotTook_, std::nullopt));
  const int minute = MomentNow(calendar_).minutes;
  if (std::exchange(minute_, minute) != minute) table.RefreshLastHour();
  duplicates.UpdateSkimmerDupeDisplay();
}

void SpotParts::ClearSpots() {
  duplicates.Forget();
  table.ClearSpots();
}

void SpotParts::ShowNumbers() {
  numbers.SetupSpotNrs();
  numbers.ShowRows(table.RtbDx.Rows().size());
}

void SpotParts::Disconnected() {
  lines.Disconnected();
  lines.list.ShDxDone = !settings_.GetMissedOnes;
  corrections.BeginSession();
  rejectLists.SessionEnded();
}

void SpotParts::Close() {
  reload.Stop();
  log.Close();
  fixList.Flush();
}

}  // namespace spots
