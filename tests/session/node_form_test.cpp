#include "session/node_form.h"

#include <gmock/gmock.h>

#include "session/node_stage.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class NodeFormTest : public NodeStage {
 protected:
  void SetUp() override {
    settings.NodeCall = "K1TTT";
    settings.NodeHost = "k1ttt.net";
    settings.NodePort = "7373";
    settings.NodeNumberedAddress = "10.1.2.3";
  }
  void Choose(const std::string& call) {
    const auto& calls = Calls();
    const auto at = std::find(calls.begin(), calls.end(), call);
    ASSERT_NE(at, calls.end()) << call;
    form.cboNode.UserSelects(static_cast<int>(at - calls.begin()));
  }
  void Type(const std::string& call, const std::string& host, const std::string& port) {
    form.txtNodeCall.UserTypes(call);
    form.txtNodeAddress.UserTypes(host);
    form.txtNodePort.UserTypes(port);
  }
  const std::vector<std::string>& Calls() const { return form.cboNode.Options.Get(); }
  // The chosen entry of the list; empty without one.
  std::string Chosen() const {
    const int entry = form.cboNode.Selected.Get();
    return entry < 0 ? "" : Calls()[static_cast<std::size_t>(entry)];
  }
  std::string Fields() const {
    return form.txtNodeCall.Text.Get() + " " + form.txtNodeAddress.Text.Get() + " " +
           form.txtNodePort.Text.Get();
  }
  std::string Problem() const {
    return form.lblResult.ForeColour.Get() == core::kRed ? form.lblResult.Caption.Get() : "";
  }
};

TEST_F(NodeFormTest, OpensWithTheCallsInOrderAndTheSelectedNode) {
  Start();
  EXPECT_TRUE(form.Open.Get());
  EXPECT_EQ(Calls().size(), 13U);
  EXPECT_TRUE(std::is_sorted(Calls().begin(), Calls().end()));
  EXPECT_EQ(Chosen(), "K1TTT");
  EXPECT_EQ(Fields(), "K1TTT k1ttt.net 7373");
}

TEST_F(NodeFormTest, ASelectedNodeThatIsNotInTheListCanBeAdded) {
  settings.NodeCall = "W1OWN";
  settings.NodeHost = "own.example";
  Start();
  EXPECT_EQ(Chosen(), "");
  EXPECT_EQ(Fields(), "W1OWN own.example 7373");
  EXPECT_FALSE(form.cmdApply.Enabled.Get());
  EXPECT_FALSE(form.cmdDelete.Enabled.Get());
  EXPECT_NE(form.cmdApply.ToolTip.Get(), "");
  form.cmdNewNode.Press();
  EXPECT_EQ(Chosen(), "W1OWN");
  EXPECT_TRUE(form.cmdApply.Enabled.Get());
}

TEST_F(NodeFormTest, AClickShowsHostAndPort) {
  Start();
  Choose("AI9T");
  EXPECT_EQ(Fields(), "AI9T dxc.ai9t.com 7300");
  EXPECT_EQ(chosen, 0) << "nothing is taken yet";
  EXPECT_EQ(settings.NodeCall, "K1TTT");
}

TEST_F(NodeFormTest, ApplyTakesTheNodeAndCloses) {
  Start();
  Choose("AI9T");
  form.cmdApply.Press();
  EXPECT_EQ(settings.NodeCall, "AI9T");
  EXPECT_EQ(settings.NodeHost, "dxc.ai9t.com");
  EXPECT_EQ(settings.NodePort, "7300");
  EXPECT_EQ(settings.NodeNumberedAddress, "");
  EXPECT_EQ(chosen, 1);
  EXPECT_FALSE(form.Open.Get());
}

TEST_F(NodeFormTest, ApplyKeepsTheEditedHostAndPortAndRewritesTheFile) {
  Start();
  form.txtNodeAddress.UserTypes("other.example");
  form.txtNodePort.UserTypes("8000");
  form.cmdApply.Press();
  EXPECT_EQ(settings.NodeHost, "other.example");
  EXPECT_EQ(settings.NodePort, "8000");
  EXPECT_THAT(File(), HasSubstr("K1TTT,other.example,8000,\r\n"));
  EXPECT_THAT(File(), HasSubstr("RBN,telnet.reversebeacon.net,7000,\r\n"));
}

TEST_F(NodeFormTest, DoubleBlanksOfACallAreCleanedAtEveryOccurrence) {
  File() = "K1TTT  DXC  A   B,k1ttt.net,7373,\r\n";
  Start();
  Choose("K1TTT  DXC  A   B");
  form.cmdApply.Press();
  EXPECT_EQ(settings.NodeCall, "K1TTT DXC A  B");
  EXPECT_THAT(File(), HasSubstr("K1TTT  DXC  A   B,k1ttt.net,7373,\r\n"));
}

