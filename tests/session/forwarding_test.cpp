#include "session/forwarding.h"

#include <gtest/gtest.h>

namespace {

class StopListsTest : public testing::Test {
 protected:
  StopListsTest() { lists.Build("K1TST-2"); }
  bool Stops(std::string_view line) const { return lists.Stops(line, false); }

  session::StopLists lists;
};

TEST_F(StopListsTest, EachAnswerToAnOwnCommandIsStopped) {
  for (const std::string_view line :
       {"73 de N0NODE", "Keyword Filter set", "SH/TNC command error", "No Help available for x",
        "Page Length set", "Echoing disabled", "Beeps are now off", "Talk enabled for K1TST-2",
        "WWV enabled for K1TST-2", "WX enabled for K1TST-2", "Announces enabled for K1TST-2",
        "DX Spots enabled for K1TST-2", " filter", "Filter 1 set", "Operation successful"})
    EXPECT_TRUE(Stops(line)) << line;
}

TEST_F(StopListsTest, TextElsewhereThanAtTheStartStopsNothing) {
  for (const std::string_view line :
       {"so 73 de N0NODE", "The Operation successful", "  filter", "a filter"})
    EXPECT_FALSE(Stops(line)) << line;
}

TEST_F(StopListsTest, TextThatIsAlmostOneStopsNothing) {
  for (const std::string_view line : {"", "73", "operation successful", "Filters",
                                      "Talk enabled for K2AAA", "Beeps are now on", "WX enabled"})
    EXPECT_FALSE(Stops(line)) << line;
}

TEST_F(StopListsTest, DeletionForTheOwnCallIsStoppedOnSpiderOnly) {
  EXPECT_TRUE(lists.Stops("filter 1 deleted for K1TST-2", true));
  EXPECT_FALSE(lists.Stops("filter 1 deleted for K1TST-2", false));
  EXPECT_FALSE(lists.Stops("filter 1 deleted for K1TST-2 now", true));
  EXPECT_FALSE(lists.Stops("filter 1 deleted for K2AAA", true));
}

TEST_F(StopListsTest, AnswersAreStoppedOnSpiderToo) {
  EXPECT_TRUE(lists.Stops("Echoing disabled", true));
}

TEST_F(StopListsTest, BuildingThemForAnotherCallForgetsTheOldOne) {
  lists.Build("K9NEW");
  EXPECT_TRUE(Stops("Talk enabled for K9NEW"));
  EXPECT_FALSE(Stops("Talk enabled for K1TST-2"));
}

}  // namespace
