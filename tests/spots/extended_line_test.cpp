#include "spots/extended_line.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace spots {
namespace {

using session::NodeKind;
using LineFields = std::vector<std::string>;

std::string Joined(const LineFields& fields) {
  std::string line;
  for (const std::string& field : fields) line += field + "^";
  line.pop_back();
  return line;
}

// Each field has a text of its own, so that one in the wrong place shows.
LineFields Ar17() {
  return {"AR17",   "f1",  "14025.25", "3Y0J", "20-Nov-2026", "2116Z", "CW up 2",
          "DL1ABC", "W1A", "+3Y/B",    "f10",  "f11",         "38",    "67",
          "f14",    "DL",  "BY",       "f17",  "f18"};
}

LineFields Zv11(std::size_t count = 20) {
  LineFields fields = {"ZV11", "14025.25", "3Y0J", "20-Nov-2026", "2116Z", "CW up 2", "K1A",
                       "f7",   "f8",       "W1A",  "67",          "38",    "08",      "05",
                       "ST",   "MA",       "3Y/B", "K",           "JD15",  "FN42"};
  while (fields.size() < count) fields.push_back("f" + std::to_string(fields.size()));
  fields.resize(count);
  return fields;
}

LineFields With(LineFields fields, std::size_t number, const std::string& text) {
  fields[number] = text;
  return fields;
}

Spot ReadAr17(const LineFields& fields) {
  Spot spot;
  EXPECT_EQ(ParseAr17Line(Joined(fields), spot), LineOutcome::Spot);
  return spot;
}

Spot ReadZv11(const LineFields& fields, NodeKind kind = NodeKind::Unknown,
              bool keepsGrids = false) {
  Spot spot;
  EXPECT_EQ(ParseZV11Line(Joined(fields), {.kind = kind}, keepsGrids, spot), LineOutcome::Spot);
  return spot;
}

LineOutcome OutcomeOfZv11(const std::string& line) {
  Spot spot;
  const LineOutcome outcome = ParseZV11Line(line, {}, false, spot);
  EXPECT_EQ(spot.DxCall.empty(), outcome != LineOutcome::Spot);
  return outcome;
}

TEST(Ar17Malformed, AnyOtherNumberOfFieldsThanNineteenIsAnError) {
  Spot spot;
  for (const std::size_t count : {1u, 2u, 18u, 20u, 40u}) {
    LineFields fields = Ar17();
    fields.resize(count);
    EXPECT_EQ(ParseAr17Line(Joined(fields), spot), LineOutcome::FieldError) << count;
  }
  EXPECT_EQ(ParseAr17Line("", spot), LineOutcome::FieldError);
  EXPECT_EQ(spot.DxCall, "");
}

TEST(Ar17Malformed, WrongTagIsNoErrorAndNoSpot) {
  Spot spot;
  EXPECT_EQ(ParseAr17Line(Joined(With(Ar17(), 0, "AR18")), spot), LineOutcome::None);
  EXPECT_EQ(ParseAr17Line(Joined(With(Ar17(), 0, "")), spot), LineOutcome::None);
  EXPECT_EQ(spot.DxCall, "");
}

TEST(Ar17Malformed, FarTooLongIsNoSpot) {
  Spot spot;
  const LineFields fields = With(Ar17(), 6, std::string(1'000'000, 'x'));
  EXPECT_EQ(ParseAr17Line(Joined(fields), spot), LineOutcome::None);
}

TEST(Ar17Malformed, EmptyFieldsAreEmpty) {
  const Spot spot = ReadAr17(
      LineFields{"AR17", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", ""});
  EXPECT_EQ(spot.Freq, 0);
  EXPECT_EQ(spot.SpotHHMM, 0);
  EXPECT_EQ(spot.DxCq, "");
}

TEST(Ar17, FieldsOfTheRecord) {
  const Spot spot = ReadAr17(Ar17());
  EXPECT_EQ(spot.Freq, 14025.3);
  EXPECT_EQ(spot.DxCall, "3Y0J");
  EXPECT_EQ(spot.SpotDate, "20-Nov-2026");
  EXPECT_EQ(spot.SpotTime, "2116");
  EXPECT_EQ(spot.SpotHHMM, 2116);
  EXPECT_EQ(spot.Comment, "CW up 2");
  EXPECT_EQ(spot.Spotter, "DL1ABC");
  EXPECT_EQ(spot.Node, "W1A");
  EXPECT_EQ(spot.DxCty, "3Y/B");
  EXPECT_EQ(spot.DxCq, "38");
  EXPECT_EQ(spot.DxItu, "67");
  EXPECT_EQ(spot.OrigCty, "DL");
  EXPECT_EQ(spot.OrigState, "BY");
  EXPECT_TRUE(spot.ExpandedLine);
}

TEST(Ar17, ZoneOfOneCharacterGetsABlank) {
  const Spot spot = ReadAr17(With(With(Ar17(), 12, "5"), 13, "*"));
  EXPECT_EQ(spot.DxCq, " 5");
  EXPECT_EQ(spot.DxItu, " *");
}

TEST(Ar17, NothingOfTheSpotBeforeIsLeft) {
  Spot spot;
  const auto fields = {&spot.OrigItu,  &spot.OrigCq,       &spot.DxState,  &spot.DxGrid,
                       &spot.OrigGrid, &spot.OrigLocation, &spot.SpotterIp};
  for (auto* field : fields) *field = "old";
  ASSERT_EQ(ParseAr17Line(Joined(Ar17()), spot), LineOutcome::Spot);
  for (const auto* field : fields) EXPECT_EQ(*field, "");
}

TEST(Zv11Malformed, HighestFieldBelowFourteenIsAnError) {
  EXPECT_EQ(OutcomeOfZv11(""), LineOutcome::FieldError);
  EXPECT_EQ(OutcomeOfZv11("ZV11^"), LineOutcome::FieldError);
  EXPECT_EQ(OutcomeOfZv11(Joined(Zv11(14))), LineOutcome::FieldError);
  EXPECT_NE(OutcomeOfZv11(Joined(Zv11(15))), LineOutcome::FieldError);
}

TEST(Zv11Malformed, MissingFieldBehindTheCheckIsNoErrorAndNoSpot) {
  for (const std::size_t count : {15u, 16u, 17u})
    EXPECT_EQ(OutcomeOfZv11(Joined(Zv11(count))), LineOutcome::None) << count;
  EXPECT_EQ(OutcomeOfZv11(Joined(Zv11(18))), LineOutcome::Spot);
}

TEST(Zv11Malformed, WrongTagIsNoErrorAndNoSpot) {
  EXPECT_EQ(OutcomeOfZv11(Joined(With(Zv11(), 0, "ZV12"))), LineOutcome::None);
  EXPECT_EQ(OutcomeOfZv11(Joined(With(Zv11(13), 0, "ZV12"))), LineOutcome::FieldError);
}

TEST(Zv11Malformed, FarTooLongIsNoSpot) {
  EXPECT_EQ(OutcomeOfZv11(Joined(With(Zv11(), 5, std::string(1'000'000, 'x')))), LineOutcome::None);
  EXPECT_EQ(OutcomeOfZv11("ZV11" + std::string(1'000'000, '^')), LineOutcome::None);
}

TEST(Zv11, FieldsOfTheRecord) {
  const Spot spot = ReadZv11(Zv11());
  EXPECT_EQ(spot.Freq, 14025.3);
  EXPECT_EQ(spot.DxCall, "3Y0J");
  EXPECT_EQ(spot.SpotDate, "20-Nov-2026");
  EXPECT_EQ(spot.SpotTime, "2116");
  EXPECT_EQ(spot.SpotHHMM, 2116);
  EXPECT_EQ(spot.Comment, "CW up 2");
  EXPECT_EQ(spot.Spotter, "K1A");
  EXPECT_EQ(spot.Node, "W1A");
  EXPECT_EQ(spot.DxItu, "67");
  EXPECT_EQ(spot.DxCq, "38");
  EXPECT_EQ(spot.OrigItu, " 8");
  EXPECT_EQ(spot.OrigCq, " 5");
  EXPECT_EQ(spot.DxState, "ST");
  EXPECT_EQ(spot.OrigState, "MA");
  EXPECT_EQ(spot.DxCty, "3Y/B");
  EXPECT_EQ(spot.OrigCty, "K");
  EXPECT_EQ(spot.DxGrid, "JD15");
  EXPECT_EQ(spot.OrigGrid, "FN42");
  EXPECT_EQ(spot.OrigLocation, "");
  EXPECT_EQ(spot.SpotterIp, "");
  EXPECT_EQ(spot.RawLine, Joined(Zv11()));
}

TEST(Zv11, GridsStandInTheEighteenthAndNineteenthField) {
  EXPECT_EQ(ReadZv11(Zv11(19)).DxGrid, "JD15");
  EXPECT_EQ(ReadZv11(Zv11(19)).OrigGrid, "");
  EXPECT_EQ(ReadZv11(Zv11(18)).DxGrid, "");
}

TEST(Zv11, ZoneBelowTenIsRewrittenAndWhatIsNoNumberStays) {
  const struct {
    const char* sent;
    const char* kept;
  } kKnown[] = {{"04", " 4"},
                {"4", " 4"},
                {" 4", " 4"},
                {"0", " 0"},
                {"*4", "*4"},
                {"", ""},
                {"  ", "  "},
                {"10", "10"},
                {"4a", "4a"},
                {"-4", "-4"},
                {"99999999999", "99999999999"}};
  for (const auto& [sent, kept] : kKnown)
    EXPECT_EQ(ReadZv11(With(Zv11(), 11, sent)).DxCq, kept) << sent;
}

TEST(Zv11, CountriesAreCleaned) {
  EXPECT_EQ(ReadZv11(With(Zv11(), 16, "W-KL7(x)")).DxCty, "KL7");
  EXPECT_EQ(ReadZv11(With(Zv11(), 17, "W-KL7(x)")).OrigCty, "KL7");
}

TEST(Zv11, OnAnOwnNodeAnEmptyLastFieldMarksTheExpandedLine) {
  EXPECT_TRUE(ReadZv11(With(Zv11(21), 20, ""), NodeKind::Zelva).ExpandedLine);
  EXPECT_FALSE(ReadZv11(Zv11(21), NodeKind::Zelva).ExpandedLine);
  EXPECT_FALSE(ReadZv11(With(Zv11(21), 20, ""), NodeKind::ArCluster).ExpandedLine);
}

TEST(Zv11, PlaceOfASpotterNeedsAHighestFieldAbove23) {
  EXPECT_EQ(ReadZv11(Zv11(24)).OrigLocation, "");
  EXPECT_EQ(ReadZv11(Zv11(25)).OrigLocation, "f22");
  EXPECT_EQ(ReadZv11(Zv11(40)).OrigLocation, "f37");
}

TEST(Zv11, PlaceOfASkimmerNeedsAHighestFieldAbove20) {
  const auto skimmer = [](std::size_t count) { return With(Zv11(count), 6, "K1A-#"); };
  EXPECT_EQ(ReadZv11(skimmer(21)).OrigLocation, "");
  EXPECT_EQ(ReadZv11(skimmer(22)).OrigLocation, "f20");
}

TEST(Zv11, AddressNeedsAHighestFieldAbove22) {
  EXPECT_EQ(ReadZv11(Zv11(23)).SpotterIp, "");
  EXPECT_EQ(ReadZv11(Zv11(24)).SpotterIp, "f22");
}

TEST(Zv11, PlaceAndAddressOfTheSpotBeforeAreGone) {
  Spot spot;
  spot.OrigLocation = spot.SpotterIp = "old";
  ASSERT_EQ(ParseZV11Line(Joined(Zv11()), {}, false, spot), LineOutcome::Spot);
  EXPECT_EQ(spot.OrigLocation + spot.SpotterIp, "");
}

TEST(Zv11, GridsAreCutWhereTheyAreKept) {
  const LineFields fields = With(With(Zv11(), 18, "FS20AB"), 19, "FN20AB");
  EXPECT_EQ(ReadZv11(fields, NodeKind::Spider, true).OrigGrid, "FN20");
  EXPECT_EQ(ReadZv11(fields, NodeKind::Spider, true).DxGrid, "FS20AB");
  EXPECT_EQ(ReadZv11(fields, NodeKind::Spider, false).OrigGrid, "FN20AB");
}

TEST(CleanCty, CutsUpToTheLastDashAndFromTheBracketOn) {
  EXPECT_EQ(CleanCtyField("W-KL7(x)"), "KL7");
  EXPECT_EQ(CleanCtyField("A-B-C"), "C");
  EXPECT_EQ(CleanCtyField("KL7"), "KL7");
  EXPECT_EQ(CleanCtyField("KL7("), "KL7");
  EXPECT_EQ(CleanCtyField("(KL7)"), "");
  EXPECT_EQ(CleanCtyField("KL7(a-b)"), "b)");
  EXPECT_EQ(CleanCtyField("KL7-"), "");
  EXPECT_EQ(CleanCtyField(""), "");
}

}  // namespace
}  // namespace spots
