#include "program/start_options.h"

#include <gmock/gmock.h>

#include "program/desk.h"

using namespace std::chrono_literals;
using program::StartOptions;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

class StartOptionsTest : public testing::Test {
 protected:
  core::Settings settings;
  int writes = 0;
  int filtersAsked = 0;
  std::vector<bool> missedSpots;
  StartOptions options{settings,
                       {.delayedWriteCfg = [this] { ++writes; },
                        .askFilters = [this] { ++filtersAsked; },
                        .missedSpots = [this](bool wanted) { missedSpots.push_back(wanted); }}};
};

TEST_F(StartOptionsTest, ShowTheSettings) {
  settings.AutoStart = settings.AskSettings = settings.QuietExit = true;
  settings.GetMissedOnes = settings.AutoFilter = false;
  options.Load();
  EXPECT_TRUE(options.AutoStart.Value.Get());
  EXPECT_TRUE(options.ChkAskSettings.Value.Get());
  EXPECT_TRUE(options.DontAsk.Value.Get());
  EXPECT_FALSE(options.GetMissedOnes.Value.Get());
  EXPECT_FALSE(options.AutoFilter.Value.Get());
  settings = {};
  settings.AutoFilter = true;
  options.Load();
  EXPECT_FALSE(options.AutoStart.Value.Get());
  EXPECT_FALSE(options.ChkAskSettings.Value.Get());
  EXPECT_FALSE(options.DontAsk.Value.Get());
  EXPECT_TRUE(options.GetMissedOnes.Value.Get());
  EXPECT_TRUE(options.AutoFilter.Value.Get());
}

TEST_F(StartOptionsTest, LoadingIsNoActOfTheUsers) {
  settings.AutoFilter = true;
  options.Load();
  EXPECT_EQ(writes, 0);
  EXPECT_EQ(filtersAsked, 0);
  EXPECT_THAT(missedSpots, IsEmpty());
}

TEST_F(StartOptionsTest, EachTickOfTheUsersGoesIntoItsSettingAndIsStored) {
  options.AutoStart.UserSets(true);
  EXPECT_TRUE(settings.AutoStart);
  options.ChkAskSettings.UserSets(true);
  EXPECT_TRUE(settings.AskSettings);
  options.AutoFilter.UserSets(true);
  EXPECT_TRUE(settings.AutoFilter);
  options.DontAsk.UserSets(true);
  EXPECT_TRUE(settings.QuietExit);
  EXPECT_EQ(writes, 4);
  options.DontAsk.UserSets(false);
  EXPECT_FALSE(settings.QuietExit);
  EXPECT_EQ(writes, 5);
}

TEST_F(StartOptionsTest, FiltersAreAskedForAtOnceWhenTheyAreWantedFromNowOn) {
  options.AutoFilter.UserSets(true);
  EXPECT_EQ(filtersAsked, 1);
  options.AutoFilter.UserSets(false);
  EXPECT_EQ(filtersAsked, 1);
}

TEST_F(StartOptionsTest, WhetherMissedSpotsAreWantedIsTold) {
  options.Load();
  options.GetMissedOnes.UserSets(false);
  EXPECT_FALSE(settings.GetMissedOnes);
  options.GetMissedOnes.UserSets(true);
  EXPECT_TRUE(settings.GetMissedOnes);
  EXPECT_THAT(missedSpots, ElementsAre(false, true));
}

class StartOptionsInTheProgramTest : public testing::Test {
 protected:
  program::Program& Start(const std::string& more = "") {
    desk.HasUsualConfiguration(more);
    return desk.Start();
  }
  program::Program& StartConnected() {
    desk.StartNode();
    program::Program& program = Start("\"AutoStart\",-1\r\n");
    EXPECT_TRUE(desk.world.RunUntil([&] { return program.session.state.LoggedIn; }));
    desk.world.Run(5s);
    return program;
  }
  const std::string& Configuration() {
    desk.world.Run(3s);
    return desk.Content("molva.cfg");
  }

  Desk desk;
};

