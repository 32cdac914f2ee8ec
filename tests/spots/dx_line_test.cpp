#include "spots/dx_line.h"

#include <gtest/gtest.h>

#include <optional>

#include "spot_desk.h"

namespace spots {
namespace {

std::optional<Spot> Parse(std::string_view line, const NodeFacts& node = {}) {
  Spot spot;
  return ParseDxLine(line, node, {}, kDeskTime, spot) ? std::optional(spot) : std::nullopt;
}

// The spot of a line that must be one.
Spot Read(std::string_view line, const NodeFacts& node = {}) {
  const auto spot = Parse(line, node);
  EXPECT_TRUE(spot) << line;
  return spot.value_or(Spot());
}

Spot Read(const Line& line, const NodeFacts& node = {}) { return Read(line.Text(), node); }

TEST(DxLineMalformed, WithoutItsBlanksItIsNoSpot) {
  for (const std::string_view line :
       {"", "DX de ", "DX de DL1ABC:", "DX de DL1ABC:14025.0",
        "DX de DL1ABC: ", "DX de DL1ABC:    14025.0", "DX de DL1ABC:    14025.0 ",
        "DX de DL1ABC:    14025.0  3Y0J", "DX de DL1ABC:14025.0 3Y0J"})
    EXPECT_FALSE(Parse(line)) << line;
}

TEST(DxLineMalformed, FarTooLongItIsNoSpot) {
  EXPECT_FALSE(Parse(Line{.comment = std::string(1'000'000, 'x')}.Text()));
  EXPECT_FALSE(Parse("DX de " + std::string(1'000'000, ' ')));
  EXPECT_TRUE(Parse(Line{.comment = std::string(1'000, 'x')}.Text()));
}

TEST(DxLineMalformed, FrequencyThatIsNoNumberIsZero) {
  EXPECT_EQ(Read({.kHz = "QRT"}).Freq, 0);
  EXPECT_EQ(Read({.kHz = "nan"}).Freq, 0);
  EXPECT_EQ(Read({.kHz = "inf"}).Freq, 0);
  EXPECT_EQ(Read({.kHz = "1e999"}).Freq, 0);
}

TEST(DxLineMalformed, WithoutATimeTheEndIsTakenForIt) {
  const Spot spot = Read("DX de DL1ABC:    14025.0  3Y0J         CW up");
  EXPECT_EQ(spot.DxCall, "3Y0J");
  EXPECT_EQ(spot.SpotHHMM, 0);
}

TEST(DxLine, FieldsOfThePlainForm) {
  const Spot spot =
      Read("DX de DL1ABC:    14025.0  3Y0J         CW up 2                        2116Z");
  EXPECT_EQ(spot.Spotter, "DL1ABC");
  EXPECT_EQ(spot.Freq, 14025);
  EXPECT_EQ(spot.DxCall, "3Y0J");
  EXPECT_EQ(spot.Comment, "CW up 2");
  EXPECT_EQ(spot.SpotTime, "2116");
  EXPECT_EQ(spot.SpotHHMM, 2116);
  EXPECT_EQ(spot.SpotDate, "20-Nov-2026");
  EXPECT_EQ(spot.OrigCty, "");
  EXPECT_EQ(spot.DxCty, "");
  EXPECT_EQ(spot.DxCq, "");
}

TEST(DxLine, TextBehindTheTimeIsTheSpotters) {
  for (const std::string tail : {"JN58", "14", "W", "DL", "MA"}) {
    const Spot spot = Read({.tail = " " + tail});
    EXPECT_EQ(spot.OrigCty, tail);
    EXPECT_EQ(spot.SpotTime, "2116") << tail;
    EXPECT_EQ(spot.Comment, "CW up 2") << tail;
  }
}

TEST(DxLine, EmptyWordBehindTheTimeIsNone) {
  const Spot spot = Read({.tail = " "});
  EXPECT_EQ(spot.SpotTime, "2116");
  EXPECT_EQ(spot.OrigCty, "");
}

TEST(DxLine, BytesOfACommentStayAsTheyAre) {
  for (const std::string comment : {"gr\xC3\xBC\xC3\x9F"
                                    "e 73",
                                    "gr\xFC\xDF"
                                    "e 73",
                                    "\xFF\x80"})
    EXPECT_EQ(Read({.comment = comment}).Comment, comment);
}

TEST(DxLine, FullCommentReachesTheTimesBlank) {
  const std::string full = "this comment is far longer tha";
  EXPECT_EQ(Read({.comment = full}).Comment, full);
  EXPECT_EQ(Read({.comment = full, .tail = " JN58"}).Comment, full);
}

TEST(DxLine, CommentThatTouchesTheTimeStaysWhole) {
  const Spot spot =
      Read("DX de DL1ABC:    14025.0  3Y0J           1234567890123456789012345678X2116Z");
  EXPECT_EQ(spot.Comment, "1234567890123456789012345678X");
  EXPECT_EQ(spot.SpotTime, "2116");
}

TEST(DxLine, LeadingBlanksOfACommentStayWhereTheNodeMeansThem) {
  const std::string line =
      "DX de DL1ABC:    14025.0  3Y0J           1234567890123456789012345678X2116Z";
  EXPECT_EQ(Read(line, {.kind = session::NodeKind::Skimmer}).Comment,
            "          1234567890123456789012345678X");
  EXPECT_EQ(Read({.comment = "CW"}, {.kind = session::NodeKind::Skimmer}).Comment, "CW");
}

TEST(DxLine, EmptyCommentIsEmpty) {
  EXPECT_EQ(Read({.comment = ""}).Comment, "");
  EXPECT_EQ(Read({.comment = "", .tail = " JN58"}).Comment, "");
}

TEST(DxLine, AnyBlanksPartTheFrequencyFromTheCall) {
  for (const std::string blanks : {" ", "  ", "   ", "       "}) {
    const Spot spot = Read("DX de DL1ABC: 14025.0" + blanks + "3Y0J CW up 2 2116Z");
    EXPECT_EQ(spot.DxCall, "3Y0J");
    EXPECT_EQ(spot.Comment, "CW up 2");
  }
}

TEST(DxLine, CallOfOneCharacterIsRead) {
  EXPECT_EQ(Read("DX de DL1ABC: 14025.0 K CW up 2 2116Z").DxCall, "K");
}

TEST(DxLine, CallOfMoreThanTwelveCharactersStaysWhole) {
  const Spot spot = Read({.call = "K6NNN/QRPP/MM"});
  EXPECT_EQ(spot.DxCall, "K6NNN/QRPP/MM");
  EXPECT_EQ(spot.Comment, "CW up 2");
}

TEST(DxLine, FrequencyIsTakenAsWritten) {
  EXPECT_EQ(Read({.kHz = "1296117.1"}).Freq, 1296117.1);
  EXPECT_EQ(Read({.kHz = "14025.25"}).Freq, 14025.25);
  EXPECT_EQ(Read({.kHz = "14025"}).Freq, 14025);
  EXPECT_EQ(Read({.kHz = "14025.0CW"}).Freq, 14025);
}

TEST(DxLineTime, IsTheLastWordThatReadsAsOne) {
  const Spot spot = Read({.comment = "QRV 2000Z to 2100Z", .tail = " JN58"});
  EXPECT_EQ(spot.SpotTime, "2116");
  EXPECT_EQ(spot.Comment, "QRV 2000Z to 2100Z");
  EXPECT_EQ(spot.OrigCty, "JN58");
}

TEST(DxLineTime, MustBeOneOfTheDay) {
  for (const std::string word : {"2400Z", "2360Z", "9999Z", "-100Z", "21.6Z", "2116z", "216Z"})
    EXPECT_EQ(Read({.tail = " " + word}).SpotTime, "2116") << word;
  for (const std::string time : {"0000", "0959", "1900", "2359"}) {
    EXPECT_EQ(Read({.time = time}).SpotTime, time);
    EXPECT_EQ(Read({.time = time}).SpotHHMM, std::stoi(time));
  }
}

TEST(DxLineTime, IsNoPartOfALongerWord) {
  for (const std::string word : {"2100Zulu", "@2100Z", "2100Z,", "(2100Z)"}) {
    const Spot spot = Read({.tail = " " + word + " x"});
    EXPECT_EQ(spot.SpotTime, "2116") << word;
    EXPECT_EQ(spot.OrigCty, word + " x");
  }
}

TEST(DxLineTime, MayTouchTheCommentAtTheEndOfALine) {
  const Spot spot = Read("DX de DL1ABC:    14025.0  3Y0J         from 2100Z on, 59 in Bonn.2116Z");
  EXPECT_EQ(spot.SpotTime, "2116");
  EXPECT_EQ(spot.Comment, "from 2100Z on, 59 in Bonn.");
}

TEST(DxLineTime, StandsRightBehindTheCallWhereThereIsNoComment) {
  const Spot spot = Read("DX de DL1ABC: 14025.0 3Y0J 2116Z");
  EXPECT_EQ(spot.SpotTime, "2116");
  EXPECT_EQ(spot.Comment, "");
}

TEST(DxLineTime, WithoutOneItsPlaceIsCountedFromTheEnd) {
  const Spot spot = Read({.comment = "CW up 2", .time = "2560", .tail = " JN58"});
  EXPECT_EQ(spot.SpotTime, "2560");
  EXPECT_EQ(spot.OrigCty, "JN58");
  EXPECT_EQ(spot.Comment, "CW up 2");
}

TEST(DxLine, TextBehindTheTimeMayBeLongAndIsTrimmed) {
  for (const std::string tail : {"(JO62QM)", "FN20", "two words", "K", "Fed. Rep. of Germany"})
    EXPECT_EQ(Read({.tail = "  " + tail + "  "}).OrigCty, tail);
}

TEST(DxLineSpotter, ThatFillsItsColumnsIsParted) {
  const Spot spot = Read({.spotter = "EA8/DF4UE-#", .kHz = "21149.0", .call = "PY2AA"});
  EXPECT_EQ(spot.Spotter, "EA8/DF4UE-#");
  EXPECT_EQ(spot.Freq, 21149);
  EXPECT_EQ(spot.DxCall, "PY2AA");
  EXPECT_EQ(spot.Comment, "CW up 2");
}

TEST(DxLineSpotter, IsPartedFromTheFrequencyOnlyAtAColonBeforeADigit) {
  EXPECT_EQ(Read("DX de DL:ABC:14025.0  3Y0J         CW        2116Z").Spotter, "DL:ABC");
  EXPECT_EQ(Read("DX de DL:ABC: 14025.0  3Y0J         CW        2116Z").Spotter, "DL:ABC");
}

TEST(DxLineSpotter, ThatHasLostItsColonKeepsItsLastCharacter) {
  const Spot spot =
      Read("DX de SP5CEAT     1881.0  PY2AA        CW                             2116Z");
  EXPECT_EQ(spot.Spotter, "SP5CEAT");
  EXPECT_EQ(spot.Freq, 1881);
  EXPECT_EQ(spot.DxCall, "PY2AA");
}

TEST(DxLineSpotter, IsInUpperCaseOnClx) {
  EXPECT_EQ(Read({.spotter = "dl1abc-2"}, {.kind = session::NodeKind::Clx}).Spotter, "DL1ABC-2");
  EXPECT_EQ(Read({.spotter = "dl1abc-2"}).Spotter, "dl1abc-2");
}

TEST(DxLineWinCluster, EndsInTheZoneOfTheDx) {
  const Spot spot = Read({.tail = " 38"}, {.kind = session::NodeKind::WinCluster});
  EXPECT_EQ(spot.DxCq, "38");
  EXPECT_EQ(spot.OrigCty, "");
  EXPECT_EQ(spot.SpotTime, "2116");
}

TEST(DxLineCountry, IsAWordThatTwoBlanksSetApartAtTheEndOfTheComment) {
  const struct {
    const char* comment;
    const char* left;
    const char* country;
  } kKnown[] = {
      {"CW up 2                  K    ", "CW up 2", "K"},
      {"CW up 2                      9", "CW up 2", "9"},
      {"CW up 2                     54", "CW up 2", "54"},
      {"CW up 2                   3Y/B", "CW up 2", "3Y/B"},
      {"CW up 2                  +VK9X", "CW up 2", "VK9X"},
      {"this comment is far longer  54", "this comment is far longer", "54"},
      // One blank is one of the comment, and a longer word is no country.
      {"percent 100% and %41 and ca 15", "percent 100% and %41 and ca 15", ""},
      {"CW up 2                 Munich", "CW up 2                 Munich", ""},
  };
  for (const auto& [comment, left, country] : kKnown) {
    const Spot spot = Read({.comment = comment});
    EXPECT_EQ(spot.Comment, left) << comment;
    EXPECT_EQ(spot.DxCty, country) << comment;
  }
}

TEST(DxLineCountry, IsNotLookedForInAShortComment) {
  const Spot spot = Read("DX de DL1ABC:    14025.0  3Y0J  CW  54 2116Z");
  EXPECT_EQ(spot.Comment, "CW  54");
  EXPECT_EQ(spot.DxCty, "");
}

TEST(DxLine, NothingOfTheSpotBeforeIsLeft) {
  Spot spot;
  const auto fields = {&spot.Comment,   &spot.Node,        &spot.DxCty,  &spot.DxCq,
                       &spot.OrigCty,   &spot.OrigState,   &spot.DxGrid, &spot.OrigGrid,
                       &spot.SpotterIp, &spot.OrigLocation};
  for (auto* field : fields) *field = "old";
  spot.ExpandedLine = true;
  ASSERT_TRUE(ParseDxLine(Line{.comment = ""}.Text(), {}, {}, kDeskTime, spot));
  for (const auto* field : fields) EXPECT_EQ(*field, "");
  EXPECT_FALSE(spot.ExpandedLine);
}

TEST(DxLine, DateOfALateTimeRightBehindMidnightIsYesterdays) {
  Spot spot;
  const Moment early = {.dayNumber = 20777, .date = "20-Nov-2026", .minutes = 14};
  ASSERT_TRUE(ParseDxLine(Line{.time = "2346"}.Text(), {}, {}, early, spot));
  EXPECT_EQ(spot.SpotDate, "19-Nov-2026");
  ASSERT_TRUE(ParseDxLine(Line{.time = "2345"}.Text(), {}, {}, early, spot));
  EXPECT_EQ(spot.SpotDate, "20-Nov-2026");
}

}  // namespace
}  // namespace spots
