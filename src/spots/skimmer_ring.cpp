#include "spots/skimmer_ring.h"

#include <algorithm>
#include <cstdlib>
#include <functional>

namespace spots {
namespace {

constexpr int kFirstSlots = 1000;
constexpr int kMoreSlots = 200;
constexpr std::int64_t kHertzApart = 300;
constexpr int kMinutesApart = 2;
constexpr int kReusedAfter = 11;  // minutes

// The frequencies are cut into cells so narrow that all within one are near each other; those near
// a frequency lie in its own cell and the two beside it.
constexpr std::int64_t kCell = kHertzApart + 1;

bool Near(std::int64_t a, std::int64_t b) { return std::abs(a - b) <= kHertzApart; }

bool FarApart(int minute, int other) { return std::abs(minute - other) > kMinutesApart; }

std::size_t HashOf(std::string_view call, std::int64_t cell) {
  constexpr std::size_t kSpread = 0x9E3779B97F4A7C15;
  return std::hash<std::string_view>()(call) ^ (static_cast<std::size_t>(cell) * kSpread);
}

}  // namespace

SkimmerRing::Finding SkimmerRing::Find(std::int64_t hz, std::string_view call, int minute) {
  if (spent_) return {};
  const Sequence same = NewestOf(hz, call.substr(0, kLongestCall));
  const Sequence far = NewestFarFrom(minute);
  if (std::max(same, far) < SequenceOf(tail_)) return {};
  if (same > far) return {Answer::Found, &At(SlotOf(same))};
  tail_ = SlotOf(far) == RingLast() ? 1 : SlotOf(far) + 1;
  spent_ = far == recorded_;
  return {same == far ? Answer::TooOld : Answer::NotFound, nullptr};
}

// A slot ahead of the head is one of the lap before.
SkimmerRing::Sequence SkimmerRing::SequenceOf(int slot) const {
  return recorded_ - head_ + slot - (slot > head_ ? RingLast() : 0);
}

int SkimmerRing::SlotOf(Sequence sequence) const {
  const auto slot = static_cast<int>(head_ - (recorded_ - sequence));
  return slot < 1 ? slot + RingLast() : slot;
}

SkimmerRing::Sequence SkimmerRing::NewestOf(std::int64_t hz, std::string_view call) const {
  Sequence newest = 0;
  const std::int64_t own = hz / kCell;
  for (std::int64_t cell = own - 1; cell <= own + 1; ++cell) {
    const int slot = NewestIn(cell, hz, call);
    if (slot != SlotIndex::kNone) newest = std::max(newest, SequenceOf(slot));
  }
  return newest;
}

int SkimmerRing::NewestIn(std::int64_t cell, std::int64_t hz, std::string_view call) const {
  int slot = index_.First(HashOf(call, cell));
  while (slot != SlotIndex::kNone && !(Near(At(slot).hz, hz) && At(slot).DxCall == call))
    slot = index_.Next(slot);
  return slot;
}

SkimmerRing::Sequence SkimmerRing::NewestFarFrom(int minute) const {
  const auto far = std::find_if(minutes_.begin(), minutes_.end(), [&](const Minute& each) {
    return each.newest == 0 || FarApart(each.minute, minute);
  });
  return far == minutes_.end() ? 0 : far->newest;
}

void SkimmerRing::Record(std::int64_t hz, std::string_view call, int minute) {
  AdvanceHead(minute);
  ++recorded_;
  spent_ = false;
  index_.Remove(head_);
  Entry& entry = At(head_);
  entry.hz = hz;
  entry.SpotMinute = minute;
  entry.DxCall = call.substr(0, kLongestCall);
  entry.seen = false;
  Index(entry);
  NoteMinute(minute);
}

void SkimmerRing::AdvanceHead(int minute) {
  if (entries_.empty()) Grow(kFirstSlots);
  if (++head_ <= RingLast()) return;
  if (minute - At(1).SpotMinute >= kReusedAfter || RingLast() + kMoreSlots > kMostSlots)
    head_ = 1;
  else
    Grow(kMoreSlots);
}

void SkimmerRing::Grow(int slots) {
  entries_.resize(entries_.size() + static_cast<std::size_t>(slots));
  index_.MakeRoom(entries_.size() + 1);
}

// An older entry of the same call and frequency can't be found any more: it goes from the index, so
// that this stays quick whatever is repeated how often.
void SkimmerRing::Index(const Entry& entry) {
  const std::size_t hash = HashOf(entry.DxCall, entry.hz / kCell);
  for (int slot = index_.First(hash); slot != SlotIndex::kNone; slot = index_.Next(slot)) {
    if (At(slot).hz != entry.hz || At(slot).DxCall != entry.DxCall) continue;
    index_.Remove(slot);
    break;
  }
  index_.Add(head_, hash);
}

void SkimmerRing::NoteMinute(int minute) {
  auto same = std::find_if(minutes_.begin(), minutes_.end() - 1, [&](const Minute& each) {
    return each.newest != 0 && each.minute == minute;
  });
  std::rotate(minutes_.begin(), same, same + 1);
  minutes_.front() = {minute, recorded_};
}

}  // namespace spots
