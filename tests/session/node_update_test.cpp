#include "session/node_update.h"

#include <gmock/gmock.h>

#include "session/node_stage.h"

using namespace std::chrono_literals;

namespace {

using platform::Http;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kAddress = "https://lists.example/telnet/dxclusters.php";
constexpr const char* kOwnList = "W1OWN,own.example,23,\r\n";
constexpr const char* kNewerList = "W1NEW,new.example,7300,Newer\r\nK1TTT,moved.example,7373,\r\n";

class NodeUpdateTest : public NodeStage {
 protected:
  void SetUp() override {
    endpoints.nodeList = "https://lists.example";
    File() = kOwnList;
    Start();
  }
  void Serve(platform::sim::SimHttp::Page page) { world.http.pages[kAddress] = std::move(page); }
  void RunUpdate() {
    update.cmdNode.Press();
    world.RunUntil([this] { return !update.Fetching.Get(); });
  }
  const std::string& Result() const { return update.lblResult.Caption.Get(); }
  void ExpectOldList() {
    EXPECT_EQ(File(), kOwnList);
    EXPECT_TRUE(directory.Find("W1OWN").has_value());
    EXPECT_FALSE(update.Fetching.Get());
    EXPECT_THAT(Result(), HasSubstr("The old list stays."));
  }
};

TEST_F(NodeUpdateTest, LabelsReadAsTheyAreToRead) {
  EXPECT_EQ(update.lblVersion[0].Caption.Get(), "Version Installed");
  EXPECT_EQ(update.lblVersion[1].Caption.Get(), "Version Avaliable");
  EXPECT_EQ(update.lblInstalled.Caption.Get(), "Unknown");
  EXPECT_EQ(update.lblAvailable.Caption.Get(), "Unknown");
  EXPECT_EQ(update.cmdNode.Caption.Get(), "Update");
  EXPECT_EQ(update.Check1.Caption.Get(), "Don't show me this again.");
  EXPECT_EQ(update.lblWarning[0].Caption.Get(),
            "If you choose to update, any custom cluster data you have added will be lost.");
  EXPECT_EQ(update.lblWarning[1].Caption.Get(), "You will then need to re-enter this data.");
}

TEST_F(NodeUpdateTest, ANewerListIsOfferedOnceItIsKnown) {
  EXPECT_EQ(update.fraUpdate.Caption.Get(), "Node List");
  update.OfferNewer();
  EXPECT_EQ(update.fraUpdate.Caption.Get(), "New Node List Available");
  EXPECT_EQ(update.lblAvailable.Caption.Get(), "Newer");
  Serve({.bytes = kNewerList});
  RunUpdate();
  EXPECT_EQ(update.fraUpdate.Caption.Get(), "Node List");
  EXPECT_EQ(update.lblAvailable.Caption.Get(), "Unknown");
}

TEST_F(NodeUpdateTest, TheNewListTakesThePlaceOfTheOldOne) {
  Serve({.bytes = kNewerList});
  RunUpdate();
  EXPECT_EQ(Result(), "*** Update OK ***");
  EXPECT_EQ(File(), kNewerList);
  EXPECT_FALSE(directory.Find("W1OWN").has_value()) << "custom data is lost";
  EXPECT_EQ(directory.NodeInfo()[directory.Find("W1NEW").value()], "Newer");
  EXPECT_EQ(directory.NodeHosts()[directory.Find("K1TTT").value()], "moved.example");
  EXPECT_TRUE(directory.Find("RBN").has_value()) << "the built-in ones stay";
  EXPECT_THAT(form.cboNode.Options.Get(), testing::Contains("W1NEW"));
}

TEST_F(NodeUpdateTest, TheNodeAtHandIsShownAsTheNewListHasIt) {
  form.txtNodeCall.UserTypes("K1TTT");
  form.txtNodeAddress.UserTypes("k1ttt.net");
  form.txtNodePort.UserTypes("23");
  Serve({.bytes = kNewerList});
  RunUpdate();
  EXPECT_EQ(form.txtNodeAddress.Text.Get(), "moved.example");
  EXPECT_EQ(form.txtNodePort.Text.Get(), "7373");
  form.cmdApply.Press();
  EXPECT_EQ(settings.NodeHost, "moved.example");
  EXPECT_THAT(File(), HasSubstr("K1TTT,moved.example,7373,"));
}

TEST_F(NodeUpdateTest, TheOlderFormatHasAFileAndAPlaceOfItsOwn) {
  File() = "";
  world.files.content["/home/op/cluster.dat"] = "VERSION,11,0\r\nW1OWN,own.example,23\r\n";
  directory.Load();
  update.Load();
  EXPECT_EQ(update.lblInstalled.Caption.Get(), "11");
  world.http.pages["https://lists.example/cluster.dat"] = {
      .bytes = "VERSION,12,0\r\nW1NEW,new.example,7300\r\n"};
  RunUpdate();
  EXPECT_EQ(world.files.content["/home/op/cluster.dat"],
            "VERSION,12,0\r\nW1NEW,new.example,7300\r\n");
  EXPECT_EQ(update.lblInstalled.Caption.Get(), "12");
}

TEST_F(NodeUpdateTest, AddressIsMadeOfTheEndpointAndThePath) {
  for (const char* server : {"https://lists.example", "https://lists.example/", "lists.example"}) {
    endpoints.nodeList = server;
    world.http.asked.clear();
    RunUpdate();
    EXPECT_THAT(world.http.asked, ElementsAre(kAddress)) << server;
  }
  endpoints.nodeList = "http://127.0.0.1:8080";
  world.http.asked.clear();
  RunUpdate();
  EXPECT_THAT(world.http.asked, ElementsAre("http://127.0.0.1:8080/telnet/dxclusters.php"));
}

TEST_F(NodeUpdateTest, WithoutAnEndpointItSaysWhyItCannotBe) {
  endpoints.nodeList = "";
  update.Load();
  EXPECT_FALSE(update.cmdNode.Enabled.Get());
  EXPECT_THAT(update.cmdNode.ToolTip.Get(), HasSubstr("endpoints.cfg"));
  update.cmdNode.Press();
  world.Run(1s);
  EXPECT_THAT(world.http.asked, IsEmpty());
}

TEST_F(NodeUpdateTest, ProgressFollowsTheBytes) {
  std::string list(kNewerList);
  while (list.size() < 10'000) list += "a broken line to pass over\r\n";
  Serve({.bytes = list});
  std::vector<int> seen;
  const auto watching = update.ProgressBar1.Observe([&](int percent) { seen.push_back(percent); });
  RunUpdate();
  EXPECT_GT(seen.size(), 8U);
  EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));
  EXPECT_EQ(seen.back(), 100);
  RunUpdate();
  EXPECT_EQ(seen[std::size_t(std::find(seen.begin(), seen.end(), 100) - seen.begin()) + 1], 0)
      << "the next one begins anew";
}

