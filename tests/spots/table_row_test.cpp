#include "spots/table_row.h"

#include <gtest/gtest.h>

#include <string>

#include "session/memory_meter.h"

namespace spots {
namespace {

TEST(TableRowTest, HoldsAnyBytesAndNoneAtAll) {
  const std::string bytes("a\0\xFF\r\n", 5);
  EXPECT_EQ(TableRow(bytes, TableRow::Kind::Other, 6).Text(), bytes);
  EXPECT_EQ(TableRow("", TableRow::Kind::Other, 6).Text(), "");
}

TEST(TableRowTest, KnowsWhatItIs) {
  const TableRow spot("row", TableRow::Kind::Skimmer, 17);
  EXPECT_EQ(spot.RowKind(), TableRow::Kind::Skimmer);
  EXPECT_EQ(spot.Band(), 17);
  EXPECT_FALSE(spot.IsStars());
  const TableRow stars("***", TableRow::Kind::Stars, 0, {.minute = 1439});
  EXPECT_TRUE(stars.IsStars());
  EXPECT_EQ(stars.Minute(), 1439);
}

TEST(TableRowTest, KeepsTheWholeCallsOfItsSpot) {
  std::string call = "K6NNN/QRPP/MM";
  std::string spotter = "EA8/DF4UE-#";
  const TableRow row("row", TableRow::Kind::Skimmer, 6,
                     {.DxCall = call, .Spotter = spotter, .Freq = 14025.1, .minute = 1276});
  call = spotter = "another's";
  EXPECT_EQ(row.Text(), "row");
  EXPECT_EQ(row.DxCall(), "K6NNN/QRPP/MM");
  EXPECT_EQ(row.Spotter(), "EA8/DF4UE-#");
  EXPECT_EQ(row.Freq(), 14025.1);
  EXPECT_EQ(row.Minute(), 1276);
  EXPECT_TRUE(row.IsSpot());
}

TEST(TableRowTest, GiantCallIsCutAndNothingElse) {
  const std::string giant(100'000, 'K');
  const TableRow row("row", TableRow::Kind::Other, 6, {.DxCall = giant, .Spotter = "DL1ABC"});
  EXPECT_EQ(row.DxCall().size(), 65'535u);
  EXPECT_EQ(row.Spotter(), "DL1ABC");
}

TEST(TableRowTest, CopiesShareOneTextThatLivesAsLongAsTheLast) {
  const auto before = MemoryMeter::Live();
  {
    TableRow last("none", TableRow::Kind::Other, 0);
    {
      const TableRow first("first", TableRow::Kind::Other, 1);
      const auto allocated = MemoryMeter::Allocated();
      TableRow copy = last;
      copy = first;
      last = copy;
      EXPECT_EQ(MemoryMeter::Allocated(), allocated);
      EXPECT_EQ(copy.Text().data(), first.Text().data());
    }
    EXPECT_EQ(last.Text(), "first");
    const TableRow& itself = last;
    last = itself;
    EXPECT_EQ(last.Text(), "first");
  }
  EXPECT_EQ(MemoryMeter::Live(), before);
}

}  // namespace
}  // namespace spots
