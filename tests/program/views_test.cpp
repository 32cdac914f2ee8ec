#include "program/views.h"

#include <gmock/gmock.h>

#include "program/desk.h"

using namespace std::chrono_literals;
using program::Views;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

class ViewsTest : public testing::Test {
 protected:
  std::string Caption(Views::Tab tab) { return views.tab[tab].Caption.Get(); }
  // As if every view were part of this version.
  void MakeAllThere() {
    for (core::Label& each : views.tab) each.Enabled.Set(true);
  }

  bool winCluster = false;
  int writes = 0;
  Views views{
      {.winCluster = [this] { return winCluster; }, .delayedWriteCfg = [this] { ++writes; }}};
};

TEST_F(ViewsTest, ElevenTabsStandInTheirOrder) {
  std::vector<std::string> captions;
  for (const core::Label& each : views.tab) captions.push_back(each.Caption.Get());
  EXPECT_THAT(captions, ElementsAre("Settings", "Country", "State", "Bands", "Users", "DX", "WWV",
                                    "Login Msg", "Ann", "Wx Plus", "Mail"));
}

TEST_F(ViewsTest, TheNameOfTheViewOnShowGoesWithIt) {
  MakeAllThere();
  std::vector<std::string> names;
  for (int tab = 0; tab < Views::kTabs; ++tab) {
    views.Choose(tab);
    names.emplace_back(views.TabType());
  }
  EXPECT_THAT(names, ElementsAre("Technical", "Country", "State", "Bands", "Users", "Dx", "WWV",
                                 "Talk", "Announce", "Wx", "Mail"));
}

TEST_F(ViewsTest, TheNameIsStoredBeforeAnybodyHearsOfTheChange) {
  std::vector<std::string> names;
  const auto watching = views.onShow.Observe([&](int) { names.emplace_back(views.TabType()); });
  views.Begin(Views::LoginMsg);
  views.Choose(Views::Settings);
  EXPECT_THAT(names, ElementsAre("Dx", "Talk", "Technical"));
}

TEST_F(ViewsTest, ACaptionThatCountsLeavesTheNameAsItIs) {
  MakeAllThere();
  views.tab[Views::Ann].Caption.Set("Ann = 3");
  views.Choose(Views::Ann);
  EXPECT_EQ(views.TabType(), "Announce");
}

TEST_F(ViewsTest, EachChangeIsWrittenAndARefusedOneIsNot) {
  views.Choose(Views::LoginMsg);
  views.Choose(Views::LoginMsg);
  views.Choose(Views::Mail);
  EXPECT_EQ(writes, 1);
}

TEST_F(ViewsTest, BeginsWithTheTabThatIsWanted) {
  views.Begin(Views::LoginMsg);
  EXPECT_EQ(views.onShow.Get(), Views::LoginMsg);
  EXPECT_EQ(views.TabType(), "Talk");
  EXPECT_EQ(writes, 0);
}

TEST_F(ViewsTest, BeginsWithDxWhereTheWantedTabCannotBeHad) {
  for (const int wanted : {static_cast<int>(Views::Mail), -1, 11, 1000}) {
    views.Begin(wanted);
    EXPECT_EQ(views.onShow.Get(), Views::Dx) << wanted;
    EXPECT_EQ(views.TabType(), "Dx") << wanted;
  }
}

TEST_F(ViewsTest, ATabThatCannotBeUsedSaysWhyAndIsNotChosen) {
  EXPECT_FALSE(views.tab[Views::Mail].Enabled.Get());
  EXPECT_EQ(views.tab[Views::Mail].ToolTip.Get(), "This view is not part of this version.");
  views.Choose(Views::Mail);
  EXPECT_EQ(views.onShow.Get(), Views::Dx);
  EXPECT_EQ(writes, 0);
}

TEST_F(ViewsTest, EnteringAViewRestoresItsCaptionBehindItsRules) {
  MakeAllThere();
  views.tab[Views::Mail].Caption.Set("Mail = 2");
  std::vector<std::pair<std::string, std::string>> seen;
  const auto watching = views.Changed.Add(
      [&](const Views::Step&) { seen.emplace_back(views.TabType(), Caption(Views::Mail)); });
  views.Choose(Views::Mail);
  EXPECT_THAT(seen, ElementsAre(Pair("Mail", "Mail = 2")));
  EXPECT_EQ(Caption(Views::Mail), "Mail");
  EXPECT_EQ(writes, 1);
}

