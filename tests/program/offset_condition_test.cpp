#include <gtest/gtest.h>

#include "program/desk.h"

using namespace std::chrono_literals;

namespace {

class OffsetConditionTest : public testing::Test {
 protected:
  OffsetConditionTest() {
    desk.HasConfiguration(
        "\"My Call\",\"K1TST\"\r\n\"My Name\",\"A\"\r\n\"My QTH\",\"B\"\r\n"
        "\"AutoStart\",-1\r\n");
    desk.StartNode();
    desk.Start();
  }
  std::string Text() { return desk.program->conditions.lblText.Caption.Get(); }

  Desk desk;
};

TEST_F(OffsetConditionTest, TellsWhoIsKnownThatHisOffsetIsNotSetInPlaceOfADialog) {
  EXPECT_EQ(Text(), "The offset from UTC is not set: local time is taken for UTC.");
  EXPECT_TRUE(desk.world.dialogs.shown.empty());
  EXPECT_FALSE(desk.program->offsetForm.Open.Get());
  EXPECT_FALSE(desk.program->userInfo.Open.Get());
}

TEST_F(OffsetConditionTest, ItsButtonOpensTheFormThatEndsIt) {
  program::OffsetForm& form = desk.program->offsetForm;
  EXPECT_EQ(desk.program->conditions.cmdHelp.Caption.Get(), "Set offset…");
  desk.program->conditions.cmdHelp.Press();
  ASSERT_TRUE(form.Open.Get());
  form.cmdCancel.Press();
  EXPECT_NE(Text(), "");
  desk.program->conditions.cmdHelp.Press();
  form.cmdOk.Press();
  EXPECT_EQ(desk.program->settings.GmtOffset, "Ok");
  EXPECT_EQ(Text(), "");
}

TEST_F(OffsetConditionTest, NeitherItNorItsFormHoldsAnythingUp) {
  desk.program->conditions.cmdHelp.Press();
  EXPECT_TRUE(desk.world.RunUntil([this] { return desk.program->session.state.LoggedIn; }, 10s));
  EXPECT_TRUE(desk.program->offsetForm.Open.Get());
}

TEST_F(OffsetConditionTest, TheUserFormEndsItToo) {
  desk.program->userInfo.Show();
  desk.program->userInfo.cmdOk.Press();
  EXPECT_EQ(Text(), "");
}

TEST_F(OffsetConditionTest, HoldsAsWellWhileTheFormIsOpenAtTheStart) {
  desk.HasConfiguration("\"My Call\",\"K1TST\"\r\n");
  desk.Start();
  EXPECT_TRUE(desk.program->offsetForm.Open.Get());
  EXPECT_NE(Text(), "");
}

}  // namespace
