#include <gmock/gmock.h>

#include "spot_desk.h"
#include "spots/band_numbers.h"

namespace {

using namespace std::chrono_literals;
using spots::kAllBands;
using testing::ElementsAre;

class Unseen : public SpotDesk {
 protected:
  std::string Caption() const { return table.TabCaption.Get(); }
  void Select(int band) { table.rail.optBand.UserSelects(band); }
};

TEST_F(Unseen, NothingIsCountedWhileTheTabIsOnShow) {
  table.EnterTab();
  ReceiveCalls({"PY2AA"});
  EXPECT_EQ(Caption(), "DX");
  EXPECT_THAT(CallsInTable(), ElementsAre("PY2AA"));
}

TEST_F(Unseen, CaptionOfTheTabCountsWhileItIsNot) {
  EXPECT_EQ(Caption(), "DX");
  ReceiveCalls({"PY2AA", "PY2BB"});
  EXPECT_EQ(Caption(), "DX = 2");
}

TEST_F(Unseen, SpotsOfTheSelectedBandAloneCountForTheTab) {
  Select(k40m);
  ReceiveCalls({"PY2AA"}, "14025.0");
  EXPECT_EQ(Caption(), "DX");
  ReceiveCalls({"PY2AA"}, "7012.3");
  EXPECT_EQ(Caption(), "DX = 1");
}

TEST_F(Unseen, SeparatorStandsBeforeTheFirstOne) {
  table.EnterTab();
  ReceiveCalls({"PY2AA"});
  table.LeaveTab();
  ReceiveCalls({"PY2BB", "PY2CC"});
  EXPECT_THAT(CallsInTable(), ElementsAre("PY2AA", "*", "PY2BB", "PY2CC"));
}

TEST_F(Unseen, SeparatorIsARowOfAsterisksInTheViewsColourAndKnowsItsMinute) {
  world.Run(46min + 59s);
  ReceiveCalls({"PY2AA"});
  const spots::TableRow& stars = table.RtbDx.Rows().front();
  EXPECT_EQ(stars.Text(), std::string(79, '*'));
  EXPECT_EQ(stars.Band(), 0);
  EXPECT_EQ(stars.Minute(), 21 * 60 + 46);
}

TEST_F(Unseen, EnteringTheTabRestoresTheCaptionAndKeepsTheSeparator) {
  ReceiveCalls({"PY2AA"});
  table.EnterTab();
  EXPECT_EQ(Caption(), "DX");
  EXPECT_THAT(CallsInTable(), ElementsAre("*", "PY2AA"));
  ReceiveCalls({"PY2BB"});
  EXPECT_THAT(CallsInTable(), ElementsAre("*", "PY2AA", "PY2BB"));
}

TEST_F(Unseen, LeavingTheTabTakesTheSeparatorAwayAndCountsAnew) {
  ReceiveCalls({"PY2AA", "PY2BB"});
  table.EnterTab();
  table.LeaveTab();
  EXPECT_EQ(Caption(), "DX");
  EXPECT_THAT(CallsInTable(), ElementsAre("PY2AA", "PY2BB"));
  ReceiveCalls({"PY2CC"});
  EXPECT_EQ(Caption(), "DX = 1");
  EXPECT_THAT(CallsInTable(), ElementsAre("PY2AA", "PY2BB", "*", "PY2CC"));
}

TEST_F(Unseen, BandThatIsNotSelectedShowsItsCount) {
  table.EnterTab();
  ReceiveCalls({"PY2AA", "PY2BB"});
  EXPECT_TRUE(table.rail.lblUnseen[k20m].Visible.Get());
  EXPECT_EQ(table.rail.lblUnseen[k20m].Caption.Get(), "2");
  EXPECT_EQ(table.rail.lblTotal[k20m].Caption.Get(), "2");
}

TEST_F(Unseen, SelectingABandClearsItsCountAndShowsItsSeparatorOnce) {
  table.EnterTab();
  ReceiveCalls({"PY2AA"});
  Select(k20m);
  EXPECT_FALSE(table.rail.lblUnseen[k20m].Visible.Get());
  EXPECT_THAT(CallsInTable(), ElementsAre("*", "PY2AA"));
  ReceiveCalls({"PY2BB"});
  Select(kAllBands);
  Select(k20m);
  EXPECT_THAT(CallsInTable(), ElementsAre("PY2AA", "PY2BB"));
}

TEST_F(Unseen, SeparatorOfABandStandsBeforeTheFirstSpotSinceItWasSelected) {
  table.EnterTab();
  Select(k20m);
  ReceiveCalls({"PY2AA"});
  Select(k40m);
  ReceiveCalls({"PY2BB", "PY2CC"});
  EXPECT_EQ(table.rail.lblUnseen[k20m].Caption.Get(), "2");
  Select(k20m);
  EXPECT_THAT(CallsInTable(), ElementsAre("PY2AA", "*", "PY2BB", "PY2CC"));
}

TEST_F(Unseen, AllBandsHaveASeparatorOfTheirOwn) {
  table.EnterTab();
  ReceiveCalls({"PY2AA"});
  Select(k40m);
  ReceiveCalls({"PY2BB", "PY2CC"}, "14025.0");
  EXPECT_EQ(table.rail.lblUnseen[kAllBands].Caption.Get(), "2");
  Select(kAllBands);
  EXPECT_THAT(CallsInTable(), ElementsAre("PY2AA", "*", "PY2BB", "PY2CC"));
}

TEST_F(Unseen, SeparatorGoesIntoTheSelectedViewOfTheBand) {
  table.chkShSkm[spots::SpotTable::kSkimmer].UserSets(true);
  ReceiveCalls({"PY2AA"});
  EXPECT_THAT(CallsInStore(k20m, 0), ElementsAre("PY2AA"));
  EXPECT_THAT(CallsInStore(k20m, 1), ElementsAre("*"));
  EXPECT_THAT(CallsInStore(k20m, 2), ElementsAre("PY2AA"));
}

}  // namespace
