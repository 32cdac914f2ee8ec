#include "session/command_line.h"

#include <gmock/gmock.h>

#include "session_fixture.h"

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class CommandLineTest : public SessionFixture {
 protected:
  CommandLineTest() { LogIn(); }

  void Types(const std::string& text) { line.txtCmdLine.UserTypes(text); }
  void Enters(const std::string& text) {
    line.OtherKey();
    Types(text);
    line.txtCmdLine.UserPressesReturn();
  }
  std::string Shown() const { return line.txtCmdLine.Text.Get(); }

  session::CommandLine& line = program.commandLine;
};

TEST_F(CommandLineTest, CommandIsSentAsTypedAndTheLineIsEmptied) {
  Enters("sh/dx 30 On 20m  ");
  ExpectSent({"sh/dx 30 On 20m  "});
  EXPECT_EQ(Shown(), "");
}

TEST_F(CommandLineTest, BlankLineIsSentButDoesNotEnterTheHistory) {
  Enters("");
  ExpectSent({""});
  EXPECT_THAT(line.History(), IsEmpty());
}

TEST_F(CommandLineTest, HistoryHoldsTheNewestFirst) {
  Enters("one");
  Enters("two");
  Enters("two");
  EXPECT_THAT(line.History(), ElementsAre("two", "two", "one"));
}

TEST_F(CommandLineTest, UpOnAnEmptyHistoryChangesNothing) {
  Types("half");
  line.HistoryUp();
  line.HistoryDown();
  EXPECT_EQ(Shown(), "half");
}

TEST_F(CommandLineTest, UpGoesBackToTheOldestAndStopsThere) {
  Enters("one");
  Enters("two");
  line.HistoryUp();
  EXPECT_EQ(Shown(), "two");
  line.HistoryUp();
  EXPECT_EQ(Shown(), "one");
  line.HistoryUp();
  EXPECT_EQ(Shown(), "one");
}

TEST_F(CommandLineTest, DownComesBackToTheNewestAndStopsThere) {
  Enters("one");
  Enters("two");
  line.HistoryUp();
  line.HistoryUp();
  line.HistoryDown();
  EXPECT_EQ(Shown(), "two");
  line.HistoryDown();
  EXPECT_EQ(Shown(), "two");
}

TEST_F(CommandLineTest, RecalledLineIsSentButDoesNotEnterTheHistoryAgain) {
  Enters("one");
  Enters("two");
  line.HistoryUp();
  line.HistoryUp();
  line.txtCmdLine.UserPressesReturn();
  ExpectSent({"one", "two", "one"});
  EXPECT_THAT(line.History(), ElementsAre("two", "one"));
}

TEST_F(CommandLineTest, RecalledLineThatIsEditedEntersTheHistory) {
  Enters("one");
  line.HistoryUp();
  Enters("one more");
  EXPECT_THAT(line.History(), ElementsAre("one more", "one"));
}

TEST_F(CommandLineTest, BehindReturnTheHistoryBeginsAtTheNewestAgain) {
  Enters("one");
  Enters("two");
  line.HistoryUp();
  line.HistoryUp();
  line.txtCmdLine.UserPressesReturn();
  line.HistoryUp();
  EXPECT_EQ(Shown(), "two");
}

TEST_F(CommandLineTest, AnyOtherKeyBeginsTheHistoryAtTheNewestAgain) {
  Enters("one");
  Enters("two");
  line.HistoryUp();
  line.HistoryUp();
  line.OtherKey();
  line.HistoryUp();
  EXPECT_EQ(Shown(), "two");
}

TEST_F(CommandLineTest, CommandWithoutALinkIsLostButKeptInTheHistory) {
  NodeCloses();
  Enters("sh/dx");
  EXPECT_THAT(line.History(), ElementsAre("sh/dx"));
  LetRetry();
  ExpectNothingSent();
}

TEST_F(CommandLineTest, CommandEnablesTheButtonsOfTheRawView) {
  for (core::Button& button : line.cmdRawplus) button.Enabled.Set(false);
  Enters("sh/dx");
  for (std::size_t i = 0; i < line.cmdRawplus.size(); ++i)
    EXPECT_EQ(line.cmdRawplus[i].Enabled.Get(), i == 3 || i == 7) << i;
}

TEST_F(CommandLineTest, StarIsAnOrdinaryCommandInTelnetMode) {
  Enters("*");
  ExpectSent({"*"});
}

TEST_F(CommandLineTest, StarInTncModeOpensThePortAndHasNoLineEnd) {
  platform::sim::SimDevice& device = world.serialPorts.Plug("/dev/ttyS0");
  settings.TncPort = 1;
  program.state.TncMode = true;
  Enters("*");
  LetPass(500ms);
  EXPECT_EQ(device.written, "*");
  EXPECT_THAT(line.History(), ElementsAre("*"));
  EXPECT_EQ(Shown(), "");
}

TEST_F(CommandLineTest, AnythingElseInTncModeHasItsLineEnd) {
  platform::sim::SimDevice& device = world.serialPorts.Plug("/dev/ttyS0");
  settings.TncPort = 1;
  program.state.TncMode = true;
  Enters("**");
  Enters("c n0node");
  LetPass(500ms);
  EXPECT_EQ(device.written, "**\rc n0node\r");
}

// A command line beside the weather page.
class BesideTheWeather : public CommandLineTest {
 protected:
  void Enter(const std::string& text) {
    beside.txtCmdLine.UserTypes(text);
    beside.txtCmdLine.UserPressesReturn();
  }

  bool inFront = true;
  session::CommandLine beside{
      program.outgoing,
      program.state,
      {.sendAutobaud = [] {},
       .weatherInFront = [this] { return inFront; },
       .beginFreshWeatherPage = [this] { program.outgoing.SendAsIs("fresh page"); }}};
};

TEST_F(BesideTheWeather, CommandBeginsAFreshPageFirst) {
  Enter("sh/wx");
  ExpectSent({"fresh page", "sh/wx"});
}

TEST_F(BesideTheWeather, CommandBeginsNoPageWithAnotherInFront) {
  inFront = false;
  Enter("sh/wx");
  ExpectSent({"sh/wx"});
}

TEST_F(BesideTheWeather, CommandBeginsNoPageInTncMode) {
  platform::sim::SimDevice& device = world.serialPorts.Plug("/dev/ttyS0");
  settings.TncPort = 1;
  program.state.TncMode = true;
  Enter("sh/wx");
  LetPass(500ms);
  EXPECT_EQ(device.written, "sh/wx\r");
}

TEST_F(CommandLineTest, TextSetByTheProgramIsNotSent) {
  line.txtCmdLine.Text.Set("sh/dx");
  ExpectNothingSent();
}

}  // namespace
