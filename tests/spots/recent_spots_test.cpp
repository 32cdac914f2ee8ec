#include "spots/recent_spots.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <deque>
#include <random>

#include "../session/memory_meter.h"
#include "core/call.h"
#include "core/text.h"

namespace spots {
namespace {

constexpr int kPresentMinute = 29'000'000;

Spot HeardSpot() {
  Spot spot;
  spot.Freq = 14025.0;
  spot.DxCall = "3Y0J";
  spot.Spotter = "W1ABC";
  spot.Comment = "CW up 2";
  spot.SpotMinute = kPresentMinute;
  return spot;
}

class RecentSpotsTest : public testing::Test {
 protected:
  RecentSpotsTest() { recent.Record(spot); }

  RecentSpots recent;
  Spot spot = HeardSpot();
};

TEST_F(RecentSpotsTest, SameSpotIsHeld) { EXPECT_TRUE(recent.Hold(spot)); }

TEST_F(RecentSpotsTest, NothingIsHeldAtFirst) { EXPECT_FALSE(RecentSpots().Hold(spot)); }

TEST_F(RecentSpotsTest, ThreeTenthsOfAKilohertzAreNear) {
  for (const double kHz : {14024.7, 14025.3, 14025.309}) {
    spot.Freq = kHz;
    EXPECT_TRUE(recent.Hold(spot)) << kHz;
  }
}

TEST_F(RecentSpotsTest, ThirtyOneHundredthsAreNot) {
  for (const double kHz : {14024.69, 14025.31}) {
    spot.Freq = kHz;
    EXPECT_FALSE(recent.Hold(spot)) << kHz;
  }
}

TEST_F(RecentSpotsTest, FourMinutesAreNearAndFiveAreNot) {
  for (const int minutes : {-4, 4}) {
    spot.SpotMinute = kPresentMinute + minutes;
    EXPECT_TRUE(recent.Hold(spot)) << minutes;
  }
  for (const int minutes : {-5, 5}) {
    spot.SpotMinute = kPresentMinute + minutes;
    EXPECT_FALSE(recent.Hold(spot)) << minutes;
  }
}

TEST_F(RecentSpotsTest, SpotFourMinutesLaterThreeTenthsAwayIsHeld) {
  spot.SpotMinute += 4;
  spot.Freq = 14025.3;
  EXPECT_TRUE(recent.Hold(spot));
}

TEST_F(RecentSpotsTest, SpotterCountsWithoutItsSsid) {
  spot.Spotter = "W1ABC-5";
  EXPECT_TRUE(recent.Hold(spot));
  recent.Record(spot);
  spot.Spotter = "W1ABC-7";
  EXPECT_TRUE(recent.Hold(spot));
}

TEST_F(RecentSpotsTest, AnotherSpotterIsAnotherSpot) {
  spot.Spotter = "W1ABD";
  EXPECT_FALSE(recent.Hold(spot));
}

TEST_F(RecentSpotsTest, AnotherCallIsAnotherSpot) {
  spot.DxCall = "3Y0K";
  EXPECT_FALSE(recent.Hold(spot));
}

TEST_F(RecentSpotsTest, CommentCountsUpToItsTwentyFourthCharacter) {
  spot.Comment = "123456789 123456789 1234 one";
  recent.Record(spot);
  spot.Comment = "123456789 123456789 1234 two";
  EXPECT_TRUE(recent.Hold(spot));
  spot.Comment = "123456789 123456789 123X";
  EXPECT_FALSE(recent.Hold(spot));
}

TEST_F(RecentSpotsTest, BlanksAroundTheCommentDoNotCount) {
  spot.Comment = "  CW up 2   ";
  EXPECT_TRUE(recent.Hold(spot));
  spot.Comment = "cw up 2";
  EXPECT_FALSE(recent.Hold(spot));
}

TEST_F(RecentSpotsTest, TwoHundredOthersPushItOut) {
  Spot other = HeardSpot();
  for (int i = 0; i < 199; ++i) {
    other.DxCall = "K" + std::to_string(i);
    recent.Record(other);
  }
  EXPECT_TRUE(recent.Hold(spot));
  recent.Record(other);
  EXPECT_FALSE(recent.Hold(spot));
}

TEST_F(RecentSpotsTest, NothingIsAllocatedOnceTheyAreFull) {
  spot.Comment = "a comment that is longer than most";
  for (int i = 0; i < 200; ++i) recent.Record(spot);
  const std::size_t before = MemoryMeter::Allocated();
  for (int i = 0; i < 1000; ++i) {
    recent.Hold(spot);
    recent.Record(spot);
  }
  EXPECT_EQ(MemoryMeter::Allocated(), before);
}

// The rule as it is told, one entry after the other.
bool SameSpot(const Spot& a, const Spot& b) {
  const auto comment = [](const Spot& spot) { return core::Trim(core::Left(spot.Comment, 24)); };
  return a.DxCall == b.DxCall && std::round(std::abs(a.Freq - b.Freq) * 1000) < 310 &&
         core::Nossid(a.Spotter) == core::Nossid(b.Spotter) && comment(a) == comment(b) &&
         std::abs(a.SpotMinute - b.SpotMinute) < 5;
}

TEST(RecentSpots, HoldWhatALookAtAllOfThemFinds) {
  std::mt19937 random(20261120);
  const auto below = [&](int limit) { return std::uniform_int_distribution(0, limit - 1)(random); };
  const std::array<const char*, 4> spotters = {"W1ABC", "W1ABC-5", "DL1ABC-#", "DL1ABC"};
  RecentSpots recent;
  std::deque<Spot> last;
  int held = 0;
  for (int i = 0; i < 20'000; ++i) {
    Spot spot;
    spot.DxCall = "K" + std::to_string(below(20));
    spot.Spotter = spotters[static_cast<std::size_t>(below(4))];
    spot.Comment = below(2) == 0 ? "CW" : " CW up";
    spot.Freq = 14025 + below(10) * 0.1;
    spot.SpotMinute = kPresentMinute + i / 20 + below(12) - 6;
    bool expected = false;
    for (const Spot& other : last) expected = expected || SameSpot(other, spot);
    ASSERT_EQ(recent.Hold(spot), expected) << "spot " << i;
    held += expected;
    if (expected && below(2) == 0) continue;
    recent.Record(spot);
    last.push_back(spot);
    if (last.size() > RecentSpots::kSize) last.pop_front();
  }
  EXPECT_GT(held, 1000);
  EXPECT_LT(held, 19'000);
}

}  // namespace
}  // namespace spots
