#include "spots/fix_entry.h"

#include <gmock/gmock.h>

namespace spots {
namespace {

using testing::ElementsAre;

//                          1         2         3         4         5
//                 12345678901234567890123456789012345678901234567890
constexpr auto kRow = "K1ABC             5 K     MA 05 08 FN42         19";

TEST(FixEntryTest, RowIsReadByItsColumns) {
  const auto entry = ParseFixLine(kRow);
  ASSERT_TRUE(entry);
  EXPECT_EQ(entry->FixCall, "K1ABC");
  EXPECT_THAT(entry->fields, ElementsAre("K", "MA", "05", "08", "FN42"));
  EXPECT_EQ(entry->FixMask, 19u);
  EXPECT_TRUE(entry->used);
}

TEST(FixEntryTest, RowIsMadeAsItWasRead) {
  EXPECT_EQ(std::string_view(kRow).size(), 50u);
  EXPECT_EQ(FixRow(*ParseFixLine(kRow)), kRow);
  EXPECT_EQ(FixRow(*ParseFixLine("G0AA")), "G0AA                                            00");
}

TEST(FixEntryTest, OfALongerRowFiftyColumnsCount) {
  for (const char* more : {"  heard on 20 m", "9", "                 K2XYZ"}) {
    const auto entry = ParseFixLine(std::string(kRow) + more);
    ASSERT_TRUE(entry) << more;
    EXPECT_EQ(FixRow(*entry), kRow) << more;
  }
}

TEST(FixEntryTest, WordThatRunsOnBehindTheColumnsOfACallIsNoCall) {
  EXPECT_FALSE(ParseFixLine("K1ABCDEFGHIJKLMNOPQRSTUVWXYZ"));
  EXPECT_FALSE(ParseFixLine("K1ABCDEFGHIJKLMNOPQ"));
  EXPECT_TRUE(ParseFixLine("K1ABCDEFGHIJKLMNOP"));
  EXPECT_TRUE(ParseFixLine("K1ABCDEFGHIJKLMNOP5"));  // it has been used
}

TEST(FixEntryTest, RecordIsReadByItsFields) {
  for (const char* line :
       {"\"K1ABC\",\"K\",\"MA\",\"05\",\"08\",\"FN42\",\"19\"", "K1ABC,K,MA,05,08,FN42,19",
        " \"K1ABC \" , \" K\",MA ,\"05\", 08,\"FN42\" , 19, more"}) {
    const auto entry = ParseFixLine(line);
    ASSERT_TRUE(entry) << line;
    EXPECT_EQ(entry->FixCall, "K1ABC") << line;
    EXPECT_THAT(entry->fields, ElementsAre("K", "MA", "05", "08", "FN42")) << line;
    EXPECT_EQ(entry->FixMask, 19u) << line;
  }
}

TEST(FixEntryTest, FieldsThatARecordLacksAreEmpty) {
  const auto entry = ParseFixLine("\"K1*\",\"K\"");
  ASSERT_TRUE(entry);
  EXPECT_TRUE(entry->IsPrefix());
  EXPECT_EQ(entry->Stem(), "K1");
  EXPECT_THAT(entry->fields, ElementsAre("K", "", "", "", ""));
  EXPECT_EQ(entry->FixMask, 0u);
}

TEST(FixEntryTest, FieldsAreCutToTheirWidths) {
  const auto entry = ParseFixLine("K1ABC,VP8/GX,MASS,005,0008,FN42ab,9");
  EXPECT_THAT(entry->fields, ElementsAre("VP8/G", "MAS", "00", "00", "FN42"));
}

TEST(FixEntryTest, ZonesAreRightAligned) {
  const auto entry = ParseFixLine("K1ABC,K,MA,5, 8,,0");
  EXPECT_THAT(entry->fields, ElementsAre("K", "MA", " 5", " 8", ""));
  const auto row = ParseFixLine("K1ABC               K     MA 5   8");
  EXPECT_THAT(row->fields, ElementsAre("K", "MA", " 5", " 8", ""));
}

TEST(FixEntryTest, MaskKeepsItsFiveBits) {
  EXPECT_EQ(ParseFixLine("K1ABC,,,,,,99")->FixMask, 99u & 31u);
  EXPECT_EQ(ParseFixLine("K1ABC,,,,,,-1")->FixMask, 0u);
  EXPECT_EQ(ParseFixLine("K1ABC,,,,,,1e99")->FixMask, 31u);
  EXPECT_EQ(ParseFixLine("K1ABC,,,,,,x")->FixMask, 0u);
}

TEST(FixEntryTest, HeadingsAndMalformedLinesAreNoEntries) {
  for (const char* line : {"",
                           "   ",
                           "CALL",
                           "CALL                CTY   ST CQ ITU GRID",
                           "oldcall",
                           "\"oldcall\",K",
                           ",",
                           "\"",
                           "\"\",\"K\"",
                           "K1 ABC",
                           "K*1",
                           "**",
                           "<html>",
                           "<a href=x>",
                           "K1ABC\x01",
                           "\xEF\xBB\xBFK1ABC",
                           "K1ABC,K\x07",
                           "K1ABC,\"K,A\"",
                           "../../etc",
                           "K1ABCDEFGHIJKLMNOPQ,K"})
    EXPECT_FALSE(ParseFixLine(line)) << line;
  EXPECT_FALSE(ParseFixLine(std::string(1'000'000, 'K') + ","));
  EXPECT_FALSE(ParseFixLine(std::string(50, '\0')));
}

TEST(FixEntryTest, LongestCallFillsItsColumn) {
  const auto entry = ParseFixLine("EA8/K1ABCDEFGH/P-#,EA8");
  ASSERT_TRUE(entry);
  EXPECT_EQ(FixRow(*entry), "EA8/K1ABCDEFGH/P-#  EA8                         00");
}

TEST(FixEntryTest, ConversionTurnsRowsIntoRecords) {
  EXPECT_EQ(CBOtoFixSpotsConversion({"CALL                CTY   ST CQ ITU", "", "oldcall", kRow,
                                     "K1*                 K      "}),
            "\"K1ABC\",\"K\",\"MA\",\"05\",\"08\",\"FN42\",\"19\"\r\n"
            "\"K1*\",\"K\",\"\",\"\",\"\",\"\",\"00\"\r\n");
}

TEST(FixEntryTest, RecordsOfAnEntryAreReadBackTheSame) {
  const std::string text =
      CBOtoFixSpotsConversion({FixRow(*ParseFixLine("K1ABC,K,MA,5,8,FN42,7"))});
  const auto entry = ParseFixLine(std::string_view(text).substr(0, text.size() - 2));
  EXPECT_THAT(entry->fields, ElementsAre("K", "MA", " 5", " 8", "FN42"));
  EXPECT_EQ(entry->FixMask, 7u);
}

}  // namespace
}  // namespace spots
