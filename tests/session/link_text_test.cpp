#include "session/link_text.h"

#include <gmock/gmock.h>

#include "session/session_fixture.h"

using namespace std::chrono_literals;

namespace {

TEST(SpanText, IsToldByItsTwoLargestUnits) {
  EXPECT_EQ(session::SpanText(0s), "0 s");
  EXPECT_EQ(session::SpanText(59s), "59 s");
  EXPECT_EQ(session::SpanText(60s), "1 m 0 s");
  EXPECT_EQ(session::SpanText(3599s), "59 m 59 s");
  EXPECT_EQ(session::SpanText(3600s), "1 h 0 m");
  EXPECT_EQ(session::SpanText(52h), "2 d 4 h");
}

class LinkTextTest : public SessionFixture {
 protected:
  std::string State() {
    program.linkText.Tick();
    return program.linkText.state.Caption.Get();
  }
  std::string Age() {
    program.linkText.Tick();
    return program.linkText.age.Caption.Get();
  }
};

TEST_F(LinkTextTest, SaysWhatIsBeingDoneAboutTheLink) {
  EXPECT_EQ(State(), "not connected");
  PressConnect();
  EXPECT_EQ(State(), "connecting 0 s");
  LetPass(2s);
  EXPECT_EQ(State(), "waiting for the login 2 s");
}

TEST_F(LinkTextTest, CountsHowLongATryHangs) {
  world.network.silentAddresses = {"10.1.2.3"};
  PressConnect();
  LetPass(12s);
  EXPECT_EQ(State(), "connecting 12 s");
}

TEST_F(LinkTextTest, TellsTheMomentsOfTheLinkWhenItIsPointedAt) {
  const auto moments = [this] {
    program.linkText.Tick();
    return program.linkText.state.ToolTip.Get();
  };
  EXPECT_EQ(moments(), "");
  world.clock.Set(std::chrono::sys_days{std::chrono::year{2026} / 1 / 5} + 21h + 7min);
  LogIn();
  EXPECT_THAT(moments(), testing::MatchesRegex("Since 21:07:0[0-9] UTC, 05-Jan-2026"));
  LetPass(4h);
  NodeCloses();
  const std::string ended = moments();
  EXPECT_THAT(ended, testing::MatchesRegex("The last link ended at 01:07:0[0-9] UTC, 06-Jan-2026"));
  node.refuses = true;
  LetPass(5min);
  EXPECT_EQ(moments(), ended) << "a try that fails is no link";
}

TEST_F(LinkTextTest, SaysWhyANodeIsNotReached) {
  settings.NodeHost = "nowhere.example";
  Connect();
  EXPECT_THAT(State(), testing::MatchesRegex("next try in .*  ·  .+")) << "no such host";
  PressDisconnect();
  LetPass(3s);
  settings.NodeHost = "node.example";
  settings.NodeNumberedAddress.clear();
  node.refuses = true;
  Connect();
  EXPECT_THAT(State(), testing::HasSubstr("refused"));
}

TEST_F(LinkTextTest, SaysWhyANodeThatAsksForNoLoginIsGivenUp) {
  PressConnect();
  LetPass(50s);
  EXPECT_THAT(State(), testing::HasSubstr("the node asked for no login"));
}

TEST_F(LinkTextTest, NamesTheNodeThatTheNextLinkGoesTo) {
  const auto named = [this] {
    program.linkText.Tick();
    return program.linkText.node.Caption.Get();
  };
  EXPECT_EQ(named(), "N0NODE");
  program.state.TncMode = true;
  EXPECT_EQ(named(), "TNC") << "over the TNC, until the cluster has been named";
  settings.TncCluster = "N0TNC";
  EXPECT_EQ(named(), "N0TNC");
}

TEST_F(LinkTextTest, NodeThatSaysNothingIsNotShownAsConnected) {
  PressConnect();
  LetPass(5s);
  EXPECT_EQ(program.state.Phase.Get(), session::LinkPhase::Trying);
}

TEST_F(LinkTextTest, SaysNothingOfATryThatWillNotCome) {
  settings.MyCall.clear();
  PressConnect();
  LetPass(2s);
  EXPECT_EQ(State(), "not connected");
}

TEST_F(LinkTextTest, StepOfTheWallClockDoesNotChangeHowLongTheLinkHasHeld) {
  LogIn();
  const std::string before = State();
  world.clock.Set(world.clock.UtcNow() + 5h);
  EXPECT_EQ(State(), before);
}

TEST_F(LinkTextTest, CountsTheTimeOfTheLinkAndOfItsSilence) {
  LogIn();
  EXPECT_EQ(State().substr(0, 10), "connected ");
  Receive("hello");
  LetPass(75s);
  EXPECT_EQ(Age(), "last line 1 m 15 s ago");
}

TEST_F(LinkTextTest, SaysWhyTheLinkEndedAndWhenTheNextTryComes) {
  LogIn();
  NodeCloses();
  const std::string state = State();
  EXPECT_EQ(state.substr(0, 12), "next try in ") << state;
  EXPECT_NE(state.find("closed by the node"), std::string::npos) << state;
  EXPECT_EQ(Age(), "");
}

TEST_F(LinkTextTest, DisconnectedByTheUserIsSaidSo) {
  LogIn();
  PressDisconnect();
  LetPass(3s);
  EXPECT_EQ(State(), "not connected  ·  disconnected by you");
}

TEST_F(LinkTextTest, NamesTheSoftwareOfTheNodeOnceItIsKnown) {
  const auto software = [this] {
    program.linkText.Tick();
    return program.linkText.software.Caption.Get();
  };
  Connect();
  EXPECT_EQ(software(), "");
  Receive("Welcome to this DXSpider node");
  EXPECT_EQ(software(), "DXSpider");
  NodeCloses();
  EXPECT_EQ(software(), "");
}

TEST_F(LinkTextTest, CallsEachSoftwareByItsPlainName) {
  using session::NodeKind;
  const std::vector<std::pair<NodeKind, std::string>> kNames = {
      {NodeKind::ArCluster, "AR-Cluster"},
      {NodeKind::Zelva, "Zelva Cluster"},
      {NodeKind::Spider, "DXSpider"},
      {NodeKind::DxNet, "DxNet"},
      {NodeKind::Clx, "CLX"},
      {NodeKind::WinCluster, "WinCluster"},
      {NodeKind::Skimmer, "Skimmer"}};
  for (const auto& [kind, name] : kNames) {
    program.state.Kind = kind;
    program.linkText.Tick();
    EXPECT_EQ(program.linkText.software.Caption.Get(), name);
  }
}

}  // namespace
