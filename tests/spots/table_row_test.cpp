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
  const TableRow stars("***", TableRow::Kind::Stars, 0, 1439);
  EXPECT_TRUE(stars.IsStars());
  EXPECT_EQ(stars.Minute(), 1439);
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
