#include "spots/spot_corrections.h"

#include <gtest/gtest.h>

namespace spots {
namespace {

using session::NodeKind;

class SpotCorrectionsTest : public testing::Test {
 protected:
  void FixDx(NodeKind kind = NodeKind::ArCluster) {
    corrections.FixDxSpot(spot, {.kind = kind}, shown);
  }
  void FixSpotter(NodeKind kind = NodeKind::ArCluster) {
    corrections.FixSpotterFields(spot, {.kind = kind}, shown);
  }

  void SetDx(std::string call, std::string cty, std::string state = "") {
    spot.DxCall = std::move(call);
    spot.DxCty = std::move(cty);
    spot.DxState = std::move(state);
    spot.DxCq = "cq";
    spot.DxItu = "it";
  }
  void SetSpotter(std::string call, std::string cty, std::string state = "") {
    spot.Spotter = std::move(call);
    spot.OrigCty = std::move(cty);
    spot.OrigState = std::move(state);
    spot.OrigCq = "cq";
    spot.OrigItu = "it";
  }

  // Lets the node show that it sends states.
  void SendAState() {
    SetDx("OZ1ABC", "OZ", "X");
    FixDx(NodeKind::Spider);
  }

  void ExpectDx(std::string_view cty, std::string_view state, std::string_view cq,
                std::string_view itu) {
    EXPECT_EQ(spot.DxCty, cty) << spot.DxCall;
    EXPECT_EQ(spot.DxState, state) << spot.DxCall;
    EXPECT_EQ(spot.DxCq, cq) << spot.DxCall;
    EXPECT_EQ(spot.DxItu, itu) << spot.DxCall;
  }
  void ExpectSpotter(std::string_view cty, std::string_view state, std::string_view cq,
                     std::string_view itu) {
    EXPECT_EQ(spot.OrigCty, cty) << spot.Spotter;
    EXPECT_EQ(spot.OrigState, state) << spot.Spotter;
    EXPECT_EQ(spot.OrigCq, cq) << spot.Spotter;
    EXPECT_EQ(spot.OrigItu, itu) << spot.Spotter;
  }

