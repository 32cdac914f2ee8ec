#include "program/message_form.h"

#include <gmock/gmock.h>

using program::MessageForm;
using testing::ElementsAre;

namespace {

TEST(MessageFormTest, ShowsAHeadingAndLinesAsTheyStand) {
  MessageForm form;
  EXPECT_FALSE(form.Open.Get());
  form.Show("ERROR", "\r\n   You have tried & failed\r\n\r\nTry again");
  EXPECT_TRUE(form.Open.Get());
  EXPECT_EQ(form.lblHeading.Caption.Get(), "ERROR");
  EXPECT_THAT(form.Lines.Get(), ElementsAre("", "   You have tried & failed", "", "Try again"));
}

TEST(MessageFormTest, TheNextMessageTakesThePlaceOfTheLast) {
  MessageForm form;
  form.Show("One", "first");
  form.Show("Two", "second");
  EXPECT_EQ(form.lblHeading.Caption.Get(), "Two");
  EXPECT_THAT(form.Lines.Get(), ElementsAre("second"));
}

TEST(MessageFormTest, ARuleOrTheUserClosesIt) {
  MessageForm form;
  form.Show("One", "first");
  form.Close();
  EXPECT_FALSE(form.Open.Get());
  form.Show("One", "first");
  EXPECT_TRUE(form.Open.Get());
  form.cmdClose.Press();
  EXPECT_FALSE(form.Open.Get());
}

}  // namespace
