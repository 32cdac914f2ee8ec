#include <random>

#include "practice_node/line_reader.h"
#include "visit.h"

namespace practice_node {
namespace {

using HostileCallerTest = NodeTest;

TEST(LineReaderTest, ALineEndsWithLfAndACrAloneDoesNothing) {
  LineReader reader;
  EXPECT_TRUE(reader.Take("sh/dx\r").empty());
  EXPECT_EQ(reader.Take("\nbye\n"), (std::vector<std::string>{"sh/dx", "bye"}));
}

TEST(LineReaderTest, ALineIsCutAt512Bytes) {
  LineReader reader;
  EXPECT_EQ(reader.Take(std::string(513, 'x') + "\n").front(), std::string(512, 'x'));
  EXPECT_EQ(reader.Take("next\n").front(), "next");
}

TEST(LineReaderTest, ControlCharactersAreDropped) {
  LineReader reader;
  EXPECT_EQ(reader.Take(std::string_view("a\0b\x1B\x7F\ac\xFC\n", 9)).front(), "abc\xFC");
}

TEST_F(HostileCallerTest, MegabytesWithoutALineEndHurtNobody) {
  StartNode({"--rate=1"});
  auto quiet = LoggedIn("K1TST-1");
  auto loud = LoggedIn("K1TST-2");
  for (int i = 0; i < 50; ++i) loud->Send(std::string(100'000, 'x'));
  EXPECT_THAT(loud->Ask(""), HasSubstr("Invalid command\r\n"));
  EXPECT_EQ(quiet->SpotLines().size(), 1u);
  EXPECT_THAT(quiet->Ask("sh/filter"), HasSubstr("K1TST-1: no filters set\r\n"));
}

TEST_F(HostileCallerTest, EveryByteValueInEveryStageIsSurvived) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    StartNode({"--rate=5", "--password", "--version-string=1.55"});
    auto quiet = std::make_unique<Visitor>(world);
    std::mt19937 random(seed);
    Visitor mad(world);
    if (seed % 2 == 0) mad.Type("K1TST-3");
    if (seed % 4 == 0) mad.Type("secret");
    for (int i = 0; i < 20; ++i) {
      std::string noise;
      for (int n = 0; n < 500; ++n) noise += static_cast<char>(random() % 256);
      mad.Send(noise);
    }
    quiet->Type("K1TST-1");
    EXPECT_THAT(quiet->heard, EndsWith("password: ")) << "seed " << seed;
    node.reset();
  }
}

TEST_F(HostileCallerTest, TelnetCommandsAreAnsweredAndNoPartOfALine) {
  StartNode({});
  Visitor visitor(world);
  visitor.heard.clear();
  visitor.Send("\xFF\xFD\x01K1TST\xFF\xFB\x1F-2\r\n");
  EXPECT_THAT(visitor.heard, HasSubstr("\xFF\xFC\x01"));
  EXPECT_THAT(visitor.heard, HasSubstr("\xFF\xFE\x1F"));
  EXPECT_THAT(visitor.heard, HasSubstr("K1TST-2 de N0DE-1 "));
}

TEST_F(HostileCallerTest, PercentSignsOfACallerStayHisOwn) {
  StartNode({"--dialect=ar"});
  auto visitor = LoggedIn();
  EXPECT_THAT(visitor->Ask("%s%n%C"), StartsWith("%S%N%C command error\r\n"));
  EXPECT_THAT(visitor->Ask("set/name %s%C"), StartsWith("Name set to %s%C\r\n"));
}

TEST_F(HostileCallerTest, ACallerWhoVanishesInTheMiddleLeavesNothing) {
  StartNode({"--rate=50"});
  auto visitor = LoggedIn();
  visitor->Send("sh/d");
  world.network.CutAll();
  world.Run(1s);
  EXPECT_EQ(node->Connections(), 0u);
  auto next = LoggedIn();
  world.Run(1s);
  EXPECT_FALSE(next->SpotLines().empty());
}

TEST_F(HostileCallerTest, ACrowdIsBounded) {
  StartNode({});
  std::vector<std::unique_ptr<Visitor>> crowd(210);
  for (auto& each : crowd) each = std::make_unique<Visitor>(world);
  EXPECT_EQ(node->Connections(), 200u);
  EXPECT_NE(crowd.back()->refused, 0);
  crowd.front()->Leave();
  Visitor late(world);
  EXPECT_EQ(late.heard, "login: ");
}

TEST_F(HostileCallerTest, NoMoreThanAThousandUsersAreRemembered) {
  StartNode({"--dialect=ar"});
  auto early = LoggedIn("K0AAA");
  early->Type("set/name Anna");
  early->Leave();
  for (int i = 0; i < 1000; ++i) LoggedIn("K1T" + std::to_string(i))->Leave();
  Visitor again(world);
  again.Type("K0AAA");
  EXPECT_THAT(again.heard, HasSubstr("Hello  (K0AAA)"));
}

TEST_F(HostileCallerTest, ManyCommandsAtOnceAreAllAnswered) {
  StartNode({"--dialect=ar"});
  auto visitor = LoggedIn();
  std::string many;
  for (int i = 0; i < 1000; ++i) many += "\r\n";
  visitor->Send(many);
  world.Run(1s);
  EXPECT_EQ(visitor->Lines().size(), 1000u);
}

TEST_F(HostileCallerTest, NothingIsObeyedBehindBye) {
  StartNode({"--dialect=ar"});
  auto visitor = LoggedIn();
  visitor->Send("bye\r\nsh/dx\r\nbye\r\n");
  EXPECT_EQ(visitor->heard, "73 K1TST-2 de N0DE-1\r\n");
}

}  // namespace
}  // namespace practice_node
