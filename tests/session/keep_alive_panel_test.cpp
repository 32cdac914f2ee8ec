#include "session/keep_alive_panel.h"

#include <gmock/gmock.h>

#include "platform/sim/world.h"

using session::KeepAlivePanel;

namespace {

class KeepAlivePanelTest : public testing::Test {
 protected:
  KeepAlivePanelTest() { panel.Load(); }

  platform::sim::World world;
  session::Timers timers{world.scheduler, [](auto, auto) {}};
  session::SessionState state;
  session::KeepAlive keepAlive{timers, state, {.sendAsIs = [](auto&) {}, .giveUp = [] {}}};
  core::Settings settings;
  bool autoReconnect = true;
  int writes = 0;
  KeepAlivePanel panel{
      keepAlive,
      settings,
      {.autoReconnect = [this] { return autoReconnect; }, .writeCfg = [this] { ++writes; }}};
};

TEST_F(KeepAlivePanelTest, EntryIsCaptionedByItsMinutesAndTheLastIsOff) {
  ASSERT_EQ(panel.optKA.Options.Get().size(), 15u);
  EXPECT_EQ(panel.optKA.Options.Get()[0], "1");
  EXPECT_EQ(panel.optKA.Options.Get()[13], "14");
  EXPECT_EQ(panel.optKA.Options.Get()[14], "0");
}

TEST_F(KeepAlivePanelTest, StoredMinutesAreSelectedAtStart) {
  EXPECT_EQ(panel.optKA.Selected.Get(), 4);
  EXPECT_EQ(keepAlive.KeepAliveMinutes, 5);
  EXPECT_TRUE(keepAlive.KeepAliveRx);
  settings.TelnetKAtime = 0;
  settings.TelnetKA = "Tx";
  panel.Load();
  EXPECT_EQ(panel.optKA.Selected.Get(), 14);
  EXPECT_EQ(keepAlive.KeepAliveMinutes, 0);
  EXPECT_FALSE(keepAlive.KeepAliveRx);
}

TEST_F(KeepAlivePanelTest, AnythingButTxIsRx) {
  settings.TelnetKA = "nonsense";
  panel.Load();
  EXPECT_TRUE(keepAlive.KeepAliveRx);
}

TEST_F(KeepAlivePanelTest, EachModeHasItsOwnPair) {
  settings.TncMode = true;
  settings.TncKA = "Tx";
  settings.TncKAtime = 3;
  panel.Load();
  EXPECT_EQ(keepAlive.KeepAliveMinutes, 3);
  EXPECT_FALSE(keepAlive.KeepAliveRx);
  EXPECT_EQ(panel.optMode.Selected.Get(), KeepAlivePanel::Tnc);
}

TEST_F(KeepAlivePanelTest, OffCannotBeChosenWhileAutoReconnectIsTicked) {
  panel.optKA.UserSelects(9);
  EXPECT_EQ(keepAlive.KeepAliveMinutes, 10);
  panel.optKA.UserSelects(14);
  EXPECT_EQ(panel.optKA.Selected.Get(), 4);
  EXPECT_EQ(keepAlive.KeepAliveMinutes, 5);
  autoReconnect = false;
  panel.optKA.UserSelects(14);
  EXPECT_EQ(panel.optKA.Selected.Get(), 14);
  EXPECT_EQ(keepAlive.KeepAliveMinutes, 0);
}

TEST_F(KeepAlivePanelTest, ApplyStoresThePairOfTheChosenModeAndWrites) {
  panel.optKA.UserSelects(6);
  panel.optDirection.UserSelects(KeepAlivePanel::Tx);
  EXPECT_TRUE(keepAlive.KeepAliveRx);
  panel.cmdExit.Press();
  EXPECT_FALSE(keepAlive.KeepAliveRx);
  EXPECT_EQ(settings.TelnetKA, "Tx");
  EXPECT_EQ(settings.TelnetKAtime, 7);
  EXPECT_EQ(writes, 1);
  panel.optMode.UserSelects(KeepAlivePanel::Tnc);
  panel.cmdExit.Press();
  EXPECT_EQ(settings.TncKA, "Tx");
  EXPECT_EQ(settings.TncKAtime, 7);
}

}  // namespace
