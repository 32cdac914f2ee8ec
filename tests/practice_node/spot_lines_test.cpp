#include "practice_node/spot_lines.h"

#include <map>

#include "core/text.h"
#include "visit.h"

namespace practice_node {
namespace {

constexpr Area kGermany = {"DL", "DL", "EU", "", 14, 28, false, "JO"};
constexpr Area kOhio = {"W8", "K", "NA", "OH", 4, 8, false, "EN"};
constexpr Area kAlaska = {"KL7", "KL", "NA", "AK", 1, 1, true, "BP"};

Spot ASpot() {
  return {.tenths = 140250,
          .dx = {"W8RIK", kOhio, "EN80"},
          .spotter = {"DL1ABC", kGermany, "JN58"},
          .comment = "CW up 2",
          .time = std::chrono::sys_days{std::chrono::year{2026} / 11 / 5} + 22h + 10min,
          .node = "N0DE-7",
          .variant = 1};
}

std::vector<std::string_view> Fields(const std::string& line) { return core::Split(line, "^"); }

TEST(SpotLineTest, StandsInTheClassicColumns) {
  EXPECT_EQ(SpotLine(ASpot(), {}),
            "DX de DL1ABC:    14025.0  W8RIK        CW up 2                        2210Z");
}

TEST(SpotLineTest, TheTimeStandsAtColumn71WhateverTheComment) {
  Spot spot = ASpot();
  for (const std::size_t length : {0u, 29u, 30u, 31u, 80u}) {
    spot.comment = std::string(length, 'x');
    const std::string line = SpotLine(spot, {});
    EXPECT_EQ(line.size(), 75u);
    EXPECT_EQ(line.substr(69), " 2210Z");
  }
}

TEST(SpotLineTest, ALongSpotterIsGluedToTheFrequency) {
  Spot spot = ASpot();
  spot.spotter.call = "EA8/DF4UE-#";
  spot.tenths = 211490;
  EXPECT_THAT(SpotLine(spot, {}), StartsWith("DX de EA8/DF4UE-#:21149.0  W8RIK "));
}

TEST(SpotLineTest, TheZoneOfTheDxStationEndsTheLine) {
  EXPECT_THAT(SpotLine(ASpot(), {.zone = true}), EndsWith(" 2210Z 04"));
}

TEST(SpotLineTest, ASlotTakesTheGridElseTheStateElseTheZones) {
  Spot spot = ASpot();
  SpotStyle style = {.grid = true, .state = true, .itu = true, .cq = true};
  EXPECT_EQ(SpotLine(spot, style).substr(39), "CW up 2                   EN80 2210Z JN58");
  spot.dx.grid.clear();
  spot.spotter.grid.clear();
  EXPECT_EQ(SpotLine(spot, style).substr(39), "CW up 2                     OH 2210Z 28");
  style.state = false;
  EXPECT_EQ(SpotLine(spot, style).substr(39), "CW up 2                      8 2210Z 28");
  style.itu = false;
  EXPECT_EQ(SpotLine(spot, style).substr(39), "CW up 2                      4 2210Z 14");
}

TEST(SpotLineTest, ASlotOfWhichNothingIsKnownStaysEmpty) {
  Spot spot = ASpot();
  EXPECT_THAT(SpotLine(spot, {.state = true}), EndsWith("  OH 2210Z"));
  std::swap(spot.dx, spot.spotter);
  EXPECT_THAT(SpotLine(spot, {.state = true}), EndsWith("CW up 2                        2210Z OH"));
}

TEST(SpotLineTest, OneBlankPartsALongCommentFromTheSlot) {
  Spot spot = ASpot();
  spot.comment = std::string(40, 'x');
  EXPECT_EQ(SpotLine(spot, {.cq = true}).substr(39), std::string(28, 'x') + " 4 2210Z 14");
}

TEST(SpotLineTest, TwoBlanksPartALongCommentFromTheCountry) {
  Spot spot = ASpot();
  spot.comment = std::string(40, 'x');
  EXPECT_EQ(SpotLine(spot, {.country = true}).substr(39), std::string(27, 'x') + "  K 2210Z");
}

TEST(SpotLineTest, TheCommentEndsInACountryOrAZoneOrAState) {
  Spot spot = ASpot();
  std::map<std::string, int> words;
  for (spot.variant = 0; spot.variant < 7; ++spot.variant) {
    const std::string line = SpotLine(spot, {.country = true});
    EXPECT_EQ(line.size(), 75u);
    ++words[std::string(core::Trim(line.substr(46, 23)))];
  }
  EXPECT_EQ(words, (std::map<std::string, int>{{"K", 4}, {"+K", 1}, {"4", 1}, {"OH", 1}}));
}

TEST(SpotLineTest, TheTimeIsFollowedByWhateverPlacesTheSpotter) {
  Spot spot = ASpot();
  std::map<std::string, int> words;
  for (spot.variant = 0; spot.variant < 7; ++spot.variant)
    ++words[SpotLine(spot, {.qth = true}).substr(75)];
  EXPECT_EQ(words, (std::map<std::string, int>{
                       {" DL", 3}, {" JN58", 1}, {" 14", 1}, {" (JN58xl)", 1}, {" DL 14", 1}}));
}

TEST(Ar17LineTest, HasItsNineteenFieldsInTheirPlaces) {
  EXPECT_EQ(SpotLine(ASpot(), {.shape = Shape::Ar17}),
            "AR17^0^14025.0^W8RIK^ 5-Nov-2026^2210Z^CW up 2^DL1ABC^N0DE-7^K^NA^OH^4^8^EU^DL^^^");
}

TEST(Ar17LineTest, SomeCountriesHaveAPlus) {
  Spot spot = ASpot();
  spot.variant = 5;
  EXPECT_EQ(Fields(SpotLine(spot, {.shape = Shape::Ar17}))[9], "+K");
}

TEST(Ar17LineTest, ACaretOfTheCommentDoesNotPartFields) {
  Spot spot = ASpot();
  spot.comment = "^^ beam \"^\", 100%";
  const std::string line = SpotLine(spot, {.shape = Shape::Ar17});
  EXPECT_EQ(Fields(line).size(), 19u);
  EXPECT_EQ(Fields(line)[6], "%5E%5E beam \"%5E\", 100%");
}

TEST(Zv11LineTest, HasItsFieldsInTheirPlaces) {
  EXPECT_EQ(
      SpotLine(ASpot(), {.shape = Shape::Zv11}),
      "ZV11^14025.0^W8RIK^ 5-Nov-2026^2210^CW up 2^DL1ABC^^^N0DE-7^08^04^28^14^OH^^K^DL^EN80^JN58"
      "^^^48.5/-11^192.0.2.2^");
}

TEST(Zv11LineTest, ThePlaceOfASkimmerStandsInTheLastFieldButOne) {
  Spot spot = ASpot();
  spot.spotter.call = "DL1ABC-#";
  const std::string line = SpotLine(spot, {.shape = Shape::Zv11});
  EXPECT_EQ(Fields(line).size(), 22u);
  EXPECT_EQ(Fields(line)[20], "48.5/-11");
}

TEST(Zv11LineTest, PlacesAreNorthAndWestPositive) {
  Spot spot = ASpot();
  for (const auto& [grid, place] : {std::pair<std::string, std::string>{"FN20", "40.5/75"},
                                    {"QF56", "-33.5/-151"},
                                    {"II09", "-0.5/19"},
                                    {"", ""}}) {
    spot.spotter.grid = grid;
    EXPECT_EQ(Fields(SpotLine(spot, {.shape = Shape::Zv11}))[22], place) << grid;
  }
}

TEST(Zv11LineTest, ZonesOfCountriesThatSpanSeveralHaveAStar) {
  Spot spot = ASpot();
  spot.dx.area = kAlaska;
  const std::string line = SpotLine(spot, {.shape = Shape::Zv11});
  EXPECT_EQ(Fields(line)[10], "*1");
  EXPECT_EQ(Fields(line)[11], "*1");
}

TEST(Zv11LineTest, CountriesComePlainOrWithContinentOrInRemarks) {
  Spot spot = ASpot();
  std::map<std::string, int> words;
  for (spot.variant = 0; spot.variant < 4; ++spot.variant)
    ++words[std::string(Fields(SpotLine(spot, {.shape = Shape::Zv11}))[16])];
  EXPECT_EQ(words, (std::map<std::string, int>{{"K", 2}, {"NA-K", 1}, {"K(CTY)", 1}}));
}

TEST(Zv11LineTest, LinesComeInAllLengthsTheLastFieldEmptyOrNot) {
  Spot spot = ASpot();
  std::map<std::size_t, int> lengths;
  int open = 0;
  for (spot.variant = 0; spot.variant < 100; ++spot.variant) {
    const std::string line = SpotLine(spot, {.shape = Shape::Zv11});
    ++lengths[Fields(line).size()];
    open += line.ends_with("^") ? 1 : 0;
  }
  EXPECT_EQ(lengths,
            (std::map<std::size_t, int>{{15, 2}, {18, 1}, {19, 1}, {20, 2}, {21, 2}, {25, 92}}));
  EXPECT_EQ(open, 90);
}

TEST(ListRowTest, StandsInTheColumnsOfAList) {
  EXPECT_EQ(ListRow(ASpot(), {}),
            " 14025.0  W8RIK        5-Nov-2026 2210Z  CW up 2                     <DL1ABC>");
  EXPECT_EQ(ListRow(ASpot(), {.listCall = 10}),
            " 14025.0 W8RIK         5-Nov-2026 2210Z  CW up 2                     <DL1ABC>");
}

TEST(ListRowTest, AFullCommentReachesTheSpotter) {
  Spot spot = ASpot();
  spot.comment = "abcdefghijklmnopqrstuvwxyz12345";
  EXPECT_THAT(ListRow(spot, {}), EndsWith("  abcdefghijklmnopqrstuvwxyz12<DL1ABC>"));
}

TEST(ListRowTest, TheCountryStandsOneBlankBeforeTheSpotter) {
  Spot spot = ASpot();
  spot.comment = std::string(40, 'x');
  EXPECT_THAT(ListRow(spot, {.country = true}), EndsWith(std::string(24, 'x') + "  K <DL1ABC>"));
}

}  // namespace
}  // namespace practice_node
