#include "spots/spot_requests.h"

#include <gmock/gmock.h>

namespace spots {
namespace {

using session::NodeKind;
using testing::ElementsAre;
using testing::IsEmpty;

struct Expected {
  const char* band;
  const char* zelva;
  const char* spider;
  const char* others;
};

TEST(GetSpotsCommand, SpeaksEachDialect) {
  for (const Expected& each :
       {Expected{"20", "sh/dx/20 20", "sh/dx/20 on 20m", "sh/dx/20 20"},
        Expected{"160", "sh/dx/20 160", "sh/dx/20 on 160m", "sh/dx/20 160"},
        Expected{"4", "sh/dx/20 4", "sh/dx/20 on 4m", "sh/dx/20 70000-70650"},
        Expected{"80", "sh/dx/20 80", "sh/dx/20 on 80m", "sh/dx/20 3"},
        Expected{"70", "sh/dx/20 70", "sh/dx/20 on 420000/450000", "sh/dx/20 70"},
        Expected{"60", "sh/dx/20 60", "sh/dx/20 on 5200/5500", "sh/dx/20 5200-5500"},
        Expected{"MW", "sh/dx/20 2000", "sh/dx/20 on 900000/11000000", "sh/dx/20 900000-11000000"},
        Expected{"1", "sh/dx/20 220", "sh/dx/20 on 218000/230000", "sh/dx/20 218-230"}}) {
    EXPECT_EQ(GetSpotsCommand(each.band, NodeKind::Zelva), each.zelva);
    EXPECT_EQ(GetSpotsCommand(each.band, NodeKind::Spider), each.spider);
    for (const NodeKind kind : {NodeKind::ArCluster, NodeKind::DxNet, NodeKind::Clx,
                                NodeKind::WinCluster, NodeKind::Unknown, NodeKind::Skimmer})
      EXPECT_EQ(GetSpotsCommand(each.band, kind), each.others);
  }
}

TEST(GetSpotsCommand, BandWordIsTakenInAnyCaseAndTrimmed) {
  EXPECT_EQ(GetSpotsCommand(" mw ", NodeKind::Zelva), "sh/dx/20 2000");
}

TEST(MissedSpots, PlainNodesGetTheCountAlone) {
  const MissedFilter filter{.ranges = {{1800, 2000}}, .countries = {"DL"}};
  for (const NodeKind kind :
       {NodeKind::Zelva, NodeKind::Spider, NodeKind::DxNet, NodeKind::Clx, NodeKind::WinCluster})
    EXPECT_EQ(MissedSpotsQuery(kind, "sh/mydx", 50, filter), "sh/mydx/50");
}

TEST(MissedSpots, SkimmerAndUnknownNodeGetNoRequest) {
  EXPECT_EQ(MissedSpotsQuery(NodeKind::Skimmer, "sh/dx", 50, {}), "");
  EXPECT_EQ(MissedSpotsQuery(NodeKind::Unknown, "sh/dx", 50, {}), "");
}

TEST(MissedSpots, CountOfZeroAsksForNothing) {
  EXPECT_EQ(MissedSpotsQuery(NodeKind::Spider, "sh/dx", 0, {}), "");
}

TEST(MissedSpots, ArClusterGetsAllFrequenciesIfNoBandRemains) {
  EXPECT_EQ(MissedSpotsQuery(NodeKind::ArCluster, "sh/dx", 100, {}),
            "sh/dx/100 where (freq>1800 and freq<21000000)");
}

TEST(MissedSpots, RangesAreJoinedByOr) {
  EXPECT_EQ(WhereExpression({.ranges = {{1800, 2000}}}), "(freq>1800 and freq<2000)");
  EXPECT_EQ(WhereExpression({.ranges = {{1800, 1840}, {14000, 14070.5}}}),
            "((freq>1800 and freq<1840) or (freq>14000 and freq<14070.5))");
}

TEST(MissedSpots, CountriesThatPassAreJoinedByOr) {
  EXPECT_EQ(WhereExpression({.countries = {"DL"}}),
            "(freq>1800 and freq<21000000) and (spottercty='DL')");
  EXPECT_EQ(WhereExpression({.ranges = {{7000, 7300}}, .countries = {"DL", "HB9"}}),
            "(freq>7000 and freq<7300) and ((spottercty='DL') or (spottercty='HB9'))");
}

TEST(MissedSpots, CountriesThatAreRejectedAreJoinedByAnd) {
  EXPECT_EQ(WhereExpression({.countries = {"DL", "HB9"}, .rejectsCountries = true}),
            "(freq>1800 and freq<21000000) and ((spottercty<>'DL') and (spottercty<>'HB9'))");
}

TEST(MissedSpots, CountryDoesNotEndItsQuotes) {
  EXPECT_EQ(WhereExpression({.countries = {"D'L"}}),
            "(freq>1800 and freq<21000000) and (spottercty='DL')");
}

// At a DXSpider node.
class SpotRequestsTest : public testing::Test {
 protected:
  core::Settings settings;
  SpotRequests::Node node{.kind = NodeKind::Spider, .ShowDxCommand = "sh/mydx"};
  bool linked = true;
  bool busy = false;
  bool done = true;
  int timed = 0;
  int changed = 0;
  std::vector<std::string> sent;
  SpotRequests requests{settings,
                        {.node = [this] { return node; },
                         .filter = [] { return MissedFilter{}; },
                         .sendAsIs =
                             [this](std::string_view text) {
                               if (linked) sent.emplace_back(text);
                               return linked;
                             },
                         .listRequested = [this] { busy = true; },
                         .setShDxDone = [this](bool value) { done = value; },
                         .missedRequested = [this] { ++timed; },
                         .settingsChanged = [this] { ++changed; }}};
};

TEST_F(SpotRequestsTest, SpotsOfABandAreAListThatRuns) {
  requests.cmdGetSpots("20", "");
  EXPECT_THAT(sent, ElementsAre("sh/dx/20 on 20m"));
  EXPECT_TRUE(busy);
  EXPECT_FALSE(done);
}

TEST_F(SpotRequestsTest, AllWithACallAsksForTheCall) {
  requests.cmdGetSpots("All", " 3Y0J ");
  EXPECT_THAT(sent, ElementsAre("sh/DX/99 3Y0J"));
  EXPECT_TRUE(busy);
  EXPECT_FALSE(done);
  EXPECT_EQ(timed, 0);
}

TEST_F(SpotRequestsTest, AllWithoutACallAsksForTheMissedOnes) {
  requests.cmdGetSpots("ALL", " ");
  EXPECT_THAT(sent, ElementsAre("sh/mydx/100", ""));
  EXPECT_TRUE(busy);
  EXPECT_FALSE(done);
}

TEST_F(SpotRequestsTest, MissedSpotsAreAskedForWithAnEmptyLineBehindIt) {
  requests.cmdMissed();
  EXPECT_THAT(sent, ElementsAre("sh/mydx/100", ""));
  EXPECT_FALSE(done);
  EXPECT_FALSE(busy);
  EXPECT_EQ(timed, 1);
}

TEST_F(SpotRequestsTest, NodeWithoutSuchARequestIsLeftAlone) {
  node.kind = NodeKind::Skimmer;
  requests.cmdMissed();
  requests.cmdGetSpots("ALL", "");
  EXPECT_THAT(sent, IsEmpty());
  EXPECT_TRUE(done);
  EXPECT_FALSE(busy);
}

TEST_F(SpotRequestsTest, WhatIsLostOnTheWayChangesNothing) {
  linked = false;
  requests.cmdGetSpots("20", "");
  requests.cmdMissed();
  EXPECT_TRUE(done);
  EXPECT_FALSE(busy);
  EXPECT_EQ(timed, 0);
}

TEST_F(SpotRequestsTest, CountIsBroughtBackIntoItsRangeAndKept) {
  requests.Load();
  EXPECT_EQ(requests.txtGetNr.Text.Get(), "100");
  for (const auto& [typed, kept] :
       {std::pair{"30", 30}, std::pair{"101", 100}, std::pair{"-1", 0}, std::pair{"", 0},
        std::pair{"0", 0}, std::pair{"100", 100}, std::pair{"99999999999", 100}}) {
    requests.txtGetNr.UserTypes(typed);
    EXPECT_EQ(settings.GetNr, kept) << typed;
  }
  EXPECT_EQ(requests.txtGetNr.Text.Get(), "100");
  requests.txtGetNr.UserTypes("30");
  requests.cmdMissed();
  EXPECT_EQ(sent.front(), "sh/mydx/30");
  EXPECT_GT(changed, 0);
}

TEST_F(SpotRequestsTest, SlowLinkHasACountOfItsOwn) {
  node.TncMode = true;
  requests.Load();
  EXPECT_EQ(requests.txtGetNr.Text.Get(), "20");
  requests.txtGetNr.UserTypes("15");
  EXPECT_EQ(settings.GetNrTnc, 15);
  EXPECT_EQ(settings.GetNr, 100);
  requests.cmdMissed();
  EXPECT_EQ(sent.front(), "sh/mydx/15");
}

TEST_F(SpotRequestsTest, CountFromTheConfigurationIsHeldInItsRangeToo) {
  settings.GetNr = 5000;
  requests.Load();
  EXPECT_EQ(requests.txtGetNr.Text.Get(), "100");
  requests.cmdMissed();
  EXPECT_EQ(sent.front(), "sh/mydx/100");
}

}  // namespace
}  // namespace spots
