#include "program/dx_tab.h"

#include <gtest/gtest.h>

#include "program/desk.h"

using namespace std::chrono_literals;
using program::Views;
using session::LinkPhase;
using spots::SpotTable;

namespace {

class DxTabTest : public testing::Test {
 protected:
  DxTabTest() { desk.HasUsualConfiguration(); }

  SpotTable& Table() { return desk.program->spotParts.table; }
  std::string Caption() { return desk.program->views.tab[Views::Dx].Caption.Get(); }
  std::string Empty() { return desk.program->dxTab.lblEmpty.Caption.Get(); }
  void ChooseBand(int band) { Table().rail.optBand.UserSelects(band); }
  void ConnectTo(LinkPhase phase) { desk.program->session.state.Phase.Set(phase); }
  void Spot(const char* row = "DX de W1TST:      14025.0  3Y0J         CW             2100Z") {
    Table().CountUnseen(6);
    Table().Add({row, spots::TableRow::Kind::Other, 6});
  }

  Desk desk;
};

TEST_F(DxTabTest, TheTableKnowsWhetherItIsOnShow) {
  desk.Start();
  EXPECT_TRUE(Table().OnShow());
  desk.program->views.Choose(Views::LoginMsg);
  EXPECT_FALSE(Table().OnShow());
  desk.program->views.Choose(Views::Settings);
  EXPECT_FALSE(Table().OnShow());
  desk.program->views.Choose(Views::Dx);
  EXPECT_TRUE(Table().OnShow());
}

TEST_F(DxTabTest, AnotherTabAtTheStartIsNotTheTable) {
  desk.HasUsualConfiguration("\"StartTab\",0\r\n");
  desk.Start();
  EXPECT_FALSE(Table().OnShow());
}

TEST_F(DxTabTest, TheTabCountsWhatCameUnseenUntilItIsEntered) {
  desk.Start();
  Spot();
  EXPECT_EQ(Caption(), "DX");
  desk.program->views.Choose(Views::LoginMsg);
  Spot();
  Spot();
  EXPECT_EQ(Caption(), "DX = 2");
  desk.program->views.Choose(Views::Dx);
  EXPECT_EQ(Caption(), "DX");
}

TEST_F(DxTabTest, ASeparatorMarksTheFirstUnseenSpotUntilTheTabIsLeftAgain) {
  desk.Start();
  const auto rows = [this] { return Table().RtbDx.Rows().size(); };
  desk.program->views.Choose(Views::LoginMsg);
  Spot();
  Spot();
  desk.program->views.Choose(Views::Dx);
  EXPECT_EQ(rows(), 3u) << "it stands while the reader is there";
  EXPECT_EQ(Table().RtbDx.Rows().front().RowKind(), spots::TableRow::Kind::Stars);
  desk.program->views.Choose(Views::LoginMsg);
  EXPECT_EQ(rows(), 2u);
}

TEST_F(DxTabTest, CountingBeginsAnewWithEachAbsence) {
  desk.Start();
  for (int absence = 0; absence < 2; ++absence) {
    desk.program->views.Choose(Views::Settings);
    Spot();
    EXPECT_EQ(Caption(), "DX = 1");
    desk.program->views.Choose(Views::Dx);
  }
}

TEST_F(DxTabTest, EnteringSortsWhatCameMeanwhile) {
  desk.Start();
  Table().SortBy(2);
  desk.program->views.Choose(Views::LoginMsg);
  for (const char* line :
       {"DX de DL1ABC:    14025.0  K2BBB        CW up 2                        2100Z",
        "DX de DL1ABC:    14026.0  K1AAA        CW up 2                        2100Z"})
    desk.program->spotParts.lines.dx(line);
  desk.world.Run(1s);
  EXPECT_TRUE(Table().RtbDx.Rows().empty()) << "nothing is sorted behind another tab";
  desk.program->views.Choose(Views::Dx);
  ASSERT_EQ(Table().RtbDx.Rows().size(), 2u);
  EXPECT_EQ(Table().RtbDx.Rows().front().DxCall(), "K1AAA");
}

TEST_F(DxTabTest, InAnOrderOfItsOwnTheTableHasANewSpotWithinATenthOfASecond) {
  desk.Start();
  Table().SortBy(2);
  desk.program->spotParts.lines.dx(
      "DX de DL1ABC:    14025.0  K2BBB        CW up 2                        2100Z");
  desk.world.Run(100ms);
  EXPECT_EQ(Table().RtbDx.Rows().size(), 1u);
}

// Where nothing waits, ten looks a second are most of what wakes an idle program.
TEST_F(DxTabTest, InTheOrderOfTimeTheProgramLooksOnceASecond) {
  desk.Start();
  const auto pause = [this] {
    return desk.program->session.timers.Interval(session::TimerId::DxQue);
  };
  EXPECT_EQ(pause(), 1s);
  Table().SortBy(spots::kLastHour);
  EXPECT_EQ(pause(), 100ms);
  Table().SortBy(spots::kTimeOrder);
  EXPECT_EQ(pause(), 1s);
}

TEST_F(DxTabTest, OnWinClusterATabThatIsNotOfferedLeadsToTheTable) {
  desk.Start();
  desk.program->views.Choose(Views::LoginMsg);
  desk.program->session.state.Kind = session::NodeKind::WinCluster;
  desk.program->views.Choose(Views::Wx);
  EXPECT_TRUE(Table().OnShow());
  EXPECT_EQ(desk.program->views.TabType(), "Dx");
}

TEST_F(DxTabTest, TheAnswerToTheRequestForMissedSpotsIsTimed) {
  desk.HasUsualConfiguration("\"AutoStart\",-1\r\n\"Get Missed\",-1\r\n");
  desk.StartNode();
  desk.Start();
  const spots::SpotList& list = desk.program->spotParts.lines.list;
  ASSERT_TRUE(desk.world.RunUntil([&] { return !list.lblCount.Caption.Get().empty(); }, 30s));
  EXPECT_NE(list.lblSeconds.Caption.Get(), "");
  EXPECT_NE(desk.program->session.latency.Text3.Caption.Get(), "");
}

TEST_F(DxTabTest, AColumnIsCalledWhatTheNodeSendsInIt) {
  desk.Start();
  const auto caption = [this](spots::DisplayChoice::Check column) {
    return desk.program->spotParts.display.chkAr17[column].Caption.Get();
  };
  EXPECT_EQ(caption(spots::DisplayChoice::kOrigState), "Orig State/Province");
  desk.program->session.ar17.lblOrigState.Caption.Set("Orig State");
  desk.program->session.ar17.lblDxState.Caption.Set("DX St");
  EXPECT_EQ(caption(spots::DisplayChoice::kOrigState), "Orig State");
  EXPECT_EQ(caption(spots::DisplayChoice::kDxState), "DX St");
}

TEST_F(DxTabTest, AnEmptyTableSaysWhatItWaitsFor) {
  desk.Start();
  EXPECT_EQ(Empty(), "Not connected.");
  ConnectTo(LinkPhase::Trying);
  EXPECT_EQ(Empty(), "Connecting.");
  ConnectTo(LinkPhase::Connected);
  EXPECT_EQ(Empty(), "Connected. No spots yet.");
  ChooseBand(11);
  EXPECT_EQ(Empty(), "Connected. No spots on 6 m yet.");
  ChooseBand(14);
  EXPECT_EQ(Empty(), "Connected. No spots on 70 cm yet.");
  ChooseBand(spots::kAlarmBand);
  EXPECT_EQ(Empty(), "Connected. No alarms yet.");
}

TEST_F(DxTabTest, AnEmptyViewSaysWhichOneItIs) {
  desk.Start();
  ConnectTo(LinkPhase::Connected);
  Table().chkShSkm[SpotTable::kSkimmer].UserSets(true);
  EXPECT_EQ(Empty(), "Connected. No Skimmer spots yet.");
  Table().chkShSkm[SpotTable::kDx].UserSets(true);
  EXPECT_EQ(Empty(), "Connected. No spots yet.");
  Table().chkShSkm[SpotTable::kSkimmer].UserSets(false);
  EXPECT_EQ(Empty(), "Connected. No DX spots yet.");
}

TEST_F(DxTabTest, ABandThatIsChosenFromAfarBringsTheTableOnShow) {
  desk.Start();
  desk.program->views.Choose(Views::LoginMsg);
  desk.program->dxTab.ChooseBand(6);
  EXPECT_EQ(desk.program->views.onShow.Get(), Views::Dx);
  EXPECT_EQ(Table().rail.SelectedBand(), 6);
}

}  // namespace
