#include <gmock/gmock.h>

#include "session_fixture.h"

using namespace std::chrono_literals;
using testing::ElementsAre;

namespace {

class Greeting : public SessionFixture {
 protected:
  std::string NodeBehind(std::string_view line) {
    Receive(line);
    return program.state.ConnectedNodeCall;
  }
};

TEST_F(Greeting, GreetingForAnotherCallLeavesTheNodeUnknown) {
  Connect();
  EXPECT_EQ(NodeBehind(" de K2AAA N0NODE 20-Nov-2026"), "");
  EXPECT_EQ(NodeBehind("K2AAA de N0NODE 20-Nov-2026 2148Z"), "");
  EXPECT_EQ(NodeBehind("Hello K1TST-2 de N0NODE 20-Nov-2026"), "");
  EXPECT_EQ(NodeBehind("K1TST-2 de K2AAA: hi"), "");
}

TEST_F(Greeting, NodeIsTakenFromEitherForm) {
  Connect();
  EXPECT_EQ(NodeBehind("K1TST-2 de N0NODE 20-Nov-2026 2148Z"), "N0NODE");
  NodeCloses();
  program.state.ConnectedNodeCall.clear();
  LetRetry();
  EXPECT_EQ(NodeBehind(" de k1tst-2 n0node 20-Nov-2026 2148Z"), "N0NODE");
}

TEST(GreetingForms, BlanksInFrontAndTheCaseOfTheLettersMeanNothing) {
  for (const char* line :
       {"K1TST-2 de N0NODE 20-Nov-2026 2148Z >", "   K1TST-2 de N0NODE 20-Nov-2026 2148Z >",
        "k1tst-2 DE n0node 20-nov-2026", "K1tst-2 De n0Node x", " de K1TST-2 N0NODE 20-Nov-2026",
        "de K1TST-2 N0NODE 20-Nov-2026", "    de k1tst-2 n0node 20-Nov-2026",
        " DE K1TST-2 n0node hello"}) {
    Station station;
    station.Connect();
    station.Receive(line);
    EXPECT_EQ(station.program.state.ConnectedNodeCall, "N0NODE") << line;
  }
}

TEST(GreetingForms, OtherLinesNameNoNode) {
  for (const char* line :
       {"K1TST-2 de K2AAA: hi", "K1TST-2 de K2AAA: K1TST-2 de N0NODE 2148Z",
        " de K1TST-2 K2AAA: hi", "K1TST de N0NODE 2148Z", "K1TST-22 de N0NODE 2148Z",
        " de K1TST N0NODE 2148Z", " de K1TST-22 N0NODE 2148Z", "K1TST-2 N0NODE 2148Z",
        "K1TST-2 de ", " de K1TST-2 ", "de", "", "N0NODE de K1TST-2 2148Z",
        "K1TST-2 deN0NODE 2148Z"}) {
    Station station;
    station.Connect();
    station.Receive(line);
    EXPECT_EQ(station.program.state.ConnectedNodeCall, "") << line;
  }
}

TEST_F(Greeting, NodeOtherThanTheChosenOneMakesItsAddressForgotten) {
  settings.NodeNumberedAddress = "10.1.2.3";
  Connect();
  EXPECT_EQ(NodeBehind("K1TST-2 de K2RLY 20-Nov-2026 2148Z"), "K2RLY");
  EXPECT_EQ(settings.NodeNumberedAddress, "");
}

TEST_F(Greeting, NodeOfTheVendorIsRememberedByItsAddressTwice) {
  settings.NodeCall = "MOLVA-1";
  Connect();
  EXPECT_EQ(NodeBehind("K1TST-2 de MOLVA-1 20-Nov-2026 2148Z"), "MOLVA-1");
  EXPECT_EQ(settings.NodeNumberedAddress, "10.1.2.3");
  EXPECT_EQ(settings.MolvaNumberedAddress, "10.1.2.3");
}

TEST_F(Greeting, KnownNodesBeginAnewWithAnotherNode) {
  program.state.KnownNodes = {"K2RLY", "K3AAA"};
  Connect();
  NodeBehind("K1TST-2 de N0NODE 20-Nov-2026 2148Z");
  EXPECT_THAT(program.state.KnownNodes, ElementsAre("N0NODE"));
  program.state.KnownNodes.push_back("K3AAA");
  NodeBehind("K1TST-2 de N0NODE 20-Nov-2026 2149Z");
  EXPECT_THAT(program.state.KnownNodes, ElementsAre("N0NODE", "K3AAA"));
}

TEST_F(Greeting, UnexpandedGreetingStandsForTheChosenNode) {
  Connect();
  EXPECT_EQ(NodeBehind("%C de %M %D %T"), "N0NODE");
}

TEST_F(Greeting, NodeShowsAndTheLineIsNotClaimed) {
  Connect();
  Receive("K1TST-2 de N0NODE 20-Nov-2026 2148Z");
  EXPECT_EQ(txtNode(), "***Connected to: N0NODE");
  EXPECT_THAT(log.Of("First"), ElementsAre("K1TST-2 de N0NODE 20-Nov-2026 2148Z"));
}

TEST_F(Greeting, TalkToTheOwnCallBehindTheGreetingChangesNothing) {
  LogIn();
  EXPECT_EQ(NodeBehind("K1TST-2 de K2AAA: meet me on 20 m"), "N0NODE");
  EXPECT_EQ(settings.NodeNumberedAddress, "10.1.2.3");
}

TEST_F(Greeting, WordFarBeyondAnyCallIsNoNode) {
  Connect();
  EXPECT_EQ(NodeBehind("K1TST-2 de " + std::string(20, 'W') + " >"), std::string(20, 'W'));
  EXPECT_EQ(NodeBehind("K1TST-2 de " + std::string(21, 'X') + " >"), std::string(20, 'W'));
}

}  // namespace
