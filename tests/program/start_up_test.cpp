#include <gmock/gmock.h>

#include "program/desk.h"

using namespace std::chrono_literals;
using platform::Answer;
using session::TimerId;
using testing::HasSubstr;
using testing::SizeIs;

namespace {

class StartUpTest : public testing::Test {
 protected:
  Desk desk;
};

TEST_F(StartUpTest, NewFolderGetsAConfigurationWithoutAQuestionAndTheUserFormOpens) {
  program::Program& program = desk.Start();
  EXPECT_TRUE(desk.world.dialogs.shown.empty());
  EXPECT_THAT(desk.Content("molva.cfg"), HasSubstr("\"Gmt Offset\",\"Ok\"\r\n"));
  EXPECT_TRUE(program.userInfo.Open.Get());
  EXPECT_FALSE(program.offsetForm.Open.Get());
  EXPECT_FALSE(program.Loading);
}

TEST_F(StartUpTest, WhoIsNewIsAskedForHisNodeNextAndOnlyOnce) {
  program::Program& program = desk.Start();
  const auto fill = [&program] {
    program.userInfo.Show();
    program.userInfo.txtCall.UserTypes("K1TST");
    program.userInfo.txtName.UserTypes("Anna");
    program.userInfo.txtQth.UserTypes("Ann Arbor, MI");
    program.userInfo.cmdOk.Press();
  };
  EXPECT_FALSE(program.nodeForm.Open.Get());
  fill();
  EXPECT_TRUE(program.nodeForm.Open.Get());
  EXPECT_EQ(program.nodeForm.txtNodeCall.Text.Get(), "N0DE-1");
  program.nodeForm.cmdExit.Press();
  fill();
  EXPECT_FALSE(program.nodeForm.Open.Get());
}

TEST_F(StartUpTest, ChangedUserInfoOfAConfigurationThatWasThereOpensNothingElse) {
  desk.HasUsualConfiguration();
  program::Program& program = desk.Start();
  program.userInfo.Show();
  program.userInfo.cmdOk.Press();
  EXPECT_FALSE(program.nodeForm.Open.Get());
}

TEST_F(StartUpTest, CompleteConfigurationOpensNoDialog) {
  desk.HasUsualConfiguration();
  program::Program& program = desk.Start();
  EXPECT_TRUE(desk.world.dialogs.shown.empty());
  EXPECT_FALSE(program.userInfo.Open.Get());
  EXPECT_FALSE(program.offsetForm.Open.Get());
  EXPECT_FALSE(program.conditions.lblText.Visible.Get());
}

TEST_F(StartUpTest, FolderThatWasThereIsAskedAboutAndNoEndsTheProgramAfterTwoSeconds) {
  desk.world.files.folders.insert(Desk::kFolder);
  desk.world.dialogs.WillAnswer("Configuration File Not Found - Create One?", Answer::No);
  desk.Start();
  EXPECT_EQ(desk.quits, 0);
  desk.world.Run(2s);
  EXPECT_EQ(desk.quits, 1);
  EXPECT_FALSE(desk.world.files.Exists(desk.File("molva.cfg")));
}

TEST_F(StartUpTest, TimersWaitForTheEndOfTheStartUp) {
  desk.world.files.folders.insert(Desk::kFolder);
  program::Program& program = desk.Start();
  desk.world.Run(1min);
  EXPECT_TRUE(program.Loading);
  EXPECT_EQ(program.session.linkText.lblclock[0].Caption.Get(), "");
  desk.world.dialogs.AnswerNow("Configuration File Not Found - Create One?", Answer::Yes);
  desk.world.Run(1s);
  EXPECT_FALSE(program.Loading);
  EXPECT_NE(program.session.linkText.lblclock[0].Caption.Get(), "");
}

TEST_F(StartUpTest, ConfigurationThatCannotBeReadEndsTheProgramAndLeavesTheWholeFolder) {
  for (const bool denied : {false, true}) {
    Desk each;
    each.HasConfiguration("");
    if (denied) each.world.files.denied.insert(each.File("molva.cfg"));
    each.Content("molva.cfg.bak") = "\"My Call\",\"K1TST\"\r\n";
    each.Content("debug.cfg") = "\"yes\"\r\n";
    const auto folders = each.world.files.folders;
    const auto files = each.world.files.content;
    each.world.dialogs.WillAnswer("Molva Desk  -  Critical Error", Answer::Cancel);
    each.Start();
    each.world.Run(10s);
    EXPECT_EQ(each.quits, 1) << denied;
    EXPECT_EQ(each.world.files.content, files) << denied;
    EXPECT_EQ(each.world.files.folders, folders) << denied;
  }
}

TEST_F(StartUpTest, EmptyGmtOffsetOpensItsFormWhereTheUserIsNotWhollyKnown) {
  desk.HasConfiguration("\"My Call\",\"K1TST\"\r\n\"My Name\",\"A\"\r\n");
  program::Program& program = desk.Start();
  EXPECT_TRUE(program.offsetForm.Open.Get());
  EXPECT_FALSE(program.Loading);
  program.offsetForm.chkSystemZone.UserSets(false);
  program.offsetForm.txtHours.UserTypes("-5.5");
  program.offsetForm.cmdOk.Press();
  EXPECT_EQ(program.settings.GmtOffset, "-5.5");
  desk.world.Run(3s);
  EXPECT_THAT(desk.Content("molva.cfg"), HasSubstr("\"Gmt Offset\",\"-5.5\"\r\n"));
}

// The folder is there, and the user agrees to a new configuration.
class NewConfigurationTest : public StartUpTest {
 protected:
  NewConfigurationTest() {
    desk.world.files.folders.insert(Desk::kFolder);
    desk.world.dialogs.WillAnswer("Configuration File Not Found - Create One?", Answer::Yes);
    desk.Start();
  }
  program::UserInfo& userInfo() { return desk.program->userInfo; }
  bool AsksForOffset() { return desk.program->offsetForm.Open.Get(); }
};

TEST_F(NewConfigurationTest, TheUserFormStandsAlone) {
  EXPECT_TRUE(userInfo().Open.Get());
  EXPECT_FALSE(AsksForOffset());
}

TEST_F(NewConfigurationTest, TheOffsetThatTheUserFormHasAskedForIsNotAskedForAgain) {
  userInfo().txtCall.UserTypes("K1TST");
  userInfo().txtName.UserTypes("Anna");
  userInfo().txtQth.UserTypes("Ann Arbor, MI");
  userInfo().cmdOk.Press();
  EXPECT_EQ(desk.program->settings.GmtOffset, "Ok");
  EXPECT_FALSE(AsksForOffset());
}

TEST_F(NewConfigurationTest, TheOffsetIsAskedForOnceTheUserFormIsCancelled) {
  userInfo().cmdCancel.Press();
  EXPECT_TRUE(AsksForOffset());
}

TEST_F(NewConfigurationTest, TheFormOfTheOffsetYieldsToTheUserFormAndComesBack) {
  userInfo().cmdCancel.Press();
  userInfo().Show();
  EXPECT_FALSE(AsksForOffset());
  userInfo().cmdCancel.Press();
  EXPECT_TRUE(AsksForOffset());
  desk.program->offsetForm.cmdCancel.Press();
  userInfo().Show();
  userInfo().cmdCancel.Press();
  EXPECT_FALSE(AsksForOffset()) << "the user has said that he won't tell it now";
}

TEST_F(StartUpTest, StartThatConnectsWithoutACallAsksForTheUserBeforeTheOffset) {
  desk.HasConfiguration("\"AutoStart\",-1\r\n");
  program::Program& program = desk.Start();
  desk.world.Run(1s);
  EXPECT_TRUE(program.userInfo.Open.Get());
  EXPECT_FALSE(program.offsetForm.Open.Get());
}

TEST_F(StartUpTest, GmtOffsetFormThatIsCancelledStoresNothingAndAsksAgainNextTime) {
  desk.HasConfiguration("\"My Call\",\"K1TST\"\r\n");
  program::OffsetForm& form = desk.Start().offsetForm;
  form.chkSystemZone.UserSets(false);
  form.txtHours.UserTypes("nonsense");
  form.cmdOk.Press();
  EXPECT_TRUE(form.Open.Get());
  EXPECT_NE(form.lblProblem.Caption.Get(), "");
  form.cmdCancel.Press();
  EXPECT_FALSE(form.Open.Get());
  EXPECT_EQ(desk.program->settings.GmtOffset, "");
  EXPECT_TRUE(desk.Start().offsetForm.Open.Get());
}

TEST_F(StartUpTest, DefaultNodeIsThePracticeNodeWhileNoHostIsKnown) {
  desk.HasUsualConfiguration("\"AutoStart\",-1\r\n");
  desk.StartNode();
  program::Program& program = desk.Start();
  EXPECT_EQ(program.settings.NodeCall, "N0DE-1");
  EXPECT_EQ(program.settings.NodePort, "7373");
  EXPECT_TRUE(desk.world.RunUntil([&] { return program.session.state.LoggedIn; }, 10s));
}

TEST_F(StartUpTest, DefaultNodeIsTheOneOfTheEndpointsOnceTheyNameIt) {
  desk.HasUsualConfiguration();
  desk.Content("endpoints.cfg") = "\"MOLVA-1\",\"node.example\"\r\n";
  program::Program& program = desk.Start();
  EXPECT_EQ(program.settings.NodeCall, "MOLVA-1");
  EXPECT_EQ(program.settings.NodeHost, "node.example");
  EXPECT_EQ(program.settings.NodePort, "23");
}

TEST_F(StartUpTest, StoredHostOfTheDefaultNodeIsThatNode) {
  for (const char* host : {"node.example", "cluster.Node.Example."}) {
    desk.HasUsualConfiguration("\"SelectedNode\",\"K1OLD\"\r\n\"SelectedNodesAddress\",\"" +
                               std::string(host) + "\"\r\n\"PrimaryPort\",\"7300\"\r\n");
    desk.Content("endpoints.cfg") = "\"MOLVA-1\",\"node.example\"\r\n";
    program::Program& program = desk.Start();
    EXPECT_EQ(program.settings.NodeCall, "MOLVA-1") << host;
    EXPECT_EQ(program.settings.NodeHost, host);
    EXPECT_EQ(program.settings.NodePort, "23") << host;
  }
}

TEST_F(StartUpTest, AnotherHostOrNoneOfTheDefaultNodeLeavesTheStoredOne) {
  for (const char* host : {"node.example", ""}) {
    desk.HasUsualConfiguration(
        "\"SelectedNode\",\"K1OLD\"\r\n\"SelectedNodesAddress\",\"old.example\"\r\n"
        "\"PrimaryPort\",\"7300\"\r\n");
    desk.Content("endpoints.cfg") = "\"MOLVA-1\",\"" + std::string(host) + "\"\r\n";
    program::Program& program = desk.Start();
    EXPECT_EQ(program.settings.NodeCall, "K1OLD") << host;
    EXPECT_EQ(program.settings.NodePort, "7300") << host;
  }
}

TEST_F(StartUpTest, MissingDataFileIsPutInPlaceAndAPresentOneStays) {
  desk.HasUsualConfiguration();
  desk.Start();
  EXPECT_THAT(desk.Content("endpoints.cfg"), HasSubstr("\"MOLVA-1\",\"\""));
  desk.Content("endpoints.cfg") = "mine";
  desk.Start();
  EXPECT_EQ(desk.Content("endpoints.cfg"), "mine");
}

TEST_F(StartUpTest, CountriesAndStatesAreBroughtAtEachStartThatLacksThem) {
  desk.HasUsualConfiguration();
  for (int start = 0; start < 2; ++start) {
    program::Program& program = desk.Start();
    EXPECT_EQ(desk.Content("cty.dat"), CtyText({}));
    EXPECT_EQ(program.spotParts.reference.countries.CountryName("ZS8"), "PR. EDWARD & MARION IS.");
    EXPECT_EQ(program.spotParts.reference.states.StateCount(), 65);
    desk.world.files.content.erase(desk.File("cty.dat"));
    desk.world.files.content.erase(desk.File("state.dat"));
  }
  desk.Content("cty.dat") = "mine";
  desk.Start();
  EXPECT_EQ(desk.Content("cty.dat"), "mine");
}

TEST_F(StartUpTest, StartGoesOnWithoutCountriesAndSaysSo) {
  desk.HasUsualConfiguration("\"AutoStart\",\"True\"\r\n");
  desk.StartNode();
  desk.world.files.content.erase(program::Program::kCountryFile);
  program::Program& program = desk.Start();
  EXPECT_FALSE(program.Loading);
  ASSERT_THAT(desk.world.dialogs.shown, SizeIs(1));
  EXPECT_THAT(desk.world.dialogs.shown[0].text, HasSubstr("The file cty.dat was not found"));
  EXPECT_TRUE(desk.world.RunUntil([&] { return program.session.state.LoggedIn; }, 10s));
}

TEST_F(StartUpTest, DebugSwitchLastsForOneRun) {
  desk.HasUsualConfiguration();
  desk.Content("debug.cfg") = "\"yes\"\r\n";
  EXPECT_TRUE(desk.Start().errorLog.DebugMode);
  EXPECT_EQ(desk.Content("debug.cfg"), "\"no\"\r\n");
  EXPECT_FALSE(desk.Start().errorLog.DebugMode);
}

TEST_F(StartUpTest, DebugSwitchIsOneValueInQuotesOrBare) {
  desk.HasUsualConfiguration();
  for (const char* content : {"yes", "yes\r\n", " yes \n", "\"yes\"", "yes,no\r\n"}) {
    desk.Content("debug.cfg") = content;
    EXPECT_TRUE(desk.Start().errorLog.DebugMode) << content;
    EXPECT_EQ(desk.Content("debug.cfg"), "\"no\"\r\n") << content;
  }
  for (const char* content : {"", "no", "\"no\"\r\n\"yes\"", "yesterday", "no,yes"}) {
    desk.Content("debug.cfg") = content;
    EXPECT_FALSE(desk.Start().errorLog.DebugMode) << content;
  }
}

TEST_F(StartUpTest, DebugRunShowsItsDateInRedAndTheTickIsForTheNextRun) {
  desk.HasUsualConfiguration();
  desk.Content("debug.cfg") = "\"yes\"\r\n";
  program::Program& program = desk.Start();
  EXPECT_TRUE(program.DebuggingOn.Value.Get());
  EXPECT_EQ(program.session.linkText.lblclock[1].ForeColour.Get(), core::kRed);
  EXPECT_EQ(desk.Content("debug.cfg"), "\"no\"\r\n");
  program.DebuggingOn.UserSets(false);
  program.DebuggingOn.UserSets(true);
  EXPECT_EQ(desk.Content("debug.cfg"), "\"yes\"\r\n");
}

TEST_F(StartUpTest, BlanksRoundTheCallAreGone) {
  desk.HasConfiguration("\"My Call\",\" K1TST-2 \"\r\n");
  EXPECT_EQ(desk.Start().settings.MyCall, "K1TST-2");
}

TEST_F(StartUpTest, LoggingServerThatIsOffIsNotStarted) {
  desk.HasUsualConfiguration("\"LoggingProgram\",0\r\n");
  EXPECT_FALSE(desk.Start().standIns.calls.contains("EnableLogger"));
}

TEST_F(StartUpTest, LoggingServerWalksUpwardUntilAPortIsFree) {
  desk.HasUsualConfiguration("\"LoggerPort\",7301\r\n\"LoggingProgram\",-1\r\n");
  program::Program& program = desk.Make();
  program.standIns.takenPorts = {7301, 7302};
  program.Start();
  desk.world.Run(100ms);
  EXPECT_EQ(program.settings.LoggerPort, 7303);
  EXPECT_EQ(program.standIns.calls["EnableLogger"], 3);
  ASSERT_EQ(desk.world.dialogs.shown.size(), 2u);
  EXPECT_EQ(desk.world.dialogs.shown[0].text,
            "Telnet port 7301 already open on this computer\n\nTrying port 7302");
}

TEST_F(StartUpTest, SecondCopyIsSecondaryAndKeepsItsHandsOffTheFirstOnesFile) {
  desk.HasUsualConfiguration();
  const std::string first = desk.Content("molva.cfg");
  desk.Content("molva2.cfg") = first;
  desk.world.files.locks.insert(desk.File("molva.lock"));
  program::Program& program = desk.Start();
  EXPECT_FALSE(program.Primary);
  EXPECT_EQ(program.settings.MyCall, "K1TST-16");
  program.DelayedWriteCfg();
  desk.world.Run(3s);
  EXPECT_EQ(desk.Content("molva.cfg"), first);
  EXPECT_NE(desk.Content("molva2.cfg"), first);
}

TEST_F(StartUpTest, RetryIntervalIsPickedOnceForARunBetween55And65Seconds) {
  desk.HasUsualConfiguration();
  const session::Timers& timers = desk.Start().session.timers;
  const auto interval = timers.Interval(TimerId::Reconnect);
  EXPECT_GE(interval, 55s);
  EXPECT_LE(interval, 65s);
  desk.program->session.connection.cmdConnect.Press();
  desk.world.Run(10min);
  EXPECT_EQ(timers.Interval(TimerId::Reconnect), interval);
}

TEST_F(StartUpTest, ManyChangesCostOneWriteTwoSecondsAfterTheLast) {
  desk.HasUsualConfiguration();
  program::Program& program = desk.Start();
  const std::string before = desk.Content("molva.cfg");
  program.settings.MyQth = "Elsewhere";
  program.DelayedWriteCfg();
  desk.world.Run(1500ms);
  program.DelayedWriteCfg();
  desk.world.Run(1900ms);
  EXPECT_EQ(desk.Content("molva.cfg"), before);
  desk.world.Run(200ms);
  EXPECT_THAT(desk.Content("molva.cfg"), HasSubstr("\"My QTH\",\"Elsewhere\""));
}

TEST_F(StartUpTest, ATickOfAutoReconnectIsStoredAndDoesNothingElse) {
  desk.HasUsualConfiguration("\"AutoReconnect\",0\r\n");
  core::Check& autoReconnect = desk.Start().session.connection.AutoReconnect;
  EXPECT_FALSE(autoReconnect.Value.Get());
  autoReconnect.UserSets(true);
  desk.world.Run(3s);
  EXPECT_THAT(desk.Content("molva.cfg"), HasSubstr("\"AutoReconnect\",-1\r\n"));
  desk.world.Run(5min);
  EXPECT_EQ(desk.program->session.state.Phase.Get(), session::LinkPhase::Disconnected);
  EXPECT_TRUE(desk.program->session.state.UserDisconnected);
}

TEST_F(StartUpTest, TitleNamesTheVersionAndTheCall) {
  desk.HasUsualConfiguration();
  EXPECT_EQ(desk.Start().title.Get(), "Molva Desk 2.4315 @ K1TST-2");
}

}  // namespace
