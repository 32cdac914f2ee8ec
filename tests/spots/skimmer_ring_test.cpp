#include "spots/skimmer_ring.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <optional>
#include <random>

#include "../session/memory_meter.h"

namespace spots {
namespace {

using Answer = SkimmerRing::Answer;

constexpr int kNow = 29'000'000;  // a minute of our days
constexpr std::int64_t kHz = 14'025'000;

TEST(SkimmerRing, NothingIsFoundInAnEmptyOne) {
  SkimmerRing ring;
  EXPECT_EQ(ring.Find(kHz, "3Y0J", kNow).answer, Answer::NotFound);
  EXPECT_EQ(ring.RingHead(), 0);
  EXPECT_EQ(ring.RingTail(), 1);
}

TEST(SkimmerRing, CallIsFoundWithin300HertzOnEitherSide) {
  SkimmerRing ring;
  ring.Record(kHz, "3Y0J", kNow);
  for (const int offset : {-300, -299, 0, 1, 300})
    EXPECT_EQ(ring.Find(kHz + offset, "3Y0J", kNow).answer, Answer::Found) << offset;
  for (const int offset : {-301, 301, 602, -100'000})
    EXPECT_EQ(ring.Find(kHz + offset, "3Y0J", kNow).answer, Answer::NotFound) << offset;
}

TEST(SkimmerRing, AnotherCallIsNotFound) {
  SkimmerRing ring;
  ring.Record(kHz, "3Y0J", kNow);
  EXPECT_EQ(ring.Find(kHz, "3Y0K", kNow).answer, Answer::NotFound);
}

TEST(SkimmerRing, EntryTwoMinutesAwayIsFoundAndOneThreeMinutesAwayTooOld) {
  for (const int minutes : {-3, -2, 2, 3}) {
    SkimmerRing ring;
    ring.Record(kHz, "3Y0J", kNow);
    const Answer expected = std::abs(minutes) == 2 ? Answer::Found : Answer::TooOld;
    EXPECT_EQ(ring.Find(kHz, "3Y0J", kNow + minutes).answer, expected) << minutes;
  }
}

TEST(SkimmerRing, NewerEntryThatIsFarAwayHidesTheCallBehindIt) {
  SkimmerRing ring;
  ring.Record(kHz, "3Y0J", kNow);
  ring.Record(kHz, "P5DX", kNow - 3);
  EXPECT_EQ(ring.Find(kHz, "3Y0J", kNow).answer, Answer::NotFound);
}

TEST(SkimmerRing, EntryFarAwayHidesTheCallEvenBehindEveryMinuteThatIsNear) {
  SkimmerRing ring;
  ring.Record(kHz, "3Y0J", kNow);
  ring.Record(kHz, "P5DX", kNow + 20);
  for (int offset = -2; offset <= 2; ++offset) ring.Record(kHz, "K1ABC", kNow + offset);
  EXPECT_EQ(ring.Find(kHz, "3Y0J", kNow).answer, Answer::NotFound);
  EXPECT_EQ(ring.RingTail(), 3);
}

TEST(SkimmerRing, WhatALookEndedAtIsNotLookedAtAgain) {
  SkimmerRing ring;
  ring.Record(kHz, "3Y0J", kNow);
  ring.Record(kHz, "P5DX", kNow + 3);
  EXPECT_EQ(ring.Find(kHz, "K1ABC", kNow + 3).answer, Answer::NotFound);
  EXPECT_EQ(ring.RingTail(), 2);
  EXPECT_EQ(ring.Find(kHz, "3Y0J", kNow + 1).answer, Answer::NotFound);
  EXPECT_EQ(ring.Find(kHz, "P5DX", kNow + 1).answer, Answer::Found);
}

TEST(SkimmerRing, CallThatWasTooOldIsNotFoundAgain) {
  SkimmerRing ring;
  ring.Record(kHz, "3Y0J", kNow);
  EXPECT_EQ(ring.Find(kHz, "3Y0J", kNow + 3).answer, Answer::TooOld);
  EXPECT_EQ(ring.RingTail(), 2);
  EXPECT_EQ(ring.Find(kHz, "3Y0J", kNow + 3).answer, Answer::NotFound);
  EXPECT_EQ(ring.Find(kHz, "3Y0J", kNow).answer, Answer::NotFound);
}

TEST(SkimmerRing, EntryIsNotSeenUntilSomebodySaysSo) {
  SkimmerRing ring;
  ring.Record(kHz, "3Y0J", kNow);
  const auto first = ring.Find(kHz, "3Y0J", kNow);
  ASSERT_EQ(first.answer, Answer::Found);
  EXPECT_FALSE(first.entry->seen);
  first.entry->seen = true;
  EXPECT_TRUE(ring.Find(kHz, "3Y0J", kNow).entry->seen);
  ring.Record(kHz, "3Y0J", kNow);
  EXPECT_FALSE(ring.Find(kHz, "3Y0J", kNow).entry->seen);
}

std::string CallNumber(int number) { return "K" + std::to_string(number); }

TEST(SkimmerRing, HasAThousandSlotsAtFirstUse) {
  SkimmerRing ring;
  EXPECT_EQ(ring.RingLast(), 0);
  ring.Record(kHz, "3Y0J", kNow);
  EXPECT_EQ(ring.RingLast(), 1000);
}

TEST(SkimmerRing, GrowsBy200WhileItsOldestIsLessThan11MinutesOlder) {
  SkimmerRing ring;
  for (int i = 0; i < 1000; ++i) ring.Record(kHz, CallNumber(i), kNow);
  ring.Record(kHz, "3Y0J", kNow + 10);
  EXPECT_EQ(ring.RingLast(), 1200);
  EXPECT_EQ(ring.RingHead(), 1001);
}

TEST(SkimmerRing, StartsOverWhenItsOldestIs11MinutesOlder) {
  SkimmerRing ring;
  for (int i = 0; i < 1000; ++i) ring.Record(kHz, CallNumber(i), kNow);
  ring.Record(kHz, "3Y0J", kNow + 11);
  EXPECT_EQ(ring.RingLast(), 1000);
  EXPECT_EQ(ring.RingHead(), 1);
  EXPECT_EQ(ring.Find(kHz, "3Y0J", kNow + 11).answer, Answer::Found);
  EXPECT_EQ(ring.Find(kHz, CallNumber(0), kNow).answer, Answer::NotFound);
}

TEST(SkimmerRing, TailWrapsPastTheLastSlot) {
  SkimmerRing ring;
  for (int i = 0; i < 1000; ++i) ring.Record(kHz, CallNumber(i), kNow);
  EXPECT_EQ(ring.Find(kHz, "3Y0J", kNow + 11).answer, Answer::NotFound);
  EXPECT_EQ(ring.RingTail(), 1);
}

TEST(SkimmerRing, CallsThatNeverEndTakeNoMoreThanItsMostSlots) {
  SkimmerRing ring;
  for (int i = 0; i < 3 * SkimmerRing::kMostSlots; ++i) ring.Record(kHz, CallNumber(i), kNow);
  EXPECT_EQ(ring.RingLast(), SkimmerRing::kMostSlots);
  EXPECT_EQ(ring.Find(kHz, CallNumber(3 * SkimmerRing::kMostSlots - 1), kNow).answer,
            Answer::Found);
}

TEST(SkimmerRing, EndlessCallsCountByTheirBeginning) {
  SkimmerRing ring;
  const std::string beginning(SkimmerRing::kLongestCall, 'K');
  ring.Record(kHz, beginning + std::string(5000, 'A'), kNow);
  const auto found = ring.Find(kHz, beginning + "B", kNow);
  ASSERT_EQ(found.answer, Answer::Found);
  EXPECT_EQ(found.entry->DxCall, beginning);
}

TEST(SkimmerRing, AllocatesNothingOnceItHasItsSlots) {
  SkimmerRing ring;
  std::vector<std::string> calls;
  calls.reserve(500);
  for (int i = 0; i < 500; ++i) calls.push_back(CallNumber(i));
  for (int i = 0; i < 1000; ++i) ring.Record(kHz, calls[static_cast<std::size_t>(i) % 500], kNow);
  const std::size_t before = MemoryMeter::Allocated();
  for (int i = 0; i < 5000; ++i) {
    const std::string& call = calls[static_cast<std::size_t>(i) % 500];
    ring.Find(kHz, call, kNow + 20 + i / 50);
    ring.Record(kHz, call, kNow + 20 + i / 50);
  }
  EXPECT_EQ(MemoryMeter::Allocated(), before);
}

// The rule as it is told: the walk itself, over all that stands in its way.
class WalkedRing {
 public:
  struct Finding {
    Answer answer = Answer::NotFound;
    int slot = 0;
  };

  Finding Find(std::int64_t hz, const std::string& call, int minute) {
    const Finding nothing;
    std::optional<Finding> end;
    if (spent) return nothing;
    if (tail <= head) {
      for (int i = head; i >= tail && !end; --i) end = Visit(i, hz, call, minute);
    } else {
      for (int i = head; i >= 1 && !end; --i) end = Visit(i, hz, call, minute);
      for (int i = last; i >= tail && !end; --i) end = Visit(i, hz, call, minute);
    }
    return end.value_or(nothing);
  }

  void Record(std::int64_t hz, const std::string& call, int minute) {
    if (last == 0) Grow(1000);
    ++head;
    if (head > last) {
      if (minute - At(1).SpotMinute >= 11)
        head = 1;
      else
        Grow(200);
    }
    At(head) = {hz, minute, call, false};
    spent = false;
  }

  SkimmerRing::Entry& At(int slot) { return entries[static_cast<std::size_t>(slot)]; }

  int head = 0;
  int tail = 1;
  int last = 0;
  bool spent = true;  // the tail has moved behind the head

 private:
  std::optional<Finding> Visit(int i, std::int64_t hz, const std::string& call, int minute) {
    const SkimmerRing::Entry& entry = At(i);
    const bool hit = std::abs(entry.hz - hz) <= 300 && entry.DxCall == call;
    const bool far = std::abs(entry.SpotMinute - minute) > 2;
    if (!hit && !far) return {};
    if (far) {
      tail = i + 1 > last ? 1 : i + 1;
      spent = i == head;
    }
    if (hit) return Finding{far ? Answer::TooOld : Answer::Found, i};
    return Finding{};
  }

  void Grow(int slots) {
    last += slots;
    entries.resize(static_cast<std::size_t>(last) + 1);
  }

  std::vector<SkimmerRing::Entry> entries;
};

// An evening as a seed makes it.
struct Evening {
  unsigned seed;
  int calls;  // different ones
  int spotsAMinute;
  int frequencies;  // for each call, some hundred hertz from each other
  int jumpsIn100;   // spots whose time is minutes off
  bool confirm;     // a found entry that isn't seen is let through
};

void PrintTo(const Evening& evening, std::ostream* out) {
  *out << "seed " << evening.seed << ", " << evening.calls << " calls, " << evening.spotsAMinute
       << " a minute";
}

class SkimmerRingIsTheWalk : public testing::TestWithParam<Evening> {
 protected:
  int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random); }

  int SpotMinute(int now) {
    if (Below(100) >= GetParam().jumpsIn100) return now;
    return now + Below(25) - 12;
  }

  std::mt19937 random{GetParam().seed};
  WalkedRing walked;
  SkimmerRing ring;
};

TEST_P(SkimmerRingIsTheWalk, WhateverIsHeard) {
  const Evening& evening = GetParam();
  int found = 0;
  int tooOld = 0;
  int laps = 0;
  for (int i = 0; i < 12'000; ++i) {
    // A pause of a quarter of an hour now and then.
    const int now = kNow + i / evening.spotsAMinute + i / 2500 * 15;
    const int minute = SpotMinute(now);
    const std::string call = CallNumber(Below(evening.calls));
    const std::int64_t hz = kHz + std::int64_t{97} * Below(evening.frequencies);
    bool record = true;
    if (Below(50) != 0) {  // else a spot that is recorded unasked
      const auto expected = walked.Find(hz, call, minute);
      const auto answer = ring.Find(hz, call, minute);
      ASSERT_EQ(answer.answer, expected.answer) << "spot " << i;
      ASSERT_EQ(ring.RingTail(), walked.tail) << "spot " << i;
      record = answer.answer == Answer::NotFound;
      if (answer.answer == Answer::TooOld) {
        ++tooOld;
        record = !evening.confirm;
      }
      if (answer.answer == Answer::Found) {
        ++found;
        ASSERT_EQ(answer.entry->seen, walked.At(expected.slot).seen) << "spot " << i;
        answer.entry->seen = walked.At(expected.slot).seen = true;
      }
    }
    if (!record) continue;
    const int head = walked.head;
    walked.Record(hz, call, minute);
    ring.Record(hz, call, minute);
    laps += walked.head < head;
    ASSERT_EQ(ring.RingHead(), walked.head) << "spot " << i;
    ASSERT_EQ(ring.RingLast(), walked.last) << "spot " << i;
  }
  // The evening was worth watching.
  EXPECT_GT(found, 50);
  EXPECT_TRUE(tooOld > 0 || evening.jumpsIn100 < 5);
  EXPECT_GT(laps + (walked.last > 1000), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Evenings, SkimmerRingIsTheWalk,
    testing::Values(Evening{1, 300, 100, 4, 0, false}, Evening{2, 300, 100, 4, 5, false},
                    Evening{3, 300, 100, 8, 30, true}, Evening{4, 5000, 2000, 2, 1, false},
                    Evening{5, 5000, 700, 8, 2, true}, Evening{6, 20, 40, 60, 10, true},
                    Evening{7, 1, 30, 3000, 10, false}, Evening{8, 20, 1000, 1, 100, true},
                    Evening{9, 100, 20, 12, 3, true}));

}  // namespace
}  // namespace spots
