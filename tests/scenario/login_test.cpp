#include <gmock/gmock.h>

#include <algorithm>
#include <chrono>
#include <utility>

#include "scenario/login_scripts.h"

using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;

namespace {

class Login : public testing::TestWithParam<Script> {};

TEST_P(Login, EachTurnIsAnsweredByExactlyItsLines) {
  const Script& script = GetParam();
  const Played played = Play(script);
  for (std::size_t i = 0; i < script.turns.size(); ++i)
    EXPECT_EQ(played.answers[i], script.turns[i].answers) << "turn " << i + 1;
  EXPECT_EQ(played.answers.back(), Lines()) << "when all was said";
}

TEST_P(Login, EndsWithItsTitleItsTextAndItsFlags) {
  const Ending ending = Play(GetParam()).ending;
  const Ending& expected = GetParam().ending;
  EXPECT_EQ(ending.title, expected.title);
  EXPECT_EQ(ending.txtNode, expected.txtNode);
  EXPECT_EQ(ending.showDx, expected.showDx);
  EXPECT_EQ(ending.lblStatus, expected.lblStatus);
  EXPECT_EQ(ending.flags, expected.flags);
  EXPECT_EQ(ending.loginText, expected.loginText);
  EXPECT_EQ(ending.asked, expected.asked);
}

TEST_P(Login, RawViewShowsWhatWasSentAndHidesThePassword) {
  const Played played = Play(GetParam());
  const std::string& password = GetParam().password;
  Lines expected;
  for (const Lines& answers : played.answers)
    for (const std::string& line : answers)
      expected.push_back("   <- " + (line.empty() || line != password ? line : "********"));
  Lines shown;
  std::copy_if(played.rawView.begin(), played.rawView.end(), std::back_inserter(shown),
               [](const std::string& line) { return line.starts_with("   <- "); });
  EXPECT_EQ(shown, expected);
}

TEST_P(Login, SilentNodeIsKeptAliveInItsOwnWay) {
  Stage stage(GetParam());
  stage.Play(GetParam().turns);
  stage.desk.world.Run(5min - 10s);
  EXPECT_EQ(stage.node.TakeLines(), Lines());
  stage.desk.world.Run(10s);
  EXPECT_EQ(stage.node.TakeLines(), Lines{GetParam().keepAlive});
}

TEST_P(Login, EverythingOfTheSessionIsForgottenWhenTheNodeCloses) {
  Stage stage(GetParam());
  stage.Play(GetParam().turns);
  stage.node.Close();
  stage.desk.world.Run(100ms);
  const session::SessionState& state = stage.program->session.state;
  const session::NodeState fresh;
  EXPECT_EQ(state.Kind, fresh.Kind);
  EXPECT_EQ(state.NodePrompt, fresh.NodePrompt);
  EXPECT_EQ(state.ShowDxCommand, "sh/dx");
  EXPECT_FALSE(state.LoggedIn || state.LoginTextDone || state.LoginFinished || state.SunDone);
  EXPECT_FALSE(state.FirstPromptDone || state.ArpcAsked || state.ArpcRefused);
  EXPECT_FALSE(state.RequestedSettings || state.NodeSentPassword || state.UseMyDx);
  EXPECT_FALSE(stage.program->session.duelling.DuelArmed);
}

TEST_P(Login, NextSessionGoesTheSameWay) {
  const Script& script = GetParam();
  Stage stage(script);
  stage.Play(script.turns);
  stage.node.Close();
  stage.desk.world.RunUntil([&] { return stage.node.called.size() == 2; });
  stage.desk.world.Run(1s);
  const Played again = stage.Play(script.turns);
  for (std::size_t i = 0; i < script.turns.size(); ++i)
    EXPECT_EQ(again.answers[i], script.turns[i].answers) << "turn " << i + 1;
  EXPECT_EQ(again.ending.title, script.ending.title);
  EXPECT_EQ(again.ending.flags, script.ending.flags);
  EXPECT_EQ(again.ending.loginText, script.ending.loginText);
}

INSTANTIATE_TEST_SUITE_P(Dialects, Login, testing::ValuesIn(LoginScripts()),
                         [](const auto& each) { return each.param.name; });

TEST(LoginTo155, EchoIsSeenInTheRawViewAndNowhereElse) {
  const Played played = Play(LoginScript("Spider155"));
  EXPECT_THAT(played.rawView, Contains("stat/user"));
  EXPECT_THAT(played.rawView, Contains("unset/echo"));
  EXPECT_THAT(played.ending.loginText, Not(Contains(HasSubstr("stat/user"))));
}

TEST(LoginTo157, PromptsThatNobodyAskedForAreNotAnswered) {
  const Script& script = LoginScript("Spider157");
  Stage stage(script);
  stage.Play(script.turns);
  for (int i = 0; i < 10; ++i) {
    stage.desk.world.Run(4min);
    EXPECT_EQ(stage.Say({"K1TST-2 de N0NODE 20-Nov-2026 2101Z 2.4315  dxspider >\r\n"}), Lines());
  }
}

TEST(LoginToARelay, SpotsAreTakenFromFiveSecondsBehindTheLogin) {
  const Script& script = LoginScript("RelayWithoutAName");
  Stage stage(script);
  stage.Play(script.turns);
  const auto& shown = stage.program->spotParts.pipeline.SpotsShown;
  EXPECT_EQ(shown, 0u);
  const std::string spot =
      "DX de K1ABC-#:   14025.0  K2DEF          CW 12 dB  CQ           2101Z\r\n";
  EXPECT_EQ(stage.Say({spot}), Lines());
  EXPECT_EQ(shown, 1u);
}

TEST(LoginBehindIt, WhatANodeSaysOfTheOwnStationSendsNothing) {
  const std::pair<const char*, const char*> stations[] = {
      {"Spider157",
       "User         : K1TST-2\r\nHome Node    : \r\n"
       "K1TST-2 de N0NODE 20-Nov-2026 2101Z 2.4315  dxspider >\r\n"},
      {"Zelva",
       "User         : K1TST-2\r\nHome Node    : \r\n"
       "K1TST-2 de N0NODE 20-Nov-2026 2101Z   ZLV >\r\n"},
      {"ArCluster",
       "User: K1TST-2\r\nStation:       K1TST-2\r\nHome Node:\r\n"
       "K1TST-2 de N0NODE 20-Nov-2026 2101Z   arc >\r\n"}};
  for (const auto& [name, station] : stations) {
    Stage stage(LoginScript(name));
    stage.Play(LoginScript(name).turns);
    EXPECT_EQ(stage.Say({station}), Lines()) << name;
  }
}

// Two programs with one call throw each other out: the third login goes out under another SSID.
TEST(LoginInADuel, SecondCloseByTheNodeChangesTheNextLoginAndTheUserIsTold) {
  const Script& script = LoginScript("Spider157");
  Stage stage(script);
  const program::MessageForm& frmMsg = stage.program->messageForm;
  for (std::size_t sessions = 1; sessions <= 2; ++sessions) {
    stage.Play(script.turns);
    stage.node.Close();
    stage.desk.world.RunUntil([&] { return stage.node.called.size() == sessions + 1; });
    stage.desk.world.Run(1s);
    EXPECT_FALSE(frmMsg.Open.Get());
  }
  EXPECT_THAT(stage.Say({"login: "}), ElementsAre(MatchesRegex("K1TST-[0-9]+")));
  EXPECT_TRUE(frmMsg.Open.Get());
  EXPECT_EQ(frmMsg.lblHeading.Caption.Get(), "Duelling Connections Suspected");
  EXPECT_EQ(stage.program->settings.MyCall, "K1TST-2");
  stage.desk.world.Run(60s);
  EXPECT_FALSE(frmMsg.Open.Get());
}

// Before a node has said what it is.
TEST(LoginThatIsRefused, LinkIsClosedAndTheNodesWordsShow) {
  Stage stage(LoginScript("Spider157"));
  stage.Say({"login: \r\nSorry K1TST-2 is an invalid callsign\r\n"});
  EXPECT_FALSE(stage.node.HasCaller());
  EXPECT_EQ(stage.program->session.state.txtNode.Caption.Get(),
            "Sorry K1TST-2 is an invalid callsign");
}

}  // namespace
