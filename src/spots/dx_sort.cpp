#include "spots/dx_sort.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/dates.h"
#include "core/text.h"
#include "spots/row_parts.h"

namespace spots {
namespace {

constexpr int kLastHourOfDay = 23 * 60;
constexpr int kFirstHourOver = 60;
constexpr int kRowsAhead = 30;  // the clocks of nodes are fast, by so many minutes at most
constexpr int kTakenAsNow = 20;
constexpr int kGrowth = 20;
constexpr int kWholeHour = 60;
constexpr int kMostAtOnce = 5;    // minutes between two calls, unless the clock has been set
constexpr double kSameSpot = 30;  // kHz

bool IsLastHourOfDay(const SortMoment& now) { return now.minutes >= kLastHourOfDay; }

int Counted(const SortMoment& now) {
  return IsLastHourOfDay(now) ? now.minutes : now.minutes + core::kMinutesOfDay;
}

// A time of yesterday stays behind those of today, and one of tomorrow is ahead of them.
int Counted(int minute, const SortMoment& now) {
  const int limit = IsLastHourOfDay(now) ? kRowsAhead : now.minutes + kRowsAhead;
  return minute < limit ? minute + core::kMinutesOfDay : minute;
}

int AsSeen(int minute, int now) {
  return minute > now && minute < now + kTakenAsNow ? now : minute;
}

bool DayCounts(const SortMoment& now) {
  return now.minutes >= kFirstHourOver && now.minutes < kLastHourOfDay;
}

std::string Clock(int minute) {
  const auto ofDay = static_cast<unsigned>(minute % core::kMinutesOfDay);
  return core::Digits(ofDay / 60 * 100 + ofDay % 60, 4);
}

}  // namespace

bool DxSort::Before(const Item& a, const Item& b) {
  const int order = a.key.Text().compare(b.key.Text());
  return order != 0 ? order < 0 : a.row.Text() < b.row.Text();
}

bool DxSort::SameStation(const Item& a, const Item& b) {
  return a.row.Band() == b.row.Band() && std::abs(a.row.Freq() - b.row.Freq()) < kSameSpot &&
         a.row.DxCall() == b.row.DxCall();
}

DxSort::Item DxSort::ItemOf(const TableRow& row, const SortMoment& now) const {
  Item item{.key = {}, .minute = Counted(row.Minute(), now), .day = 0, .row = row};
  item.key.PutFrequency(1, row.Freq());
  item.key.Put(12, 12, row.DxCall());
  item.key.PutDigits(25, 4, item.minute);
  item.key.PutDigits(30, 2, row.Band());
  const RowShape shape = row.Shape();
  if (shape.shown.Date) item.day = core::ValInt(FieldOf(row, ArPcScreenSetup(shape), Column::Day));
  return item;
}

void DxSort::Rebuild(const std::deque<TableRow>& rows, const SortMoment& now) {
  Grow(1);
  items_.clear();
  since_ = 0;
  for (const TableRow& row : rows)
    if (row.IsSpot()) items_.push_back(ItemOf(row, now));
  std::sort(items_.begin(), items_.end(), Before);
  FitRoom(now);
}

void DxSort::Add(const std::vector<TableRow>& rows, const SortMoment& now) {
  Grow(rows.size());
  const auto old = static_cast<std::ptrdiff_t>(items_.size());
  for (const TableRow& row : rows)
    if (row.IsSpot()) items_.push_back(ItemOf(row, now));
  std::sort(items_.begin() + old, items_.end(), Before);
  std::inplace_merge(items_.begin(), items_.begin() + old, items_.end(), Before);
  FitRoom(now);
}

void DxSort::Refresh(const SortMoment& now) {
  Grow(1);
  FitRoom(now);
}

bool DxSort::CountsAnew(const SortMoment& now) {
  const bool enters = dayFlag_ && IsLastHourOfDay(now);
  dayFlag_ = !IsLastHourOfDay(now);
  const int passed = std::abs(now.minutes - std::exchange(minute_, now.minutes));
  return enters || std::min(passed, core::kMinutesOfDay - passed) > kMostAtOnce;
}

void DxSort::Grow(std::size_t calls) {
  const int growth = kGrowth * static_cast<int>(std::min<std::size_t>(calls, kWholeHour));
  window_ = std::min(window_ + growth, kWholeHour);
}

// From the highest frequency to the lowest: of two spots of a station that stand one behind the
// other the newer stays.
void DxSort::Prune(const SortMoment& moment) {
  const int now = Counted(moment);
  kept_.clear();
  for (auto item = items_.rbegin(); item != items_.rend(); ++item) {
    const int seen = AsSeen(item->minute, now);
    if (seen < now - window_) continue;
    if (item->day != 0 && item->day != moment.day && DayCounts(moment)) continue;
    if (kept_.empty() || !SameStation(kept_.back(), *item))
      kept_.push_back(std::move(*item));
    else if (seen > AsSeen(kept_.back().minute, now))
      kept_.back() = std::move(*item);
  }
  std::reverse(kept_.begin(), kept_.end());
  std::swap(items_, kept_);
  kept_.clear();
}

void DxSort::FitRoom(const SortMoment& now) {
  Prune(now);
  while (room_ > 0 && items_.size() > room_ && window_ > 0) {
    --window_;
    Prune(now);
  }
  since_ = std::max(since_, Counted(now) - window_);
  MakeTitle(Counted(now));
}

// A window that has grown again brings nothing back of what it has let go.
void DxSort::MakeTitle(int now) {
  if (since_ <= now - kWholeHour) {
    title_ = "Last Hour";
    return;
  }
  const auto oldest =
      std::min_element(items_.begin(), items_.end(),
                       [](const Item& a, const Item& b) { return a.minute < b.minute; });
  title_ = "Since " + Clock(oldest == items_.end() ? now : oldest->minute);
}

}  // namespace spots
