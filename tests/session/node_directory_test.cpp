#include "session/node_directory.h"

#include <gmock/gmock.h>

#include "platform/sim/sim_files.h"
#include "session/built_in_nodes.h"

namespace session {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using Fault = platform::Files::Fault;

class NodeDirectoryTest : public testing::Test {
 protected:
  std::string& New() { return files.content["/home/op/dxclusters.dat"]; }
  std::string& Old() { return files.content["/home/op/cluster.dat"]; }
  // "host port" of a call; empty if it is not in the list.
  std::string Of(std::string_view call) const {
    const auto place = nodes.Find(call);
    return place ? nodes.NodeHosts()[*place] + " " + nodes.NodePorts()[*place] : "";
  }
  std::string InfoOf(std::string_view call) const {
    const auto place = nodes.Find(call);
    return place ? nodes.NodeInfo()[*place] : "not there";
  }

  platform::sim::SimFiles files;
  core::Endpoints endpoints;
  NodeDirectory nodes{files, endpoints, "/home/op"};
};

TEST_F(NodeDirectoryTest, TheBuiltInTableBeginsWithMolva1AndThePracticeNode) {
  nodes.GetMolvaClusters();
  EXPECT_EQ(nodes.NodeCount(), 13U);
  EXPECT_EQ(nodes.NodeCalls()[0], "MOLVA-1");
  EXPECT_EQ(nodes.NodePorts()[0], "23");
  EXPECT_EQ(nodes.NodeCalls()[1], "N0DE-1");
  EXPECT_EQ(Of("N0DE-1"), "127.0.0.1 7373");
  EXPECT_EQ(Of("K3LR"), "dx.k3lr.com 23");
  EXPECT_EQ(nodes.NodeCalls()[12], "RBN");
}

TEST_F(NodeDirectoryTest, TheBuiltInTableHoldsNothingThatAListCouldNot) {
  for (const BuiltInNode& node : kBuiltInNodes) {
    EXPECT_FALSE(IsBlockedNode(node.call)) << node.call;
    EXPECT_TRUE(IsNodePort(node.port)) << node.call;
    EXPECT_EQ(NodeField(node.host), node.host);
    EXPECT_TRUE(IsBuiltInNode(node.call));
  }
  EXPECT_FALSE(IsBuiltInNode("W1XYZ"));
}

TEST_F(NodeDirectoryTest, TheHostOfMolva1IsThatOfTheEndpoints) {
  nodes.Load();
  EXPECT_EQ(Of("MOLVA-1"), " 23");
  endpoints.molva1 = "node.example";
  nodes.Load();
  EXPECT_EQ(Of("MOLVA-1"), "node.example 23");
}

TEST_F(NodeDirectoryTest, TheDefaultNodeIsTheFirstThatHasAHost) {
  EXPECT_EQ(nodes.Default().call, "N0DE-1");
  EXPECT_EQ(nodes.Default().host, "127.0.0.1");
  EXPECT_EQ(nodes.Default().port, "7373");
  endpoints.molva1 = "node.example";
  EXPECT_EQ(nodes.Default().call, "MOLVA-1");
  EXPECT_EQ(nodes.Default().host, "node.example");
  EXPECT_EQ(nodes.Default().port, "23");
}

TEST_F(NodeDirectoryTest, WithoutAFileTheBuiltInNodesStay) {
  nodes.Load();
  EXPECT_EQ(nodes.NodeCount(), 13U);
  EXPECT_EQ(nodes.NodeFile(), "/home/op/dxclusters.dat");
}

TEST_F(NodeDirectoryTest, DxclustersIsReadAndClusterNotLookedAt) {
  New() = "W1XYZ,new.example,7300,text\r\n";
  Old() = "W2XYZ,old.example,7300\r\n";
  nodes.Load();
  EXPECT_EQ(Of("W1XYZ"), "new.example 7300");
  EXPECT_EQ(InfoOf("W1XYZ"), "text");
  EXPECT_EQ(Of("W2XYZ"), "");
  EXPECT_EQ(nodes.NodeFile(), "/home/op/dxclusters.dat");
}

TEST_F(NodeDirectoryTest, AnEmptyDxclustersGivesWayToCluster) {
  New() = "";
  Old() = "VERSION,12,0\r\nW2XYZ,old.example,7300\r\n";
  nodes.Load();
  EXPECT_EQ(Of("W2XYZ"), "old.example 7300");
  EXPECT_EQ(nodes.NodeVersion, "12");
  EXPECT_EQ(nodes.NodeFile(), "/home/op/cluster.dat");
}

TEST_F(NodeDirectoryTest, AFileThatCannotBeReadIsNone) {
  New() = "W1XYZ,new.example,7300,text\r\n";
  files.denied.insert("/home/op/dxclusters.dat");
  Old() = "W2XYZ,old.example,7300\r\n";
  nodes.Load();
  EXPECT_EQ(Of("W1XYZ"), "");
  EXPECT_EQ(Of("W2XYZ"), "old.example 7300");
}

TEST_F(NodeDirectoryTest, AKnownCallGetsTheHostAndPortOfTheFile) {
  New() = "K1TTT,other.example,7300,text\r\nK1TTT,last.example,7301,again\r\n";
  nodes.Load();
  EXPECT_EQ(nodes.NodeCount(), 13U);
  EXPECT_EQ(Of("K1TTT"), "last.example 7301");
  EXPECT_EQ(InfoOf("K1TTT"), "again");
}

TEST_F(NodeDirectoryTest, TheOldFormatLeavesTextsAsTheyAre) {
  New() = "W1XYZ,new.example,7300,text\r\n";
  nodes.Load();
  New() = "";
  Old() = "W1XYZ,old.example,7300\r\n";
  nodes.ReadNodeData();
  EXPECT_EQ(Of("W1XYZ"), "old.example 7300");
  EXPECT_EQ(InfoOf("W1XYZ"), "text");
}

TEST_F(NodeDirectoryTest, ARowForMolva2DoesNotReplaceTheBuiltInOne) {
  endpoints.molva1 = "node.example";
  New() = "MOLVA-2,other.example,7300,\r\nMOLVA,other.example,7300,\r\n";
  nodes.Load();
  EXPECT_EQ(Of("MOLVA-1"), "node.example 23");
  EXPECT_EQ(nodes.NodeCount(), 13U);
}

TEST_F(NodeDirectoryTest, CallsStandInOrder) {
  New() = "AA1A,a,1,\r\nZZ9Z,z,1,\r\n";
  nodes.Load();
  std::vector<std::string> calls;
  for (const std::size_t place : nodes.InOrder()) calls.push_back(nodes.NodeCalls()[place]);
  EXPECT_EQ(calls.size(), 15U);
  EXPECT_TRUE(std::is_sorted(calls.begin(), calls.end()));
  EXPECT_EQ(calls.front(), "AA1A");
}

TEST_F(NodeDirectoryTest, ARemovedRowIsGoneAndTheOthersAreFound) {
  nodes.Load();
  nodes.Remove(*nodes.Find("K1TTT"));
  EXPECT_EQ(nodes.NodeCount(), 12U);
  EXPECT_EQ(Of("K1TTT"), "");
  EXPECT_EQ(Of("RBN"), "telnet.reversebeacon.net 7000");
  EXPECT_EQ(nodes.InOrder().size(), 12U);
}

TEST_F(NodeDirectoryTest, ADeletedBuiltInRowIsBackAtTheNextStart) {
  nodes.Load();
  nodes.Remove(*nodes.Find("K1TTT"));
  EXPECT_EQ(nodes.Write(), Fault::None);
  EXPECT_THAT(New(), Not(HasSubstr("K1TTT")));
  NodeDirectory next(files, endpoints, "/home/op");
  next.Load();
  EXPECT_TRUE(next.Find("K1TTT").has_value());
  EXPECT_EQ(next.NodeCount(), 13U);
}

TEST_F(NodeDirectoryTest, TheWholeListIsWrittenIntoTheFileThatWasRead) {
  Old() = "VERSION,12,0\r\nW2XYZ,old.example,7300\r\n";
  nodes.Load();
  nodes.Put("W3XYZ", "third.example", "23");
  EXPECT_EQ(nodes.Write(), Fault::None);
  EXPECT_THAT(Old(), StartsWith("VERSION,12,\r\nMOLVA-1,,23\r\nN0DE-1,127.0.0.1,7373\r\n"));
  EXPECT_THAT(Old(), HasSubstr("W2XYZ,old.example,7300\r\nW3XYZ,third.example,23\r\n"));
  EXPECT_FALSE(files.content.contains("/home/op/dxclusters.dat"));
}

TEST_F(NodeDirectoryTest, WithoutAFileDxclustersIsWritten) {
  nodes.Load();
  nodes.Put("W3XYZ", "third.example", "23");
  nodes.Write();
  EXPECT_THAT(New(), HasSubstr("W3XYZ,third.example,23,\r\n"));
  EXPECT_FALSE(files.content.contains("/home/op/cluster.dat"));
}

TEST_F(NodeDirectoryTest, WhatWasWrittenIsTheListOfTheNextStart) {
  New() = "W1XYZ,one.example,7300,a text\r\n";
  nodes.Load();
  nodes.Put("W1XYZ", "two.example", "23");
  nodes.Write();
  NodeDirectory next(files, endpoints, "/home/op");
  next.Load();
  EXPECT_EQ(next.NodeCalls(), nodes.NodeCalls());
  EXPECT_EQ(next.NodeHosts(), nodes.NodeHosts());
  EXPECT_EQ(next.NodePorts(), nodes.NodePorts());
  EXPECT_EQ(next.NodeInfo(), nodes.NodeInfo());
}

// Its host may have come from the endpoints since.
TEST_F(NodeDirectoryTest, AWrittenMolva1WithoutAHostIsNoneWhenRead) {
  nodes.Load();
  nodes.Write();
  endpoints.molva1 = "node.example";
  nodes.Load();
  EXPECT_EQ(Of("MOLVA-1"), "node.example 23");
}

TEST_F(NodeDirectoryTest, ADiskThatIsFullKeepsTheOldFile) {
  New() = "W1XYZ,one.example,7300,\r\n";
  nodes.Load();
  nodes.Put("W1XYZ", "two.example", "23");
  files.bytesFree = 10;
  EXPECT_EQ(nodes.Write(), Fault::Full);
  EXPECT_EQ(New(), "W1XYZ,one.example,7300,\r\n");
}

TEST_F(NodeDirectoryTest, TellsThatItHasChanged) {
  int changes = 0;
  const auto watching = nodes.Changed.Add([&] { ++changes; });
  nodes.Load();
  EXPECT_GT(changes, 0);
  changes = 0;
  nodes.Put("W1XYZ", "one.example", "23");
  nodes.Remove(0);
  EXPECT_EQ(changes, 2);
}

// A walk over the list for each row would take 10,000,000,000 steps.
TEST_F(NodeDirectoryTest, AHundredThousandRowsAmongBrokenLinesAreRead) {
  std::string text;
  for (int i = 0; i < 100'000; ++i) {
    text += "N" + std::to_string(i) + "A,host" + std::to_string(i) + ".example,7300,text\r\n";
    text += "broken line " + std::to_string(i) + "\r\n";
  }
  New() = text + text;
  nodes.Load();
  EXPECT_EQ(nodes.NodeCount(), 100'013U);
  EXPECT_EQ(Of("N99999A"), "host99999.example 7300");
}

}  // namespace
}  // namespace session
