#include "practice_tnc/tnc.h"

#include <gmock/gmock.h>

#include "platform/sim/world.h"
#include "practice_node/options.h"

namespace practice_tnc {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::SizeIs;
using ::testing::StartsWith;

// A TNC whose calls lead to a practice node, unless there is none.
class TncTest : public ::testing::Test {
 protected:
  void Start(TncPlan plan = {}) {
    tnc = std::make_unique<Tnc>(
        world.scheduler, world.network, plan,
        Tnc::Wire{.toComputer = [this](std::string_view bytes) { heard += bytes; },
                  .tell = [this](const std::string& what) { told.push_back(what); }});
  }
  void StartNode() {
    practice_node::Options options;
    options.rate = 0;
    node = std::make_unique<practice_node::Node>(world.scheduler, world.clock, world.network,
                                                 practice_node::FactsOf(options, options.kind),
                                                 practice_node::StreamOf(options, nullptr));
    ASSERT_EQ(node->Start(options.address, options.port), "");
  }
  // Types a line and gives what comes back within a second.
  std::string Ask(std::string_view line) {
    heard.clear();
    tnc->Hear(std::string(line) + "\r");
    world.Run(1s);
    return heard;
  }
  void Link() {
    Ask("c n0clu");
    world.Run(1500ms);
    ASSERT_TRUE(tnc->Linked());
  }

