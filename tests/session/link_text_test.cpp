#include "session/link_text.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

TEST(SpanText, IsToldByItsTwoLargestUnits) {
  EXPECT_EQ(session::SpanText(0s), "0 s");
  EXPECT_EQ(session::SpanText(59s), "59 s");
  EXPECT_EQ(session::SpanText(60s), "1 m 0 s");
  EXPECT_EQ(session::SpanText(3599s), "59 m 59 s");
  EXPECT_EQ(session::SpanText(3600s), "1 h 0 m");
  EXPECT_EQ(session::SpanText(52h), "2 d 4 h");
}

}  // namespace
