#include "spots/local_reject.h"

#include <gtest/gtest.h>

#include <set>

namespace spots {
namespace {

using session::NodeKind;

struct FakeCountryFilter : CountryFilter {
  bool LimitsDxCountries() const override { return limits; }
  bool DxCountryTicked(std::string_view prefix) const override {
    return ticked.contains(std::string(prefix));
  }

  bool limits = true;
  std::set<std::string> ticked = {"DL", "K"};
};

class LocalRejectTest : public testing::Test {
 protected:
  bool Rejects(const std::string& dxCty, const std::string& origCty = "K") {
    Spot spot;
    spot.DxCty = dxCty;
    spot.OrigCty = origCty;
    return reject.LocalRejectSpot(spot, node, zv11Seen);
  }

  FakeCountryFilter filter;
  core::Settings settings;
  int written = 0;
  NodeFacts node{.kind = NodeKind::Zelva};
  bool zv11Seen = true;
  LocalReject reject{settings, filter, [this] { ++written; }};
};

TEST_F(LocalRejectTest, CountryThatIsNotTickedGoes) {
  EXPECT_FALSE(Rejects("DL"));
  EXPECT_FALSE(reject.lblFilterErrors.Visible.Get());
  EXPECT_TRUE(Rejects("3Y"));
  EXPECT_TRUE(reject.lblFilterErrors.Visible.Get());
  EXPECT_EQ(reject.lblFilterErrors.Caption.Get(), "Cluster Filter Errors (DxCty) = 1");
  EXPECT_EQ(reject.lblFilterErrors.ToolTip.Get(), "3Y");
}

TEST_F(LocalRejectTest, ErrorsAreCounted) {
  EXPECT_TRUE(Rejects("3Y"));
  EXPECT_TRUE(Rejects("P5"));
  EXPECT_EQ(reject.lblFilterErrors.Caption.Get(), "Cluster Filter Errors (DxCty) = 2");
  EXPECT_EQ(reject.lblFilterErrors.ToolTip.Get(), "P5");
}

TEST_F(LocalRejectTest, NothingGoesWithoutALimit) {
  filter.limits = false;
  EXPECT_FALSE(Rejects("3Y"));
}

TEST_F(LocalRejectTest, SpotOfASpotterWithoutACountryStays) { EXPECT_FALSE(Rejects("3Y", "")); }

TEST_F(LocalRejectTest, SpotBehindAChangeOfTheFilterStaysOnce) {
  reject.SkipNext();
  EXPECT_FALSE(Rejects("3Y"));
  EXPECT_TRUE(Rejects("3Y"));
}

TEST_F(LocalRejectTest, NothingGoesUnlessTheSwitchIsOn) {
  reject.CorrectErrors.UserSets(false);
  EXPECT_FALSE(Rejects("3Y"));
  reject.CorrectErrors.UserSets(true);
  EXPECT_TRUE(Rejects("3Y"));
  reject.CorrectErrors.Enabled.Set(false);
  EXPECT_FALSE(Rejects("3Y"));
  EXPECT_FALSE(reject.CorrectErrors.Enabled.Get()) << "other kinds leave it as it stands";
}

TEST_F(LocalRejectTest, SwitchIsThatOfTheSettings) {
  EXPECT_TRUE(reject.CorrectErrors.Value.Get());
  settings.CorrectErrors = false;
  reject.Load();
  EXPECT_FALSE(reject.CorrectErrors.Value.Get());
  EXPECT_EQ(written, 0);
  reject.CorrectErrors.UserSets(true);
  EXPECT_TRUE(settings.CorrectErrors);
  EXPECT_EQ(written, 1);
}

TEST_F(LocalRejectTest, SpiderWithoutExtendedLinesPassesAll) {
  node.kind = NodeKind::Spider;
  zv11Seen = false;
  EXPECT_FALSE(Rejects("3Y"));
  EXPECT_TRUE(reject.CorrectErrors.Enabled.Get());
}

TEST_F(LocalRejectTest, SpiderWithExtendedLinesDisablesTheSwitch) {
  node.kind = NodeKind::Spider;
  EXPECT_FALSE(Rejects("3Y"));
  EXPECT_FALSE(reject.CorrectErrors.Enabled.Get());
}

TEST_F(LocalRejectTest, SpiderLeavesASwitchThatIsOff) {
  node.kind = NodeKind::Spider;
  reject.CorrectErrors.UserSets(false);
  EXPECT_FALSE(Rejects("3Y"));
  EXPECT_TRUE(reject.CorrectErrors.Enabled.Get());
}

TEST_F(LocalRejectTest, ArClusterThatSendsPlainLinesPassesAll) {
  node = {.kind = NodeKind::ArCluster, .Ar17Refused = true};
  reject.CorrectErrors.Enabled.Set(false);
  EXPECT_FALSE(Rejects("3Y"));
  EXPECT_FALSE(reject.CorrectErrors.Enabled.Get());
}

TEST_F(LocalRejectTest, ArClusterEnablesTheSwitchAgain) {
  node = {.kind = NodeKind::ArCluster, .Ar17Active = true};
  reject.CorrectErrors.Enabled.Set(false);
  EXPECT_TRUE(Rejects("3Y"));
  EXPECT_TRUE(reject.CorrectErrors.Enabled.Get());
}

}  // namespace
}  // namespace spots
