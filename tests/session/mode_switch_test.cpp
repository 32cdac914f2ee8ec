#include "session_fixture.h"

using namespace std::chrono_literals;
using platform::Answer;

namespace {

class ModeSwitchTest : public SessionFixture {
 protected:
  // The node has hung up, and the next try is awaited.
  void WaitForRetry() {
    LogIn();
    NodeCloses();
    ASSERT_TRUE(program.timers.Enabled(session::TimerId::Reconnect));
  }
  bool AutoReconnect() const { return program.connection.AutoReconnect.Value.Get(); }
};

TEST_F(ModeSwitchTest, RadioWhileARetryIsAwaitedStopsReconnectingAndAsks) {
  WaitForRetry();
  program.modeSwitch.RadioClus.Press();
  LetPass(1s);
  EXPECT_TRUE(program.state.TncMode);
  EXPECT_FALSE(AutoReconnect());
  EXPECT_TRUE(program.state.UserDisconnected);
  ASSERT_EQ(world.dialogs.shown.size(), 1u);
  EXPECT_EQ(world.dialogs.shown[0].title, "Disabled");
  EXPECT_EQ(world.dialogs.shown[0].text,
            "Auto Reconnect has been temporarily disabled.\nDo you wish to re-enable now?\n"
            "Pressing \"Connect\" will also re-enable it.");
}

TEST_F(ModeSwitchTest, YesReconnectsAgainAndNoDoesNot) {
  WaitForRetry();
  program.modeSwitch.RadioClus.Press();
  LetPass(1s);
  world.dialogs.AnswerNow("Disabled", Answer::No);
  LetPass(1s);
  EXPECT_FALSE(AutoReconnect());
  program.modeSwitch.RadioClus.Press();
  LetPass(1s);
  world.dialogs.AnswerNow("Disabled", Answer::Yes);
  LetPass(1s);
  EXPECT_TRUE(AutoReconnect());
  EXPECT_FALSE(program.state.UserDisconnected);
}

TEST_F(ModeSwitchTest, RadioWithoutARetryAsksNothing) {
  program.modeSwitch.RadioClus.Press();
  LetPass(1s);
  EXPECT_TRUE(settings.TncMode);
  EXPECT_TRUE(world.dialogs.shown.empty());
}

TEST_F(ModeSwitchTest, TelnetForgetsTheAddressStopsReconnectingAndOpensTheNodes) {
  WaitForRetry();
  settings.NodeNumberedAddress = "10.1.2.3";
  program.modeSwitch.TelnetClus.Press();
  EXPECT_FALSE(program.state.TncMode);
  EXPECT_EQ(settings.NodeNumberedAddress, "");
  EXPECT_FALSE(AutoReconnect());
  EXPECT_TRUE(program.state.UserDisconnected);
  EXPECT_EQ(nodesOpened, 1);
}

TEST_F(ModeSwitchTest, TelnetLeavesASessionThatIsLoggedInAlone) {
  LogIn();
  program.modeSwitch.TelnetClus.Press();
  EXPECT_TRUE(AutoReconnect());
  EXPECT_FALSE(program.state.UserDisconnected);
  EXPECT_TRUE(program.state.LoggedIn);
}

}  // namespace
