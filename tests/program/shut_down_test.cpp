#include <gmock/gmock.h>

#include "program/desk.h"

using namespace std::chrono_literals;
using platform::Answer;
using program::Program;
using testing::Contains;
using testing::HasSubstr;

namespace {

class ShutDownTest : public testing::Test {
 protected:
  ShutDownTest() { desk.HasUsualConfiguration("\"AutoStart\",-1\r\n"); }

  Program& StartConnected() {
    desk.StartNode();
    Program& program = desk.Start();
    EXPECT_TRUE(desk.world.RunUntil([&] { return program.session.state.LoggedIn; }));
    return program;
  }

  Desk desk;
};

TEST_F(ShutDownTest, AsksAndCancelKeepsTheProgramGoing) {
  Program& program = StartConnected();
  desk.world.dialogs.WillAnswer("Molva Desk", Answer::Cancel);
  program.RequestClose(Program::Close::Ask);
  desk.world.Run(10s);
  ASSERT_EQ(desk.world.dialogs.shown.size(), 1u);
  EXPECT_EQ(desk.world.dialogs.shown[0].text, "Do you really want to end this program? ");
  EXPECT_EQ(desk.world.dialogs.shown[0].kind, platform::Message::Kind::Plain);
  EXPECT_EQ(desk.quits, 0);
  EXPECT_TRUE(program.session.state.LoggedIn);
}

TEST_F(ShutDownTest, WithLoggingProgramsConnectedTheQuestionTellsTheirNumber) {
  Program& program = StartConnected();
  program.standIns.loggers = 2;
  desk.world.dialogs.WillAnswer("Molva Desk - End Program", Answer::Cancel);
  program.RequestClose(Program::Close::Ask);
  desk.world.Run(10s);
  ASSERT_EQ(desk.world.dialogs.shown.size(), 1u);
  EXPECT_EQ(desk.world.dialogs.shown[0].text,
            "Do you really want to end this program? \nThere are 2 other logging programs "
            "connected.\nEnding this program will terminate their data feed.");
  EXPECT_EQ(desk.world.dialogs.shown[0].kind, platform::Message::Kind::Warning);
  EXPECT_EQ(desk.quits, 0);
}

TEST_F(ShutDownTest, MailThatIsBeingSentIsWaitedForAndAskedAboutAgain) {
  Program& program = StartConnected();
  program.settings.QuietExit = true;
  program.standIns.mailBusy = true;
  program.RequestClose(Program::Close::Ask);
  desk.world.Run(1s);
  desk.world.dialogs.AnswerNow("Molva Desk - End Program", Answer::Ok);
  desk.world.Run(1s);
  desk.world.dialogs.AnswerNow("Molva Desk - End Program", Answer::Cancel);
  desk.world.Run(10s);
  ASSERT_EQ(desk.world.dialogs.shown.size(), 2u);
  EXPECT_EQ(desk.world.dialogs.shown[0].text, "Can't close until CDO MSG completes.");
  EXPECT_EQ(desk.quits, 0);
  EXPECT_TRUE(program.session.state.LoggedIn);
  program.standIns.mailBusy = false;
  program.RequestClose(Program::Close::Ask);
  desk.world.Run(10s);
  EXPECT_EQ(desk.quits, 1);
}

TEST_F(ShutDownTest, CancelledCloseMayBeAskedAgain) {
  Program& program = StartConnected();
  desk.world.dialogs.WillAnswer("Molva Desk", Answer::Cancel);
  program.RequestClose(Program::Close::Ask);
  desk.world.Run(1s);
  desk.world.dialogs.WillAnswer("Molva Desk", Answer::Ok);
  program.RequestClose(Program::Close::Ask);
  desk.world.Run(10s);
  EXPECT_EQ(desk.quits, 1);
}

TEST_F(ShutDownTest, SaysGoodbyeToTheNode) {
  Program& program = StartConnected();
  program.RequestClose(Program::Close::WithoutAsking);
  desk.world.Run(10s);
  EXPECT_TRUE(desk.world.dialogs.shown.empty());
  EXPECT_THAT(program.session.outgoing.Text2.Lines(), Contains("   <- BYE"));
  EXPECT_EQ(desk.quits, 1);
}

TEST_F(ShutDownTest, WithoutALinkItTakesAboutTwoSeconds) {
  Program& program = desk.Start();
  program.RequestClose(Program::Close::WithoutAsking);
  desk.world.Run(1900ms);
  EXPECT_EQ(desk.quits, 0);
  desk.world.Run(200ms);
  EXPECT_EQ(desk.quits, 1);
}

// Spots come until the very end, and no timer is waited for.
TEST_F(ShutDownTest, LastSpotsAreInTheLog) {
  Program& program = desk.Start();
  program.settings.LogDxSpots = true;
  program.RequestClose(Program::Close::WithoutAsking);
  desk.world.Run(1900ms);
  spots::Spot spot;
  spot.Freq = 14025;
  spot.DxCall = "3Y0J";
  spot.SpotDate = "20-Nov-2026";
  program.spotParts.log.Write(spot);
  ASSERT_TRUE(desk.world.RunUntil([this] { return desk.quits == 1; }));
  EXPECT_THAT(desk.Content("2026/dx-20-Nov-2026.txt"), HasSubstr("3Y0J"));
}

TEST_F(ShutDownTest, QuietExitDoesNotAsk) {
  desk.HasUsualConfiguration("\"DoNotAsk\",-1\r\n");
  desk.Start().RequestClose(Program::Close::Ask);
  desk.world.Run(10s);
  EXPECT_TRUE(desk.world.dialogs.shown.empty());
  EXPECT_EQ(desk.quits, 1);
}

TEST_F(ShutDownTest, SecondRequestChangesNothing) {
  Program& program = StartConnected();
  program.RequestClose(Program::Close::WithoutAsking);
  program.RequestClose(Program::Close::Ask);
  desk.world.Run(10s);
  EXPECT_TRUE(desk.world.dialogs.shown.empty());
  EXPECT_EQ(desk.quits, 1);
}

TEST_F(ShutDownTest, SignalToEndAsksNobodyEvenWhileTheQuestionIsOpen) {
  Program& program = StartConnected();
  program.RequestClose(Program::Close::Ask);
  desk.world.Run(1s);
  ASSERT_TRUE(desk.world.dialogs.OnShow("Molva Desk"));
  program.RequestClose(Program::Close::WithoutAsking);
  desk.world.Run(10s);
  EXPECT_EQ(desk.quits, 1);
  desk.world.dialogs.AnswerNow("Molva Desk", Answer::Ok);
  desk.world.Run(10s);
  EXPECT_EQ(desk.quits, 1);
}

TEST_F(ShutDownTest, NothingReconnectsMeanwhile) {
  Program& program = StartConnected();
  program.RequestClose(Program::Close::WithoutAsking);
  desk.world.Run(5min);
  EXPECT_EQ(program.session.WinsockOut->State(), platform::SocketState::Closed);
  EXPECT_EQ(desk.quits, 1);
}

TEST_F(ShutDownTest, DuringStartUpItEndsAtOnceAndWritesNothing) {
  Desk fresh;
  fresh.world.files.folders.insert(Desk::kFolder);
  fresh.Content("debug.cfg") = "\"yes\"\r\n";
  const auto files = fresh.world.files.content;
  fresh.Start().RequestClose(Program::Close::Ask);
  EXPECT_EQ(fresh.quits, 1);
  fresh.world.Run(10s);
  EXPECT_EQ(fresh.world.files.content, files);
}

TEST_F(ShutDownTest, MovedWindowIsWritten) {
  Program& program = desk.Start();
  program.form.Set({.left = 150, .top = 300, .width = 15000, .height = 9000, .inputHeight = 3000});
  program.RequestClose(Program::Close::WithoutAsking);
  desk.world.Run(10s);
  EXPECT_THAT(desk.Content("molva.cfg"), HasSubstr("\"FormTop\",300\r\n\"FormLeft\",150\r\n"));
  EXPECT_EQ(desk.Start().form.Get().width, 15000);
}

TEST_F(ShutDownTest, WriteThatIsStillDueIsDone) {
  for (const bool connected : {false, true}) {
    Desk each;
    each.HasUsualConfiguration(connected ? "\"AutoStart\",-1\r\n" : "");
    each.StartNode();
    Program& program = each.Start();
    each.world.Run(10s);
    ASSERT_EQ(program.session.state.LoggedIn, connected);
    program.settings.MyQth = "Elsewhere";
    program.DelayedWriteCfg();
    program.RequestClose(Program::Close::WithoutAsking);
    ASSERT_TRUE(each.world.RunUntil([&each] { return each.quits == 1; }));
    EXPECT_THAT(each.Content("molva.cfg"), HasSubstr("\"My QTH\",\"Elsewhere\"")) << connected;
  }
}

TEST_F(ShutDownTest, UnmovedWindowIsNotWritten) {
  Program& program = desk.Start();
  desk.world.Run(10s);
  const std::string before = desk.Content("molva.cfg");
  program.RequestClose(Program::Close::WithoutAsking);
  desk.world.Run(10s);
  EXPECT_EQ(desk.Content("molva.cfg"), before);
}

}  // namespace
