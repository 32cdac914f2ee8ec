#include "spots/spot_reload.h"

#include <algorithm>
#include <utility>

#include "spots/log_files.h"
#include "spots/log_line.h"
#include "spots/spot_date.h"

namespace spots {
namespace {

using Fault = platform::Files::Fault;

constexpr int kLinesInARow = 100;
constexpr platform::Milliseconds kYield{0};

// Without the line end. A last line that has none counts only if it is whole: a crash may have cut
// it.
std::string_view TakeLineFrom(std::string_view& rest) {
  const std::size_t end = rest.find('\n');
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(std::min(line.size() + 1, rest.size()));
  if (end == std::string_view::npos && !line.ends_with('~')) return {};
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

int MinuteOf(const Spot& spot, int day) {
  return day * core::kMinutesOfDay + spot.SpotHHMM / 100 * 60 + spot.SpotHHMM % 100;
}

}  // namespace

// A copy of what is no duplicate, beside the file that is read, as long as that lasts. A disk that
// doesn't take it is no reason to stop.
class SpotReload::Scratch {
 public:
  Scratch(platform::Files& files, const std::string& folder)
      : files_(files), path_(folder + "/tmp.txt") {
    files_.Remove(path_);
    Write();
  }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;
  ~Scratch() { files_.Remove(path_); }

  void Add(const Spot& spot) {
    if (fault_ == Fault::None) AppendLogLine(spot, LogForm::Scratch, waiting_);
  }
  void Write() {
    if (fault_ == Fault::None) fault_ = files_.Append(path_, waiting_);
    waiting_.clear();
  }

 private:
  platform::Files& files_;
  const std::string path_;
  std::string waiting_;
  Fault fault_ = Fault::None;
};

SpotReload::SpotReload(platform::Scheduler& scheduler, platform::Files& files,
                       core::Calendar& calendar, const core::Settings& settings, std::string folder,
                       Needs needs, platform::FaultHandler onFault)
    : files_(files),
      calendar_(calendar),
      settings_(settings),
      folder_(std::move(folder)),
      needs_(std::move(needs)),
      tasks_(scheduler, std::move(onFault)) {}

void SpotReload::ReloadSpots() {
  if (Reloading.Get()) return;
  stop_ = false;
  spotsRead_ = 0;
  SpotsRead.Set(0);
  Reloading.Set(true);
  tasks_.Start("ReloadSpots", Reload());
}

platform::Task<> SpotReload::Reload() {
  const platform::Registration intake = needs_.holdIntake();
  platform::Registration reloading([this] { Reloading.Set(false); });
  needs_.showRaw("Reloading Dx Spots From Log File");
  needs_.closeLog();
  const int today = SetLimit();
  for (int day = limit_ / core::kMinutesOfDay; day <= today && !stop_; ++day)
    co_await ReloadDay(day);
  reloading.Release();
  needs_.showRaw(stop_ ? "Reload Aborted" : "Reload Complete");
}

int SpotReload::SetLimit() {
  const Moment now = MomentNow(calendar_);
  const int back = std::clamp(settings_.ReloadHours, 0, kMostHours) * 60;
  limit_ = now.dayNumber * core::kMinutesOfDay + now.minutes - back;
  return now.dayNumber;
}

platform::Task<> SpotReload::ReloadDay(int day) {
  needs_.showRaw(LogName(day) + "   ");
  const platform::Files::Content file = files_.Read(LogPath(folder_, day));
  if (file.fault != Fault::None) {
    needs_.showRaw(file.fault == Fault::NotFound ? "      File not found"
                                                 : "      File can't be read");
    co_return;
  }
  Scratch scratch(files_, LogFolder(folder_, day));
  std::string_view rest = file.bytes;
  while (!rest.empty() && !stop_) {
    TakeLines(rest, day, scratch);
    co_await platform::Delay(kYield);
  }
}

void SpotReload::TakeLines(std::string_view& rest, int day, Scratch& scratch) {
  for (int line = 0; line < kLinesInARow && !rest.empty() && !stop_; ++line)
    if (ParseLogLine(TakeLineFrom(rest), spot_)) TakeSpot(day, scratch);
  scratch.Write();
  SpotsRead.Set(spotsRead_);
}

void SpotReload::TakeSpot(int day, Scratch& scratch) {
  ++spotsRead_;
  spot_.SpotDate = core::EnglishDate(day);
  spot_.SpotMinute = MinuteOf(spot_, day);
  if (needs_.isDupe(spot_)) return;
  needs_.record(spot_);
  scratch.Add(spot_);
  if (spot_.SpotMinute > limit_ && !needs_.rejectCounty(spot_)) needs_.show(spot_);
}

}  // namespace spots
