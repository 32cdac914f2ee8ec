#include "core/text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace core {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Position kHuge = std::numeric_limits<Position>::max();
constexpr Position kLeast = std::numeric_limits<Position>::min();

TEST(Mid, CountsFromOne) {
  EXPECT_EQ(Mid("DX de N0CALL:", 1, 2), "DX");
  EXPECT_EQ(Mid("DX de N0CALL:", 7, 6), "N0CALL");
  EXPECT_EQ(Mid("DX de N0CALL:", 7), "N0CALL:");
}

TEST(Mid, GivesWhatThereIsOfALongerPiece) {
  EXPECT_EQ(Mid("abc", 3, 5), "c");
  EXPECT_EQ(Mid("abc", 2, kHuge), "bc");
}

TEST(Mid, IsEmptyOutsideTheText) {
  EXPECT_EQ(Mid("abc", 4, 1), "");
  EXPECT_EQ(Mid("abc", kHuge, kHuge), "");
  EXPECT_EQ(Mid("abc", 0, 2), "");
  EXPECT_EQ(Mid("abc", -1), "");
  EXPECT_EQ(Mid("abc", kLeast, kHuge), "");
  EXPECT_EQ(Mid("abc", 1, -1), "");
  EXPECT_EQ(Mid("", 1, 1), "");
}

TEST(LeftAndRight, GiveTheEndsOfTheText) {
  EXPECT_EQ(Left("14025.0", 5), "14025");
  EXPECT_EQ(Right("14025.0", 2), ".0");
}

TEST(LeftAndRight, GiveAllOfAShorterText) {
  EXPECT_EQ(Left("abc", kHuge), "abc");
  EXPECT_EQ(Right("abc", 4), "abc");
  EXPECT_EQ(Right("", 4), "");
}

TEST(LeftAndRight, AreEmptyForACountBelowOne) {
  EXPECT_EQ(Left("abc", 0), "");
  EXPECT_EQ(Left("abc", kLeast), "");
  EXPECT_EQ(Right("abc", 0), "");
  EXPECT_EQ(Right("abc", -3), "");
}

TEST(TextPieces, AreViewsOfTheTextItself) {
  const std::string line = " 14025.0 ";
  EXPECT_EQ(Mid(line, 4, 2).data(), line.data() + 3);
  EXPECT_EQ(Left(line, 4).data(), line.data());
  EXPECT_EQ(Right(line, 4).data(), line.data() + 5);
  EXPECT_EQ(Trim(line).data(), line.data() + 1);
}

TEST(InStr, CountsFromOneAndIsZeroForWhatIsAbsent) {
  EXPECT_EQ(InStr("DX de ", "DX"), 1);
  EXPECT_EQ(InStr("DX de ", " "), 3);
  EXPECT_EQ(InStr("DX de ", "dx"), 0);
  EXPECT_EQ(InStr("DX", "DX de "), 0);
  EXPECT_EQ(InStr("", "DX"), 0);
}

TEST(InStr, FindsAtItsStartOrBehindIt) {
  EXPECT_EQ(InStr(3, "DX de ", " "), 3);
  EXPECT_EQ(InStr(4, "DX de ", " "), 6);
  EXPECT_EQ(InStr(2, "DX de ", "DX"), 0);
}

TEST(InStr, IsZeroForAStartOutsideTheText) {
  EXPECT_EQ(InStr(0, "abc", "a"), 0);
  EXPECT_EQ(InStr(kLeast, "abc", "a"), 0);
  EXPECT_EQ(InStr(4, "abc", "c"), 0);
  EXPECT_EQ(InStr(kHuge, "abc", "c"), 0);
}

TEST(InStr, FindsEmptyTextAtItsStart) {
  EXPECT_EQ(InStr("abc", ""), 1);
  EXPECT_EQ(InStr(3, "abc", ""), 3);
  EXPECT_EQ(InStr(4, "abc", ""), 0);
  EXPECT_EQ(InStr("", ""), 0);
}

TEST(InStrIgnoringCase, FindsLettersOfEitherCase) {
  EXPECT_EQ(InStrIgnoringCase("tnc CMD:", "cmd:"), 5);
  EXPECT_EQ(InStrIgnoringCase(2, "expK=1 EXPK=2", "ExpK="), 8);
  EXPECT_EQ(InStrIgnoringCase("abc", "d"), 0);
  EXPECT_EQ(InStrIgnoringCase(0, "abc", "a"), 0);
  EXPECT_EQ(InStrIgnoringCase(3, "abc", ""), 3);
}

TEST(IgnoringCase, KnowsLettersOfAsciiOnly) {
  EXPECT_TRUE(SameIgnoringCase("N0Call", "n0cALL"));
  EXPECT_FALSE(SameIgnoringCase("N0CALL", "N0CAL"));
  EXPECT_FALSE(SameIgnoringCase("[", "{"));
  EXPECT_FALSE(SameIgnoringCase("\xC4", "\xE4"));
  EXPECT_EQ(UCase("az`{\xE4\0z"s), "AZ`{\xE4\0Z"s);
  EXPECT_EQ(LCase("AZ@[\xC4\0Z"s), "az@[\xC4\0z"s);
}

