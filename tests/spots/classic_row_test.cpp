#include "spots/classic_row.h"

#include <gtest/gtest.h>

#include "core/text.h"

namespace spots {
namespace {

Spot Usual() {
  Spot spot;
  spot.Freq = 14025;
  spot.DxCall = "3Y0J";
  spot.SpotTime = "2116";
  spot.Comment = "CW up 2";
  spot.Spotter = "DL1ABC";
  spot.LotwMark = " ";
  return spot;
}

std::string RowOf(const Spot& spot) {
  std::string row = "what stood here before";
  ClassicRow(spot, row);
  return row;
}

std::string Frequency(double kHz) {
  std::string text;
  AppendFrequency(kHz, text);
  return text;
}

TEST(ClassicRow, EmptySpotMakesARowAllTheSame) {
  EXPECT_EQ(RowOf({}), "DX de :              0.0" + std::string(45, ' ') + "Z");
}

TEST(ClassicRow, FieldsStandInTheirColumns) {
  EXPECT_EQ(RowOf(Usual()),
            "DX de DL1ABC:    14025.0  3Y0J         CW up 2                        2116Z");
}

TEST(ClassicRow, MarkOfMembersStandsBeforeTheCall) {
  Spot spot = Usual();
  spot.LotwMark = "+";
  EXPECT_EQ(core::Mid(RowOf(spot), 25, 6), " +3Y0J");
}

TEST(ClassicRow, TimeEndsAtColumn75) {
  EXPECT_EQ(RowOf(Usual()).size(), 75u);
  EXPECT_EQ(core::Mid(RowOf(Usual()), 71), "2116Z");
}

TEST(ClassicRow, SpotterAndFrequencyTakeTheSameRoomAsLongAsTheyFit) {
  for (const char* spotter : {"G3X", "EA8/DF4UE", "EA8/DF4UE-"}) {
    Spot spot = Usual();
    spot.Spotter = spotter;
    EXPECT_EQ(core::Mid(RowOf(spot), 18, 13), "14025.0  3Y0J") << spotter;
  }
}

TEST(ClassicRow, SpotterThatLeavesNoRoomShiftsWhatFollows) {
  Spot spot = Usual();
  spot.Spotter = "EA8/DF4UE-#";
  EXPECT_EQ(RowOf(spot),
            "DX de EA8/DF4UE-#:14025.0  3Y0J         CW up 2                        2116Z");
}

TEST(ClassicRow, LongCallIsNotCutAndShiftsWhatFollows) {
  Spot spot = Usual();
  spot.DxCall = "K6NNN/QRPP/MM";
  EXPECT_EQ(RowOf(spot),
            "DX de DL1ABC:    14025.0  K6NNN/QRPP/MM CW up 2                        2116Z");
}

TEST(ClassicRow, CommentFillsItsFieldAndIsCutThere) {
  Spot spot = Usual();
  spot.Comment = "1234567890123456789012345678901";
  EXPECT_EQ(core::Mid(RowOf(spot), 40), "12345678901234567890123456789012116Z");
  spot.Comment += "2";
  EXPECT_EQ(core::Mid(RowOf(spot), 40), "12345678901234567890123456789012116Z");
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

TEST(LookUpCallsTest, RowWithoutItsColumnsHasNothing) {
  for (const std::string_view row : {"", "DX de ", "DX de :", "DX de DL1ABC", "a:b:c:d"}) {
    const RowCalls calls = LookUpCalls(row);
    EXPECT_EQ(calls.call, "") << row;
    EXPECT_EQ(calls.frequency, "") << row;
  }
}

TEST(LookUpCallsTest, TakesTheColumnsOfCallSpotterAndFrequency) {
  const std::string row = RowOf(Usual());
  const RowCalls calls = LookUpCalls(row);
  EXPECT_EQ(calls.call, "3Y0J        ");
  EXPECT_EQ(calls.spotter, "DL1ABC");
  EXPECT_EQ(calls.frequency, "14025.0");
}

TEST(LookUpCallsTest, TakesTheFirstTwelveCharactersOfALongerCall) {
  Spot spot = Usual();
  spot.DxCall = "K6NNN/QRPP/MM";
  const std::string row = RowOf(spot);
  EXPECT_EQ(LookUpCalls(row).call, "K6NNN/QRPP/M");
}

TEST(LookUpCallsTest, FollowsAShiftedRow) {
  Spot spot = Usual();
  spot.Spotter = "EA8/DF4UE-#";
  spot.Freq = 1296117.1;
  const std::string row = RowOf(spot);
  const RowCalls calls = LookUpCalls(row);
  EXPECT_EQ(calls.call, "3Y0J        ");
  EXPECT_EQ(calls.spotter, "EA8/DF4UE-#");
  EXPECT_EQ(calls.frequency, "1296117.1");
}

TEST(LookUpCallsTest, CallOfASeparatorIsAsterisks) {
  const std::string row = Stars(kTableWidth);
  EXPECT_EQ(LookUpCalls(row).call, "************");
  EXPECT_EQ(LookUpCalls(row).spotter, "");
}

TEST(SkimmerRow, HoldsTheMarkOfASkimmerAnywhere) {
  EXPECT_FALSE(IsSkimmerRow(""));
  EXPECT_FALSE(IsSkimmerRow(RowOf(Usual())));
  Spot spot = Usual();
  spot.Spotter = "DL1ABC-#";
  EXPECT_TRUE(IsSkimmerRow(RowOf(spot)));
  spot.Spotter = "DL1ABC#";
  EXPECT_FALSE(IsSkimmerRow(RowOf(spot)));
}

}  // namespace
}  // namespace spots