TEST_F(ViewsTest, AViewThatFailsIsReportedAndTheChangeHolds) {
  std::vector<std::pair<std::string, std::string>> faults;
  Views failing{{.winCluster = [] { return false; },
                 .delayedWriteCfg = [this] { ++writes; },
                 .onFault = [&](auto name, auto what) { faults.emplace_back(name, what); }}};
  const auto watching =
      failing.Changed.Add([](const Views::Step&) { throw std::runtime_error("no such page"); });
  failing.Choose(Views::LoginMsg);
  EXPECT_THAT(faults, ElementsAre(Pair("SSTab1", "no such page")));
  EXPECT_EQ(failing.onShow.Get(), Views::LoginMsg);
  EXPECT_EQ(writes, 1);
}

TEST_F(ViewsTest, LeavingTheSpotsRestoresTheirCaption) {
  views.tab[Views::Dx].Caption.Set("DX = 12");
  views.Choose(Views::LoginMsg);
  EXPECT_EQ(Caption(Views::Dx), "DX");
  views.tab[Views::Dx].Caption.Set("DX = 12");
  views.Choose(Views::Settings);
  EXPECT_EQ(Caption(Views::Dx), "DX = 12") << "neither left nor entered";
}

TEST_F(ViewsTest, AChangeTellsWhereItComesFrom) {
  std::vector<std::pair<int, int>> changes;
  const auto watching = views.Changed.Add(
      [&](const Views::Step& change) { changes.emplace_back(change.from, change.to); });
  views.Choose(Views::Dx);
  EXPECT_THAT(changes, IsEmpty()) << "it is on show";
  views.Choose(Views::LoginMsg);
  views.Choose(Views::Settings);
  EXPECT_THAT(changes, ElementsAre(Pair(5, 7), Pair(7, 0)));
}

TEST_F(ViewsTest, OnWinClusterFiveTabsGiveDx) {
  MakeAllThere();
  winCluster = true;
  for (const int tab : {1, 2, 3, 9, 10}) {
    views.Choose(Views::LoginMsg);
    views.Choose(tab);
    EXPECT_EQ(views.onShow.Get(), Views::Dx) << tab;
  }
  for (const int tab : {0, 4, 6, 7, 8}) {
    views.Choose(tab);
    EXPECT_EQ(views.onShow.Get(), tab);
  }
}

TEST_F(ViewsTest, OnWinClusterAViewThatIsOnShowAndNotOfferedIsLeft) {
  MakeAllThere();
  views.Choose(Views::Country);
  winCluster = true;
  views.FollowNode();
  EXPECT_EQ(views.onShow.Get(), Views::Dx);
}

TEST(ViewsInTheProgramTest, TheTabAtTheStartIsThatOfTheConfiguration) {
  Desk desk;
  desk.HasUsualConfiguration("\"StartTab\",7\r\n");
  EXPECT_EQ(desk.Start().views.onShow.Get(), Views::LoginMsg);
  desk.HasUsualConfiguration();
  EXPECT_EQ(desk.Start().views.onShow.Get(), Views::Dx);
  desk.HasUsualConfiguration("\"StartTab\",10\r\n");
  EXPECT_EQ(desk.Start().views.onShow.Get(), Views::Dx);
}

TEST(ViewsInTheProgramTest, FieldsOfTheMacrosFollowTheSoftwareOfTheNodeWithEachTab) {
  Desk desk;
  desk.HasUsualConfiguration();
  program::Program& program = desk.Start();
  const auto shown = [&program] { return program.session.macros.fraMacros.Visible.Get(); };
  program.session.state.Kind = session::NodeKind::ArCluster;
  EXPECT_FALSE(shown());
  program.views.Choose(Views::Settings);
  EXPECT_TRUE(shown());
  program.session.state.Kind = session::NodeKind::Spider;
  program.views.Choose(Views::Dx);
  EXPECT_FALSE(shown());
}

TEST(ViewsInTheProgramTest, AnotherTabIsNotStoredAsTheOneToStartWith) {
  Desk desk;
  desk.HasUsualConfiguration();
  desk.Start().views.Choose(Views::LoginMsg);
  desk.world.Run(3s);
  EXPECT_THAT(desk.Content("molva.cfg"), testing::HasSubstr("\"StartTab\",5\r\n"));
}

}  // namespace
