#include "spots/cty_table.h"

#include <gmock/gmock.h>

#include <random>

#include "core/quoted.h"
#include "core/text.h"
#include "cty_text.h"
#include "thoroughness.h"

namespace spots {
namespace {

using testing::Each;
using testing::EndsWith;
using testing::IsEmpty;
using testing::SizeIs;

enum ContinentColumn { NA, EU, AF, AS, SA, OC };

class CtyTableTest : public testing::Test {
 protected:
  // Of a file that holds these lines and many more.
  void Read(const std::vector<std::string>& lines) { table.Read(CtyText(lines)); }

  void ExpectEmpty() {
    EXPECT_EQ(table.CtyCount(), -1);
    EXPECT_THAT(table.CtyHeaderLines(), IsEmpty());
    EXPECT_THAT(table.CtyByContinent(), Each(IsEmpty()));
    EXPECT_THAT(table.CtyNames(), Each(IsEmpty()));
    EXPECT_THAT(table.ContinentLast(), Each(-1));
    EXPECT_FALSE(table.HasPrefix("GD"));
    EXPECT_EQ(table.CountryName("GD"), "");
  }

  Heading HeadingOf(std::string_view prefix) {
    Heading heading{"old", "  old"};
    table.FindHeading(prefix, heading);
    return heading;
  }

