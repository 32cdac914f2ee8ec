#include "gui/desk.h"

namespace gui {
namespace {

using platform::Answer;

constexpr auto kTitle = "Molva Desk";

class ClosingTest : public Desk {};

TEST_F(ClosingTest, ClosingTheWindowAsks) {
  Open();
  EXPECT_FALSE(window->close());
  Run(10s);
  ASSERT_EQ(world.dialogs.shown.size(), 1U);
  EXPECT_EQ(world.dialogs.shown.front().text, "Do you really want to end this program? ");
  EXPECT_TRUE(window->isVisible());
  EXPECT_FALSE(hasQuit);
}

TEST_F(ClosingTest, ClosingTwiceAsksOnce) {
  Open();
  window->close();
  window->close();
  Run(1s);
  EXPECT_EQ(world.dialogs.shown.size(), 1U);
}

TEST_F(ClosingTest, CancelKeepsTheWindowAndTheLink) {
  Open();
  LogIn();
  window->close();
  Run(1s);
  ASSERT_TRUE(world.dialogs.AnswerNow(kTitle, Answer::Cancel));
  Run(10s);
  EXPECT_TRUE(window->isVisible());
  EXPECT_FALSE(hasQuit);
  EXPECT_EQ(program->session.WinsockOut->State(), platform::SocketState::Connected);
  window->close();
  Run(1s);
  EXPECT_EQ(world.dialogs.shown.size(), 2U) << "the next close asks again";
}

TEST_F(ClosingTest, OkSaysGoodbyeToTheNodeAndEndsAfterAWait) {
  Open();
  LogIn();
  window->close();
  Run(1s);
  ASSERT_TRUE(world.dialogs.AnswerNow(kTitle, Answer::Ok));
  Run(1s);
  EXPECT_EQ(node.Heard().back(), "BYE");
  Run(2400ms);
  EXPECT_FALSE(hasQuit);
  Run(200ms);
  EXPECT_TRUE(hasQuit);
}

TEST_F(ClosingTest, AUserWhoWantsNoQuestionIsNotAsked) {
  Open({"\"DoNotAsk\",-1"});
  window->close();
  Run(5s);
  EXPECT_TRUE(world.dialogs.shown.empty());
  EXPECT_TRUE(hasQuit);
}

}  // namespace
}  // namespace gui
