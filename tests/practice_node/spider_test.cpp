#include "visit.h"

namespace practice_node {
namespace {

using SpiderTest = NodeTest;

std::string WithoutBlanks(std::string text) {
  text.erase(0, text.find_first_not_of(' '));
  return text;
}

std::vector<std::string> Labels(const std::vector<std::string>& lines) {
  std::vector<std::string> labels;
  labels.reserve(lines.size());
  for (const auto& line : lines) labels.push_back(line.substr(0, line.find(':')));
  return labels;
}

TEST_F(SpiderTest, ANewUserIsAskedForNameQthLocationAndHomeNode) {
  StartNode({});
  Visitor visitor(world);
  visitor.Type("K1TST-2");
  EXPECT_THAT(visitor.heard, HasSubstr("Please enter your name, set/name <your name>\r\n"));
  EXPECT_THAT(visitor.heard, HasSubstr("Please enter your QTH, set/qth <your qth>\r\n"));
  EXPECT_THAT(visitor.heard, HasSubstr("Please enter your location with set/location"));
  EXPECT_THAT(visitor.heard, HasSubstr("Please enter your Home Node, set/homenode <"));
}

TEST_F(SpiderTest, WhatAUserHasSetIsNotAskedForAgain) {
  StartNode({});
  auto first = LoggedIn();
  EXPECT_THAT(first->Ask("set/name Anna"), StartsWith("Your name is now Anna\r\n"));
  first->Type("set/qth Ann Arbor, MI");
  first->Leave();
  Visitor again(world);
  again.Type("K1TST-2");
  EXPECT_THAT(again.heard, HasSubstr("Hello Anna, this is N0DE-1"));
  EXPECT_THAT(again.heard, Not(HasSubstr("set/name")));
  EXPECT_THAT(again.heard, Not(HasSubstr("set/qth")));
  EXPECT_THAT(again.heard, HasSubstr("set/homenode"));
}

TEST_F(SpiderTest, ThePromptOfTheUserIsUsedFromThenOn) {
  StartNode({});
  auto visitor = LoggedIn();
  visitor->Type("set/prompt %C de %M %D %T 2.4315  dxspider >");
  EXPECT_EQ(visitor->Ask(""), "K1TST-2 de N0DE-1 20-Nov-2026 2100Z 2.4315  dxspider >\r\n");
  visitor->Leave();
  Visitor again(world);
  again.Type("K1TST-2");
  EXPECT_THAT(again.heard, EndsWith("2.4315  dxspider >\r\n"));
}

TEST_F(SpiderTest, TheReportsLabelsAreAlignedToTheLongestOfThatReport) {
  StartNode({});
  auto visitor = LoggedIn();
  visitor->Ask("stat/user");
  auto lines = visitor->Lines();
  lines.pop_back();
  EXPECT_EQ(lines.front(), "       Buddies:");
  EXPECT_THAT(lines, Contains("  Type of User: U"));
  EXPECT_THAT(lines, Contains("Login Info Req: No"));

  visitor->Type("set/prompt %C dxspider >");
  visitor->Ask("stat/user");
  EXPECT_THAT(visitor->Lines(), Contains("        Buddies:"));
  EXPECT_THAT(visitor->Lines(), Contains("Required Prompt: %C dxspider >"));
}

TEST_F(SpiderTest, TheReportOf155IsFifteenWideWhateverItHolds) {
  StartNode({"--version-string=1.55"});
  auto visitor = LoggedIn();
  visitor->Type("unset/echo");
  visitor->Ask("stat/user");
  EXPECT_THAT(visitor->Lines(), Contains("        Buddies:"));
  EXPECT_THAT(visitor->Lines(), Contains("       Callsign: K1TST-2"));
  EXPECT_THAT(visitor->Lines(), Contains("   Req DX Spots: Yes"));
  EXPECT_THAT(visitor->Lines(), Contains("       Req Echo: No"));
  EXPECT_THAT(visitor->Lines(), Contains("   Type of User: U"));
}

TEST_F(SpiderTest, TheReportHasALineForWhatIsKnownOnly) {
  StartNode({});
  auto visitor = LoggedIn();
  visitor->Ask("stat/user");
  EXPECT_THAT(Labels(visitor->Lines()), Not(Contains(EndsWith("Language"))));
  visitor->Type("set/lang en");
  visitor->Type("set/qra EN82");
  visitor->Type("set/location 42 17 N 83 45 W");
  visitor->Ask("stat/user");
  EXPECT_THAT(visitor->heard, HasSubstr("Language: en\r\n"));
  EXPECT_THAT(visitor->heard, HasSubstr(" Locator: EN82\r\n"));
  EXPECT_THAT(visitor->heard, HasSubstr("Location: 42 17 N 83 45 W\r\n"));
}

TEST_F(SpiderTest, TheReportGoesOnBehindTheTypeOfUser) {
  StartNode({});
  auto visitor = LoggedIn();
  visitor->Ask("stat/user");
  const auto lines = visitor->Lines();
  EXPECT_THAT(WithoutBlanks(lines[lines.size() - 3]), StartsWith("Type of User: U"));
  EXPECT_THAT(WithoutBlanks(lines[lines.size() - 2]), StartsWith("Users Here: 1"));
}

TEST_F(SpiderTest, Version155NamesItsBuildAndSystem) {
  StartNode({"--version-string", "1.55"});
  Visitor visitor(world);
  visitor.Type("K1TST-2");
  EXPECT_THAT(visitor.Lines(), Contains("running DXSpider V1.55 build 231 on linux"));
}

TEST_F(SpiderTest, Version155EchoesEveryCommandUntilUnsetEcho) {
  StartNode({"--version-string=1.55"});
  auto visitor = LoggedIn();
  EXPECT_THAT(visitor->Ask("sh/filter"), StartsWith("sh/filter\r\n"));
  EXPECT_THAT(visitor->Ask("unset/echo"), StartsWith("unset/echo\r\nEchoing disabled\r\n"));
  EXPECT_THAT(visitor->Ask("sh/filter"), StartsWith("K1TST-2: no filters set\r\n"));
}

TEST_F(SpiderTest, Version157EchoesNothing) {
  StartNode({});
  auto visitor = LoggedIn();
  EXPECT_THAT(visitor->Ask("sh/filter"), StartsWith("K1TST-2: no filters set\r\n"));
}

TEST_F(SpiderTest, Version157PromptsFirstAndListsLater) {
  StartNode({});
  auto visitor = LoggedIn();
  visitor->Ask("sh/mydx 5");
  EXPECT_EQ(visitor->Lines().size(), 1u);
  world.Run(500ms);
  EXPECT_EQ(visitor->Lines().size(), 6u);
  EXPECT_THAT(visitor->heard, Not(EndsWith("dxspider >\r\n")));
}

TEST_F(SpiderTest, Version155ListsFirst) {
  StartNode({"--version-string=1.55"});
  auto visitor = LoggedIn();
  visitor->Type("unset/echo");
  visitor->Ask("sh/dx/5");
  EXPECT_EQ(visitor->Lines().size(), 6u);
  EXPECT_THAT(visitor->heard, EndsWith("dxspider >\r\n"));
}

TEST_F(SpiderTest, TheRangeWithADashIsNotUnderstood) {
  StartNode({"--version-string=1.55"});
  auto visitor = LoggedIn();
  visitor->Type("unset/echo");
  EXPECT_EQ(visitor->Ask("sh/dx/20 on 14000/14350").find("not found"), std::string::npos);
  EXPECT_THAT(visitor->Ask("sh/dx/20 on 14000-14350"),
              StartsWith("sh/dx: '20 on 14000-14350' not found\r\n"));
}

TEST_F(SpiderTest, Version157HangsUpAtThe21stUnknownCommandInARow) {
  StartNode({});
  auto visitor = LoggedIn();
  for (int i = 0; i < 20; ++i) visitor->Type("set/molva");
  visitor->Type("");  // something known: the count begins again
  for (int i = 0; i < 20; ++i)
    EXPECT_THAT(visitor->Ask("set/molva"), StartsWith("Invalid command"));
  EXPECT_FALSE(visitor->closed);
  visitor->Type("set/molva");
  EXPECT_TRUE(visitor->closed);
}

TEST_F(SpiderTest, Version157PromptsUnaskedAfterMinutesOfSilence) {
  StartNode({});
  auto visitor = LoggedIn();
  world.Run(4min);
  EXPECT_EQ(visitor->heard, "");
  world.Run(1min);
  EXPECT_EQ(visitor->heard, "K1TST-2 de N0DE-1 20-Nov-2026 2105Z dxspider >\r\n");
}

TEST_F(SpiderTest, SwitchesAnswerInTheirWordsAndShowInTheReport) {
  StartNode({});
  auto visitor = LoggedIn();
  EXPECT_THAT(visitor->Ask("set/nowwv"), StartsWith("WWV disabled for K1TST-2\r\n"));
  EXPECT_THAT(visitor->Ask("stat/user"), HasSubstr(" Req WWV: No\r\n"));
  EXPECT_THAT(visitor->Ask("set/wwv"), StartsWith("WWV enabled for K1TST-2\r\n"));
  EXPECT_THAT(visitor->Ask("unset/beep"), StartsWith("Beeps are now off\r\n"));
  EXPECT_THAT(visitor->Ask("SET/PAGE 9999"), StartsWith("Page Length is now 9999\r\n"));
}

TEST_F(SpiderTest, ASwitchOfOtherSoftwareIsUnknown) {
  StartNode({});
  auto visitor = LoggedIn();
  EXPECT_THAT(visitor->Ask("set/bob"), StartsWith("Invalid command\r\n"));
  EXPECT_THAT(visitor->Ask("set/no"), StartsWith("Invalid command\r\n"));
  EXPECT_THAT(visitor->Ask("unset/"), StartsWith("Invalid command\r\n"));
}

TEST_F(SpiderTest, UptimeStandsInTheLogin) {
  StartNode({});
  world.Run(50h + 5min + 7s);
  Visitor visitor(world);
  visitor.Type("K1TST-2");
  EXPECT_THAT(visitor.heard, HasSubstr("Uptime: 2d 2h 5m 7s\r\n"));
}

TEST_F(SpiderTest, UptimeOf155StandsInItsOtherForm) {
  StartNode({"--version-string=1.55"});
  world.Run(50h + 5min);
  Visitor visitor(world);
  visitor.Type("K1TST-2");
  EXPECT_THAT(visitor.heard, HasSubstr("Uptime 2 02:05\r\n"));
}

}  // namespace
}  // namespace practice_node
