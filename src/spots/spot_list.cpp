#include "spots/spot_list.h"

#include <algorithm>
#include <utility>

#include "core/dates.h"
#include "core/text.h"
#include "spots/extended_line.h"
#include "spots/show_dx_line.h"
#include "spots/spot_line.h"

namespace spots {
namespace {

using platform::Milliseconds;

constexpr Milliseconds kSilence{1000};
// Of a list without a prompt that is known: the node may be slow, and never prompt at all.
constexpr Milliseconds kLongSilence{10'000};
// A node may answer long after the prompt of an earlier command seemed to end the list.
constexpr Milliseconds kLateAnswer{10'000};
constexpr Milliseconds kLongTime{10'000};

bool SaysNoRecords(std::string_view line) { return core::InStr(line, "*** no records found") > 0; }

// "sh/dx: '99 NB0DY' not found".
bool SaysNotFound(std::string_view line) {
  return core::StartsWithIgnoringCase(line, "sh/") && core::InStr(line, "dx: '") > 0 &&
         core::EndsWith(line, "' not found");
}

}  // namespace

SpotList::SpotList(platform::Scheduler& scheduler, Needs needs)
    : scheduler_(scheduler), needs_(std::move(needs)) {}

void SpotList::AskedForMissed() {
  for (core::Label* label : {&lblSeconds, &lblBeyondLatency, &lblCount}) label->Caption.Set("");
  Await();
}

void SpotList::AskedForSpots() {
  busy_ = true;
  Await();
}

void SpotList::Await() {
  ShDxDone = false;
  requestedAt_ = scheduler_.Now();
  if (collecting_) return;
  promptedFirst_ = false;
  silence_.Release();
}

void SpotList::Disconnected() {
  Begin();
  collecting_ = busy_ = promptedFirst_ = ShDxDone = false;
  requestedAt_.reset();
  endedEmptyAt_.reset();
  silence_.Release();
}

void SpotList::Begin() {
  for (std::string& slot : ShDxBuffer_) slot.clear();
  count_ = 0;
  collecting_ = true;
}

void SpotList::ZV11_SpotsOthers(std::string_view line) {
  if (needs_.sessionUp() && !ShDxDone) Store(line);
}

bool SpotList::CollectShDxLine(std::string_view line) {
  if (line.starts_with(kZv11Start)) return false;
  if (needs_.RcvdPrompt(line)) {
    Prompted();
    return false;
  }
  if (!collecting_ && SaysNoRecords(line)) {
    Begin();
    WaitForSilence();
    return true;
  }
  if (!collecting_ && SaysNotFound(line)) Prompted();
  if (needs_.directoryRuns() || !IsShowDxRow(line)) return false;
  if (ShDxDone && EndedTooSoon()) Reopen();
  if (!ShDxDone) Store(line);
  return true;
}

void SpotList::Store(std::string_view row) {
  if (!collecting_) Begin();
  ++count_;
  if (count_ == 1) ShowTimes();
  if (count_ > kSlots) return;
  if (row.size() <= kLongestLine) ShDxBuffer_[kSlots - count_] = row;
  WaitForSilence();
}

bool SpotList::EndedTooSoon() const {
  return endedEmptyAt_ && scheduler_.Now() - *endedEmptyAt_ < kLateAnswer;
}

void SpotList::Reopen() {
  endedEmptyAt_.reset();
  ShDxDone = false;
  promptedFirst_ = true;
}

void SpotList::ShowTimes() {
  if (!requestedAt_) return;  // nobody has asked for it
  const Milliseconds time = scheduler_.Now() - *requestedAt_;
  lblSeconds.Caption.Set(core::Seconds(time, 3, time < kLongTime ? 2 : 1));
  lblBeyondLatency.Caption.Set(core::Seconds(time - needs_.latency(), 1, 2));
}

void SpotList::Prompted() {
  if (collecting_) {
    if (!OnlySilenceEnds()) End();
  } else if (!ShDxDone && !promptedFirst_) {
    promptedFirst_ = true;
    WaitForSilence();
  }
}

// Among the rows of a list that a prompt came before, any prompt may be another command's. Extended
// rows have theirs behind them: no silence would end them, since live spots look the same.
bool SpotList::OnlySilenceEnds() const {
  return promptedFirst_ && count_ > 0 && !ShDxBuffer_.back().starts_with(kZv11Start);
}

void SpotList::WaitForSilence() {
  const Milliseconds silence = promptedFirst_ ? kSilence : kLongSilence;
  silence_ = scheduler_.After(silence, [this] { End(); });
}

void SpotList::End() {
  silence_.Release();
  if (!collecting_) Begin();
  endedEmptyAt_.reset();
  if (count_ == 0) endedEmptyAt_ = scheduler_.Now();
  requestedAt_.reset();
  lblCount.Caption.Set(std::to_string(count_));
  ReplayShDxLines();
  needs_.sort();
  collecting_ = busy_ = promptedFirst_ = false;
  ShDxDone = true;
}

void SpotList::ReplayShDxLines() {
  const auto replay = [this](const std::string& row) {
    if (!row.empty()) needs_.replay(row);
  };
  needs_.replayBegins();
  // The first row that came stands last.
  if (needs_.newestFirst())
    std::for_each(ShDxBuffer_.begin(), ShDxBuffer_.end(), replay);
  else
    std::for_each(ShDxBuffer_.rbegin(), ShDxBuffer_.rend(), replay);
}

}  // namespace spots
