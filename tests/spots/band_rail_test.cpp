#include "spots/band_rail.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "spots/band_numbers.h"

namespace spots {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class BandRailTest : public testing::Test {
 protected:
  // "3 of 5": the unseen count and the total; "of 5" while the unseen label is hidden.
  std::string Shown(std::size_t band) const {
    const auto& unseen = rail.lblUnseen[band];
    return (unseen.Visible.Get() ? unseen.Caption.Get() + " " : "") + "of " +
           rail.lblTotal[band].Caption.Get();
  }

  std::vector<int> firstUnseen;
  BandRail rail{[this](int band) { firstUnseen.push_back(band); }};
};

TEST_F(BandRailTest, CaptionsStandInTheOrderOfTheBands) {
  EXPECT_THAT(rail.optBand.Options.Get(),
              ElementsAre("All", "160", "80", "60", "40", "30", "20", "17", "15", "12", "10", "6",
                          "2", "1", "70", "MW", "4", "Alarm"));
  EXPECT_EQ(rail.SelectedBand(), kAllBands);
}

TEST_F(BandRailTest, LabelThatNoBandHasCountsNothing) {
  for (const char* label : {"", "21", "alarm", " 20"}) EXPECT_FALSE(rail.Increment(label)) << label;
  for (std::size_t band = 0; band < kBands.size(); ++band) EXPECT_EQ(Shown(band), "of 0");
  EXPECT_THAT(firstUnseen, IsEmpty());
}

TEST_F(BandRailTest, SpotCountsOnItsBandAndOnAllBands) {
  EXPECT_TRUE(rail.Increment("20"));
  EXPECT_TRUE(rail.Increment("20"));
  EXPECT_TRUE(rail.Increment("40"));
  EXPECT_EQ(Shown(k20m), "2 of 2");
  EXPECT_EQ(Shown(k40m), "1 of 1");
  EXPECT_EQ(Shown(kAllBands), "of 3");
}

TEST_F(BandRailTest, AlarmCountsOnItsOwn) {
  EXPECT_TRUE(rail.Increment("Alarm"));
  EXPECT_EQ(Shown(kAlarmBand), "1 of 1");
  EXPECT_EQ(Shown(kAllBands), "of 0");
}

TEST_F(BandRailTest, LabelOfTheSelectedBandStaysHidden) {
  rail.optBand.Selected.Set(k20m);
  rail.Increment("20");
  EXPECT_EQ(Shown(k20m), "of 1");
  EXPECT_EQ(Shown(kAllBands), "1 of 1");
  EXPECT_THAT(firstUnseen, ElementsAre(kAllBands));
}

TEST_F(BandRailTest, UnseenCountRestartsAtOneWhereTheLabelBeginsToShow) {
  rail.optBand.Selected.Set(k20m);
  for (int i = 0; i < 5; ++i) rail.Increment("20");
  rail.optBand.Selected.Set(k40m);
  rail.Increment("20");
  EXPECT_EQ(Shown(k20m), "1 of 6");
  rail.Increment("20");
  EXPECT_EQ(Shown(k20m), "2 of 7");
}

TEST_F(BandRailTest, FirstUnseenIsToldOnceUntilTheLabelIsHidden) {
  rail.Increment("20");
  rail.Increment("20");
  rail.Increment("40");
  EXPECT_THAT(firstUnseen, ElementsAre(k20m, k40m));
  rail.ClearUnseen(k20m);
  EXPECT_EQ(Shown(k20m), "of 2");
  rail.Increment("20");
  EXPECT_THAT(firstUnseen, ElementsAre(k20m, k40m, k20m));
  EXPECT_EQ(Shown(k20m), "1 of 3");
}

}  // namespace
}  // namespace spots
