#include "spots/classic_row.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "row_maker.h"

namespace spots {
namespace {

Spot Usual() { return UsualSpot(); }

std::string RowText(const Spot& spot, const RowShape& shape = {}) {
  std::string row = "what stood here before";
  ClassicRow(spot, ArPcScreenSetup(shape), {}, row);
  return row;
}

std::string Frequency(double kHz) {
  std::string text;
  AppendFrequency(kHz, text);
  return text;
}

TEST(ClassicRow, EmptySpotMakesARowAllTheSame) {
  EXPECT_EQ(RowText({}), "DX de :              0.0" + std::string(46, ' ') + "Z");
}

TEST(ClassicRow, FieldsStandInTheirColumns) {
  EXPECT_EQ(RowText(Usual()),
            "DX de DL1ABC:    14025.0  3Y0J         CW up 2                        2116Z");
}

TEST(ClassicRow, MarkOfMembersStandsBeforeTheCall) {
  Spot spot = Usual();
  spot.LotwMark = "+";
  EXPECT_EQ(core::Mid(RowText(spot), 25, 6), " +3Y0J");
}

TEST(ClassicRow, TimeEndsAtColumn75) {
  EXPECT_EQ(RowText(Usual()).size(), 75u);
  EXPECT_EQ(core::Mid(RowText(Usual()), 71), "2116Z");
}

TEST(ClassicRow, SpotterAndFrequencyTakeTheSameRoomAsLongAsTheyFit) {
  for (const char* spotter : {"G3X", "EA8/DF4UE", "EA8/DF4UE-"}) {
    Spot spot = Usual();
    spot.Spotter = spotter;
    EXPECT_EQ(core::Mid(RowText(spot), 18, 13), "14025.0  3Y0J") << spotter;
  }
}

TEST(ClassicRow, SpotterThatLeavesNoRoomShiftsWhatFollows) {
  Spot spot = Usual();
  spot.Spotter = "EA8/DF4UE-#";
  EXPECT_EQ(RowText(spot),
            "DX de EA8/DF4UE-#:14025.0  3Y0J         CW up 2                        2116Z");
}

TEST(ClassicRow, LongCallIsNotCutAndShiftsWhatFollows) {
  Spot spot = Usual();
  spot.DxCall = "K6NNN/QRPP/MM";
  EXPECT_EQ(RowText(spot),
            "DX de DL1ABC:    14025.0  K6NNN/QRPP/MM CW up 2                        2116Z");
}

TEST(ClassicRow, CommentFillsItsFieldAndIsCutThere) {
  Spot spot = Usual();
  spot.Comment = "1234567890123456789012345678901";
  EXPECT_EQ(core::Mid(RowText(spot), 40), "12345678901234567890123456789012116Z");
  spot.Comment += "2";
  EXPECT_EQ(core::Mid(RowText(spot), 40), "12345678901234567890123456789012116Z");
}

TEST(ClassicRow, FrequencyHasOneDecimalRoundedHalfUp) {
  EXPECT_EQ(Frequency(0), "0.0");
  EXPECT_EQ(Frequency(14025), "14025.0");
  EXPECT_EQ(Frequency(14025.3), "14025.3");
  EXPECT_EQ(Frequency(14025.25), "14025.3");
  EXPECT_EQ(Frequency(1296117.1), "1296117.1");
  EXPECT_EQ(Frequency(-1.5), "-1.5");
  EXPECT_EQ(Frequency(1e300).size(), 303u);
}

TEST(StarsTest, AreAsManyAsTheWidth) { EXPECT_EQ(Stars(5), "*****"); }

TEST(LookUpCallsTest, OfARowTakesTheWholeCalls) {
  Spot spot = Usual();
  spot.DxCall = "K6NNN/QRPP/MM";
  spot.Spotter = "EA8/DF4UE-#";
  spot.Freq = 1296117.1;
  for (const RowShape& shape : {RowShape{}, Expanded({})}) {
    const TableRow row = RowOf(spot, shape);
    EXPECT_EQ(LookUpCalls(row).call, "K6NNN/QRPP/MM");
    EXPECT_EQ(LookUpCalls(row).spotter, "EA8/DF4UE-#");
    EXPECT_EQ(LookUpCalls(row).frequency, "1296117.1");
  }
}

TEST(LookUpCallsTest, OfARowWithoutASpotIsEmpty) {
  EXPECT_EQ(LookUpCalls(TableRow(Stars(79), TableRow::Kind::Stars, 0)).call, "");
}

TEST(SkimmerSpot, IsToldByAWholeCall) {
  EXPECT_FALSE(IsSkimmer({}));
  EXPECT_FALSE(IsSkimmer(Usual()));
  Spot spot = Usual();
  spot.Spotter = "EA8/DF4UE-#";
  EXPECT_TRUE(IsSkimmer(spot));
  EXPECT_EQ(RowOf(spot, Expanded({})).Text().find("-#"), std::string::npos);
  spot.Spotter = "DL1ABC#";
  EXPECT_FALSE(IsSkimmer(spot));
  spot.Comment = "DL1ABC-#";
  EXPECT_FALSE(IsSkimmer(spot));
}

// The words on both stations.

TEST(ClassicRow, OneWordOnTheDxStandsABlankBeforeTheTime) {
  Spot spot = Usual();
  spot.DxState = "NY";
  spot.DxCty = "K";
  spot.DxGrid = "FN20";
  const auto end = [&](const ShownColumns& shown) {
    return RowText(spot, Classic(shown)).substr(64);
  };
  EXPECT_EQ(end({.DxState = true}), "   NY 2116Z");
  EXPECT_EQ(end({.DxCty = true, .DxState = true}), "   NY 2116Z");
  EXPECT_EQ(end({.DxCty = true, .DxGrid = true}), "    K 2116Z");
  EXPECT_EQ(end({.DxGrid = true}), " FN20 2116Z");
  spot.DxState = "  ";
  EXPECT_EQ(end({.DxCty = true, .DxState = true}), "    K 2116Z");
  EXPECT_EQ(end({.DxState = true, .DxGrid = true}), " FN20 2116Z");
}

TEST(ClassicRow, CommentGivesWayToTheWord) {
  Spot spot = Usual();
  spot.Comment = std::string(31, 'c');
  spot.DxCty = "3Y";
  EXPECT_EQ(RowText(spot, Classic({.DxCty = true})).substr(39), std::string(27, 'c') + " 3Y 2116Z");
}

TEST(ClassicRow, WordThatHasNoRoomIsLeftOut) {
  Spot spot = Usual();
  spot.DxCty = "3Y";
  EXPECT_EQ(RowText(spot, Classic({.DxCty = true}, 48)), RowText(spot, Classic({}, 48)));
}

TEST(ClassicRow, OneWordOnTheSpotterStandsBehindTheTime) {
  Spot spot = Usual();
  spot.OrigCty = "DL";
  spot.OrigState = "MI";
  spot.OrigCq = " 4";
  spot.OrigItu = " 8";
  spot.OrigGrid = "FN20";
  const auto tail = [&](const ShownColumns& shown) {
    const std::string row = RowText(spot, Classic(shown));
    return row.substr(row.find("2116Z"));
  };
  EXPECT_EQ(tail({}), "2116Z");
  EXPECT_EQ(tail({.OrigCty = true}), "2116Z   DL");
  EXPECT_EQ(tail({.OrigCty = true, .OrigState = true}), "2116Z   MI");
  EXPECT_EQ(tail({.OrigState = true, .OrigCq = true}), "2116Z MI");
  EXPECT_EQ(tail({.OrigCq = true, .OrigItu = true}), "2116Z  4");
  EXPECT_EQ(tail({.OrigItu = true, .OrigGrid = true}), "2116Z  8");
  EXPECT_EQ(tail({.OrigGrid = true}), "2116Z FN20");
  spot.OrigState = "";
  EXPECT_EQ(tail({.OrigCty = true, .OrigState = true}), "2116Z   DL");
  spot.OrigCty = "two words";
  EXPECT_EQ(tail({.OrigCty = true}), "2116Ztwo w");
}

TEST(ClassicRow, DayStandsBeforeTheWordOnTheSpotter) {
  Spot spot = Usual();
  spot.OrigGrid = "FN20";
  EXPECT_TRUE(RowText(spot, Classic({.OrigGrid = true, .Date = true})).ends_with("2116Z 20 FN20"));
  spot.SpotDate = "1-Mar-2026";
  EXPECT_TRUE(RowText(spot, Classic({.Date = true})).ends_with("2116Z  1"));
  spot.SpotDate = "";
  EXPECT_TRUE(RowText(spot, Classic({.Date = true})).ends_with("2116Z"));
}

TEST(ClassicRow, WideCommentsKeepTheirLengthAndTheirWord) {
  Spot spot = Usual();
  spot.DxCty = "3Y";
  const ShownColumns wide{.Wide = true, .DxCty = true};
  EXPECT_EQ(RowText(spot, Classic(wide)), RowText(spot, Classic({.DxCty = true})));
  spot.Comment = std::string(60, 'c');
  EXPECT_EQ(RowText(spot, Classic(wide)).substr(39), spot.Comment + " 3Y 2116Z");
}

TEST(ClassicRow, MarkCanBeLeftOut) {
  Spot spot = Usual();
  spot.LotwMark = "+";
  std::string row;
  ClassicRow(spot, ArPcScreenSetup({}), {.withoutMark = true}, row);
  EXPECT_EQ(row, RowText(Usual()));
}

}  // namespace
}  // namespace spots
