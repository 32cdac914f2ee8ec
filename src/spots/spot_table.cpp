#include "spots/spot_table.h"

#include <algorithm>

#include "core/text.h"
#include "spots/classic_row.h"
#include "spots/spot_date.h"

namespace spots {
namespace {

// What a store may hold, in characters for each unit of the spot memory.
constexpr std::size_t kViewFull = 1000;  // on show; a piece is cut off, so that this is often
constexpr std::size_t kStoreFull = 1100;
constexpr std::size_t kStoreKept = 1010;
constexpr std::size_t kViewCut = 5000;  // the piece, in characters

}  // namespace

SpotTable::SpotTable(core::Calendar& calendar, const core::Settings& settings)
    : rail([this](int band) {
        if (!sorted_.IsActive()) At(band, selectedView_).Append(StarsRow());
      }),
      calendar_(calendar),
      settings_(settings) {
  chkShSkm[kDx].Caption.Set("DX");
  chkShSkm[kSkimmer].Caption.Set("Skimmer");
  selectingBand_ = rail.optBand.Click.Add([this] { SelectBand(); });
  for (const Source source : {kDx, kSkimmer})
    selectingView_[source] = chkShSkm[source].Click.Add([this] { SelectView(); });
}

void SpotTable::EnterTab() {
  onShow_ = true;
  unseen_ = 0;
  TabCaption.Set("DX");
  if (!sorted_.IsActive() || reloading_) return;
  sorted_.Run(SelectedStore().Rows(), Now());
  RtbDx.Refresh(sorted_.Rows(reversed_));
}

void SpotTable::LeaveTab() {
  onShow_ = false;
  TabCaption.Set("DX");
  if (sorted_.IsActive())
    sorted_.Renew();
  else
    UpdateDxSpots();
  ClearStars();
}

void SpotTable::NoteSkimmer() {
  if (skimmerNoted_ || !onShow_) return;
  skimmerNoted_ = true;
  for (core::Check& check : chkShSkm) check.Value.Set(true);
  if (selectedView_ != kAllSpots) SelectView();
}

void SpotTable::CountUnseen(int band) {
  const int selected = rail.SelectedBand();
  if (onShow_ || (selected != kAllBands && selected != band)) return;
  if (++unseen_ == 1 && !sorted_.IsActive() && !reloading_) RtbDx.Append(StarsRow());
  TabCaption.Set("DX = " + std::to_string(unseen_));
}

void SpotTable::Add(const TableRow& row) {
  KeepLimits(kAllBands, settings_.SpotMemoryAll);
  KeepLimits(row.Band(), settings_.SpotMemorySingle);
  Store(row, kAllBands);
  Store(row, row.Band());
}

void SpotTable::AddAlarm(const TableRow& row) {
  rail.Increment(BandAt(kAlarmBand).label);
  KeepLimits(kAlarmBand, settings_.SpotMemorySingle);
  Store(row, kAlarmBand);
}

void SpotTable::ClearSpots() {
  for (auto& views : stores_)
    for (RowStore& store : views) store.Clear();
  UpdateDxSpots();
}

void SpotTable::ForgetCounts() {
  rail.ForgetCounts();
  unseen_ = 0;
  TabCaption.Set("DX");
}

void SpotTable::Store(const TableRow& row, int band) {
  const bool skimmer = row.RowKind() == TableRow::Kind::Skimmer;
  for (const int view : {kAllSpots, skimmer ? kSkimmerSpots : kOtherSpots}) {
    At(band, view).Append(row);
    if (Selected(band, view)) Show(row);
  }
}

void SpotTable::Show(const TableRow& row) {
  if (sorted_.IsActive())
    sorted_.Queue(row);
  else if (!reloading_)
    RtbDx.Append(row);
}

void SpotTable::KeepLimits(int band, int memory) {
  const auto units = static_cast<std::size_t>(std::max(memory, 0));
  for (int view = 0; view < kViews; ++view)
    if (At(band, view).Characters() > units * kStoreFull)
      Forget(band, view, At(band, view).KeepLast(units * kStoreKept));
  RowStore& shown = At(band, selectedView_);
  if (shown.Characters() > units * kViewFull)
    Forget(band, selectedView_, shown.CutBefore(kViewCut));
}

void SpotTable::Forget(int band, int view, std::size_t spots) {
  if (spots == 0 || !Selected(band, view)) return;
  if (sorted_.IsActive())
    sorted_.Renew();
  else if (!reloading_)
    RtbDx.RemoveSpots(spots);
}

void SpotTable::SelectBand() {
  rail.ClearUnseen(rail.SelectedBand());
  UpdateDxSpots();
  ClearStars();
}

void SpotTable::SelectView() {
  const bool dx = chkShSkm[kDx].Value.Get();
  const bool skimmer = chkShSkm[kSkimmer].Value.Get();
  selectedView_ = dx == skimmer ? kAllSpots : (skimmer ? kSkimmerSpots : kOtherSpots);
  UpdateDxSpots();
  ClearStars();
}

void SpotTable::SortBy(int button, Press press) {
  if (sorting_) return;
  sorting_ = true;
  reversed_ = press == Press::Middle;
  sorted_.Begin(button, press != Press::Right);
  RtbDx.SetNewestFirst(reversed_ && !sorted_.IsActive());
  optSortBy.Set(button);
  UpdateDxSpots();
  sorting_ = false;
}

void SpotTable::RunDxQue() {
  if (reloading_ || !onShow_ || !sorted_.HasWork()) return;
  sorted_.Run(SelectedStore().Rows(), Now());
  RtbDx.Refresh(sorted_.Rows(reversed_));
}

void SpotTable::RefreshLastHour() {
  if (reloading_ || !onShow_ || optSortBy.Get() != kLastHour) return;
  sorted_.Refresh(SelectedStore().Rows(), Now());
  RtbDx.Refresh(sorted_.Rows(reversed_));
}

void SpotTable::EndReload() {
  reloading_ = false;
  UpdateDxSpots();
}

void SpotTable::UpdateDxSpots() {
  if (reloading_ || (sorted_.IsActive() && !onShow_)) {
    sorted_.Renew();
    return RtbDx.Redraw({});
  }
  if (sorted_.IsActive()) return ShowSorted();
  RtbDx.Redraw(SelectedStore().Rows());
}

void SpotTable::ShowSorted() {
  sorted_.Renew();
  sorted_.Run(SelectedStore().Rows(), Now());
  RtbDx.Redraw(sorted_.Rows(reversed_));
}

// Only behind the drawing: the separators are to be seen once.
void SpotTable::ClearStars() { At(rail.SelectedBand(), selectedView_).ClearStars(); }

bool SpotTable::Selected(int band, int view) const {
  return band == rail.SelectedBand() && view == selectedView_;
}

TableRow SpotTable::StarsRow() {
  return {Stars(tableWidth_), TableRow::Kind::Stars, 0, {.minute = MomentNow(calendar_).minutes}};
}

SortMoment SpotTable::Now() {
  const Moment now = MomentNow(calendar_);
  return {.minutes = now.minutes, .day = core::ValInt(core::Left(now.date, 2))};
}

}  // namespace spots
