#include "spots/added_words.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "spot_desk.h"
#include "spots/dx_line.h"

namespace spots {
namespace {

using session::NodeKind;

constexpr NodeSwitch kOn = NodeSwitch::On;
constexpr NodeSwitch kOff = NodeSwitch::Off;
constexpr NodeSwitch kUnknown = NodeSwitch::Unknown;

bool IsPrefix(std::string_view word) {
  for (const std::string_view prefix : {"K", "DL", "OH", "VK9X", "3Y/B", "4U1UN", "4U1UNX"})
    if (core::SameIgnoringCase(word, prefix)) return true;
  return false;
}

const WordFacts kTable = {.CountriesLoaded = true, .isPrefix = IsPrefix};

struct Ending {
  std::string call = "3Y0J";
  std::string comment{};
  std::string tail{};
};

Spot Read(const Ending& ending, NodeKind kind, const WordFacts& words) {
  Spot spot;
  const Line line = {.call = ending.call, .comment = ending.comment, .tail = ending.tail};
  EXPECT_TRUE(ParseDxLine(line.Text(), {.kind = kind}, words, kDeskTime, spot));
  return spot;
}

// A comment that is filled up to `width` with the word at its end.
std::string WithWord(const std::string& comment, const std::string& word, std::size_t width = 30) {
  return comment + std::string(width - comment.size() - word.size(), ' ') + word;
}

Spot ReadCountry(const std::string& word, const std::string& call = "3Y0J") {
  return Read({.call = call, .comment = WithWord("CW up 2", word)}, NodeKind::ArCluster, kTable);
}

TEST(AddedCountry, IsAPrefixOfTheTable) {
  for (const std::string word : {"K", "DL", "VK9X", "3Y/B", "4U1UN"}) {
    const Spot spot = ReadCountry(word);
    EXPECT_EQ(spot.DxCty, word);
    EXPECT_EQ(spot.Comment, "CW up 2");
  }
}

TEST(AddedCountry, MayBeInAnyCase) { EXPECT_EQ(ReadCountry("vk9x").DxCty, "VK9X"); }

TEST(AddedCountry, LosesItsPlus) {
  EXPECT_EQ(ReadCountry("+VK9X").DxCty, "VK9X");
  EXPECT_EQ(ReadCountry("+4U1UN").DxCty, "4U1UN");
}

TEST(AddedCountry, OtherWordsStayInTheComment) {
  for (const std::string word : {"14", "V", "Q", "?", "MA", "+", "ZZ9", "W6", "4U1UNX"}) {
    const Spot spot = ReadCountry(word);
    EXPECT_EQ(spot.DxCty, "") << word;
    EXPECT_EQ(spot.DxState, "") << word;
    EXPECT_EQ(spot.Comment, WithWord("CW up 2", word));
  }
}

TEST(AddedCountry, StandsOneBlankBeforeTheTime) {
  const Spot spot = Read({.comment = "CW up 2                   DL "}, NodeKind::ArCluster, kTable);
  EXPECT_EQ(spot.DxCty, "");
  EXPECT_EQ(spot.Comment, "CW up 2                   DL");
}

TEST(AddedCountry, NeedsTwoBlanksBeforeIt) {
  EXPECT_EQ(Read({.comment = "this comment is the longest DL"}, NodeKind::ArCluster, kTable).DxCty,
            "");
  EXPECT_EQ(Read({.comment = "this comment is far longer  DL"}, NodeKind::ArCluster, kTable).DxCty,
            "DL");
}

TEST(AddedCountry, NeedsTwentyFourCharactersBeforeTheTime) {
  const std::string head = "DX de DL1ABC: 14025.0 3Y0J ";
  for (const std::size_t width : {22u, 23u}) {
    Spot spot;
    const std::string line = head + WithWord("CW", "DL", width) + " 2116Z";
    ASSERT_TRUE(ParseDxLine(line, {}, kTable, kDeskTime, spot));
    EXPECT_EQ(spot.DxCty, width == 23 ? "DL" : "");
  }
}

TEST(AddedCountry, TouchingTheTimeIsNone) {
  const Spot spot = Read({.comment = "CW"}, NodeKind::ArCluster, kTable);
  EXPECT_EQ(spot.DxCty, "");
  EXPECT_EQ(spot.Comment, "CW");
}

TEST(AddedCountry, OfEveryKindButDxSpiderGoesByTheTable) {
  for (const NodeKind kind : {NodeKind::Unknown, NodeKind::ArCluster, NodeKind::Zelva,
                              NodeKind::DxNet, NodeKind::Clx, NodeKind::Skimmer}) {
    EXPECT_EQ(Read({.comment = WithWord("CW", "14")}, kind, kTable).DxCty, "");
    EXPECT_EQ(Read({.comment = WithWord("CW", "DL")}, kind, kTable).DxCty, "DL");
  }
}

TEST(AddedCountry, WithoutATableIsAnyWordSetApart) {
  EXPECT_EQ(Read({.comment = WithWord("CW", "14")}, NodeKind::ArCluster, {}).DxCty, "14");
  EXPECT_EQ(Read({.comment = WithWord("CW", "MA")}, NodeKind::ArCluster, {}).DxCty, "MA");
}

TEST(AddedState, BelongsToACallOfItsCountry) {
  const struct {
    const char* call;
    const char* state;
  } kFitting[] = {{"W8RIK", "OH"}, {"K1A", "MA"},  {"N0CALL", "DC"}, {"AA1A", "NY"}, {"AL7X", "AK"},
                  {"VA3AA", "ON"}, {"VG1A", "NB"}, {"VO2A", "LB"},   {"VY2A", "PE"}};
  for (const auto& [call, state] : kFitting) {
    const Spot spot = ReadCountry(state, call);
    EXPECT_EQ(spot.DxState, state) << call;
    EXPECT_EQ(spot.DxCty, "") << call;
    EXPECT_EQ(spot.Comment, "CW up 2");
  }
}

TEST(AddedState, OnAnotherCallIsACountryOrNothing) {
  EXPECT_EQ(ReadCountry("OH", "OH2BH").DxCty, "OH");
  EXPECT_EQ(ReadCountry("OH", "OH2BH").DxState, "");
  EXPECT_EQ(ReadCountry("ON", "K1A").DxState, "");
  EXPECT_EQ(ReadCountry("MA", "AM7A").DxState, "");
  EXPECT_EQ(ReadCountry("ON", "VK3A").DxState, "");
}

Spot ReadSlots(const std::string& word, const std::string& tail,
               const SlotSwitches& switches = {}) {
  return Read({.comment = WithWord("CW up 2", word), .tail = " " + tail}, NodeKind::Spider,
              {.CountriesLoaded = true, .isPrefix = IsPrefix, .Slots = switches});
}

TEST(DxSpiderSlots, AreFilledSeparately) {
  const Spot spot = ReadSlots("27", "FN32");
  EXPECT_EQ(spot.DxItu, "27");
  EXPECT_EQ(spot.OrigGrid, "FN32");
  EXPECT_EQ(spot.Comment, "CW up 2");
  EXPECT_EQ(spot.OrigCty + spot.DxCty + spot.DxCq + spot.DxGrid + spot.OrigItu, "");
}

TEST(DxSpiderSlots, HoldAGrid) {
  EXPECT_EQ(ReadSlots("JN58", "").DxGrid, "JN58");
  EXPECT_EQ(ReadSlots("", "AR09").OrigGrid, "AR09");
}

TEST(DxSpiderSlots, HoldAState) {
  EXPECT_EQ(ReadSlots("OH", "").DxState, "OH");
  EXPECT_EQ(ReadSlots("", "NY").OrigState, "NY");
}

TEST(DxSpiderSlots, HoldAZoneInTwoColumns) {
  EXPECT_EQ(ReadSlots("4", "14").DxItu, " 4");
  EXPECT_EQ(ReadSlots("4", "14").OrigItu, "14");
  EXPECT_EQ(ReadSlots("05", "1").DxItu, " 5");
  EXPECT_EQ(ReadSlots("90", "1").DxItu, "90");
}

TEST(DxSpiderSlots, NumberOutsideTheZonesIsNone) {
  for (const std::string word : {"0", "00", "91", "99", "014", "-4", "4.", "+4"}) {
    const Spot spot = ReadSlots(word, word);
    EXPECT_EQ(spot.DxItu + spot.DxCq + spot.OrigItu + spot.OrigCq, "") << word;
    EXPECT_EQ(spot.Comment, WithWord("CW up 2", word));
    EXPECT_EQ(spot.OrigCty, word);
  }
}

TEST(DxSpiderSlots, NumberUpToFortyGoesByTheSwitches) {
  const struct {
    NodeSwitch cq;
    NodeSwitch itu;
    bool isCq;
  } kKnown[] = {{kOn, kOff, true},           {kOff, kOn, false},     {kOn, kOn, false},
                {kUnknown, kUnknown, false}, {kOn, kUnknown, true},  {kUnknown, kOn, false},
                {kUnknown, kOff, true},      {kOff, kUnknown, false}};
  for (const auto& [cq, itu, isCq] : kKnown)
    for (const std::string zone : {"40", " 1"}) {
      const Spot spot = ReadSlots(zone, zone, {.Cq = cq, .Itu = itu});
      EXPECT_EQ(spot.DxCq, isCq ? zone : "");
      EXPECT_EQ(spot.OrigCq, isCq ? zone : "");
      EXPECT_EQ(spot.DxItu, isCq ? "" : zone);
      EXPECT_EQ(spot.OrigItu, isCq ? "" : zone);
    }
}

TEST(DxSpiderSlots, NumberAboveFortyIsAlwaysItu) {
  EXPECT_EQ(ReadSlots("41", "", {.Cq = kOn, .Itu = kOff}).DxItu, "41");
}

TEST(DxSpiderSlots, NumberIsOfTheCommentWhileTheNodeSendsNoZones) {
  const Spot spot = ReadSlots("14", "14", {.Cq = kOff, .Itu = kOff});
  EXPECT_EQ(spot.Comment, WithWord("CW up 2", "14"));
  EXPECT_EQ(spot.OrigCty, "14");
  EXPECT_EQ(ReadSlots("JN58", "", {.Cq = kOff, .Itu = kOff}).DxGrid, "JN58");
}

TEST(DxSpiderSlots, AreNoneWhileAllSwitchesAreOff) {
  const SlotSwitches off = {.State = kOff, .Grid = kOff, .Cq = kOff, .Itu = kOff};
  for (const std::string word : {"54", "14", "JN58", "OH"}) {
    const Spot spot = ReadSlots(word, word, off);
    EXPECT_EQ(spot.Comment, WithWord("CW up 2", word));
    EXPECT_EQ(spot.OrigCty, word);
    EXPECT_EQ(spot.DxItu + spot.DxCq + spot.DxGrid + spot.DxState, "");
  }
}

TEST(DxSpiderSlots, NeedOneBlankBehindTheWordAndAnyNumberBeforeIt) {
  EXPECT_EQ(Read({.comment = "percent 100% and %41 and ca 15"}, NodeKind::Spider, {}).DxItu, "15");
  EXPECT_EQ(Read({.comment = "percent 100% and %41 and c 15"}, NodeKind::Spider, {}).DxItu, "");
}

TEST(DxSpiderSlots, OfAFullCommentAreEmpty) {
  const Spot spot = Read({.comment = "this comment is far longer tha"}, NodeKind::Spider, {});
  EXPECT_EQ(spot.Comment, "this comment is far longer tha");
}

TEST(DxSpiderSlots, CountryIsNone) {
  const Spot spot = ReadSlots("DL", "DL");
  EXPECT_EQ(spot.DxCty, "");
  EXPECT_EQ(spot.Comment, WithWord("CW up 2", "DL"));
  EXPECT_EQ(spot.OrigCty, "DL");
}

TEST(DxSpiderSlots, OtherTextBehindTheTimeIsTheSpotters) {
  for (const std::string text : {"(JO62QM)", "JO62QM", "14 FN20", "two words", "JS58", "jn58"})
    EXPECT_EQ(ReadSlots("", text).OrigCty, text);
}

TEST(DxSpiderSlots, BeyondDxSpiderTextBehindTheTimeIsTheSpotters) {
  for (const std::string text : {"FN20", "14", "NY"}) {
    const Spot spot = Read({.tail = " " + text}, NodeKind::ArCluster, kTable);
    EXPECT_EQ(spot.OrigCty, text);
    EXPECT_EQ(spot.OrigGrid + spot.OrigState + spot.OrigItu, "");
  }
}

}  // namespace
}  // namespace spots
