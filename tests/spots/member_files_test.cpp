#include "spots/member_files.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>

namespace spots {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A file of 1000 lines: the title, these lines, and others that hold nothing.
std::string Lotw(const std::string& lines, const std::string& end = "\r\n") {
  std::string text = "LOTW" + end + lines;
  for (auto line = std::count(text.begin(), text.end(), '\n'); line < 1000; ++line)
    text += "&" + end;
  return text;
}

TEST(LotwFileTest, LineHoldsFiveCallsInColumnsOfFourteen) {
  const std::string text =
      Lotw("K1ABC         DL1XYZ        3DA0/N1CALL/P G0AA           W2BB         beyond\r\n");
  const auto file = ParseLotw(text);
  ASSERT_TRUE(file);
  EXPECT_THAT(file->calls, ElementsAre("K1ABC", "DL1XYZ", "3DA0/N1CALL/P", "G0AA", "W2BB"));
}

TEST(LotwFileTest, LinesMayEndInALineFeedAlone) {
  const std::string text = Lotw("K1ABC\nG0AA          W2BB\n", "\n");
  EXPECT_THAT(ParseLotw(text)->calls, ElementsAre("K1ABC", "G0AA", "W2BB"));
}

TEST(LotwFileTest, BracketIsCutOffItsCall) {
  const std::string text = Lotw("K1ABC(12)     G0AA (x)      (3)\r\n");
  const auto file = ParseLotw(text);
  EXPECT_THAT(file->calls, ElementsAre("K1ABC", "G0AA"));
  EXPECT_EQ(file->skipped, 0u);
}

TEST(LotwFileTest, ColumnWithPlusInItsBracketIsCountedAndDropped) {
  const std::string text = Lotw("K1ABC(12+)    G0AA          W2BB(+)\r\n");
  const auto file = ParseLotw(text);
  EXPECT_THAT(file->calls, ElementsAre("G0AA"));
  EXPECT_EQ(file->skipped, 2u);
}

TEST(LotwFileTest, EmptyColumnsAreNoCalls) {
  const std::string text = Lotw("              G0AA\r\n\r\n");
  EXPECT_THAT(ParseLotw(text)->calls, ElementsAre("G0AA"));
}

TEST(LotwFileTest, LinesWithOneMarkArePassedOverAndTwoEndTheList) {
  const std::string text = Lotw("K1ABC\r\n& 20261120\r\nG0AA\r\n&& end\r\nW2BB\r\n");
  EXPECT_THAT(ParseLotw(text)->calls, ElementsAre("K1ABC", "G0AA"));
}

TEST(LotwFileTest, FirstLineIsTheMark) {
  const std::string good = Lotw("K1ABC\r\n");
  ASSERT_TRUE(ParseLotw(good));
  for (const char* first : {"", "lotw", "LOTW ", " LOTW", "LOTWX", "<html>"})
    EXPECT_FALSE(ParseLotw(first + good.substr(4))) << first;
  EXPECT_FALSE(ParseLotw("K1ABC\r\n" + good));
}

TEST(LotwFileTest, FileOfFewerThanThousandLinesIsDamaged) {
  std::string text = "LOTW\r\nK1ABC\r\n";
  for (int i = 0; i < 997; ++i) text += "G0AA\r\n";
  EXPECT_FALSE(ParseLotw(text));
  text += "W2BB";
  EXPECT_EQ(ParseLotw(text)->calls.size(), 999u);
}

TEST(LotwFileTest, HostileFilesGiveAtMostTheirBytes) {
  EXPECT_FALSE(ParseLotw(""));
  EXPECT_FALSE(ParseLotw(std::string(100'000, '\0')));
  EXPECT_FALSE(ParseLotw("LOTW\r\n" + std::string(1'000'000, 'K')));
  const std::string bytes = Lotw(std::string("\x00\xFF(\r", 4) + "\r\n" + std::string(5000, '('));
  EXPECT_THAT(ParseLotw(bytes)->calls, ElementsAre(std::string_view("\x00\xFF", 2)));
}

TEST(EqslFileTest, FetchedFileComesInOrder) {
  const auto file = ParseEqsl(
      "EQSL.CC - LIST OF AG MEMBERS AS OF 20-NOV-2026\r\nW2BB\r\nG0AA\r\n K1ABC\r\n   DL1\r\n");
  ASSERT_TRUE(file);
  EXPECT_FALSE(file->sorted);
  EXPECT_EQ(file->title, "EQSL.CC - LIST OF AG MEMBERS AS OF 20-NOV-2026");
  EXPECT_THAT(file->calls, ElementsAre("DL1", "G0AA", "K1ABC", "W2BB"));
}

TEST(EqslFileTest, InnerBlanksOtherBytesAndEmptyLinesAreNormal) {
  const auto file = ParseEqsl("THE LIST OF AG MEMBERS AS OF X\nA B C\n\xC9K1\n\n \nG0AA\nG0AA\n\n");
  EXPECT_THAT(file->calls, ElementsAre("A B C", "G0AA", "G0AA", "\xC9K1"));
}

TEST(EqslFileTest, TitleTellsWhatTheFileIs) {
  for (const char* title : {"", "W2BB", "LIST OF MEMBERS AS OF ", "AG LIST OF MEMBERS",
                            "THE AG LIST", "LIST OF AG MEMBERS", " 1 MOLVA SORTED LIST"})
    EXPECT_FALSE(ParseEqsl(std::string(title) + "\r\nG0AA\r\n")) << title;
}

TEST(EqslFileTest, SortedFileIsUsedAsItStands) {
  const auto file =
      ParseEqsl(" 3 MOLVA SORTED LIST OF AG MEMBERS\r\nW2BB\r\n K1\r\nG0AA\r\nLATE\r\n");
  ASSERT_TRUE(file);
  EXPECT_TRUE(file->sorted);
  EXPECT_THAT(file->calls, ElementsAre("W2BB", " K1", "G0AA"));
}

TEST(EqslFileTest, CountOfTheTitleIsNoPromise) {
  for (const char* count : {"2000000000", "99999999999999999999", "1e300"})
    EXPECT_THAT(
        ParseEqsl(" " + std::string(count) + " MOLVA SORTED X AG Y\r\nG0AA\r\nW2BB")->calls.size(),
        2u)
        << count;
  for (const char* count : {"-5", "x", ""})
    EXPECT_THAT(ParseEqsl(" " + std::string(count) + " MOLVA SORTED X AG Y\r\nG0AA\r\n")->calls,
                IsEmpty())
        << count;
}

TEST(EqslFileTest, RewrittenFileIsReadBackTheSame) {
  const std::string fetched = "X LIST OF AG MEMBERS AS OF NOW\r\nW2BB\r\nG0AA\r\n";
  const auto file = ParseEqsl(fetched);
  const std::string sorted = FormatEqsl(*file);
  EXPECT_EQ(sorted, " 2 MOLVA SORTED X LIST OF AG MEMBERS AS OF NOW\r\nG0AA\r\nW2BB\r\n");
  const auto again = ParseEqsl(sorted);
  EXPECT_TRUE(again->sorted);
  EXPECT_EQ(again->calls, file->calls);
}

}  // namespace
}  // namespace spots
