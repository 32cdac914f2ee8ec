#include <gmock/gmock.h>

#include "program/desk.h"

using testing::HasSubstr;

namespace {

// What the node has told of its user's profile decides which word of a spot line is what.
class SpotWordsTest : public testing::Test {
 protected:
  SpotWordsTest() {
    desk.HasUsualConfiguration();
    desk.Start().settings.LogDxSpots = true;
    desk.program->session.state.Kind = session::NodeKind::Spider;
  }

  void Tell(filters::Switch which, bool on) {
    desk.program->userSettings.Told.set(which);
    desk.program->userSettings.chkSettings[which].Value.Set(on);
  }
  // What the log holds behind the calls: node, comment, mark, the ITU zones, the CQ zones.
  std::string Logged() {
    desk.program->spotParts.lines.dx(
        "DX de DL1ABC:    14025.0  3Y0J         CW up 2                     14 2100Z 28");
    desk.program->spotParts.log.Close();
    return desk.Content("2026/dx-20-Nov-2026.txt");
  }

  Desk desk;
};

TEST_F(SpotWordsTest, ZonesOfANodeThatHasToldNothingAreItu) {
  EXPECT_THAT(Logged(), HasSubstr(",DL1ABC,,CW up 2, ,14,28,,,"));
}

TEST_F(SpotWordsTest, ZonesAreThoseThatTheNodeSays) {
  Tell(filters::kCqZone, true);
  Tell(filters::kItuZone, false);
  EXPECT_THAT(Logged(), HasSubstr(",DL1ABC,,CW up 2, ,,,14,28,"));
}

TEST_F(SpotWordsTest, NodeThatAddsNothingLeavesTheComment) {
  for (const auto which :
       {filters::kUsState, filters::kDxGrid, filters::kCqZone, filters::kItuZone})
    Tell(which, false);
  EXPECT_THAT(Logged(), HasSubstr(",CW up 2                     14, ,,,,,"));
}

TEST_F(SpotWordsTest, WordIsNoZoneIfTheNodeAddsOnlyStates) {
  for (const auto which : {filters::kDxGrid, filters::kCqZone, filters::kItuZone})
    Tell(which, false);
  Tell(filters::kUsState, true);
  EXPECT_THAT(Logged(), HasSubstr(",CW up 2                     14, ,,,,,"));
}

}  // namespace
