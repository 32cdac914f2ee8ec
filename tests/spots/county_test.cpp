#include "spots/county.h"

#include <gtest/gtest.h>

namespace spots {
namespace {

class RejectCountyTest : public testing::Test {
 protected:
  bool Rejects(const std::string& call) {
    Spot spot;
    spot.DxCall = call;
    return RejectCounty(spot, settings);
  }

  core::Settings settings = [] {
    core::Settings on;
    on.RejectCounties = true;
    return on;
  }();
};

TEST_F(RejectCountyTest, MobileInACountyGoes) {
  EXPECT_TRUE(Rejects("N0CALL/ABC"));
  EXPECT_TRUE(Rejects("N0CALL/WASH"));
}

TEST_F(RejectCountyTest, OtherEndingsStay) {
  for (const char* call : {"N0CALL", "N0CALL/P", "N0CALL/MM", "N0CALL/QRP", "N0CALL/KH6", "N0CALL/",
                           "N0CALL/abc", "N0CALL/ABC/P", "F/N0CALL", ""})
    EXPECT_FALSE(Rejects(call)) << call;
}

TEST_F(RejectCountyTest, NothingGoesUnlessTheSwitchIsOn) {
  settings.RejectCounties = false;
  EXPECT_FALSE(Rejects("N0CALL/ABC"));
}

}  // namespace
}  // namespace spots
