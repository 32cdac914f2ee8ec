#include <gmock/gmock.h>

#include "scenario/login_scripts.h"

namespace {

using testing::SizeIs;

constexpr int kLogged = 1500;

// The spots of the last minutes, each of another station.
std::string LogOfToday() {
  std::string log;
  for (int i = 0; i < kLogged; ++i)
    log += "2058,14025.0,K" + std::to_string(i) + "ABC,DL1ABC,,CW,,,,,,,,,,,,,~\r\n";
  return log;
}

TEST(ReloadInASession, WhatTheNodeSendsMeanwhileGoesThroughBehindIt) {
  const Script& script = LoginScript("Spider157");
  Stage stage(script);
  stage.Play(script.turns);
  stage.desk.Content("2026/dx-20-Nov-2026.txt") = LogOfToday();
  spots::SpotParts& parts = stage.program->spotParts;
  stage.node.Say("DX de W1TST:     14027.0  3Y0J         CW up 2                        2101Z\r\n");
  parts.reload.ReloadSpots();
  stage.desk.world.Run(std::chrono::seconds{2});
  const auto& rows = parts.table.RtbDx.Rows();
  ASSERT_THAT(rows, SizeIs(kLogged + 1));
  EXPECT_EQ(rows.back().DxCall(), "3Y0J");
}

}  // namespace