  platform::sim::World world;
  std::unique_ptr<practice_node::Node> node;
  std::unique_ptr<Tnc> tnc;
  std::string heard;
  std::vector<std::string> told;
};

TEST_F(TncTest, SaysWhoItIsAndPrompts) {
  Start();
  tnc->PowerUp();
  EXPECT_EQ(heard, "Practice TNC of K1TST\rcmd:");
}

TEST_F(TncTest, StarAtAnEmptyPromptIsTheAutobaudCharacter) {
  Start();
  tnc->Hear("*");
  EXPECT_EQ(heard, "Practice TNC of K1TST\rcmd:");
}

TEST_F(TncTest, EachCommandIsFollowedByAPrompt) {
  Start();
  EXPECT_EQ(Ask(""), "cmd:");
  EXPECT_EQ(Ask("mycall"), "MYCALL   K1TST\rcmd:");
  EXPECT_EQ(Ask("MY k2tst"), "MYCALL   K2TST\rcmd:");
  EXPECT_EQ(Ask("frobnicate"), "?EH\rcmd:");
  EXPECT_EQ(Ask("disc"), "Can't DISCONNECT\rcmd:");
}

TEST_F(TncTest, BackspaceTakesACharacterBack) {
  Start();
  EXPECT_EQ(Ask("myx\b"), "MYCALL   K1TST\rcmd:");
}

TEST_F(TncTest, ConnectTakesItsTimeAndThenPassesTextOn) {
  StartNode();
  Start();
  EXPECT_EQ(Ask("c n0clu"), "cmd:");
  heard.clear();
  world.Run(999ms);
  EXPECT_EQ(heard, "");
  world.Run(500ms);
  EXPECT_THAT(heard, StartsWith("*** CONNECTED to N0CLU\r"));
  EXPECT_THAT(heard, EndsWith("login: \r")) << "a packet goes out without a line end, too";
  EXPECT_THAT(heard, Not(HasSubstr("\n")));
  EXPECT_THAT(Ask("K1TST-2"), HasSubstr("K1TST-2 de N0DE-1"));
}

TEST_F(TncTest, CtrlCLeadsBackToTheCommandsAndConverseToTheLink) {
  StartNode();
  Start();
  Link();
  heard.clear();
  tnc->Hear("\x03");
  EXPECT_EQ(heard, "cmd:");
  EXPECT_TRUE(tnc->Linked());
  EXPECT_EQ(Ask("c n0two"), "Link state is: CONNECTED to N0CLU\rcmd:");
  EXPECT_EQ(Ask("conv"), "");
  EXPECT_THAT(Ask("K1TST-2"), HasSubstr("K1TST-2 de N0DE-1"));
}

TEST_F(TncTest, DisconnectEndsTheLink) {
  StartNode();
  Start();
  Link();
  tnc->Hear("\x03");
  EXPECT_EQ(Ask("disc"), "*** DISCONNECTED\rcmd:");
  EXPECT_FALSE(tnc->Linked());
  EXPECT_EQ(node->Connections(), 0u);
  EXPECT_THAT(told, ElementsAre("calls N0CLU", "connected to N0CLU", "disconnected from N0CLU"));
}

TEST_F(TncTest, DisconnectEndsAnAttempt) {
  StartNode();
  Start();
  Ask("c n0clu");
  EXPECT_EQ(Ask("disc"), "*** DISCONNECTED\rcmd:");
  world.Run(10s);
  EXPECT_FALSE(tnc->Linked());
}

TEST_F(TncTest, NodeThatHangsUpEndsTheLink) {
  StartNode();
  Start();
  Link();
  Ask("K1TST-2");
  EXPECT_THAT(Ask("bye"), EndsWith("*** DISCONNECTED\rcmd:"));
}

TEST_F(TncTest, AttemptsFailAsOftenAsPlanned) {
  StartNode();
  Start({.failures = 2});
  for (int attempt = 0; attempt < 2; ++attempt) {
    Ask("c n0clu");
    heard.clear();
    world.Run(1100ms);
    EXPECT_EQ(heard, "*** retry limit exceeded\r*** DISCONNECTED\r");
  }
  Link();
}

TEST_F(TncTest, NodeThatIsNotThereIsBusy) {
  Start();
  Ask("c n0clu");
  heard.clear();
  world.Run(2s);
  EXPECT_EQ(heard, "*** N0CLU busy\r*** DISCONNECTED\r");
}

TEST_F(TncTest, LinkDropsAfterThePlannedTime) {
  StartNode();
  Start({.dropAfter = 60s});
  Link();
  heard.clear();
  world.Run(61s);
  EXPECT_THAT(heard, EndsWith("*** DISCONNECTED\rcmd:"));
}

TEST_F(TncTest, LinkIsBegunAnewWhereThatIsPlanned) {
  StartNode();
  Start({.dropAfter = 60s, .reconnects = true});
  Link();
  heard.clear();
  world.Run(61s);
  EXPECT_EQ(heard, "*** RECONNECTED to N0CLU\r");
  EXPECT_TRUE(tnc->Linked());
}

TEST_F(TncTest, TypedTextComesBackWithEcho) {
  Start({.echo = true});
  EXPECT_EQ(Ask("my"), "my\rMYCALL   K1TST\rcmd:");
}

TEST_F(TncTest, SilentOneSaysNothing) {
  Start({.silent = true});
  tnc->PowerUp();
  EXPECT_EQ(Ask("c n0clu"), "");
}

TEST_F(TncTest, NoiseComesOnDemandAndTheSameForTheSameSeed) {
  Start({.seed = 7});
  const std::string noise = Ask("noise 50");
  EXPECT_THAT(noise, SizeIs(50 + 4));
  Start({.seed = 7});
  EXPECT_EQ(Ask("noise 50"), noise);
  EXPECT_EQ(Ask("noise -1"), "cmd:");
  EXPECT_THAT(Ask("noise 999999999"), SizeIs(100'000 + 4));
}

TEST_F(TncTest, GarbageTakesThePlaceOfEveryAnswer) {
  Start({.garbage = true});
  tnc->PowerUp();
  Ask("mycall");
  EXPECT_THAT(heard, SizeIs(std::string("MYCALL   K1TST").size()));
  EXPECT_THAT(heard, Not(HasSubstr("MYCALL")));
}

TEST_F(TncTest, AnythingMayBeTyped) {
  StartNode();
  Start();
  std::string bytes;
  for (int i = 0; i < 200'000; ++i) bytes += static_cast<char>(i * 7 + i / 251);
  tnc->Hear(bytes);
  world.Run(10s);
  tnc->Hear("\x03\r");
  EXPECT_THAT(heard, EndsWith("cmd:"));
}

}  // namespace
}  // namespace practice_tnc
