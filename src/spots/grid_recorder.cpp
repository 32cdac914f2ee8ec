#include "spots/grid_recorder.h"

#include <chrono>
#include <utility>

#include "core/text.h"

namespace spots {
namespace {

// A list that has changed is seen after this time. Not for each spot: the disk would be asked
// thousands of times a second.
constexpr platform::Milliseconds kBetweenLooks{1000};

// "261120".
std::string ShortDate(int dayNumber) {
  const std::chrono::year_month_day date{std::chrono::sys_days{std::chrono::days{dayNumber}}};
  return core::Digits(static_cast<unsigned>(static_cast<int>(date.year()) % 100), 2) +
         core::Digits(static_cast<unsigned>(date.month()), 2) +
         core::Digits(static_cast<unsigned>(date.day()), 2);
}

}  // namespace

GridRecorder::GridRecorder(platform::Files& files, const platform::Scheduler& scheduler,
                           core::Calendar& calendar, const std::string& folder)
    : files_(files),
      scheduler_(scheduler),
      calendar_(calendar),
      listPath_(folder + "/data/grid/grid.dat"),
      recordPath_(folder + "/grid.txt") {}

void GridRecorder::RecordGrid(std::string_view grid, std::string_view call, const NodeFacts& node) {
  if (!node.IsSpider() || !HasGridList() || gridList_.FindCall(call) > 0) return;
  if (files_.Size(recordPath_) >= kMostBytes) return;
  std::string line(call);
  line.append(" ").append(grid).append(" ");
  line.append(ShortDate(calendar_.MakeTodaysDate().dayNumber)).append("\r\n");
  files_.Append(recordPath_, line);
}

bool GridRecorder::HasGridList() {
  const platform::Milliseconds now = scheduler_.Now();
  if (lookedAt_ && now - *lookedAt_ < kBetweenLooks) return hasGridList_;
  lookedAt_ = now;
  hasGridList_ = files_.Exists(listPath_);
  if (hasGridList_ && files_.Size(listPath_) != gridListLength_) ReadGridList();
  return hasGridList_;
}

void GridRecorder::ReadGridList() {
  auto content = files_.Read(listPath_);
  gridListLength_ = content.bytes.size();
  gridList_.Read(std::move(content.bytes));
}

}  // namespace spots