TEST(StartsWith, ComparesByteForByte) {
  EXPECT_TRUE(StartsWith("WX de N0CALL", "WX de "));
  EXPECT_TRUE(StartsWith("WX", ""));
  EXPECT_FALSE(StartsWith("WX", "WX de "));
  EXPECT_FALSE(StartsWith("Wx de N0CALL", "WX de "));
  EXPECT_TRUE(StartsWithIgnoringCase("Wx de N0CALL", "WX de "));
  EXPECT_FALSE(StartsWithIgnoringCase("Wx", "WX de "));
}

TEST(EndsWith, ComparesByteForByte) {
  EXPECT_TRUE(EndsWith("N0CALL-#", "-#"));
  EXPECT_FALSE(EndsWith("#", "-#"));
  EXPECT_FALSE(EndsWith("abC", "bc"));
}

TEST(Val, ReadsTheNumberThatATextBeginsWith) {
  EXPECT_EQ(Val("14025.0 abc"), 14025);
  EXPECT_EQ(Val("  -7.25"), -7.25);
  EXPECT_EQ(Val("+3"), 3);
  EXPECT_EQ(Val(".5"), 0.5);
  EXPECT_EQ(Val("5."), 5);
  EXPECT_EQ(Val("1e3"), 1000);
  EXPECT_EQ(Val("25E-1z"), 2.5);
}

TEST(Val, EndsAtWhatDoesNotFit) {
  EXPECT_EQ(Val("14 025"), 14);
  EXPECT_EQ(Val("1.2.3"), 1.2);
  EXPECT_EQ(Val("14,5"), 14);
  EXPECT_EQ(Val("12e"), 12);
  EXPECT_EQ(Val("12e+x"), 12);
  EXPECT_EQ(Val("0x10"), 0);
  EXPECT_EQ(Val("7\0008"s), 7);
}

TEST(Val, IsZeroWithoutANumber) {
  for (const auto* text : {"", " ", "abc", "-", "+", ".", "-.", "- 5", "+-5", "--5", "-+5", "e5",
                           "inf", "nan", "-inf", "\t5"})
    EXPECT_EQ(Val(text), 0) << '"' << text << '"';
}

TEST(Val, IsZeroForANumberThatNoDoubleHolds) {
  EXPECT_EQ(Val("1e999"), 0);
  EXPECT_EQ(Val("-1e999"), 0);
  EXPECT_EQ(Val("1e-999"), 0);
  EXPECT_EQ(Val("1e99999999999999999999"), 0);
  EXPECT_EQ(Val(std::string(100'000, '9')), 0);
  EXPECT_EQ(Val(std::string(100'000, '0') + "7"), 7);
}

TEST(ValInt, DropsTheFractionAndStaysInRange) {
  EXPECT_EQ(ValInt("14025.9"), 14025);
  EXPECT_EQ(ValInt("-7.9"), -7);
  EXPECT_EQ(ValInt("99999999999"), std::numeric_limits<int>::max());
  EXPECT_EQ(ValInt("-99999999999"), std::numeric_limits<int>::min());
}

TEST(Trim, TakesBlanksAndNothingElse) {
  EXPECT_EQ(LTrim("  a b  "), "a b  ");
  EXPECT_EQ(RTrim("  a b  "), "  a b");
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("\t a \n"), "\t a \n");
  EXPECT_EQ(LTrim("   "), "");
  EXPECT_EQ(RTrim("   "), "");
  EXPECT_EQ(Trim(""), "");
}

TEST(Split, GivesAllPiecesTheEmptyOnesToo) {
  EXPECT_THAT(Split("a^b^^c", "^"), ElementsAre("a", "b", "", "c"));
  EXPECT_THAT(Split("^", "^"), ElementsAre("", ""));
  EXPECT_THAT(Split("abc", "^"), ElementsAre("abc"));
  EXPECT_THAT(Split("a, b, ", ", "), ElementsAre("a", "b", ""));
  EXPECT_THAT(Split("aaa", "aa"), ElementsAre("", "a"));
}

TEST(Split, GivesNoPieceOfAnEmptyText) { EXPECT_THAT(Split("", "^"), IsEmpty()); }

TEST(Split, GivesTheWholeTextWithoutASeparator) {
  EXPECT_THAT(Split("abc", ""), ElementsAre("abc"));
}

TEST(ExtractToCharacter, LeavesWhatStandsBehindTheDelimiter) {
  std::string_view work = "a^^b";
  EXPECT_EQ(ExtractToCharacter('^', work), "a");
  EXPECT_EQ(work, "^b");
  EXPECT_EQ(ExtractToCharacter('^', work), "");
  EXPECT_EQ(work, "b");
}

TEST(ExtractToCharacter, TakesAllWithoutADelimiter) {
  std::string_view work = "b";
  EXPECT_EQ(ExtractToCharacter('^', work), "b");
  EXPECT_EQ(work, "");
  EXPECT_EQ(ExtractToCharacter('^', work), "");
}

TEST(Digits, FillsUpWithZeros) {
  EXPECT_EQ(Digits(0, 2), "00");
  EXPECT_EQ(Digits(7, 2), "07");
  EXPECT_EQ(Digits(123, 2), "123");
  EXPECT_EQ(Digits(5, 0), "5");
}

}  // namespace
}  // namespace core
