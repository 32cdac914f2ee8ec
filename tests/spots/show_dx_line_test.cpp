#include "spots/show_dx_line.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace spots {
namespace {

using session::NodeKind;

// A row of a list, in the columns of most nodes.
struct ListCase {
  std::string kHz = " 14025.0";
  std::string call = "3Y0J       ";
  std::string date = "20-Nov-2026";
  std::string time = "2116Z";
  std::string comment = "CW up 2                     ";
  std::string spotter = "<DL1ABC>";

  std::string Text() const {
    return kHz + "  " + call + " " + date + " " + time + " " + comment + spotter;
  }
};

const WordFacts kListWords = {.CountriesLoaded = true,
                              .isPrefix = [](std::string_view word) { return word == "DL"; }};

std::optional<Spot> ParseRow(const std::string& row, const NodeFacts& node = {},
                             const WordFacts& words = {}) {
  Spot spot;
  return ParseShDxLine(row, node, words, spot) ? std::optional(spot) : std::nullopt;
}

Spot ReadRow(const ListCase& row, const NodeFacts& node = {}, const WordFacts& words = {}) {
  const auto spot = ParseRow(row.Text(), node, words);
  EXPECT_TRUE(spot) << row.Text();
  return spot.value_or(Spot());
}

TEST(ShDxRow, IsToldByFrequencyTimeAndYear) {
  EXPECT_TRUE(IsShowDxRow(ListCase{}.Text()));
  EXPECT_TRUE(IsShowDxRow(ListCase{.kHz = "  1800.0"}.Text()));
  EXPECT_TRUE(IsShowDxRow(ListCase{.date = " 1-Mar-2026"}.Text()));
  EXPECT_TRUE(IsShowDxRow(ListCase{.date = "20-Nov-2003"}.Text()));
  EXPECT_TRUE(IsShowDxRow(ListCase{.date = "20-Nov-2049"}.Text()));
}

TEST(ShDxRow, IsNothingElse) {
  EXPECT_FALSE(IsShowDxRow(""));
  EXPECT_FALSE(IsShowDxRow("14025"));
  EXPECT_FALSE(IsShowDxRow("14025Z"));
  EXPECT_FALSE(IsShowDxRow(ListCase{.kHz = "  1799.9"}.Text()));
  EXPECT_FALSE(IsShowDxRow(ListCase{.kHz = "     QRT"}.Text()));
  EXPECT_FALSE(IsShowDxRow(ListCase{.date = "20-Nov-2002"}.Text()));
  EXPECT_FALSE(IsShowDxRow(ListCase{.date = "20-Nov-2050"}.Text()));
  EXPECT_FALSE(IsShowDxRow(ListCase{.time = "2116 "}.Text()));
  EXPECT_FALSE(IsShowDxRow("DX de DL1ABC:    14025.0  3Y0J         CW up 2          2116Z"));
}

TEST(ShDxRow, ShowsItsTimeFromThe35thColumnOn) {
  EXPECT_TRUE(IsShowDxRow("14025.0  3Y0J     20-Nov-2026 2116Z CW up 2"));
  EXPECT_FALSE(IsShowDxRow("14025.0  3Y0J    20-Nov-2026 2116Z CW up 2"));
}

TEST(ShDxLineMalformed, WithoutAYearOrABracketItIsNoSpot) {
  for (const std::string& row :
       {std::string(), ListCase{.spotter = ""}.Text(), ListCase{.date = "20-Nov-1999"}.Text(),
        std::string(80, ' '), std::string(28, ' ') + "-2", std::string("<")})
    EXPECT_FALSE(ParseRow(row)) << row;
}

TEST(ShDxLineMalformed, FarTooLongIsNoSpot) {
  EXPECT_FALSE(ParseRow(ListCase{.comment = std::string(1'000'000, 'x')}.Text()));
}

TEST(ShDxLineMalformed, OpenBracketAtTheEndIsAnEmptySpotter) {
  EXPECT_EQ(ReadRow({.spotter = "<"}).Spotter, "");
}

TEST(ShDxLine, FieldsOfTheRow) {
  const Spot spot = ReadRow({});
  EXPECT_EQ(spot.Freq, 14025);
  EXPECT_EQ(spot.DxCall, "3Y0J");
  EXPECT_EQ(spot.SpotDate, "20-Nov-2026");
  EXPECT_EQ(spot.SpotTime, "2116");
  EXPECT_EQ(spot.SpotHHMM, 2116);
  EXPECT_EQ(spot.Comment, "CW up 2");
  EXPECT_EQ(spot.Spotter, "DL1ABC");
  EXPECT_EQ(spot.DxCty, "");
}

TEST(ShDxLine, FrequencyIsRounded) { EXPECT_EQ(ReadRow({.kHz = "14025.25"}).Freq, 14025.3); }

TEST(ShDxLine, LongFrequencyOrCallShiftsTheRow) {
  EXPECT_EQ(ReadRow({.kHz = "1296119.3", .call = "9K2HN     "}).DxCall, "9K2HN");
  const Spot spot = ReadRow({.call = "K6NNN/QRPP/MM"});
  EXPECT_EQ(spot.DxCall, "K6NNN/QRPP/MM");
  EXPECT_EQ(spot.SpotTime, "2116");
}

TEST(ShDxLine, DayMayHaveOneDigit) {
  const Spot spot = ReadRow({.date = " 1-Mar-2026"});
  EXPECT_EQ(spot.SpotDate, " 1-Mar-2026");
  EXPECT_EQ(spot.DxCall, "3Y0J");
  EXPECT_EQ(spot.SpotTime, "2116");
}

TEST(ShDxLine, CallBeginsAColumnEarlierOnWinCluster) {
  const ListCase row = {.kHz = "14025.0", .call = "3Y0J        "};
  EXPECT_EQ(ReadRow(row, {.kind = NodeKind::WinCluster}).DxCall, "3Y0J");
  EXPECT_EQ(ReadRow({.kHz = "4025.0", .call = "XY0J         "}).DxCall, "0J");
}

TEST(ShDxLine, SpotterIsInUpperCaseOnClx) {
  EXPECT_EQ(ReadRow({.spotter = "<dl1abc>"}, {.kind = NodeKind::Clx}).Spotter, "DL1ABC");
  EXPECT_EQ(ReadRow({.spotter = "<dl1abc>"}).Spotter, "dl1abc");
}

TEST(ShDxLine, LastBracketOpensTheSpotter) {
  const Spot spot = ReadRow({.comment = "up <2> or <3                "});
  EXPECT_EQ(spot.Spotter, "DL1ABC");
  EXPECT_EQ(spot.Comment, "up <2> or <3");
}

TEST(ShDxLine, FullCommentLosesNoLetter) {
  for (const NodeKind kind : {NodeKind::Unknown, NodeKind::Spider, NodeKind::Skimmer}) {
    const ListCase row = {.comment = "1234567890123456789012345678"};
    EXPECT_EQ(ReadRow(row, {.kind = kind}).Comment, row.comment);
    EXPECT_EQ(ReadRow(row, {.kind = kind}, kListWords).Comment, row.comment);
  }
}

TEST(ShDxLine, WithoutATableAWordSetApartIsACountry) {
  const Spot spot = ReadRow({.comment = "CW up 2                  14  "});
  EXPECT_EQ(spot.DxCty, "14");
  EXPECT_EQ(spot.Comment, "CW up 2");
  EXPECT_EQ(ReadRow({.comment = "CW up 2                   14 "}).DxCty, "");
}

TEST(ShDxLine, WithATableOnlyItsPrefixesAreCountries) {
  for (const std::string blanks : {" ", "  "}) {
    const Spot spot = ReadRow({.comment = "CW up 2                  DL" + blanks}, {}, kListWords);
    EXPECT_EQ(spot.DxCty, "DL");
    EXPECT_EQ(spot.Comment, "CW up 2");
    EXPECT_EQ(ReadRow({.comment = "CW up 2                  14" + blanks}, {}, kListWords).Comment,
              "CW up 2                  14");
  }
}

TEST(ShDxLine, StateGoesWithTheCall) {
  const std::string comment = "CW up 2                  OH ";
  EXPECT_EQ(ReadRow({.call = "W8RIK      ", .comment = comment}, {}, kListWords).DxState, "OH");
  EXPECT_EQ(ReadRow({.call = "3Y0J       ", .comment = comment}, {}, kListWords).DxState, "");
}

TEST(ShDxLine, DxSpiderAddsNoWords) {
  for (const WordFacts& words : {WordFacts{}, kListWords}) {
    const Spot spot =
        ReadRow({.comment = "CW up 2                 DL  "}, {.kind = NodeKind::Spider}, words);
    EXPECT_EQ(spot.DxCty, "");
    EXPECT_EQ(spot.Comment, "CW up 2                 DL");
  }
}

TEST(ShDxLine, LeadingBlanksOfACommentStayWhereTheNodeMeansThem) {
  EXPECT_EQ(
      ReadRow({.comment = "  CW                        "}, {.kind = NodeKind::Skimmer}).Comment,
      "  CW");
  EXPECT_EQ(ReadRow({.comment = "  CW                        "}).Comment, "CW");
  EXPECT_EQ(
      ReadRow({.comment = "  CW up 2 and so on, 59 here"}, {.kind = NodeKind::Skimmer}).Comment,
      "CW up 2 and so on, 59 here");
}

TEST(ShDxLine, CountryOfTheSpotBeforeIsGone) {
  Spot spot;
  spot.DxCty = "old";
  ASSERT_TRUE(ParseShDxLine(ListCase{}.Text(), {}, kListWords, spot));
  EXPECT_EQ(spot.DxCty, "");
}

}  // namespace
}  // namespace spots
