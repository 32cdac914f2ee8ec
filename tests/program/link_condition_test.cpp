#include "program/link_condition.h"

#include <gmock/gmock.h>

#include "program/desk.h"

using namespace std::chrono_literals;
using testing::HasSubstr;

namespace {

class LinkConditionTest : public testing::Test {
 protected:
  LinkConditionTest() {
    desk.HasUsualConfiguration();
    desk.Start();
  }
  session::Session& Session() { return desk.program->session; }
  program::Conditions& Conditions() { return desk.program->conditions; }
  std::string Text() { return Conditions().lblText.Caption.Get(); }
  void LogIn() {
    desk.StartNode();
    Session().connection.cmdConnect.Press();
    ASSERT_TRUE(desk.world.RunUntil([this] { return Session().state.LoggedIn; }));
  }
  void Lose() {
    desk.StopNode();
    desk.world.network.CutAll();
    desk.world.Run(2s);
  }

  Desk desk;
};

TEST_F(LinkConditionTest, IsNotThereBeforeAnybodyWantsALinkNorWhileItHolds) {
  EXPECT_EQ(Text(), "");
  LogIn();
  desk.world.Run(10s);
  EXPECT_EQ(Text(), "");
}

TEST_F(LinkConditionTest, ALostLinkIsToldWithItsReasonUntilOneHolds) {
  LogIn();
  Lose();
  EXPECT_EQ(Text(), "No link to the node: Connection reset by peer. It is tried again by itself.");
  desk.StartNode();
  ASSERT_TRUE(desk.world.RunUntil([this] { return Session().state.LoggedIn; }));
  EXPECT_EQ(Text(), "");
}

TEST_F(LinkConditionTest, ANodeThatCannotBeReachedAtAllIsToldToo) {
  Session().connection.cmdConnect.Press();
  desk.world.Run(2s);
  EXPECT_THAT(Text(), HasSubstr("Connection refused"));
}

TEST_F(LinkConditionTest, IsOverWhenTheUserWantsNoLink) {
  LogIn();
  Lose();
  Session().connection.cmdDisconnect.Press();
  desk.world.Run(2s);
  EXPECT_EQ(Text(), "");
}

TEST_F(LinkConditionTest, IsOverWhenTheUserTakesTheTickFromAutoReconnect) {
  LogIn();
  Lose();
  Session().connection.AutoReconnect.UserSets(false);
  EXPECT_EQ(Text(), "");
}

TEST_F(LinkConditionTest, IsNotRaisedForALinkThatTheUserEnds) {
  LogIn();
  Session().connection.cmdDisconnect.Press();
  for (int tenth = 0; tenth < 50; ++tenth) {
    desk.world.Run(100ms);
    ASSERT_EQ(Text(), "");
  }
}

TEST_F(LinkConditionTest, LeavesWhatHelpsToTheBarOfTheLink) {
  LogIn();
  Lose();
  EXPECT_NE(Text(), "");
  EXPECT_FALSE(Conditions().cmdHelp.Visible.Get());
}

}  // namespace
