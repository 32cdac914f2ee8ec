#include "visit.h"

namespace practice_node {
namespace {

struct Login {
  std::string_view dialect;
  std::string_view loginPrompt;
  std::string_view software;  // stands in the text of the login
  std::string_view prompt;    // ends every answer
};

void PrintTo(const Login& login, std::ostream* out) { *out << login.dialect; }

class EachDialect : public NodeTest, public ::testing::WithParamInterface<Login> {
 protected:
  void SetUp() override { StartNode({"--dialect", GetParam().dialect}); }
};

TEST_P(EachDialect, AsksForTheCallWithoutALineEnd) {
  Visitor visitor(world);
  EXPECT_THAT(visitor.heard, EndsWith(std::string(GetParam().loginPrompt)));
}

TEST_P(EachDialect, NamesItsSoftwareByTheFirstPrompt) {
  Visitor visitor(world);
  visitor.Type("K1TST-2");
  EXPECT_THAT(visitor.heard, HasSubstr(std::string(GetParam().software)));
}

TEST_P(EachDialect, EndsTheLoginWithItsPrompt) {
  Visitor visitor(world);
  visitor.Type("k1tst-2");
  EXPECT_THAT(visitor.heard, EndsWith(std::string(GetParam().prompt) + "\r\n"));
}

TEST_P(EachDialect, AnswersABlankLineWithThePromptAlone) {
  auto visitor = LoggedIn();
  const std::string answer = visitor->Ask(" ");
  EXPECT_EQ(visitor->Lines().size(), 1u);
  EXPECT_THAT(answer, EndsWith(std::string(GetParam().prompt) + "\r\n"));
}

TEST_P(EachDialect, GoesOnBehindACommandItDoesNotKnow) {
  auto visitor = LoggedIn();
  const std::string answer = visitor->Ask("frobnicate the aerial");
  EXPECT_EQ(visitor->Lines().size(), 2u);
  EXPECT_THAT(answer, EndsWith(std::string(GetParam().prompt) + "\r\n"));
  EXPECT_FALSE(visitor->closed);
}

TEST_P(EachDialect, SaysGoodByeAndHangsUp) {
  auto visitor = LoggedIn();
  EXPECT_THAT(visitor->Ask("BYE"), HasSubstr("73"));
  EXPECT_TRUE(visitor->closed);
  EXPECT_EQ(node->Connections(), 0u);
}

TEST_P(EachDialect, RefusesWhatIsNoCallAndHangsUp) {
  for (const auto wrong : {"HELLO", "K1TST-2 ", "K1TST-X", "12345", "K1TST-123"}) {
    Visitor visitor(world);
    visitor.Type(wrong);
    EXPECT_THAT(visitor.heard, HasSubstr(" callsign")) << wrong;
    EXPECT_TRUE(visitor.closed) << wrong;
  }
}

TEST_P(EachDialect, AsksAgainForAnEmptyCall) {
  Visitor visitor(world);
  visitor.heard.clear();
  visitor.Type("");
  EXPECT_EQ(visitor.heard, GetParam().loginPrompt);
}

TEST_P(EachDialect, AsksForThePasswordThatWasOrdered) {
  node.reset();
  StartNode({"--dialect", GetParam().dialect, "--password=secret"});
  Visitor visitor(world);
  visitor.Type("K1TST-2");
  EXPECT_THAT(visitor.heard, EndsWith("password: "));
  EXPECT_THAT(visitor.Ask("secret"), EndsWith(std::string(GetParam().prompt) + "\r\n"));
}

TEST_P(EachDialect, HangsUpOnAWrongPassword) {
  node.reset();
  StartNode({"--dialect", GetParam().dialect, "--password=secret"});
  Visitor visitor(world);
  visitor.Type("K1TST-2");
  visitor.Type("Secret");
  EXPECT_TRUE(visitor.closed);
}

INSTANTIATE_TEST_SUITE_P(
    Dialects, EachDialect,
    ::testing::Values(Login{"ar", "Please enter your call: ", "AR-Cluster", " arc >"},
                      Login{"spider", "login: ", "running DXSpider V1.57 build 441", " dxspider >"},
                      Login{"clx", "login: ", " CLX", " clx >"},
                      Login{"dxnet", "Your callsign:", "DxNet.", "DxNet>"},
                      Login{"wincluster", "Callsign : ", "WinCluster", "WinCluster>"},
                      Login{"zelva", "Please enter your call: ", "Zelva Cluster", "ZLV >"},
                      Login{"skimmer", "Please enter your callsign: ", "CW Skimmer", " >"}),
    [](const auto& param) { return std::string(param.param.dialect); });

using LoginTest = NodeTest;

TEST_F(LoginTest, HangsUpAfterAMinuteWithoutThePassword) {
  StartNode({"--password"});
  Visitor visitor(world);
  visitor.Type("K1TST-2");
  world.Run(59s);
  EXPECT_FALSE(visitor.closed);
  world.Run(2s);
  EXPECT_TRUE(visitor.closed);
}

TEST_F(LoginTest, WithThePasswordGivenTheMinuteIsForgotten) {
  StartNode({"--password"});
  Visitor visitor(world);
  visitor.Type("K1TST-2");
  visitor.Type("anything");
  world.Run(2min);
  EXPECT_FALSE(visitor.closed);
}

TEST_F(LoginTest, AnyPasswordWillDoWithoutAWord) {
  StartNode({"--password"});
  Visitor visitor(world);
  visitor.Type("K1TST-2");
  visitor.Type("anything");
  EXPECT_THAT(visitor.heard, HasSubstr("dxspider >"));
}

TEST_F(LoginTest, ThePasswordPromptFollowsTheLoginPromptUnechoed) {
  StartNode({"--password"});
  Visitor visitor(world);
  visitor.Type("K1TST-2");
  EXPECT_EQ(visitor.heard, "login: password: ");
}

TEST_F(LoginTest, TheNodesCallStandsInThePrompt) {
  StartNode({"--call", "db0xyz-7"});
  Visitor visitor(world);
  visitor.Type("K1TST-2");
  EXPECT_THAT(visitor.heard, EndsWith("K1TST-2 de DB0XYZ-7 20-Nov-2026 2100Z dxspider >\r\n"));
}

TEST_F(LoginTest, ASecondLoginOfACallEndsTheFirst) {
  StartNode({});
  auto first = LoggedIn();
  auto second = LoggedIn();
  EXPECT_THAT(first->heard, EndsWith("this instance is disconnected\r\n"));
  EXPECT_TRUE(first->closed);
  EXPECT_FALSE(second->closed);
  EXPECT_EQ(node->Connections(), 1u);
}

TEST_F(LoginTest, CallsWithOtherSsidsAreOtherUsers) {
  StartNode({});
  auto first = LoggedIn("K1TST-1");
  auto second = LoggedIn("K1TST-2");
  EXPECT_FALSE(first->closed);
  EXPECT_EQ(node->Connections(), 2u);
}

TEST_F(LoginTest, ClxWritesCallsInLowerCase) {
  StartNode({"--dialect=clx"});
  Visitor visitor(world);
  visitor.Type("K1TST-2");
  EXPECT_THAT(visitor.heard, HasSubstr("k1tst-2 de n0de-1 "));
}

TEST_F(LoginTest, ArClusterGreetsOneWithoutANameWithAnEmptyOne) {
  StartNode({"--dialect=ar"});
  Visitor visitor(world);
  visitor.Type("K1TST-2");
  EXPECT_THAT(visitor.Lines(), Contains("Hello  (K1TST-2)"));
}

TEST_F(LoginTest, ABusyPortIsToldInPlainWords) {
  StartNode({});
  const Options options;
  Node second(world.scheduler, world.clock, world.network, FactsOf(options, options.kind),
              StreamOf(options, nullptr));
  EXPECT_EQ(second.Start("127.0.0.1", 7373), "can't listen on 127.0.0.1:7373: the port is taken");
}

TEST_F(LoginTest, TheBannerTellsWhereWhoAndWhat) {
  StartNode({"--dialect=zelva", "--port=7400"});
  EXPECT_EQ(node->Banner(), "listening on 127.0.0.1:7400 as N0DE-1 (Zelva Cluster)");
}

}  // namespace
}  // namespace practice_node
