#include "program/chain.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "program/desk.h"

using namespace std::chrono_literals;

namespace {

class ChainTest : public testing::Test {
 protected:
  ChainTest() {
    program.session.intake.onClaimed = [this](int row, std::string_view) {
      claimedBy = chain.Name(row);
    };
  }

  // The name of the row that claims the line; empty if none does.
  std::string Claims(std::string_view line) {
    claimedBy.clear();
    program.session.intake.InputLine(line);
    return claimedBy;
  }

  program::Program& Started() {
    desk.HasUsualConfiguration();
    return desk.Start();
  }

  Desk desk;
  program::Program& program = Started();
  program::LineChain chain{program};
  std::string claimedBy;
};

TEST_F(ChainTest, HasItsSixtyFiveRowsInTheirPlaces) {
  EXPECT_EQ(chain.Rows(), 65);
  EXPECT_EQ(chain.Name(1), "TncDisconnectNotice");
  EXPECT_EQ(chain.Name(7), "dx");
  EXPECT_EQ(chain.Name(15), "LoginPrompt");
  EXPECT_EQ(chain.Name(18), "Latency");
  EXPECT_EQ(chain.Name(54), "ArpcReply");
  EXPECT_EQ(chain.Name(65), "LoginSequence");
  EXPECT_EQ(chain.FirstRowForSession(), 18);
}

TEST_F(ChainTest, SpotLineEndsAtItsRowWhateverStandsInIt) {
  EXPECT_EQ(Claims("DX de K1TST:  14025.0  3Y0J   login: please   2148Z"), "dx");
  EXPECT_EQ(Claims("DX deeper than that"), "");
}

TEST_F(ChainTest, QrxIsClaimedBeforeTheLoginAndNotBehindIt) {
  EXPECT_EQ(Claims("QRX please, restarting"), "QRX");
  program.session.state.LoggedIn = true;
  EXPECT_EQ(Claims("QRX please, restarting"), "");
}

TEST_F(ChainTest, LoginPromptIsClaimedByItsRow) {
  EXPECT_EQ(Claims("login:"), "LoginPrompt");
  EXPECT_EQ(Claims("Please enter your callsign:"), "LoginPrompt");
}

TEST_F(ChainTest, GreetingIsReadAndClaimedByNone) {
  EXPECT_EQ(Claims("K1TST-2 de N0NODE 20-Nov-2026 2148Z greetings"), "");
  EXPECT_EQ(program.session.state.ConnectedNodeCall, "N0NODE");
}

TEST_F(ChainTest, TalkThruNoticeIsClaimed) {
  EXPECT_EQ(Claims("Entering Talk-Thru mode."), "TalkThruNotice");
}

TEST_F(ChainTest, MacrosAreClaimedUpToThePrompt) {
  EXPECT_EQ(Claims("Macro 1 = sh/dx 10"), "UserMacro");
  EXPECT_EQ(Claims("2: sh/wwv"), "UserMacro");
  EXPECT_TRUE(program.session.intake.ForwardSuppressed);
  EXPECT_NE(Claims("K1TST-2 de N0NODE arc >"), "UserMacro");
  EXPECT_EQ(program.session.macros.txtMacro[2].Text.Get(), "sh/wwv");
}

TEST_F(ChainTest, PromptBehindATimedCommandIsTimedAndClaimedByNone) {
  program.session.state.LoggedIn = true;
  program.session.latency.Begin();
  desk.world.Run(1500ms);
  EXPECT_EQ(Claims("K1TST-2 de N0NODE arc >"), "");
  EXPECT_EQ(program.session.latency.Text3.Caption.Get(), "001.50");
}

// Bytes as a node sends them, through the real rows.
class LoginByRowsTest : public ChainTest {
 protected:
  LoginByRowsTest() {
    program.session.outgoing.NodePassword = "secret";
    desk.StartNode();
    program.session.connection.cmdConnect.Press();
    EXPECT_TRUE(desk.world.RunUntil([&] { return program.session.state.LoggedIn; }));
    desk.StopNode();
  }
  void Feed(const std::string& bytes) {
    for (const char byte : bytes)
      program.session.intake.InputCharacter(static_cast<std::uint8_t>(byte));
  }
  bool RawViewHas(const std::string& line) {
    const auto& lines = program.session.outgoing.Text2.Lines();
    return std::find(lines.begin(), lines.end(), line) != lines.end();
  }
};

TEST_F(LoginByRowsTest, PasswordIsGivenUntilTheFirstPromptAndNeverBehindIt) {
  Feed("password:");
  EXPECT_TRUE(RawViewHas("   <- ********"));
  program.session.outgoing.Text2.Clear();
  Feed("\r\nWelcome <friend>\r\nK1TST-2 de N0DE-1 20-Nov-2026 2148Z dxspider >\r\n");
  Feed("password: asked by somebody in a talk\r\nlogin: in the middle\r\n");
  EXPECT_FALSE(RawViewHas("   <- ********"));
  EXPECT_TRUE(RawViewHas("password: asked by somebody in a talk"));
  EXPECT_TRUE(RawViewHas("login: in the middle"));
}

TEST_F(LoginByRowsTest, BellsBehindASpotAreNoPartOfIt) {
  Feed("running DXSpider V1.57 build 441\r\n");
  Feed("DX de DL1ABC:    14025.0  3Y0J         CW up 2                        2210Z JN58\a\a\r\n");
  const auto& rows = program.spotParts.table.RtbDx.Rows();
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows.front().Text(),
            "DX de DL1ABC:    14025.0  3Y0J         CW up 2                        2210Z");
}

// A DXSpider's own prompt tells it from what else ends so; the text goes on up to the one that the
// program has asked for.
TEST_F(LoginByRowsTest, LoginMessageEndsWithTheFirstPrompt) {
  Feed("\r\nWelcome\r\nrunning DXSpider V1.57 build 441\r\n");
  Feed("K1TST-2 de N0DE-1 20-Nov-2026 2148Z dxspider >\r\nOperation successful\r\n");
  Feed("K1TST-2 de N0DE-1 20-Nov-2026 2148Z 2.4315  dxspider >\r\nsomething else\r\n");
  const auto& lines = program.session.loginText.rtbLoginMsg.Lines();
  EXPECT_EQ(std::vector<std::string>(lines.begin(), lines.end()),
            (std::vector<std::string>{" ", " Welcome", " running DXSpider V1.57 build 441",
                                      " Operation successful"}));
}

}  // namespace
