#include "spots/spot_log.h"

#include <algorithm>
#include <span>
#include <utility>

#include "spots/log_files.h"
#include "spots/log_line.h"

namespace spots {
namespace {

using Fault = platform::Files::Fault;
using namespace std::chrono_literals;

constexpr auto kGathering = 500ms;
constexpr auto kLineEnd = "\r\n";

}  // namespace

SpotLog::SpotLog(platform::Scheduler& scheduler, platform::Files& files, core::Calendar& calendar,
                 const core::Settings& settings, std::string folder,
                 std::function<void(Fault)> trouble)
    : scheduler_(scheduler),
      files_(files),
      calendar_(calendar),
      settings_(settings),
      folder_(std::move(folder)),
      trouble_(std::move(trouble)) {}

void SpotLog::EnableLoggingSpots() {
  Close();
  const Fault fault = files_.MakeFolder(LogFolder(folder_, calendar_.MakeTodaysDate().dayNumber));
  if (settings_.LogDxSpots) Tell(fault);
}

void SpotLog::Write(const Spot& spot) {
  if (!settings_.LogDxSpots) return;
  std::string& lines = PageOf(LogDay(calendar_, spot.SpotDate)).lines;
  const std::size_t before = lines.size();
  AppendLogLine(spot, LogForm::Daily, lines);
  waiting_ += lines.size() - before;
  if (waiting_ >= kMostWaiting) HandOver();
  if (waiting_ == 0 || std::exchange(asked_, true)) return;
  handingOver_ = scheduler_.After(kGathering, [this] {
    asked_ = false;
    HandOver();
  });
}

void SpotLog::Close() {
  HandOver();
  if (!settings_.LogDxSpots) Tell(Fault::None);
}

SpotLog::Page& SpotLog::PageOf(int day) {
  const auto inUse = pages_.begin() + static_cast<std::ptrdiff_t>(pagesInUse_);
  const auto page =
      std::find_if(pages_.begin(), inUse, [&](const Page& each) { return each.day == day; });
  if (page != inUse) return *page;
  if (pagesInUse_ == kPages) HandOver();
  Page& fresh = pages_[pagesInUse_++];
  fresh.day = day;
  return fresh;
}

void SpotLog::HandOver() {
  if (waiting_ == 0) return;
  Fault fault = Fault::None;
  for (Page& page : std::span(pages_).first(pagesInUse_)) {
    const Fault one = HandOver(page);
    if (one != Fault::None) fault = one;
    page.lines.clear();
  }
  pagesInUse_ = 0;
  waiting_ = 0;
  torn_ = fault != Fault::None;
  Tell(fault);
}

Fault SpotLog::HandOver(Page& page) {
  // An empty line means nothing to a reload; it ends the line that was cut.
  if (torn_) page.lines.insert(0, kLineEnd);
  const Fault fault = files_.MakeFolder(LogFolder(folder_, page.day));
  if (fault != Fault::None) return fault;
  return files_.Append(LogPath(folder_, page.day), page.lines);
}

void SpotLog::Tell(Fault fault) {
  if (fault == std::exchange(told_, fault)) return;
  trouble_(fault);
}

}  // namespace spots
