#include "session/dialect.h"

#include <gmock/gmock.h>

#include "session/session_state.h"

using session::DialectOf;
using session::NodeKind;
using session::RecognisedIn;

namespace {

TEST(Recognition, SoftwareIsKnownByItsTextInTheLine) {
  EXPECT_EQ(RecognisedIn("Welcome to N0NODE, a Zelva Cluster"), NodeKind::Zelva);
  EXPECT_EQ(RecognisedIn("K1TST-2 de N0NODE 2101Z ZLV >"), NodeKind::Zelva);
  EXPECT_EQ(RecognisedIn("Welcome to the N0NODE AR-Cluster node"), NodeKind::ArCluster);
  EXPECT_EQ(RecognisedIn("K1TST-2 de N0NODE 2101Z arc >"), NodeKind::ArCluster);
  EXPECT_EQ(RecognisedIn("running DXSpider V1.57 build 441"), NodeKind::Spider);
  EXPECT_EQ(RecognisedIn("the software is DxNet."), NodeKind::DxNet);
  EXPECT_EQ(RecognisedIn("N0NODE running CLX 5.20"), NodeKind::Clx);
  EXPECT_EQ(RecognisedIn("K1TST-2 de N0NODE 2101Z clx >"), NodeKind::Clx);
  EXPECT_EQ(RecognisedIn("N0NODE on WinCluster"), NodeKind::WinCluster);
  EXPECT_EQ(RecognisedIn("Welcome to the Skimmer Server"), NodeKind::Skimmer);
  EXPECT_EQ(RecognisedIn("here is CW Skimmer at N0NODE"), NodeKind::Skimmer);
}

TEST(Recognition, CaseCountsForTheFirstFourTextsAlone) {
  EXPECT_EQ(RecognisedIn("zelva cluster"), NodeKind::Unknown);
  EXPECT_EQ(RecognisedIn("zlv >"), NodeKind::Unknown);
  EXPECT_EQ(RecognisedIn("ar-cluster"), NodeKind::Unknown);
  EXPECT_EQ(RecognisedIn("N0NODE ARC >"), NodeKind::Unknown);
  EXPECT_EQ(RecognisedIn("dxspider"), NodeKind::Spider);
  EXPECT_EQ(RecognisedIn("DXNET."), NodeKind::DxNet);
  EXPECT_EQ(RecognisedIn("wincluster"), NodeKind::WinCluster);
  EXPECT_EQ(RecognisedIn("SKIMMER SERVER"), NodeKind::Skimmer);
  EXPECT_EQ(RecognisedIn("cw skimmer"), NodeKind::Skimmer);
}

TEST(Recognition, TextsThatComeCloseAreNone) {
  for (const char* line : {"", "N0NODEarc >", "DxNet", "CLX at the line's beginning", "XCLX",
                           "Skimmer", "Win Cluster", "DX Spider", "AR Cluster", "ZLV>"})
    EXPECT_EQ(RecognisedIn(line), NodeKind::Unknown) << line;
}

TEST(Recognition, TableDecidesWhichOfTwoCountsAndNotTheirPlaceInTheLine) {
  EXPECT_EQ(RecognisedIn("a gateway from DXSpider to AR-Cluster"), NodeKind::ArCluster);
  EXPECT_EQ(RecognisedIn("AR-Cluster spoken by a Zelva Cluster"), NodeKind::Zelva);
  EXPECT_EQ(RecognisedIn("CW Skimmer on a WinCluster and CLX"), NodeKind::Clx);
  EXPECT_EQ(RecognisedIn("like CLX, but DxNet."), NodeKind::DxNet);
}

struct OfKind {
  NodeKind kind;
  const char* titleWord;
  const char* prompt;
  const char* showDx;
};

constexpr OfKind kKinds[] = {
    {NodeKind::Unknown, "", "arc >", "sh/dx"},
    {NodeKind::ArCluster, "ARC", "arc >", "sh/dx"},
    {NodeKind::Zelva, "Zelva Cluster", "ZLV >", "sh/mydx"},
    {NodeKind::Spider, "Spider", "  dxspider >", "sh/dx"},
    {NodeKind::DxNet, "DxNet", "DxNet>", "sh/dx"},
    {NodeKind::Clx, "CLX", " clx >", "sh/dx"},
    {NodeKind::WinCluster, "WinCluster", "WinCluster>", "sh/dx"},
    {NodeKind::Skimmer, "", " >", "sh/dx"},
};

TEST(Dialect, EachKindHasItsTitleItsPromptAndItsCommand) {
  for (const OfKind& each : kKinds) {
    session::SessionState state;
    state.Recognise(each.kind);
    EXPECT_EQ(state.NodePrompt, each.prompt);
    EXPECT_EQ(state.ShowDxCommand, each.showDx) << each.prompt;
    EXPECT_EQ(DialectOf(each.kind).titleWord, each.titleWord) << each.prompt;
  }
}

TEST(Dialect, DirectoryIsThatOfArClusterButOnDxNet) {
  using Commands = std::array<std::string_view, 5>;
  const Commands usual = {"Dir", "Dir/500", "Dir/Bulletin", "Dir/New", "Dir/Own"};
  const Commands dxNet = {"LL 10", "LL 40", "LL 500", "LN", "LM"};
  EXPECT_EQ(DialectOf(NodeKind::ArCluster).directory, usual);
  EXPECT_EQ(DialectOf(NodeKind::Zelva).directory, usual);
  EXPECT_EQ(DialectOf(NodeKind::DxNet).directory, dxNet);
}

TEST(Dialect, LineIsAPromptIfItEndsExactlyInTheWordOfItsKind) {
  for (const OfKind& each : kKinds) {
    session::SessionState state;
    state.Recognise(each.kind);
    const std::string prompt = each.prompt;
    EXPECT_TRUE(state.RcvdPrompt("K1TST-2 de N0NODE 2101Z" + prompt)) << prompt;
    EXPECT_TRUE(state.RcvdPrompt(prompt)) << prompt;
    EXPECT_FALSE(state.RcvdPrompt("K1TST-2 de N0NODE 2101Z" + prompt + " hello")) << prompt;
    EXPECT_FALSE(state.RcvdPrompt("")) << prompt;
    EXPECT_FALSE(state.RcvdPrompt(prompt.substr(1))) << prompt;
  }
}

TEST(Dialect, CaseOfThePromptCounts) {
  session::SessionState state;
  state.Recognise(NodeKind::ArCluster);
  EXPECT_FALSE(state.RcvdPrompt("N0NODE ARC >"));
  state.Recognise(NodeKind::WinCluster);
  EXPECT_FALSE(state.RcvdPrompt("N0NODE wincluster>"));
}

TEST(Dialect, PromptThatADxSpiderHasBeforeItIsToldIsNotTheOneOfTheProgram) {
  session::SessionState state;
  state.Recognise(NodeKind::Spider);
  EXPECT_FALSE(state.RcvdPrompt("K1TST-2 de N0NODE 20-Nov-2026 2101Z dxspider >"));
  EXPECT_TRUE(state.RcvdPrompt("K1TST-2 de N0NODE 20-Nov-2026 2101Z 2.4315  dxspider >"));
}

TEST(Dialect, DxNetAloneHasTwoMorePrompts) {
  for (const OfKind& each : kKinds) {
    session::SessionState state;
    state.Recognise(each.kind);
    const bool dxNet = each.kind == NodeKind::DxNet;
    EXPECT_EQ(state.RcvdPrompt("to=>"), dxNet) << each.prompt;
    EXPECT_EQ(state.RcvdPrompt("subject >"), dxNet || each.kind == NodeKind::Skimmer)
        << each.prompt;
  }
}

TEST(Dialect, PromptThatAReportShowsIsNone) {
  session::SessionState state;
  state.Recognise(NodeKind::Spider);
  EXPECT_FALSE(state.RcvdPrompt("Required Prompt: %C de %M %D %T 2.4315  dxspider >"));
  EXPECT_FALSE(state.RcvdPrompt("    Required Prompt: %C  dxspider >"));
}

}  // namespace
