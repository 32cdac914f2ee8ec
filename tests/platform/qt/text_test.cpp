#include "platform/qt/qt_text.h"

#include <gtest/gtest.h>

namespace platform::qt {
namespace {

TEST(QtTextTest, ValidSequencesAreUtf8) {
  EXPECT_EQ(TextOf("S5: \xC5\xA1"), QString::fromUtf16(u"S5: \u0161"));
  EXPECT_EQ(TextOf("\xE2\x82\xAC\xF0\x9F\x93\xBB"), QString::fromUtf16(u"\u20AC\U0001F4FB"));
}

TEST(QtTextTest, EveryOtherByteIsWindows1252) {
  EXPECT_EQ(TextOf("J\xFCrgen"), QString::fromUtf16(u"J\u00FCrgen"));
  EXPECT_EQ(TextOf("\x80 \x99 \x81"), QString::fromUtf16(u"\u20AC \u2122 \u0081"));
}

TEST(QtTextTest, ASequenceThatBreaksOffIsSingleBytes) {
  EXPECT_EQ(TextOf("\xC5"), QString::fromUtf16(u"\u00C5"));
  EXPECT_EQ(TextOf("\xE2\x82 "), QString::fromUtf16(u"\u00E2\u201A "));
  EXPECT_EQ(TextOf("\xC5\xC5\xA1"), QString::fromUtf16(u"\u00C5\u0161"));
}

TEST(QtTextTest, OverlongAndSurrogateSequencesAreSingleBytes) {
  EXPECT_EQ(TextOf("\xC0\x80"), QString::fromUtf16(u"\u00C0\u20AC"));
  EXPECT_EQ(TextOf("\xED\xA0\x80"), QString::fromUtf16(u"\u00ED\u00A0\u20AC"));
}

TEST(QtTextTest, AZeroByteEndsNothing) {
  EXPECT_EQ(TextOf(std::string_view("a\0b", 3)), QString::fromUtf16(u"a\0b", 3));
}

}  // namespace
}  // namespace platform::qt