TEST_F(NodeFormTest, NewAddsTheCallInUpperCase) {
  Start();
  Type("w1new-2", "new.example", "7300");
  form.cmdNewNode.Press();
  EXPECT_THAT(Calls(), Contains("W1NEW-2"));
  EXPECT_EQ(Chosen(), "W1NEW-2");
  EXPECT_THAT(File(), HasSubstr("W1NEW-2,new.example,7300,\r\n"));
  EXPECT_TRUE(form.Open.Get());
  EXPECT_EQ(settings.NodeCall, "K1TTT");
  EXPECT_TRUE(AfterNextStart()->Find("W1NEW-2").has_value());
}

TEST_F(NodeFormTest, ACallThatIsInTheListCannotBeAdded) {
  Start();
  form.txtNodeCall.UserTypes("ai9t");
  EXPECT_FALSE(form.cmdNewNode.Enabled.Get());
  EXPECT_NE(form.cmdNewNode.ToolTip.Get(), "");
  EXPECT_EQ(Chosen(), "AI9T");
  EXPECT_EQ(form.txtNodeAddress.Text.Get(), "k1ttt.net") << "typing changes no other field";
}

TEST_F(NodeFormTest, CommasInFieldsBecomeBlanks) {
  Start();
  Type("w1,new", "a,b", "7300");
  form.cmdNewNode.Press();
  EXPECT_THAT(File(), HasSubstr("W1 NEW,a b,7300,\r\n"));
}

TEST_F(NodeFormTest, WhatIsTypedCannotMakeALineOfItsOwn) {
  Start();
  Type("W1NEW", "host\r\nMOLVA-1,evil.example", "23");
  form.cmdNewNode.Press();
  EXPECT_THAT(File(), HasSubstr("W1NEW,host  MOLVA-1 evil.example,23,\r\n"));
}

TEST_F(NodeFormTest, AnEmptyHostIsToldInWords) {
  Start();
  for (const char* host : {"", "  ", ",", "\""}) {
    form.txtNodeAddress.UserTypes(host);
    form.cmdApply.Press();
    EXPECT_THAT(Problem(), StartsWith("Enter the host of the node")) << host;
  }
  EXPECT_TRUE(form.Open.Get());
  EXPECT_FALSE(HasFile());
  EXPECT_EQ(settings.NodeHost, "k1ttt.net");
}

TEST_F(NodeFormTest, ABadPortIsToldInWords) {
  Start();
  for (const char* port : {"", "telnet", "0", "65536", "-23", "23.5", "7373x", "7 373"}) {
    form.txtNodePort.UserTypes(port);
    form.cmdApply.Press();
    EXPECT_THAT(Problem(), StartsWith("Enter the port of the node")) << port;
  }
  EXPECT_EQ(chosen, 0);
  form.txtNodePort.UserTypes(" 65535 ");
  form.cmdApply.Press();
  EXPECT_EQ(settings.NodePort, "65535");
}

TEST_F(NodeFormTest, ACallThatIsNoneIsToldInWords) {
  Start();
  for (const char* call : {"", " ", "A", ","}) {
    form.txtNodeCall.UserTypes(call);
    form.cmdNewNode.Press();
    EXPECT_THAT(Problem(), StartsWith("Enter the call of the node")) << call;
  }
}

TEST_F(NodeFormTest, CallsForWhichMolva1ServesAreNotAdded) {
  Start();
  for (const char* call : {"MOLVA", "molva-2", "MOLVA-3"}) {
    Type(call, "host.example", "23");
    form.cmdNewNode.Press();
    EXPECT_THAT(Problem(), HasSubstr("MOLVA-1")) << call;
  }
  EXPECT_EQ(directory.NodeCount(), 13U);
}

TEST_F(NodeFormTest, DeleteTakesTheRowOutAndTheFileFollows) {
  File() = "W1OLD,old.example,23,\r\n";
  Start();
  Choose("W1OLD");
  form.cmdDelete.Press();
  EXPECT_THAT(Calls(), Not(Contains("W1OLD")));
  EXPECT_EQ(Chosen(), "") << "nothing else is chosen by itself";
  EXPECT_THAT(File(), Not(HasSubstr("W1OLD")));
  EXPECT_EQ(form.lblResult.Caption.Get(), "W1OLD is deleted.");
  EXPECT_FALSE(AfterNextStart()->Find("W1OLD").has_value());
}

TEST_F(NodeFormTest, ADeletedNodeIsBroughtBackByNew) {
  File() = "W1OLD,old.example,23,\r\n";
  Start();
  Choose("W1OLD");
  form.cmdDelete.Press();
  form.cmdNewNode.Press();
  EXPECT_EQ(Chosen(), "W1OLD");
  EXPECT_THAT(File(), HasSubstr("W1OLD,old.example,23,\r\n"));
}

TEST_F(NodeFormTest, ADeletedBuiltInNodeSaysThatItReturns) {
  Start();
  form.cmdDelete.Press();
  EXPECT_EQ(form.lblResult.Caption.Get(),
            "K1TTT comes with the program and is back at its next start.");
  EXPECT_TRUE(AfterNextStart()->Find("K1TTT").has_value());
}