  CtyTable table;
  const Home home{{42.28, 83.73}, true};
};

TEST_F(CtyTableTest, IsEmptyUntilAFileIsRead) {
  ExpectEmpty();
  EXPECT_EQ(HeadingOf("GD"), Heading{});
}

TEST_F(CtyTableTest, ReadsTheCountryLinesInTheirOrder) {
  Read({Country{}.Line(), "    GD,GT,MD,MT;", Country{.name = "Monaco", .prefix = "3A"}.Line()});
  EXPECT_EQ(table.CtyCount(), 2 + 310);
  EXPECT_EQ(table.CtyHeadings()[0].Prefix, "GD");
  EXPECT_EQ(table.CtyHeadings()[1].Prefix, "3A");
  EXPECT_EQ(table.CtyHeadings().back().Prefix, "ZS8");
  EXPECT_EQ(table.CtyHeaderLines()[0], core::UCase(Country{}.Line()));
  EXPECT_THAT(table.CtyHeaderLines(), SizeIs(313));
}

TEST_F(CtyTableTest, HoldsNamesAndPrefixesInCapitals) {
  Read({Country{.name = "Bear Island", .prefix = "JW/b"}.Line()});
  EXPECT_EQ(table.CtyByContinent()[EU][0], "JW/B");
  EXPECT_EQ(table.CtyNames()[EU][0], "BEAR ISLAND");
}

TEST_F(CtyTableTest, LinesMayEndEitherWay) {
  for (const std::string_view lineEnd : {"\r\n", "\n"}) {
    table.Read(CtyText({Country{}.Line()}, lineEnd));
    EXPECT_EQ(table.CountryName("GD"), "ISLE OF MAN");
    EXPECT_EQ(table.CtyCount(), 311);
  }
}

TEST_F(CtyTableTest, AStarInThePrefixIsDroppedAndTheNameSaysWhy) {
  Read({Country{.name = "European Turkey", .prefix = "*TA1"}.Line()});
  EXPECT_TRUE(table.HasPrefix("TA1"));
  EXPECT_FALSE(table.HasPrefix("*TA1"));
  EXPECT_EQ(table.CountryName("TA1"), "EUROPEAN TURKEY (WAE Country)");
}

TEST_F(CtyTableTest, CountriesStandInTheColumnsOfTheirContinents) {
  Read({Country{.continent = "NA", .prefix = "K"}.Line(),
        Country{.continent = "EU", .prefix = "DL"}.Line(),
        Country{.continent = "AS", .prefix = "JA"}.Line(),
        Country{.continent = "SA", .prefix = "PY"}.Line(),
        Country{.continent = "OC", .prefix = "VK"}.Line()});
  const auto& columns = table.CtyByContinent();
  EXPECT_EQ(columns[NA][0], "K");
  EXPECT_EQ(columns[EU][0], "DL");
  EXPECT_EQ(columns[AF][0], FillerPrefix(0));
  EXPECT_EQ(columns[AS][0], "JA");
  EXPECT_EQ(columns[SA][0], "PY");
  EXPECT_EQ(columns[OC][0], "VK");
  EXPECT_EQ(table.ContinentLast(), (std::array<int, 6>{0, 0, 310, 0, 0, 0}));
}

TEST_F(CtyTableTest, AntarcticaStandsWithSouthAmerica) {
  Read({Country{.continent = "SA", .prefix = "PY"}.Line(),
        Country{.name = "Antarctica", .continent = "AN", .prefix = "CE9"}.Line()});
  EXPECT_EQ(table.CtyByContinent()[SA][1], "CE9");
  EXPECT_EQ(table.CtyNames()[SA][1], "ANTARCTICA");
  EXPECT_EQ(table.ContinentLast()[SA], 1);
}

TEST_F(CtyTableTest, AnUnknownContinentTakesTheFirstPlaceOfTheColumnBefore) {
  Read({Country{.prefix = "DL"}.Line(), Country{.prefix = "F"}.Line(),
        Country{.name = "Atlantis", .continent = "XX", .prefix = "1X"}.Line()});
  EXPECT_EQ(table.CtyByContinent()[EU][0], "1X");
  EXPECT_EQ(table.CtyByContinent()[EU][1], "F");
  EXPECT_EQ(table.ContinentLast()[EU], 1);
  EXPECT_EQ(table.CountryName("1X"), "ATLANTIS");
  EXPECT_EQ(table.CountryName("DL"), "");
  EXPECT_TRUE(table.HasPrefix("DL"));
}

TEST_F(CtyTableTest, AnUnknownContinentInTheFirstLineIsHarmless) {
  Read({Country{.continent = "XX", .prefix = "1X"}.Line()});
  EXPECT_EQ(table.CtyByContinent()[NA][0], "1X");
  EXPECT_EQ(table.ContinentLast()[NA], -1);
}

TEST_F(CtyTableTest, ColumnsAreAsLongAsTheLongest) {
  Read({Country{}.Line()});
  EXPECT_THAT(table.CtyByContinent(), Each(SizeIs(311)));
  EXPECT_THAT(table.CtyNames(), Each(SizeIs(311)));
  EXPECT_EQ(table.CtyByContinent()[EU][1], "");
}

TEST_F(CtyTableTest, TheContinentIsTakenByItsPlaceInTheLine) {
  std::string line = Country{.continent = "EU", .prefix = "3A"}.Line();
  line.insert(26, "  ");
  Read({Country{.continent = "OC", .prefix = "VK"}.Line(), line});
  EXPECT_EQ(table.CtyByContinent()[OC][0], "3A") << "two columns further the continent is unknown";
}

TEST_F(CtyTableTest, FindsEveryPrefixInAnyCase) {
  Read({Country{.prefix = "ZZ"}.Line(), Country{.prefix = "JW/b"}.Line(),
        Country{.prefix = "1A"}.Line()});
  Heading heading;
  for (const auto& row : table.CtyHeadings()) {
    EXPECT_TRUE(table.FindHeading(row.Prefix, heading)) << row.Prefix;
    EXPECT_TRUE(table.FindHeading(core::LCase(row.Prefix), heading)) << row.Prefix;
    EXPECT_NE(table.CountryName(core::LCase(row.Prefix)), "") << row.Prefix;
  }
}

TEST_F(CtyTableTest, WhatIsNoPrefixHasNeitherNameNorHeading) {
  Read({Country{}.Line()});
  table.SetHome(home);
  for (const std::string_view word : {"", " ", "G", "GDA", "GD ", "Q", "~", "\xFF"}) {
    EXPECT_FALSE(table.HasPrefix(word)) << word;
    EXPECT_EQ(table.CountryName(word), "") << word;
    EXPECT_EQ(HeadingOf(word), Heading{}) << word;
  }
}

TEST_F(CtyTableTest, OfEqualPrefixesTheFirstCounts) {
  Read({Country{.continent = "OC", .latitude = 10, .prefix = "1A"}.Line(),
        Country{.name = "Second", .continent = "NA", .latitude = 20, .prefix = "1A"}.Line()});
  table.SetHome(home);
  EXPECT_EQ(HeadingOf("1A"), Bearing(home, {10, 4.53}));
  EXPECT_EQ(table.CountryName("1A"), "SECOND") << "by the order of the columns";
}

TEST_F(CtyTableTest, HeadingsFollowTheHome) {
  Read({Country{}.Line()});
  EXPECT_EQ(HeadingOf("GD"), Heading{});
  table.SetHome(home);
  EXPECT_EQ(HeadingOf("GD"), Bearing(home, {54.20, 4.53}));
  EXPECT_NE(HeadingOf("GD"), Heading{});
  const Home miles{home.position, false};
  table.SetHome(miles);
  EXPECT_EQ(HeadingOf("gd"), Bearing(miles, {54.20, 4.53}));
  Read({Country{.latitude = 10}.Line()});
  EXPECT_EQ(HeadingOf("GD"), Bearing(miles, {10, 4.53}));
  table.SetHome({});
  EXPECT_EQ(HeadingOf("GD"), Heading{});
}

TEST_F(CtyTableTest, FewerThan300LineEndsAreNoFile) {
  const std::string line = Country{}.Line() + "\r\n";
  std::string text = Country{.prefix = "ZS8"}.Line() + "\r\n";
  for (int i = 0; i < 298; ++i) text += line;
  EXPECT_FALSE(table.Read(text));
  ExpectEmpty();
  EXPECT_FALSE(table.Read(text + line));
  EXPECT_EQ(table.CtyCount(), 299);
}

TEST_F(CtyTableTest, AFileThatIsNoneEmptiesTheTable) {
  Read({Country{}.Line()});
  EXPECT_FALSE(table.Read("ZS8"));
  ExpectEmpty();
}

TEST_F(CtyTableTest, WithoutMarionIslandGainsItAndWantsRewriting) {
  const auto rewritten = table.Read(CtyTextWithoutMarion({Country{}.Line()}));
  ASSERT_TRUE(rewritten);
  EXPECT_EQ(table.CtyHeadings().back().Prefix, "ZS8");
  EXPECT_EQ(table.CountryName("ZS8"), "MARION ISLAND");
  EXPECT_EQ(table.CtyByContinent()[AF][310], "ZS8");
  EXPECT_TRUE(rewritten->starts_with(core::UCase(Country{}.Line()) + "\r\n"));
  EXPECT_THAT(*rewritten,
              EndsWith(":\r\nMarion Island:            38:  57:  AF:  -46.88:   -37.72:    -3.0:"
                       "  ZS8:\r\n"));
  EXPECT_THAT(core::SplitLines(*rewritten), SizeIs(312));
  EXPECT_THAT(core::SplitLines(*rewritten), Each(EndsWith(":")));
}

TEST_F(CtyTableTest, WhatWasRewrittenIsCompleteAndReadsTheSame) {
  const std::string rewritten = table.Read(CtyTextWithoutMarion({Country{}.Line()})).value();
  const auto columns = table.CtyByContinent();
  const auto names = table.CtyNames();
  EXPECT_FALSE(table.Read(rewritten));
  EXPECT_EQ(table.CtyByContinent(), columns);
  EXPECT_EQ(table.CtyNames(), names);
}

TEST_F(CtyTableTest, IsNotRewrittenWith300CountriesOrLess) {
  EXPECT_FALSE(table.Read(CtyTextWithoutMarion({}, 299)));
  EXPECT_EQ(table.CtyCount(), 299);
  EXPECT_TRUE(table.HasPrefix("ZS8"));
  EXPECT_TRUE(table.Read(CtyTextWithoutMarion({}, 300)));
}

TEST_F(CtyTableTest, MarionIslandAmongThePrefixesCountsInAnyCase) {
  EXPECT_FALSE(table.Read(CtyTextWithoutMarion({Country{}.Line(), "    =zs8ab;"})));
  EXPECT_FALSE(table.HasPrefix("ZS8"));
}

TEST_F(CtyTableTest, WhatStandsBehindTheLastLineEndIsNotRead) {
  table.Read(CtyText({}) + Country{.prefix = "ZT"}.Line());
  EXPECT_FALSE(table.HasPrefix("ZT"));
  table.Read(CtyTextWithoutMarion({}) + Country{.prefix = "ZT"}.Line());
  EXPECT_FALSE(table.HasPrefix("ZT"));
  EXPECT_TRUE(table.HasPrefix("ZS8"));
}

TEST_F(CtyTableTest, LinesThatAreNoCountryAreSkipped) {
  Read({"", ":", "::::::::", "Monaco: 14: 27: EU:", std::string(300, ' ') + Country{}.Line(),
        Country{}.Line() + " ", Country{.prefix = "*"}.Line(),
        Country{.prefix = "SIXTEENLETTERS16"}.Line()});
  EXPECT_EQ(table.CtyCount(), 310);
  EXPECT_FALSE(table.HasPrefix("SIXTEENLETTERS16"));
}

TEST_F(CtyTableTest, NumbersThatAreNoneCountAsZero) {
  std::string line = Country{.prefix = "3A"}.Line();
  line.replace(line.find("54.20"), 5, "north");
  Read({line});
  table.SetHome(home);
  EXPECT_EQ(HeadingOf("3A"), Bearing(home, {0, 4.53}));
}

TEST_F(CtyTableTest, HoldsAsManyCountriesAsItHasRoomFor) {
  std::vector<std::string> lines(2000, Country{}.Line());
  Read(lines);
  EXPECT_THAT(table.CtyHeadings(), SizeIs(CtyTable::kMostRows));
  EXPECT_THAT(table.CtyHeaderLines(), SizeIs(CtyTable::kMostRows));
  EXPECT_THAT(table.CtyByContinent(), Each(SizeIs(CtyTable::kMostRows)));
}

TEST_F(CtyTableTest, FiftyMegabytesAreHarmless) {
  constexpr std::size_t kGiant = 50'000'000 / kOneOf;
  for (const char byte : {'\n', ':', 'Z', '\0'}) table.Read(std::string(kGiant, byte));
  std::string lines = ":\r\n";
  while (lines.size() < kGiant) lines += lines;
  table.Read(lines);
  EXPECT_LE(table.CtyCount(), 0);
}

TEST_F(CtyTableTest, CutOrBentAnywhereIsHarmless) {
  const std::string whole = CtyText({Country{}.Line(), Country{.prefix = "*TA1"}.Line()});
  table.SetHome(home);
  for (unsigned seed = 1; seed <= 300 && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    std::string text = whole.substr(0, random() % whole.size());
    for (int changes = 0; changes < 20 && !text.empty(); ++changes)
      text[random() % text.size()] = "\r\n:* \0\xFF"[random() % 7];
    table.Read(text);
    EXPECT_LE(table.CtyHeadings().size(), CtyTable::kMostRows);
    Heading heading;
    for (const auto& row : table.CtyHeadings()) EXPECT_TRUE(table.FindHeading(row.Prefix, heading));
  }
}

}  // namespace
}  // namespace spots