TEST_F(NodeUpdateTest, NoProgressIsShownOfWhatWasStoppedOrFailed) {
  const std::string list(1'000'000, 'x');
  Serve({.bytes = list});
  update.cmdNode.Press();
  world.RunUntil([this] { return update.ProgressBar1.Get() > 0; });
  update.cmdNode.Press();
  EXPECT_EQ(update.ProgressBar1.Get(), 0);
  Serve({.bytes = list, .brokenAfter = list.size() / 2});
  RunUpdate();
  EXPECT_EQ(update.ProgressBar1.Get(), 0);
}

TEST_F(NodeUpdateTest, ProgressOfTheLastTimeIsGoneWhenTheFormOpensAgain) {
  Serve({.bytes = kNewerList});
  RunUpdate();
  ASSERT_EQ(update.ProgressBar1.Get(), 100);
  form.cmdExit.Press();
  form.Show();
  EXPECT_EQ(update.ProgressBar1.Get(), 0);
}

TEST_F(NodeUpdateTest, WithoutALengthItCountsWhatHasCome) {
  Serve({.bytes = std::string(5'000, 'x'), .tellsLength = false});
  update.cmdNode.Press();
  world.Run(70ms);
  EXPECT_EQ(update.ProgressBar1.Get(), 0);
  EXPECT_EQ(Result(), "Received: 2 kB");
}

TEST_F(NodeUpdateTest, ItCanBeStoppedByTheSameButton) {
  Serve({.bytes = std::string(1'000'000, 'x')});
  update.cmdNode.Press();
  world.Run(200ms);
  EXPECT_EQ(update.cmdNode.Caption.Get(), "Stop");
  update.cmdNode.Press();
  EXPECT_EQ(update.cmdNode.Caption.Get(), "Update");
  EXPECT_EQ(world.http.open, 0);
  ExpectOldList();
  world.Run(1min);
  ExpectOldList();
}

TEST_F(NodeUpdateTest, ClosingTheFormStopsIt) {
  Serve({.bytes = kNewerList});
  update.cmdNode.Press();
  form.cmdExit.Press();
  world.Run(1min);
  EXPECT_EQ(world.http.open, 0);
  EXPECT_EQ(File(), kOwnList);
}

TEST_F(NodeUpdateTest, AfterAStopItCanBeTriedAgain) {
  Serve({.bytes = kNewerList});
  update.cmdNode.Press();
  update.cmdNode.Press();
  RunUpdate();
  EXPECT_EQ(Result(), "*** Update OK ***");
}

TEST_F(NodeUpdateTest, ADownloadThatStopsHalfWayLeavesTheOldList) {
  std::string list;
  for (int i = 0; i < 1000; ++i) list += kNewerList;
  for (const std::size_t bytes : {std::size_t{0}, std::size_t{29}, list.size() - 1}) {
    Serve({.bytes = list, .brokenAfter = bytes});
    RunUpdate();
    ExpectOldList();
    EXPECT_THAT(Result(), HasSubstr("broke off")) << bytes;
  }
  EXPECT_THAT(Log(), HasSubstr("cmdNode_Click"));
}

TEST_F(NodeUpdateTest, WithoutALengthAListEndsWithAWholeLine) {
  const std::string list(kNewerList);
  Serve({.bytes = list, .brokenAfter = list.size() - 9, .tellsLength = false});
  RunUpdate();
  ExpectOldList();
  EXPECT_THAT(Result(), HasSubstr("broke off"));
  Serve({.bytes = list, .tellsLength = false});
  RunUpdate();
  EXPECT_EQ(Result(), "*** Update OK ***");
}

TEST_F(NodeUpdateTest, EveryFaultLeavesTheOldListAndIsToldInWords) {
  using Fault = Http::Fault;
  for (const Fault fault :
       {Fault::BadAddress, Fault::HostNotFound, Fault::Refused, Fault::NotSecure,
        Fault::TooManyRedirects, Fault::BrokenOff, Fault::Other}) {
    Serve({.bytes = kNewerList, .fault = fault});
    RunUpdate();
    ExpectOldList();
    EXPECT_GT(Result().size(), 40U);
    EXPECT_EQ(update.lblResult.ForeColour.Get(), core::kRed);
  }
}

TEST_F(NodeUpdateTest, AServerThatRefusesOrFallsSilentLeavesTheOldList) {
  Serve({.bytes = kNewerList, .status = 404});
  RunUpdate();
  ExpectOldList();
  EXPECT_THAT(Log(), HasSubstr("cmdNode_Click - Error #404"));
  Serve({.bytes = kNewerList, .silent = true});
  RunUpdate();
  ExpectOldList();
  EXPECT_THAT(Result(), HasSubstr("silent"));
}

TEST_F(NodeUpdateTest, WhatIsNoListOfNodesLeavesTheOldOne) {
  for (const char* page : {"", "<html><body>Please log in</body></html>", "MOLVA-2,h,23,\r\n",
                           "VERSION,12,0\r\n", "a,b\r\nc,d\r\n"}) {
    Serve({.bytes = page});
    RunUpdate();
    ExpectOldList();
    EXPECT_THAT(Result(), HasSubstr("no list of nodes")) << page;
  }
}

TEST_F(NodeUpdateTest, AListThatIsTooLargeLeavesTheOldOne) {
  world.http.largestPiece = std::size_t{1} << 20;
  Serve({.bytes = std::string(session::NodeUpdate::kLongestList + 1, 'x')});
  RunUpdate();
  ExpectOldList();
  EXPECT_THAT(Result(), HasSubstr("too large"));
}

TEST_F(NodeUpdateTest, AFullDiskLeavesTheOldList) {
  Serve({.bytes = kNewerList});
  world.files.bytesFree = 5;
  RunUpdate();
  ExpectOldList();
  EXPECT_THAT(Result(), HasSubstr("Disk full"));
}

TEST_F(NodeUpdateTest, WhatAnUpdateCostsIsSaidWhereOneCanBeHad) {
  const auto isSaid = [this] {
    EXPECT_EQ(update.lblWarning[0].Visible.Get(), update.lblWarning[1].Visible.Get());
    EXPECT_EQ(update.Check1.Visible.Get(), update.lblWarning[0].Visible.Get());
    return update.lblWarning[0].Visible.Get();
  };
  update.Load();
  EXPECT_TRUE(isSaid());
  endpoints.nodeList.clear();
  update.Load();
  EXPECT_FALSE(isSaid());
}

TEST_F(NodeUpdateTest, TheTickIsKept) {
  update.Check1.UserSets(true);
  EXPECT_TRUE(settings.DontShowClusterUpdate);
  EXPECT_EQ(written, 1);
  settings.DontShowClusterUpdate = false;
  update.Load();
  EXPECT_FALSE(update.Check1.Value.Get());
}

}  // namespace