TEST_F(StartOptionsInTheProgramTest, AreReadAtTheStart) {
  const program::Program& program =
      Start("\"DoNotAsk\",-1\r\n\"AutoFilter\",-1\r\n\"Get Missed\",0\r\n\"Ask Settings\",-1\r\n");
  EXPECT_TRUE(program.startOptions.DontAsk.Value.Get());
  EXPECT_TRUE(program.startOptions.AutoFilter.Value.Get());
  EXPECT_TRUE(program.startOptions.ChkAskSettings.Value.Get());
  EXPECT_FALSE(program.startOptions.GetMissedOnes.Value.Get());
  EXPECT_FALSE(program.startOptions.AutoStart.Value.Get());
}

TEST_F(StartOptionsInTheProgramTest, AreInTheFileTwoSecondsAfterTheTick) {
  program::Program& program = Start();
  program.startOptions.AutoStart.UserSets(true);
  EXPECT_THAT(Configuration(), HasSubstr("\"AutoStart\",-1\r\n"));
  program.startOptions.AutoStart.UserSets(false);
  EXPECT_THAT(Configuration(), HasSubstr("\"AutoStart\",0\r\n"));
}

TEST_F(StartOptionsInTheProgramTest, FiltersAreAskedOfANodeThatKnowsTheUser) {
  program::Program& program = StartConnected();
  program.startOptions.AutoFilter.UserSets(true);
  EXPECT_EQ(program.session.outgoing.Text2.Lines().back(), "   <- SH/FILTER");
}

TEST_F(StartOptionsInTheProgramTest, NoLoginPromptIsAnsweredWithThem) {
  program::Program& program = Start();
  program.startOptions.AutoFilter.UserSets(true);
  EXPECT_THAT(program.session.outgoing.Text2.Lines(), Not(Contains("   <- SH/FILTER")));
}

TEST_F(StartOptionsInTheProgramTest, TheNextLoginDoesAsTheTickSays) {
  program::Program& program = Start();
  const session::SessionState& state = program.session.state;
  EXPECT_TRUE(state.WantMissedSpots);
  program.startOptions.GetMissedOnes.UserSets(false);
  EXPECT_FALSE(state.WantMissedSpots);
  EXPECT_FALSE(state.FirstConnect);
  program.startOptions.GetMissedOnes.UserSets(true);
  EXPECT_TRUE(state.WantMissedSpots);
  EXPECT_TRUE(state.FirstConnect);
}

TEST_F(StartOptionsInTheProgramTest, ALinkThatIsUpIsNotAskedAgain) {
  program::Program& program = StartConnected();
  program.session.state.FirstConnect = false;
  program.startOptions.GetMissedOnes.UserSets(false);
  program.startOptions.GetMissedOnes.UserSets(true);
  EXPECT_FALSE(program.session.state.FirstConnect);
}

class LinkingTest : public StartOptionsInTheProgramTest {};

TEST_F(LinkingTest, TheUsersTickIsStoredAndStandsInTheTitle) {
  program::Program& program = Start();
  EXPECT_FALSE(program.MultiNode.Value.Get());
  program.MultiNode.UserSets(true);
  EXPECT_EQ(program.MultiNode.Caption.Get(), "Primary - ");
  EXPECT_EQ(program.title.Get(), "Primary - Molva Desk 2.4315 @ K1TST-2");
  EXPECT_THAT(Configuration(), HasSubstr("\"Linking\",-1\r\n"));
  program.MultiNode.UserSets(false);
  EXPECT_EQ(program.MultiNode.Caption.Get(), "");
  EXPECT_EQ(program.title.Get(), "Molva Desk 2.4315 @ K1TST-2");
  EXPECT_THAT(Configuration(), HasSubstr("\"Linking\",0\r\n"));
}

TEST_F(LinkingTest, ASecondaryCopyIsGoodOnlyOnANodeOfTheExtendedLineForms) {
  program::Program& program = Start("\"Linking\",-1\r\n");
  program.Primary = false;
  program.MultiNode.UserSets(false);
  program.MultiNode.UserSets(true);
  EXPECT_EQ(program.MultiNode.Caption.Get(), "Bad as Secondary - ");
  program.session.state.Kind = session::NodeKind::Zelva;
  program.MultiNode.UserSets(false);
  program.MultiNode.UserSets(true);
  EXPECT_EQ(program.MultiNode.Caption.Get(), "Secondary - ");
}

}  // namespace