TEST_F(NodeFormTest, TheSearchFindsCallsHostsAndTextsWhileTyping) {
  File() = "W1OLD,old.example,23,Boston Club\r\n";
  Start();
  form.txtSearch.UserTypes("ja2");
  EXPECT_THAT(Calls(), ElementsAre("JA2YYF-9"));
  form.txtSearch.UserTypes("AI9T.com");
  EXPECT_THAT(Calls(), ElementsAre("AI9T"));
  form.txtSearch.UserTypes(" boston ");
  EXPECT_THAT(Calls(), ElementsAre("W1OLD"));
  form.txtSearch.UserTypes("nowhere");
  EXPECT_THAT(Calls(), IsEmpty());
  form.txtSearch.UserTypes("");
  EXPECT_EQ(Calls().size(), 14U);
}

TEST_F(NodeFormTest, TheSearchKeepsTheNodeThatIsChosen) {
  Start();
  form.txtSearch.UserTypes("ja2");
  EXPECT_EQ(Chosen(), "");
  EXPECT_EQ(Fields(), "K1TTT k1ttt.net 7373");
  form.txtSearch.UserTypes("");
  EXPECT_EQ(Chosen(), "K1TTT");
}

TEST_F(NodeFormTest, ReturnInTheSearchChoosesTheFirstThatFits) {
  Start();
  form.txtSearch.UserTypes("nc7");
  form.txtSearch.UserPressesReturn();
  EXPECT_EQ(Fields(), "NC7J dxc.nc7j.com 7373");
  form.txtSearch.UserTypes("nowhere");
  form.txtSearch.UserPressesReturn();
  EXPECT_EQ(Fields(), "NC7J dxc.nc7j.com 7373");
}

TEST_F(NodeFormTest, ReturnInAnEmptySearchUsesTheNodeAtHand) {
  Start();
  const std::string before = settings.NodeCall;
  form.txtSearch.UserPressesReturn();
  EXPECT_FALSE(form.Open.Get());
  EXPECT_EQ(settings.NodeCall, before);
}

TEST_F(NodeFormTest, ReturnOnceMoreUsesTheNodeThatWasFound) {
  Start();
  form.txtSearch.UserTypes("nc7");
  form.txtSearch.UserPressesReturn();
  EXPECT_TRUE(form.Open.Get());
  form.txtSearch.UserPressesReturn();
  EXPECT_FALSE(form.Open.Get());
  EXPECT_EQ(settings.NodeCall, "NC7J");
}

TEST_F(NodeFormTest, AnEntryIsARowOfTheDirectory) {
  Start();
  form.txtSearch.UserTypes("nc7");
  EXPECT_EQ(directory.NodeCalls()[form.PlaceOf(0).value()], "NC7J");
  EXPECT_EQ(form.PlaceOf(1), std::nullopt);
  EXPECT_EQ(form.PlaceOf(-1), std::nullopt);
}

TEST_F(NodeFormTest, CloseChangesNothing) {
  Start();
  Choose("AI9T");
  form.txtNodePort.UserTypes("1");
  form.cmdExit.Press();
  EXPECT_FALSE(form.Open.Get());
  EXPECT_EQ(settings.NodeCall, "K1TTT");
  EXPECT_FALSE(HasFile());
  form.Show();
  EXPECT_EQ(Fields(), "K1TTT k1ttt.net 7373");
}

TEST_F(NodeFormTest, OneThatIsOpenStaysAsTheUserHasIt) {
  Start();
  form.txtNodeAddress.UserTypes("half typ");
  form.Show();
  EXPECT_EQ(form.txtNodeAddress.Text.Get(), "half typ");
}

TEST_F(NodeFormTest, TheSecondaryNodeIsOfferedAndSaysWhyItIsNotToBeHad) {
  EXPECT_EQ(form.chkSecondary.Caption.Get(), "Enable Secondary Node Connection");
  EXPECT_FALSE(form.chkSecondary.Enabled.Get());
  EXPECT_THAT(form.chkSecondary.ToolTip.Get(),
              StartsWith("If Primary Connection fails, then the Secondary node will be connected"));
}

TEST_F(NodeFormTest, AFullDiskIsToldTheNodeIsTakenAndTheFormStays) {
  File() = "W1OLD,old.example,23,\r\n";
  Start();
  Choose("AI9T");
  world.files.bytesFree = 5;
  form.cmdApply.Press();
  EXPECT_EQ(settings.NodeCall, "AI9T");
  EXPECT_EQ(chosen, 1);
  EXPECT_TRUE(form.Open.Get());
  EXPECT_THAT(Problem(), HasSubstr("could not be saved (Disk full)"));
  EXPECT_EQ(File(), "W1OLD,old.example,23,\r\n");
}

TEST_F(NodeFormTest, AFileThatCannotBeWrittenIsInTheErrorLog) {
  world.files.denied.insert("/home/op/dxclusters.dat");
  Start();
  form.cmdDelete.Press();
  EXPECT_THAT(Log(), HasSubstr("frmNode"));
  EXPECT_THAT(Problem(), HasSubstr("Permission denied"));
}

}  // namespace
