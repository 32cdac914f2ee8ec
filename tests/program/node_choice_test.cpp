#include <gmock/gmock.h>

#include "program/desk.h"

namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;

// The choice of the node, from its form to the next start.
class NodeChoiceTest : public testing::Test {
 protected:
  void Choose(const char* call) {
    session::NodeForm& form = desk.program->nodeForm;
    form.Show();
    form.txtSearch.UserTypes(call);
    form.txtSearch.UserPressesReturn();
    form.cmdApply.Press();
  }

  Desk desk;
};

TEST_F(NodeChoiceTest, NodesOfTheFileAreThereAfterTheStart) {
  desk.HasUsualConfiguration();
  desk.Content("dxclusters.dat") = "W1XYZ-2,dx.example,7300,Club\r\n";
  EXPECT_TRUE(desk.Start().nodeDirectory.Find("W1XYZ-2").has_value());
}

TEST_F(NodeChoiceTest, HostOfMolva1IsThatOfTheEndpoints) {
  desk.HasUsualConfiguration();
  desk.Content("endpoints.cfg") = "\"MOLVA-1\",\"node.example\"\r\n";
  desk.Start();
  EXPECT_EQ(desk.program->nodeDirectory.NodeHosts().front(), "node.example");
}

TEST_F(NodeChoiceTest, AppliedNodeIsShownAndKeptForTheNextStart) {
  desk.HasUsualConfiguration("\"NodesNumberedAdd\",\"10.1.2.3\"\r\n");
  desk.Start();
  Choose("AI9T");
  EXPECT_EQ(desk.program->session.linkText.node.Caption.Get(), "AI9T");
  desk.world.Run(3s);
  EXPECT_THAT(desk.Content("molva.cfg"), HasSubstr("\"SelectedNode\",\"AI9T\"\r\n"));
  EXPECT_THAT(desk.Content("molva.cfg"), HasSubstr("\"NodesNumberedAdd\",\"\"\r\n"));
  program::Program& next = desk.Start();
  EXPECT_EQ(next.settings.NodeCall, "AI9T");
  EXPECT_EQ(next.settings.NodeHost, "dxc.ai9t.com");
  EXPECT_EQ(next.settings.NodePort, "7300");
}

TEST_F(NodeChoiceTest, AppliedNodeIsTheOneThatIsCalledNext) {
  desk.HasUsualConfiguration(
      "\"SelectedNode\",\"W1XYZ\"\r\n\"SelectedNodesAddress\",\"gone.example\"\r\n");
  desk.StartNode();
  desk.Start();
  Choose("N0DE-1");
  desk.program->session.connection.cmdConnect.Press();
  EXPECT_TRUE(desk.world.RunUntil([this] { return desk.program->session.state.LoggedIn; }, 10s));
}

TEST_F(NodeChoiceTest, ChoosingDoesNotTouchTheLinkThatHolds) {
  desk.HasUsualConfiguration("\"AutoStart\",-1\r\n");
  desk.StartNode();
  desk.Start();
  ASSERT_TRUE(desk.world.RunUntil([this] { return desk.program->session.state.LoggedIn; }, 10s));
  Choose("AI9T");
  desk.world.Run(1s);
  EXPECT_TRUE(desk.program->session.state.LoggedIn);
  EXPECT_EQ(desk.program->session.linkText.node.Caption.Get(), "N0DE-1");
}

TEST_F(NodeChoiceTest, TickAgainstNewerListsIsKept) {
  desk.HasUsualConfiguration();
  desk.Start().nodeUpdate.Check1.UserSets(true);
  desk.world.Run(3s);
  EXPECT_THAT(desk.Content("molva.cfg"), HasSubstr("\"Dont Show Cluster Update\",\"-1\"\r\n"));
}

}  // namespace
