#include "spots/state_codes.h"

#include <gtest/gtest.h>

namespace spots {
namespace {

TEST(StateCodes, AreThoseOfTheStatesAndProvinces) {
  EXPECT_EQ(kUsStates.size() + kProvinces.size(), 65u);
  for (const std::string_view code : {"AK", "DC", "HI", "OH", "WY", "LB", "NL", "YT"})
    EXPECT_TRUE(IsStateCode(code)) << code;
}

TEST(StateCodes, AnythingElseIsNone) {
  for (const std::string_view word : {"", "O", "oh", "OHI", "OH ", " OH", "PR", "GU", "QQ", "14"})
    EXPECT_FALSE(IsStateCode(word)) << word;
}

TEST(StateCodes, FitCallsOfTheUnitedStates) {
  for (const std::string_view call : {"W8RIK", "K1ABC", "N0CALL", "AA1A", "AL7Z", "KH6/W8RIK"})
    EXPECT_TRUE(CallFitsState(call, "OH")) << call;
  for (const std::string_view call : {"", "A", "AM1A", "A1A", "OH2BH", "VE3ABC", "w8rik", "DL1ABC"})
    EXPECT_FALSE(CallFitsState(call, "OH")) << call;
}

TEST(StateCodes, FitCallsOfCanada) {
  for (const std::string_view call : {"VA3A", "VE3ABC", "VG1A", "VO1A", "VY2A"})
    EXPECT_TRUE(CallFitsState(call, "ON")) << call;
  for (const std::string_view call : {"", "V", "VH1A", "VK3A", "VP9A", "VN1A", "K1ABC"})
    EXPECT_FALSE(CallFitsState(call, "ON")) << call;
}

TEST(StateCodes, WhatIsNoStateFitsNoCall) {
  EXPECT_FALSE(CallFitsState("W8RIK", "14"));
  EXPECT_FALSE(CallFitsState("VE3ABC", ""));
}

}  // namespace
}  // namespace spots
