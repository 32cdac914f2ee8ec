#include "core/quoted.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "core/text.h"

namespace core {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Record, JoinsItsFieldsWithCommasOnALineOfItsOwn) {
  EXPECT_EQ(Record({QuotedField("My Call"), QuotedField("N0CALL")}), "\"My Call\",\"N0CALL\"\r\n");
  EXPECT_EQ(Record({QuotedField("Linking"), NumberField(-1)}), "\"Linking\",-1\r\n");
  EXPECT_EQ(Record({QuotedField("SSL"), BooleanField(true)}), "\"SSL\",#TRUE#\r\n");
  EXPECT_EQ(Record({QuotedField("SSL"), BooleanField(false)}), "\"SSL\",#FALSE#\r\n");
  EXPECT_EQ(Record({QuotedField("one")}), "\"one\"\r\n");
}

TEST(QuotedField, CannotBeBrokenByItsText) {
  EXPECT_EQ(QuotedField("a\",\"b\r\nc\nd"), "\"a,b  c d\"");
  EXPECT_EQ(QuotedField(""), "\"\"");
}

TEST(NumberField, IsABareDecimalNumber) {
  EXPECT_EQ(NumberField(7300), "7300");
  EXPECT_EQ(NumberField(14025.1), "14025.1");
  EXPECT_EQ(NumberField(-0.5), "-0.5");
  EXPECT_EQ(NumberField(1e20), "100000000000000000000");
  EXPECT_EQ(NumberField(-0.0), "0");
}

TEST(NumberField, HoldsTheLongestNumbers) {
  const double longest = -std::numeric_limits<double>::min();
  EXPECT_EQ(NumberField(longest).size(), 327U);
  EXPECT_EQ(Val(NumberField(longest)), longest);
  EXPECT_EQ(Val(NumberField(std::numeric_limits<double>::denorm_min())),
            std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(Val(NumberField(std::numeric_limits<double>::lowest())),
            std::numeric_limits<double>::lowest());
}

TEST(NumberField, IsZeroForWhatIsNoNumber) {
  EXPECT_EQ(NumberField(std::numeric_limits<double>::infinity()), "0");
  EXPECT_EQ(NumberField(std::numeric_limits<double>::quiet_NaN()), "0");
}

TEST(SplitRecord, DropsEveryDoubleQuote) {
  EXPECT_EQ(SplitRecord("\"My Call\",\"N0CALL\""), (RecordPair{"My Call", "N0CALL"}));
  EXPECT_EQ(SplitRecord("\"Linking\",-1"), (RecordPair{"Linking", "-1"}));
  EXPECT_EQ(SplitRecord("a\"\"b,\"\"c\"d"), (RecordPair{"ab", "cd"}));
}

TEST(SplitRecord, SplitsAtTheFirstCommaOnly) {
  EXPECT_EQ(SplitRecord("\"My QTH\",\"Here, there\""), (RecordPair{"My QTH", "Here, there"}));
}

TEST(SplitRecord, GivesAnEmptyValueWithoutAComma) {
  EXPECT_EQ(SplitRecord("\"My Call\""), (RecordPair{"My Call", ""}));
  EXPECT_EQ(SplitRecord(""), (RecordPair{"", ""}));
  EXPECT_EQ(SplitRecord(",x"), (RecordPair{"", "x"}));
}

TEST(SplitRecord, KeepsBlanks) {
  EXPECT_EQ(SplitRecord("\"a\", \"b \""), (RecordPair{"a", " b "}));
}

TEST(SplitLines, KnowsBothLineEnds) {
  EXPECT_THAT(SplitLines("a\r\nb\nc"), ElementsAre("a", "b", "c"));
  EXPECT_THAT(SplitLines("a\r\n"), ElementsAre("a"));
}

TEST(SplitLines, GivesEmptyLinesBetweenLineEnds) {
  EXPECT_THAT(SplitLines("\r\n\n\r\na"), ElementsAre("", "", "", "a"));
  EXPECT_THAT(SplitLines(""), IsEmpty());
}

TEST(SplitLines, TakesACarriageReturnAtTheEndOfALineOnly) {
  EXPECT_THAT(SplitLines("a\rb\r\r\nc\r"), ElementsAre("a\rb\r", "c"));
}

TEST(TakeLine, LeavesTheLinesBehind) {
  std::string_view text = "a\r\nb\n";
  EXPECT_EQ(TakeLine(text), "a");
  EXPECT_EQ(text, "b\n");
  EXPECT_EQ(TakeLine(text), "b");
  EXPECT_EQ(text, "");
}

}  // namespace
}  // namespace core
