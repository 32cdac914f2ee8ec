#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "spots/slot_index.h"

namespace spots {

// What Skimmers have heard, newest first, as far back as it matters. Its slots count from 1.
//
// A look for a call walks backward from the newest entry and ends at the first that is the call, or
// that is too far away in time. What the walk would come to is found here without walking.
class SkimmerRing {
 public:
  // Where more slots would be needed, the ring starts over.
  static constexpr int kMostSlots = 100'000;
  // Beyond this length only the beginning of a call counts.
  static constexpr std::size_t kLongestCall = 64;

  struct Entry {
    std::int64_t hz = 0;
    int SpotMinute = 0;
    std::string DxCall;
    bool seen = false;
  };

  enum class Answer {
    NotFound,
    TooOld,  // found, but too long ago
    Found,
  };
  struct Finding {
    Answer answer = Answer::NotFound;
    Entry* entry = nullptr;  // the one that was found; stands until the next Record
  };
  // Looks for that call within 300 Hz. An entry 3 or more minutes from `minute` ends the look, and
  // the tail moves to the one behind it. Minutes aren't negative.
  Finding Find(std::int64_t hz, std::string_view call, int minute);

  // Adds an entry that isn't seen yet. Memory for one is taken where the oldest is less than 11
  // minutes older than it.
  void Record(std::int64_t hz, std::string_view call, int minute);

  int RingHead() const { return head_; }  // the last one written; 0 in an empty ring
  int RingTail() const { return tail_; }  // the last one that a look goes to
  int RingLast() const { return static_cast<int>(entries_.size()); }

 private:
  // Counts what was recorded, from 1; 0 is none.
  using Sequence = std::int64_t;
  struct Minute {
    int minute = 0;
    Sequence newest = 0;  // of its entries
  };

  Entry& At(int slot) { return entries_[static_cast<std::size_t>(slot) - 1]; }
  const Entry& At(int slot) const { return entries_[static_cast<std::size_t>(slot) - 1]; }
  Sequence SequenceOf(int slot) const;
  int SlotOf(Sequence sequence) const;
  Sequence NewestOf(std::int64_t hz, std::string_view call) const;
  Sequence NewestFarFrom(int minute) const;
  int NewestIn(std::int64_t cell, std::int64_t hz, std::string_view call) const;
  void AdvanceHead(int minute);
  void Grow(int slots);
  void Index(const Entry& entry);
  void NoteMinute(int minute);

  std::vector<Entry> entries_;
  SlotIndex index_;  // by call and frequency; what an equal newer entry hides is not in
  int head_ = 0;
  int tail_ = 1;
  bool spent_ = true;  // the tail is behind the head: nothing is looked at
  Sequence recorded_ = 0;

  // The minutes recorded last, the latest first. Five of them at most are near any one minute, so
  // the newest entry that is far from it is always among these.
  std::array<Minute, 6> minutes_;
};

}  // namespace spots
