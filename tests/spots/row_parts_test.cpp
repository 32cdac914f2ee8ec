#include "spots/row_parts.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>

#include "row_maker.h"

namespace spots {
namespace {

// What is drawn of a row, by its place.
std::map<int, std::string> DrawnOf(const TableRow& row) {
  std::map<int, std::string> fields;
  for (const DrawnField& field : Drawn(row)) fields[field.place] += field.text;
  return fields;
}

TEST(RowPartsTest, AreTheFields) {
  Spot spot = UsualSpot();
  spot.LotwMark = "+";
  const TableRow row = RowOf(spot);
  const RowParts parts = PartsOf(row);
  EXPECT_EQ(parts.head, "DX de ");
  EXPECT_EQ(parts.spotter, "DL1ABC");
  EXPECT_EQ(parts.frequency, "14025.0");
  EXPECT_EQ(parts.mark, "+");
  EXPECT_EQ(parts.call, "3Y0J");
  EXPECT_EQ(parts.comment, "CW up 2");
  EXPECT_EQ(parts.time, "2116Z");
  EXPECT_EQ(parts.tail, "");
}

TEST(RowPartsTest, OfAnExpandedRowAreTheFieldsToo) {
  Spot spot = UsualSpot();
  spot.LotwMark = "+";
  spot.DxGrid = "JD15";
  const TableRow row = RowOf(spot, Expanded({.DxGrid = true, .Comments = true}));
  const RowParts parts = PartsOf(row);
  EXPECT_EQ(parts.spotter, "DL1ABC");
  EXPECT_EQ(parts.frequency, "14025.0");
  EXPECT_EQ(parts.mark, "+");
  EXPECT_EQ(parts.call, "3Y0J");
  EXPECT_EQ(parts.comment, "CW up 2");
  EXPECT_EQ(parts.time, "2116Z");
  EXPECT_EQ(parts.tail, "JD15");
}

TEST(RowPartsTest, WhatIsLongIsWhole) {
  Spot spot = UsualSpot();
  spot.Spotter = "EA8/DL1ABCDEF-12-#";
  spot.DxCall = "VERYLONG/CALL/MM";
  spot.Comment = std::string(60, 'c');
  const TableRow row = RowOf(spot);
  const RowParts parts = PartsOf(row);
  EXPECT_EQ(parts.spotter, spot.Spotter);
  EXPECT_EQ(parts.frequency, "14025.0");
  EXPECT_EQ(parts.call, spot.DxCall);
  EXPECT_EQ(parts.comment, std::string(31, 'c'));
  EXPECT_EQ(parts.time, "2116Z");
}

TEST(RowPartsTest, TheTailIsWhatStandsBehindTheTime) {
  Spot spot = UsualSpot();
  spot.OrigCty = "DL";
  const TableRow row = RowOf(spot, Classic({.OrigCty = true}));
  EXPECT_EQ(PartsOf(row).tail, "   DL");
}

TEST(RowPartsTest, ARowWithoutASpotIsAllHead) {
  for (const char* text : {"", "*****************", "DX de DL1ABC: 14025.0 no such thing"}) {
    const TableRow row(text, TableRow::Kind::Other, 0);
    EXPECT_EQ(PartsOf(row).head, text);
    EXPECT_EQ(PartsOf(row).call, "");
  }
}

TEST(DrawnRowTest, FieldsStandWhereTheRowHasThem) {
  EXPECT_EQ(DrawnOf(RowOf(UsualSpot())), (std::map<int, std::string>{{0, "DX de "},
                                                                     {6, "DL1ABC"},
                                                                     {17, "14025.0"},
                                                                     {25, " "},
                                                                     {26, "3Y0J"},
                                                                     {39, "CW up 2"},
                                                                     {70, "2116Z"}}));
}

TEST(DrawnRowTest, LongCallsAreCutAndShiftNothing) {
  Spot spot = UsualSpot();
  spot.Spotter = "EA8/DL1ABCDEF-12-#";
  spot.DxCall = "VERYLONG/CALL/MM";
  spot.OrigCty = "DL";
  const RowShape shape = Classic({.OrigCty = true});
  EXPECT_EQ(DrawnOf(RowOf(spot, shape)), (std::map<int, std::string>{{0, "DX de "},
                                                                     {6, "EA8/DL1ABC"},
                                                                     {17, "14025.0"},
                                                                     {25, " "},
                                                                     {26, "VERYLONG/CAL"},
                                                                     {39, "CW up 2"},
                                                                     {65, "2116Z"},
                                                                     {70, "   DL"}}));
}

TEST(DrawnRowTest, WideCommentMovesTheTime) {
  Spot spot = UsualSpot();
  spot.DxCall = "VERYLONG/CALL/MM";
  spot.Comment = std::string(60, 'c');
  const auto fields = DrawnOf(RowOf(spot, Classic({.Wide = true})));
  EXPECT_EQ(fields.at(39), spot.Comment);
  EXPECT_EQ(fields.at(100), "2116Z");
}

TEST(DrawnRowTest, ExpandedFieldsStandAtTheirColumns) {
  Spot spot = UsualSpot();
  spot.Spotter = "EA8/DF4UE-#";
  spot.DxCall = "K6NNN/QRPP/MM";
  spot.DxGrid = "JD15";
  EXPECT_EQ(DrawnOf(RowOf(spot, Expanded({.DxGrid = true, .Comments = true}))),
            (std::map<int, std::string>{{0, "EA8/DF4UE-"},
                                        {12, "    14025.0"},
                                        {23, " "},
                                        {24, "2116Z"},
                                        {30, "K6NNN/QRPP/M"},
                                        {42, "JD15"},
                                        {48, "CW up 2"}}));
}

TEST(DrawnRowTest, FrequencyThatFillsTheHeadIsCut) {
  Spot spot = UsualSpot();
  spot.Freq = 1e300;
  const auto fields = DrawnOf(RowOf(spot));
  EXPECT_EQ(fields.at(6).size(), 18u);
  EXPECT_EQ(fields.at(26), "3Y0J");
}

TEST(DrawnRowTest, RowKeepsTheShapeItWasMadeIn) {
  Spot spot = UsualSpot();
  spot.OrigGrid = "FN20";
  const TableRow row = RowOf(spot, Classic({.OrigGrid = true, .Date = true}, 100));
  const RowLayout layout = ArPcScreenSetup(row.Shape());
  EXPECT_EQ(FieldOf(row, layout, Column::Time), "2116Z");
  EXPECT_EQ(FieldOf(row, layout, Column::Day), "20");
  EXPECT_EQ(FieldOf(row, layout, Column::OrigGrid), "FN20");
  EXPECT_EQ(FieldOf(row, layout, Column::Comment), "CW up 2");
  EXPECT_EQ(FieldOf(row, layout, Column::Node), "");
}

TEST(DrawnRowTest, WordsOfAShiftedRowAreFound) {
  Spot spot = UsualSpot();
  spot.DxCall = "VERYLONG/CALL/MM";
  spot.DxCty = "3Y";
  spot.OrigCq = " 4";
  const TableRow row = RowOf(spot, Classic({.DxCty = true, .OrigCq = true}));
  const RowLayout layout = ArPcScreenSetup(row.Shape());
  EXPECT_EQ(FieldOf(row, layout, Column::DxCty), "3Y");
  EXPECT_EQ(FieldOf(row, layout, Column::OrigCq), "4");
  EXPECT_EQ(FieldOf(row, layout, Column::Freq), "14025.0");
  EXPECT_EQ(FieldOf(row, layout, Column::DxCall), "VERYLONG/CALL/MM");
}

TEST(RowPartsTest, NodeEndsWhereAWideFrequencyReachesIntoItsColumns) {
  Spot spot = UsualSpot();
  spot.Node = "GB7DJK";
  spot.Freq = 10368100;
  const TableRow row = RowOf(spot, Expanded({.Node = true}));
  EXPECT_EQ(FieldOf(row, ArPcScreenSetup(row.Shape()), Column::Node), "GB7DJK");
}

TEST(RowPartsTest, WhateverTheBytesTheyLieWithinTheRow) {
  std::mt19937 random(7);
  const std::string letters = "DX de :19.0Z \xC3\xA9*";
  const auto noise = [&] {
    std::string text;
    for (auto length = random() % 90; length > 0; --length)
      text += letters[random() % letters.size()];
    return text;
  };
  for (int round = 0; round < 20'000; ++round) {
    const std::string call = noise();
    const std::string spotter = noise();
    const TableRow row(noise(), TableRow::Kind::Other, 6,
                       {.DxCall = call,
                        .Spotter = spotter,
                        .shape = static_cast<std::uint32_t>(random()),
                        .commentField = random() % 100});
    const char* begin = row.Text().data();
    const char* end = row.Spotter().data() + row.Spotter().size();
    for (const DrawnField& field : Drawn(row)) {
      ASSERT_GE(field.text.data(), begin);
      ASSERT_LE(field.text.data() + field.text.size(), end);
    }
    const RowParts parts = PartsOf(row);
    for (const std::string_view part : {parts.head, parts.spotter, parts.frequency, parts.mark,
                                        parts.call, parts.comment, parts.time, parts.tail}) {
      if (part.empty()) continue;
      ASSERT_GE(part.data(), begin);
      ASSERT_LE(part.data() + part.size(), end);
    }
  }
}

}  // namespace
}  // namespace spots
