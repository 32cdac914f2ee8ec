#include "session/technical.h"

#include <gtest/gtest.h>

namespace {

TEST(Technical, EscapedErrorsAreCounted) {
  session::Technical technical;
  technical.ShowEscapedErrors(7);
  EXPECT_EQ(technical.lblTech[10].Caption.Get(), "Escaped Errors = 7");
}

TEST(Technical, EscapedErrorsAreExplained) {
  EXPECT_EQ(session::Technical().lblTech[10].ToolTip.Get(), "Escaped Errors Fixed");
}

}  // namespace