  Spot spot;
  ShownColumns shown{.DxCty = true, .OrigCty = true};
  std::string listed;  // a call with an entry in the operator's list
  SpotCorrections corrections{[this](std::string_view call, std::string& cty, std::string& state,
                                     std::string& cq, std::string& itu, std::string& grid) {
    if (call != listed) return false;
    cty = "FX";
    state = "ST";
    cq = "11";
    itu = "22";
    grid = "AA00";
    return true;
  }};
};

TEST_F(SpotCorrectionsTest, AnEntryOfTheOperatorsListIsTheLastWordOnTheDx) {
  listed = "K1ABC/KH6";
  for (const NodeKind kind : {NodeKind::ArCluster, NodeKind::Zelva}) {
    SetDx("K1ABC/KH6", "KH6");
    FixDx(kind);
    ExpectDx("FX", "ST", "11", "22");
    EXPECT_EQ(spot.DxGrid, "AA00");
  }
}

TEST_F(SpotCorrectionsTest, WhatAZelvaNodeSaysOfTheDxStands) {
  SetDx("K1ABC/KH6", "KH6", " X ");
  FixDx(NodeKind::Zelva);
  ExpectDx("KH6", " X ", "cq", "it");
  SetDx("VE3ABC/7", "VE");
  FixDx(NodeKind::Zelva);
  ExpectDx("VE", "", "cq", "it");
}

TEST_F(SpotCorrectionsTest, CanadiansTakeTheirProvinceFromTheCall) {
  SetDx("VE3ABC/7", "VE", "ON");
  FixDx();
  ExpectDx("VE", "BC", " 3", " 2");
  SetDx("VE3ABC", "VE", "ON");
  FixDx();
  ExpectDx("VE", "ON", " 4", " 4");
}

TEST_F(SpotCorrectionsTest, AnUnknownCountryIsShownAsQQ) {
  SetDx("1X1A", "??");
  FixDx();
  EXPECT_EQ(spot.DxCty, "QQ");
}

TEST_F(SpotCorrectionsTest, AnUnknownCountryThatIsNotOnShowStays) {
  shown.DxCty = false;
  SetDx("1X1A", "??");
  FixDx();
  EXPECT_EQ(spot.DxCty, "??");
}

TEST_F(SpotCorrectionsTest, ACountryOfItsOwnSetsStateAndZonesOfAMovedCall) {
  struct Row {
    const char* country;
    const char* state;
    const char* cq;
    const char* itu;
  };
  for (const Row& row :
       {Row{"KH0", "MP", "27", "64"}, Row{"KH2", "GU", "27", "64"}, Row{"KH6", "HI", "31", "61"},
        Row{"KH8", "AS", "32", "63"}, Row{"KL", "AK", " 1", "*1"}, Row{"KP2", "VI", " 8", "11"},
        Row{"KP4", "PR", " 8", "11"}}) {
    SetDx(std::string("K1ABC/") + row.country, row.country, "CT");
    FixDx();
    ExpectDx(row.country, row.state, row.cq, row.itu);
  }
}

TEST_F(SpotCorrectionsTest, ACountryWithoutStatesBlanksThatOfAMovedCall) {
  for (const char* country : {"KH3", "KH4", "KH5", "KH5K", "KH7K", "KH9"}) {
    SetDx("K1ABC/KH", country, "CT");
    FixDx();
    ExpectDx(country, "", "cq", "it");
  }
}

TEST_F(SpotCorrectionsTest, TheCallAreaSetsTheZonesOfOtherMovedCalls) {
  struct Row {
    char area;
    const char* cq;
    const char* itu;
  };
  for (const Row& row :
       {Row{'1', " 5", " 8"}, Row{'2', " 5", " 8"}, Row{'3', " 5", " 8"}, Row{'4', "  ", " 8"},
        Row{'8', "  ", " 8"}, Row{'5', " 4", " 7"}, Row{'0', " 4", " 7"}, Row{'6', " 3", " 6"},
        Row{'7', "  ", " 6"}, Row{'9', " 4", " 8"}, Row{'B', "cq", "it"}, Row{'P', "cq", "it"}}) {
    SetDx(std::string("K1ABC/") + row.area, "K");
    FixDx();
    ExpectDx("K", "", row.cq, row.itu);
  }
}

TEST_F(SpotCorrectionsTest, TheCallAreaStandsBeforeOrBehindTheSlash) {
  SetDx("W7/DL1ABC", "K");
  FixDx();
  ExpectDx("K", "", "  ", " 6");
  SetDx("AA5/DL1ABC", "K");
  FixDx();
  ExpectDx("K", "", " 4", " 7");
  SetDx("/", "K");
  FixDx();
  ExpectDx("K", "", "cq", "it");
}

TEST_F(SpotCorrectionsTest, ACallOfAnAreaIsDoneWithThat) {
  SetDx("K1ABC/7", "K", " X ");
  FixDx();
  EXPECT_EQ(spot.DxState, " X ") << "not even trimmed";
  SendAState();
  SetDx("K1ABC/7", "K", "OH");
  FixDx(NodeKind::Spider);
  ExpectDx("K", "OH", "  ", " 6");
}

TEST_F(SpotCorrectionsTest, ACallThatHasNotMovedKeepsWhatTheNodeSays) {
  SetDx("K1ABC", "K", " OH ");
  FixDx();
  ExpectDx("K", "OH", "cq", "it");
  SetDx("DL1ABC/P", "DL", " ");
  FixDx();
  ExpectDx("DL", "", "cq", "it");
}

TEST_F(SpotCorrectionsTest, ANodeThatSendsStatesIsKnownFromItsFirstOneOn) {
  SetDx("K1ABC", "K");
  FixDx(NodeKind::Spider);
  ExpectDx("K", "", "cq", "it");
  SetDx("K8ABC", "K", "OH");
  FixDx(NodeKind::Spider);
  ExpectDx("K", "OH", " 4", " 8");
  SetDx("K1ABC", "K");
  FixDx(NodeKind::Spider);
  ExpectDx("K", "", "  ", "  ");
}

TEST_F(SpotCorrectionsTest, StatesOfOtherNodesShowNothing) {
  SetDx("K8ABC", "K", "OH");
  FixDx(NodeKind::ArCluster);
  ExpectDx("K", "OH", "cq", "it");
}

TEST_F(SpotCorrectionsTest, AnotherSessionKnowsNothingOfStates) {
  SendAState();
  corrections.BeginSession();
  SetDx("K1ABC", "K");
  FixDx(NodeKind::Spider);
  ExpectDx("K", "", "cq", "it");
}

TEST_F(SpotCorrectionsTest, AStateDecidesInAntarcticaAndGuantanamoOnlyIfThereIsOne) {
  SendAState();
  for (const char* country : {"CE9", "KG4"}) {
    SetDx("KC4AAA", country);
    FixDx(NodeKind::Spider);
    ExpectDx(country, "", "cq", "it");
    SetDx("KC4AAA", country, "FL");
    FixDx(NodeKind::Spider);
    ExpectDx("K", "FL", " 5", " 8");
  }
}

TEST_F(SpotCorrectionsTest, AStateDecidesForACountryOfItsOwnIfItIsAnother) {
  SendAState();
  SetDx("KH6ABC", "KH6", "HI");
  FixDx(NodeKind::Spider);
  ExpectDx("KH6", "HI", "cq", "it");
  SetDx("KH6ABC", "KH6", "CA");
  FixDx(NodeKind::Spider);
  ExpectDx("K", "CA", " 3", " 6");
  SetDx("KL7ABC", "KL", "HI");
  FixDx(NodeKind::Spider);
  ExpectDx("KH6", "HI", "31", "it");
}

TEST_F(SpotCorrectionsTest, ABlankStateOfACountryWithoutStatesIsEmptied) {
  SendAState();
  SetDx("K1ABC/KH9", "KH9", "CT");
  FixDx(NodeKind::Spider);
  ExpectDx("KH9", "", "cq", "it");
}

TEST_F(SpotCorrectionsTest, CountriesBeyondTheKPrefixesStay) {
  SendAState();
  SetDx("OZ1ABC", "OZ", " X");
  FixDx(NodeKind::Spider);
  ExpectDx("OZ", " X", "cq", "it");
  SetDx("W8RIK", "", "OH");
  FixDx(NodeKind::Spider);
  ExpectDx("", "OH", "cq", "it");
}

TEST_F(SpotCorrectionsTest, AnEntryOfTheOperatorsListIsTheLastWordOnTheSpotter) {
  listed = "W8RIK";
  SetSpotter("W8RIK", "K", "OH");
  FixSpotter();
  ExpectSpotter("FX", "ST", "11", "22");
  EXPECT_EQ(spot.OrigGrid, "AA00");
}

TEST_F(SpotCorrectionsTest, WhatAZelvaNodeSaysOfTheSpotterStands) {
  listed = "W8RIK";
  SetSpotter("W8RIK", "K", "OH");
  FixSpotter(NodeKind::Zelva);
  ExpectSpotter("K", "OH", "cq", "it");
}

TEST_F(SpotCorrectionsTest, ASpotterWithNothingOnShowStays) {
  shown = {};
  SetSpotter("W8RIK", "K", "OH");
  FixSpotter();
  ExpectSpotter("K", "OH", "cq", "it");
}

TEST_F(SpotCorrectionsTest, AnyOfTheSpottersFieldsOnShowIsEnough) {
  for (bool ShownColumns::*column : {&ShownColumns::OrigCq, &ShownColumns::OrigItu,
                                     &ShownColumns::OrigCty, &ShownColumns::OrigState}) {
    shown = {};
    shown.*column = true;
    SetSpotter("W8RIK", "K", "OH");
    FixSpotter();
    ExpectSpotter("K", "OH", " 4", " 8");
  }
}

TEST_F(SpotCorrectionsTest, TheStateDecidesForSpottersOfTheKPrefixes) {
  SetSpotter("KH6ABC", " KH6 ", "HI");
  FixSpotter();
  ExpectSpotter("KH6", "HI", "31", "it");
  SetSpotter("W8RIK", "K");
  FixSpotter();
  ExpectSpotter("K", "", "  ", "  ");
}

TEST_F(SpotCorrectionsTest, TheStateDecidesForSpottersInAntarctica) {
  SetSpotter("KC4AAA", "CE9", "VA");
  FixSpotter();
  ExpectSpotter("K", "VA", " 5", " 8");
}

TEST_F(SpotCorrectionsTest, JapaneseSpottersInAntarcticaHaveZonesOfTheirOwn) {
  SetSpotter("8J1ABC", "CE9");
  FixSpotter();
  ExpectSpotter("JA", "", "25", "45");
  SetSpotter("8J1RL-#", "CE9");
  FixSpotter();
  ExpectSpotter("JA", "", "39", "67");
}

TEST_F(SpotCorrectionsTest, AmericanSpottersInAntarcticaAreThereIfTheirCallIsOfABase) {
  for (const char* call : {"KC4AAA", "KC4USV"}) {
    SetSpotter(call, "CE9");
    FixSpotter();
    ExpectSpotter("CE9", "", "cq", "it");
  }
  for (const char* call : {"KC4ABC", "KC4AA", "KC4AAAA", "KC4USVX"}) {
    SetSpotter(call, "CE9");
    FixSpotter();
    ExpectSpotter("K", "", "  ", "  ");
  }
  SetSpotter("DP0GVN", "CE9");
  FixSpotter();
  ExpectSpotter("CE9", "", "cq", "it");
}

TEST_F(SpotCorrectionsTest, CanadianSpottersGoByTheirStateAlone) {
  SetSpotter("VE3ABC/7", "VE", "ON");
  FixSpotter();
  ExpectSpotter("VE", "ON", " 4", " 4");
  SetSpotter("VE3ABC/7", "VE");
  FixSpotter();
  ExpectSpotter("VE", "", "cq", "it");
}

TEST_F(SpotCorrectionsTest, OtherSpottersStay) {
  SetSpotter("DL1ABC", "DL", " X ");
  FixSpotter();
  ExpectSpotter("DL", " X ", "cq", "it");
}

TEST_F(SpotCorrectionsTest, AnEmptySpotIsHarmless) {
  listed = "nobody";
  FixDx(NodeKind::Spider);
  FixSpotter(NodeKind::Spider);
  EXPECT_EQ(spot.DxCty, "");
  EXPECT_EQ(spot.OrigCty, "");
}

}  // namespace
}  // namespace spots
