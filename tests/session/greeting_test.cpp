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

}  // namespace
