#include "spots/row_parts.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "spots/classic_row.h"

namespace spots {
namespace {

Spot UsualSpot() {
  Spot spot;
  spot.Spotter = "DL1ABC";
  spot.Freq = 14025;
  spot.DxCall = "3Y0J";
  spot.LotwMark = "+";
  spot.Comment = "CW up 2";
  spot.SpotTime = "2210";
  return spot;
}

std::string RowOf(const Spot& spot) {
  std::string row;
  ClassicRow(spot, row);
  return row;
}

TEST(RowPartsTest, AreTheFieldsAndTellTheirColumns) {
  const std::string row = RowOf(UsualSpot());
  const RowParts parts = PartsOf(row);
  EXPECT_EQ(parts.head, "DX de ");
  EXPECT_EQ(parts.spotter, "DL1ABC");
  EXPECT_EQ(parts.frequency, "14025.0");
  EXPECT_EQ(parts.mark, "+");
  EXPECT_EQ(parts.call, "3Y0J");
  EXPECT_EQ(parts.comment, "CW up 2");
  EXPECT_EQ(parts.time, "2210Z");
  EXPECT_EQ(parts.tail, "");
  EXPECT_EQ(parts.call.data() - row.data(), 26);
  EXPECT_EQ(parts.comment.data() - row.data(), 39);
  EXPECT_EQ(parts.time.data() - row.data(), 70);
}

TEST(RowPartsTest, WhatIsLongShiftsTheRest) {
  Spot spot = UsualSpot();
  spot.Spotter = "EA8/DL1ABCDEF-12-#";
  spot.DxCall = "VERYLONG/CALL/MM";
  spot.Comment = std::string(60, 'c');
  const std::string row = RowOf(spot);
  const RowParts parts = PartsOf(row);
  EXPECT_EQ(parts.spotter, spot.Spotter);
  EXPECT_EQ(parts.frequency, "14025.0");
  EXPECT_EQ(parts.call, spot.DxCall);
  EXPECT_EQ(parts.comment, std::string(31, 'c'));
  EXPECT_EQ(parts.time, "2210Z");
}

TEST(RowPartsTest, TheTailIsWhatStandsBehindTheTime) {
  EXPECT_EQ(PartsOf(RowOf(UsualSpot()) + " EU 14").tail, " EU 14");
}

TEST(RowPartsTest, ARowOfAnotherKindIsAllHead) {
  for (const char* row : {"", "*****************", "To ALL de DL1ABC no such thing at all"}) {
    const RowParts parts = PartsOf(row);
    EXPECT_EQ(parts.head, row);
    EXPECT_EQ(parts.call, "");
  }
}

TEST(RowPartsTest, WhateverTheBytesTheyLieWithinTheRow) {
  std::mt19937 random(7);
  const std::string letters = "DX de :19.0Z \xC3\xA9*";
  for (int round = 0; round < 20'000; ++round) {
    std::string row;
    for (auto length = random() % 90; length > 0; --length)
      row += letters[random() % letters.size()];
    const RowParts parts = PartsOf(row);
    for (const std::string_view part : {parts.head, parts.spotter, parts.frequency, parts.mark,
                                        parts.call, parts.comment, parts.time, parts.tail}) {
      if (part.empty()) continue;
      ASSERT_GE(part.data(), row.data());
      ASSERT_LE(part.data() + part.size(), row.data() + row.size());
    }
  }
}

}  // namespace
}  // namespace spots
