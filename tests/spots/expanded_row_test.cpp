#include "spots/expanded_row.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "row_maker.h"
#include "session/memory_meter.h"

namespace spots {
namespace {

std::string Text(const Spot& spot, const ShownColumns& shown, const RowExtras& extras = {}) {
  std::string row = "what stood here before";
  ExpandedRow(spot, ArPcScreenSetup(Expanded(shown)), extras, row);
  return row;
}

// What a row shows in a column, with its blanks.
std::string Cell(const std::string& row, const ShownColumns& shown, Column column) {
  const RowLayout layout = ArPcScreenSetup(Expanded(shown));
  return std::string(core::Mid(row, layout.Start(column), layout.Width(column)));
}

TEST(ExpandedRow, FieldsStandInTheirColumns) {
  EXPECT_EQ(Text(UsualSpot(), {}), "DL1ABC          14025.0 2116Z 3Y0J");
}

TEST(ExpandedRow, MarkOfMembersStandsBehindTheFrequencyAndBeforeTheCountry) {
  Spot spot = UsualSpot();
  spot.LotwMark = "+";
  spot.DxCty = "3Y";
  EXPECT_EQ(Text(spot, {.DxCty = true}), "DL1ABC          14025.0+2116Z 3Y0J          +3Y");
}

TEST(ExpandedRow, FieldsAreCutToTheirColumnsAndShiftNothing) {
  Spot spot = UsualSpot();
  spot.Spotter = "EA8/DF4UE-#";
  spot.DxCall = "K6NNN/QRPP/MM";
  EXPECT_EQ(Text(spot, {}), "EA8/DF4UE-      14025.0 2116Z K6NNN/QRPP/M");
}

TEST(ExpandedRow, LongCountryReachesToTheLeft) {
  Spot spot = UsualSpot();
  spot.DxCty = "VP8/G-XYZ";
  EXPECT_EQ(Text(spot, {.DxCty = true}), "DL1ABC          14025.0 2116Z 3Y0J    VP8/G-XYZ");
}

TEST(ExpandedRow, CountryWithItsMarkTakesSeventeenColumnsAtMost) {
  Spot spot = UsualSpot();
  spot.LotwMark = "=";
  spot.DxCty = "ABCDEFGHIJKLMNOPQRSTUVW";
  EXPECT_EQ(Text(spot, {.DxCty = true}), "DL1ABC          14025.0=2116Z =ABCDEFGHIJKLMNOP");
}

TEST(ExpandedRow, CheckedFieldsAreAlignedAsTheirColumnsAre) {
  Spot spot = UsualSpot();
  spot.Node = "GB7DXC";
  spot.OrigCty = "DL";
  spot.OrigState = "MI";
  spot.OrigCq = " 4";
  spot.OrigItu = "*8";
  spot.OrigGrid = "FN20";
  spot.DxState = "NY";
  spot.DxGrid = "JN58";
  spot.SpotterIp = "203.113.151.123";
  const ShownColumns shown = Unpacked((1U << 20) - 1).shown;
  const std::string row = Text(spot, shown, {.bearing = "45", .distance = "812"});
  EXPECT_EQ(Cell(row, shown, Column::Node), "GB7DXC      ");
  EXPECT_EQ(Cell(row, shown, Column::OrigCty), "   DL");
  EXPECT_EQ(Cell(row, shown, Column::OrigState), "MI");
  EXPECT_EQ(Cell(row, shown, Column::OrigCq), " 4");
  EXPECT_EQ(Cell(row, shown, Column::OrigItu), "*8");
  EXPECT_EQ(Cell(row, shown, Column::OrigGrid), "FN20");
  EXPECT_EQ(Cell(row, shown, Column::DxState), "NY");
  EXPECT_EQ(Cell(row, shown, Column::DxGrid), "JN58");
  EXPECT_EQ(Cell(row, shown, Column::SpotterIp), "203.113.151.123");
  EXPECT_EQ(Cell(row, shown, Column::Bearing), " 45");
  EXPECT_EQ(Cell(row, shown, Column::Distance), "  812");
  EXPECT_EQ(Cell(row, shown, Column::Day), "20");
}

TEST(ExpandedRow, DayOfOneDigitIsRightAligned) {
  Spot spot = UsualSpot();
  spot.SpotDate = "1-Mar-2026";
  const ShownColumns shown{.Comments = true, .Date = true};
  EXPECT_EQ(Cell(Text(spot, shown), shown, Column::Day), " 1");
}

TEST(ExpandedRow, FrequencyWinsOverANodeThatIsTooLong) {
  Spot spot = UsualSpot();
  spot.Node = "ABCDEFGHIJKLMN";
  spot.Freq = 10489500.1;
  const ShownColumns shown{.Node = true};
  EXPECT_EQ(Cell(Text(spot, shown), shown, Column::Freq), " 10489500.1");
}

TEST(ExpandedRow, EndsWithTheTrimmedComment) {
  Spot spot = UsualSpot();
  spot.Comment = "  " + std::string(300, 'c') + "  ";
  const std::string row = Text(spot, {.Comments = true});
  EXPECT_EQ(row.substr(43), std::string(300, 'c'));
}

TEST(ExpandedRow, CountryNameStandsBeforeTheComment) {
  const RowExtras extras{.countryName = "Bouvet"};
  EXPECT_EQ(Text(UsualSpot(), {.Comments = true, .CountryName = true}, extras).substr(43),
            "Bouvet: CW up 2");
}

TEST(ExpandedRow, CountryNameTakesTheColumnWhereCommentsAreOff) {
  const RowExtras extras{.countryName = "Bouvet"};
  EXPECT_EQ(Text(UsualSpot(), {.CountryName = true}, extras).substr(43), "Bouvet");
}

TEST(ExpandedRow, UnknownCountryLeavesTheCommentAlone) {
  EXPECT_EQ(Text(UsualSpot(), {.Comments = true, .CountryName = true}).substr(43), "CW up 2");
}

TEST(ExpandedRow, AnySpotMakesARow) {
  Spot spot;
  spot.Freq = 1e300;
  spot.LotwMark = "";
  spot.SpotDate = "-";
  const ShownColumns shown = Unpacked((1U << 20) - 1).shown;
  EXPECT_EQ(Cell(Text(spot, shown), shown, Column::Freq).size(), 11u);
}

TEST(Rows, OfUsualSpotsAllocateNothing) {
  Spot spot = UsualSpot();
  spot.OrigCty = "DL";
  std::string row;
  const RowLayout expanded = ArPcScreenSetup(Expanded(Unpacked((1U << 20) - 1).shown));
  const RowLayout classic = ArPcScreenSetup(Classic({.OrigCty = true, .Date = true}));
  ExpandedRow(spot, expanded, {}, row);
  const auto before = MemoryMeter::Allocated();
  for (int i = 0; i < 10; ++i) {
    ExpandedRow(spot, expanded, {}, row);
    ClassicRow(spot, classic, {}, row);
  }
  EXPECT_EQ(MemoryMeter::Allocated(), before);
}

}  // namespace
}  // namespace spots
