#include <gmock/gmock.h>

#include "scenario/login_scripts.h"

namespace {

class Title : public testing::Test {
 protected:
  // The title behind a login to that node, in a copy of the program that is linked to another.
  std::string Linked(const std::string& node, bool primary) {
    Script script = LoginScript(node);
    script.configuration += "\"Linking\",-1\r\n";
    Stage stage(script);
    stage.program->Primary = primary;
    stage.Play(script.turns);
    multiNode = stage.program->MultiNode.Caption.Get();
    ticked = stage.program->MultiNode.Value.Get();
    return stage.program->title.Get();
  }

  std::string multiNode;
  bool ticked = false;
};

TEST_F(Title, FirstOfTwoLinkedCopiesIsThePrimaryOne) {
  for (const char* node : {"ArCluster", "Spider157", "RelayWithoutAName"}) {
    const std::string alone = LoginScript(node).ending.title;
    EXPECT_EQ(Linked(node, true), "Primary - " + alone);
    EXPECT_EQ(multiNode, "Primary - ");
    EXPECT_TRUE(ticked);
  }
}

TEST_F(Title, SecondIsGoodWithExtendedLinesOnly) {
  for (const char* node : {"ArCluster", "Zelva"}) {
    EXPECT_EQ(Linked(node, false), "Secondary - " + LoginScript(node).ending.title);
    EXPECT_EQ(multiNode, "Secondary - ");
  }
}

TEST_F(Title, SecondIsBadOnEveryOtherNode) {
  for (const char* node : {"Spider157", "Clx", "DxNet", "WinCluster", "Skimmer"}) {
    EXPECT_EQ(Linked(node, false), "Bad as Secondary - " + LoginScript(node).ending.title);
    EXPECT_EQ(multiNode, "Bad as Secondary - ");
  }
}

TEST_F(Title, SingleCopyHasNoWordInFront) {
  Stage stage(LoginScript("ArCluster"));
  EXPECT_EQ(stage.program->MultiNode.Caption.Get(), "");
  EXPECT_FALSE(stage.program->MultiNode.Value.Get());
}

TEST_F(Title, NodeStandsInItWithItsGreetingAndTheSoftwareWhenThatIsNamed) {
  Stage stage(LoginScript("Spider157"));
  EXPECT_EQ(stage.program->title.Get(), "Molva Desk 2.4315 @ K1TST-2");
  stage.Say({"login: \r\nK1TST-2 de N0NODE 20-Nov-2026 2101Z\r\n"});
  EXPECT_EQ(stage.program->title.Get(), "Molva Desk 2.4315 @ K1TST-2  (N0NODE)");
  stage.Say({"running DXSpider V1.57 build 441\r\n"});
  EXPECT_EQ(stage.program->title.Get(), "Molva Desk 2.4315 @ K1TST-2  (N0NODE Spider)");
}

}  // namespace
