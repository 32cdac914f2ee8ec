#include "practice_node/mischief.h"

#include "visit.h"

namespace practice_node {
namespace {

using MischiefTest = NodeTest;

std::string Repaired(const std::string& line) {
  std::string text;
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (line[at] != '%') {
      text += line[at];
      continue;
    }
    text += static_cast<char>(std::stoi(line.substr(at + 1, 2), nullptr, 16));
    at += 2;
  }
  return text;
}

TEST_F(MischiefTest, CloseHangsUpWithoutAByte) {
  StartNode({"--misbehave=close"});
  Visitor visitor(world);
  EXPECT_TRUE(visitor.closed);
  EXPECT_EQ(visitor.heard, "");
  EXPECT_EQ(node->Connections(), 0u);
}

TEST_F(MischiefTest, RefuseDoesNotListen) {
  StartNode({"--misbehave=refuse"});
  Visitor visitor(world);
  EXPECT_EQ(visitor.refused, platform::SocketFault::Refused);
  EXPECT_THAT(node->Banner(), StartsWith("refusing callers on 127.0.0.1:7373"));
}

TEST_F(MischiefTest, SilentAcceptsAndSaysNothingEver) {
  StartNode({"--misbehave=silent", "--rate=1"});
  Visitor visitor(world);
  visitor.Type("K1TST-2");
  visitor.Type("bye");
  world.Run(1h);
  EXPECT_EQ(visitor.heard, "");
  EXPECT_FALSE(visitor.closed);
}

TEST_F(MischiefTest, CloseAfterHangsUpBehindThatLine) {
  StartNode({"--misbehave=close-after=3"});
  Visitor visitor(world);
  visitor.Type("K1TST-2");
  EXPECT_EQ(visitor.Lines().size(), 3u);
  EXPECT_THAT(visitor.heard, EndsWith("\r\n"));
  EXPECT_TRUE(visitor.closed);
}

TEST_F(MischiefTest, StallStopsHalfWayThroughALineForEver) {
  StartNode({"--misbehave=stall=2", "--rate=10"});
  Visitor visitor(world);
  visitor.Type("K1TST-2");
  world.Run(1h);
  EXPECT_THAT(visitor.heard, EndsWith("\r\nrunning DXSpider"));
  EXPECT_FALSE(visitor.closed);
  visitor.Leave();
  EXPECT_EQ(node->Connections(), 0u);
}

TEST_F(MischiefTest, NulsStandInsideTheLines) {
  StartNode({"--misbehave=nuls", "--rate=1"});
  auto visitor = LoggedIn();
  world.Run(3s);
  for (const std::string& line : visitor->Lines())
    EXPECT_EQ(std::count(line.begin(), line.end(), '\0'), 1);
  EXPECT_EQ(visitor->Lines().size(), 3u);
}

TEST_F(MischiefTest, EscapesStandForCharacters) {
  StartNode({"--rate=2"});
  auto plain = LoggedIn();
  world.Run(10s);
  const auto expected = plain->SpotLines();
  node.reset();
  world.clock.Set(std::chrono::sys_days{std::chrono::year{2026} / 11 / 20} + 21h);
  StartNode({"--rate=2", "--misbehave=escapes"});
  auto escaped = LoggedIn();
  world.Run(10s);
  std::vector<std::string> repaired;
  for (const std::string& line : escaped->Lines()) repaired.push_back(Repaired(line));
  EXPECT_EQ(repaired, expected);
  EXPECT_THAT(escaped->heard, HasSubstr("%"));
}

TEST_F(MischiefTest, APercentSignIsEscapedTooSoThatRepairGivesTheText) {
  Options options;
  options.mischief.escapes = true;
  StartNode(options, {"100% of %41, %zz"});
  auto visitor = LoggedIn();
  world.Run(2s);
  EXPECT_EQ(Repaired(visitor->Lines().front()), "100% of %41, %zz");
}

TEST_F(MischiefTest, NegotiationsLeaveTheTextWhole) {
  StartNode({});
  Visitor plain(world);
  plain.Type("K1TST-2");
  node.reset();
  StartNode({"--misbehave=iac"});
  world.clock.Set(std::chrono::sys_days{std::chrono::year{2026} / 11 / 20} + 21h);
  Visitor negotiating(world, 7373, Visitor::Protocol::Telnet);
  negotiating.Type("K1TST-2");
  world.Run(1s);
  // The up-time apart, which is a matter of seconds.
  EXPECT_EQ(negotiating.Lines().size(), plain.Lines().size());
  EXPECT_EQ(negotiating.Lines().front(), plain.Lines().front());
  EXPECT_EQ(negotiating.Lines().back(), plain.Lines().back());
}

TEST_F(MischiefTest, NegotiationsStandInFrontOfTheLoginPrompt) {
  StartNode({"--misbehave=iac"});
  Visitor visitor(world);
  EXPECT_THAT(visitor.heard, StartsWith("\xFF\xFB\x01\xFF\xFD\x1F"));
  EXPECT_THAT(visitor.heard, EndsWith("login: "));
}

TEST_F(MischiefTest, NoLineEndsComeFromTheLoginOn) {
  StartNode({"--misbehave=no-line-ends", "--rate=1"});
  auto visitor = LoggedIn();
  world.Run(5s);
  EXPECT_TRUE(visitor->Lines().empty());
  EXPECT_THAT(visitor->heard, ::testing::MatchesRegex("(DX de .*){5}"));
}

TEST_F(MischiefTest, AFloodOfThatManyMegabytesIsOneLineAndThenLifeGoesOn) {
  StartNode({"--misbehave=flood=3", "--rate=1"});
  Visitor visitor(world);
  visitor.Type("K1TST-2");
  world.Run(2s);
  const auto lines = visitor.Lines();
  ASSERT_GE(lines.size(), 4u);
  const auto flood = lines.end() - 3;
  EXPECT_THAT(flood[-1], EndsWith("dxspider >"));
  EXPECT_TRUE(flood[0] == std::string(std::size_t{3} * 1024 * 1024, 'x'));
  EXPECT_THAT(flood[1], StartsWith("DX de "));
  EXPECT_THAT(flood[2], StartsWith("DX de "));
}

TEST_F(MischiefTest, SeveralGoTogether) {
  StartNode({"--misbehave=nuls,close-after=2"});
  Visitor visitor(world);
  visitor.Type("K1TST-2");
  EXPECT_EQ(std::count(visitor.heard.begin(), visitor.heard.end(), '\0'), 2);
  EXPECT_TRUE(visitor.closed);
}

TEST(AddMischiefTest, WrongWordsAreNamed) {
  MischiefPlan plan;
  EXPECT_EQ(AddMischief("sulk", plan), "unknown misbehaviour \"sulk\"");
  EXPECT_EQ(AddMischief("flood", plan), "misbehaviour \"flood\" needs \"=\" and a number");
  EXPECT_EQ(AddMischief("flood=x", plan), "misbehaviour \"flood\" needs a number from 1 up");
  EXPECT_EQ(AddMischief("stall=0", plan), "misbehaviour \"stall\" needs a number from 1 up");
  EXPECT_EQ(AddMischief("nuls=3", plan), "misbehaviour \"nuls\" takes no number");
  EXPECT_EQ(AddMischief("", plan), "no misbehaviour named");
  EXPECT_EQ(AddMischief("nuls,", plan), "unknown misbehaviour \"\"");
}

}  // namespace
}  // namespace practice_node
