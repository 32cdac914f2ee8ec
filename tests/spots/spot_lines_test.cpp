#include "spots/spot_lines.h"

#include <gmock/gmock.h>

#include <random>
#include <vector>

#include "../session/memory_meter.h"
#include "platform/sim/world.h"
#include "spots/dx_line.h"

namespace spots {
namespace {

using namespace std::chrono_literals;
using session::NodeKind;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view kAr17 =
    "AR17^^14025.0^3Y0J^20-Nov-2026^2116Z^CW up 2^DL1ABC^W1A^3Y/B^^^38^67^^DL^BY^^";
constexpr std::string_view kZv11 =
    "ZV11^14025.0^3Y0J^20-Nov-2026^2116Z^CW up 2^DL1ABC^^^W1A^67^38^28^14^^BY^3Y/B^DL^JD15AA^JN58";
constexpr std::string_view kPlainRow =
    " 14025.0  3Y0J        20-Nov-2026 2116Z CW up 2                     <DL1ABC>";
constexpr std::string_view kPrompt = "arc >";

class SpotLinesTest : public testing::Test {
 protected:
  bool Receive(std::string_view line) {
    return lines.ar17(line) || lines.ZV11CarrotCounter(line) || lines.CollectShDxLine(line);
  }
  bool ClockIsOut() const { return lines.clockCheck.HourOut.Get(); }
  const core::Label& Ar17Errors() const { return lines.errors.lblAr17Errors; }
  const core::Label& Zv11Errors() const { return lines.errors.lblZv11Errors; }

  platform::sim::World world;
  core::Calendar calendar{world.clock};
  NodeFacts node{.kind = NodeKind::ArCluster, .Ar17Active = true, .SessionUp = true};
  WordFacts words;
  bool probing = false;
  int emptyLines = 0;
  std::vector<std::string> linked;
  std::vector<std::string> grids;
  std::vector<Spot> shown;
  int displayed = 0;
  bool records = true;  // what was linked and shown is kept
  Spot spot;
  bool keepsGrids = true;
  SpotLines lines{world.scheduler,
                  calendar,
                  spot,
                  {
                      .nodeFacts = [this] { return node; },
                      .wordFacts = [this]() -> const WordFacts& { return words; },
                      .ar17Probing = [this] { return probing; },
                      .sendEmptyLine = [this] { ++emptyLines; },
                      .nodeCall = [] { return std::string_view("K1TST"); },
                      .txtDDEsend =
                          [this](std::string_view text) {
                            if (records) linked.emplace_back(text);
                          },
                      .keepsGrids = [this] { return keepsGrids; },
                      .RecordGrid =
                          [this](std::string_view grid, std::string_view call) {
                            grids.push_back(std::string(grid) + " " + std::string(call));
                          },
                      .DisplayDx =
                          [this] {
                            ++displayed;
                            if (records) shown.push_back(spot);
                          },
                      .RcvdPrompt = [](std::string_view line) { return line.ends_with(kPrompt); },
                      .directoryRuns = [] { return false; },
                      .latency = [] { return 0ms; },
                      .sort = [] {},
                  }};
};

TEST_F(SpotLinesTest, OtherLinesAreNotClaimed) {
  for (const std::string_view line :
       {"", "AR17", "ZV11", "ar17^", "zv11^", " AR17^", "AR18^", "DX de DL1ABC:"})
    EXPECT_FALSE(Receive(line)) << line;
  EXPECT_FALSE(lines.Zv11Seen);
}

TEST_F(SpotLinesTest, WrongFieldCountsAreClaimedCountedAndNotShown) {
  EXPECT_FALSE(Ar17Errors().Visible.Get());
  EXPECT_TRUE(Receive("AR17^"));
  EXPECT_TRUE(Receive(std::string(kAr17) + "^"));
  EXPECT_EQ(Ar17Errors().Caption.Get(), "AR17 Errors = 2");
  EXPECT_TRUE(Ar17Errors().Visible.Get());
  EXPECT_FALSE(Zv11Errors().Visible.Get());
  EXPECT_THAT(shown, IsEmpty());
}

TEST_F(SpotLinesTest, LastWrongExtendedLineIsTheToolTip) {
  lines.list.ShDxDone = true;
  EXPECT_TRUE(Receive("ZV11^1"));
  EXPECT_TRUE(Receive("ZV11^2"));
  EXPECT_EQ(Zv11Errors().Caption.Get(), "ZV11 Errors = 2");
  EXPECT_EQ(Zv11Errors().ToolTip.Get(), "ZV11^2");
  EXPECT_TRUE(Zv11Errors().Visible.Get());
  EXPECT_FALSE(Ar17Errors().Visible.Get());
  EXPECT_THAT(shown, IsEmpty());
}

TEST_F(SpotLinesTest, ErrorsAreThoseOfTheSession) {
  Receive("AR17^");
  lines.Disconnected();
  EXPECT_FALSE(Ar17Errors().Visible.Get());
  Receive("AR17^");
  EXPECT_EQ(Ar17Errors().Caption.Get(), "AR17 Errors = 1");
}

TEST_F(SpotLinesTest, Ar17SpotIsShownAndItsAnnotationsEmptied) {
  EXPECT_TRUE(Receive(kAr17));
  ASSERT_EQ(shown.size(), 1u);
  EXPECT_EQ(shown[0].DxCall, "3Y0J");
  EXPECT_EQ(shown[0].DxCty, "3Y/B");
  EXPECT_EQ(spot.DxCty, "");
}

TEST_F(SpotLinesTest, Ar17LineBeforeTheFormatIsSettledAsksTheNodeOn) {
  node.Ar17Active = false;
  EXPECT_TRUE(Receive(kAr17));
  EXPECT_EQ(emptyLines, 1);
  EXPECT_EQ(shown.size(), 1u);
  world.Run(1s);
  probing = true;
  EXPECT_TRUE(Receive(kAr17));
  EXPECT_EQ(emptyLines, 1);
  probing = false;
  node.Ar17Refused = true;
  EXPECT_TRUE(Receive(kAr17));
  EXPECT_EQ(emptyLines, 1);
}

TEST_F(SpotLinesTest, Ar17LineGoesToTheOtherCopyWithTheNode) {
  Receive(kAr17);
  Receive("AR17^x");
  EXPECT_THAT(linked, ElementsAre(std::string(kAr17) + " (K1TST)", "AR17^x (K1TST)"));
}

TEST_F(SpotLinesTest, ClockIsCheckedByAr17Spots) {
  EXPECT_TRUE(Receive(kAr17));
  EXPECT_FALSE(ClockIsOut());
  world.Run(76min);
  EXPECT_TRUE(Receive(kAr17));
  EXPECT_TRUE(ClockIsOut());
  lines.Disconnected();
  EXPECT_FALSE(ClockIsOut());
}

TEST_F(SpotLinesTest, Zv11SpotIsShownOnceTheListIsDone) {
  EXPECT_TRUE(Receive(kZv11));
  EXPECT_THAT(shown, IsEmpty());
  lines.list.ShDxDone = true;
  EXPECT_TRUE(Receive(kZv11));
  ASSERT_EQ(shown.size(), 1u);
  EXPECT_EQ(shown[0].OrigGrid, "JN58");
  EXPECT_EQ(shown[0].RawLine, kZv11);
  EXPECT_EQ(spot.OrigGrid, "");
}

TEST_F(SpotLinesTest, AnyZv11LineMarksTheSession) {
  EXPECT_TRUE(Receive("ZV11^"));
  EXPECT_TRUE(lines.Zv11Seen);
  lines.Disconnected();
  EXPECT_FALSE(lines.Zv11Seen);
}

TEST_F(SpotLinesTest, OnlyFreshZv11SpotsOfAnOwnNodeAreLinkedAndCheckTheClock) {
  lines.list.ShDxDone = true;
  world.Run(76min);
  Receive(std::string(kZv11) + "^");
  EXPECT_THAT(linked, IsEmpty());
  EXPECT_FALSE(ClockIsOut());
  node.kind = NodeKind::Zelva;
  Receive(kZv11);
  EXPECT_THAT(linked, IsEmpty());
  EXPECT_FALSE(ClockIsOut());
  Receive(std::string(kZv11) + "^");
  EXPECT_THAT(linked, ElementsAre(std::string(kZv11) + "^ (K1TST)"));
  EXPECT_TRUE(ClockIsOut());
  EXPECT_EQ(shown.size(), 3u);
}

TEST_F(SpotLinesTest, RowsOfAListSayNothingOfTheClock) {
  node.kind = NodeKind::Zelva;
  world.Run(76min);
  Receive(std::string(kZv11) + "^");
  Receive(kPrompt);
  EXPECT_EQ(shown.size(), 1u);
  EXPECT_FALSE(ClockIsOut());
}

TEST_F(SpotLinesTest, GridsAreRecordedOnDxSpider) {
  lines.list.ShDxDone = true;
  Receive(kZv11);
  EXPECT_THAT(grids, IsEmpty());
  node.kind = NodeKind::Spider;
  Receive(kZv11);
  EXPECT_THAT(grids, ElementsAre("JN58 DL1ABC", "JD15 3Y0J"));
}

TEST_F(SpotLinesTest, PlainListIsShownFromItsEnd) {
  lines.list.AskedForMissed();
  std::string second(kPlainRow);
  second.replace(10, 4, "ZS1A");
  EXPECT_TRUE(Receive(kPlainRow));
  EXPECT_TRUE(Receive(second));
  spot.ExpandedLine = true;
  spot.SpotterIp = spot.Node = "old";
  Receive(kPrompt);
  ASSERT_EQ(shown.size(), 2u);
  EXPECT_EQ(shown[0].DxCall, "ZS1A");
  EXPECT_EQ(shown[1].DxCall, "3Y0J");
  EXPECT_EQ(shown[0].SpotterIp + shown[0].Node, "");
  EXPECT_FALSE(shown[0].ExpandedLine);
}

TEST_F(SpotLinesTest, RowOfAListNeedsMoreThan74Characters) {
  EXPECT_TRUE(Receive(std::string(kPlainRow.substr(0, 66)) + "<DL1ABC>"));
  Receive(kPrompt);
  EXPECT_THAT(shown, IsEmpty());
  lines.list.AskedForMissed();
  EXPECT_TRUE(Receive(std::string(kPlainRow.substr(0, 67)) + "<DL1ABC>"));
  Receive(kPrompt);
  EXPECT_EQ(shown.size(), 1u);
}

TEST_F(SpotLinesTest, ExtendedListIsShownFromItsEndButOnAnOwnNode) {
  std::string second(kZv11);
  second.replace(13, 4, "ZS1A");
  for (const bool isOwn : {false, true}) {
    node.kind = isOwn ? NodeKind::Zelva : NodeKind::ArCluster;
    lines.list.AskedForMissed();
    shown.clear();
    Receive(kZv11);
    Receive(second);
    Receive(kPrompt);
    ASSERT_EQ(shown.size(), 2u);
    EXPECT_EQ(shown[0].DxCall, isOwn ? "3Y0J" : "ZS1A");
  }
}

TEST_F(SpotLinesTest, PlainRowsAmongExtendedOnesAreErrors) {
  Receive(kZv11);
  Receive(kPlainRow);
  Receive(kPrompt);
  EXPECT_EQ(shown.size(), 1u);
  EXPECT_EQ(Zv11Errors().Caption.Get(), "ZV11 Errors = 1");
}

TEST_F(SpotLinesTest, PlainRowsOfAnOwnNodeAreErrors) {
  node.kind = NodeKind::Zelva;
  Receive(kPlainRow);
  Receive(kPrompt);
  EXPECT_THAT(shown, IsEmpty());
  EXPECT_EQ(Zv11Errors().Caption.Get(), "ZV11 Errors = 1");
}

TEST_F(SpotLinesTest, WordsOfAListGoByTheFacts) {
  words = {.CountriesLoaded = true, .isPrefix = [](std::string_view word) { return word == "3Y"; }};
  std::string row(kPlainRow);
  row.replace(65, 2, "3Y");
  Receive(row);
  Receive(kPrompt);
  ASSERT_EQ(shown.size(), 1u);
  EXPECT_EQ(shown[0].DxCty, "3Y");
}

// Whatever comes, nothing breaks and what is shown has been read from a whole line.
class HostileSpotLines : public SpotLinesTest {
 protected:
  HostileSpotLines() {
    node.kind = NodeKind::Zelva;
    lines.list.ShDxDone = true;
  }
  void Throw(const std::string& line) {
    Receive(line);
    spots::ParseDxLine(line, {.kind = NodeKind::Spider}, words, MomentNow(calendar), spot);
    lines.list.AskedForSpots();
    Receive(line);
    Receive(kPrompt);
    world.Run(1s);
    EXPECT_TRUE(lines.list.ShDxDone);
    shown.clear();
    linked.clear();
    grids.clear();
  }

  const std::vector<std::string> valid{
      std::string(kAr17), std::string(kZv11), std::string(kPlainRow),
      "DX de DL1ABC:    14025.0  3Y0J         CW up 2                     27 2116Z JN58"};
};

TEST_F(HostileSpotLines, CutAtAnyByteAreHarmless) {
  for (const std::string& line : valid)
    for (std::size_t length = 0; length <= line.size(); ++length) Throw(line.substr(0, length));
}

TEST_F(HostileSpotLines, AnyChangesAreHarmless) {
  for (unsigned seed = 1; seed <= 5'000; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 chance(seed);
    const auto upTo = [&](std::size_t most) {
      return std::uniform_int_distribution<std::size_t>{0, most}(chance);
    };
    std::string line = valid[upTo(valid.size() - 1)];
    for (std::size_t changes = upTo(6); changes > 0; --changes) {
      const std::size_t at = upTo(line.size());
      if (upTo(1) == 0)
        line.erase(at, upTo(8));
      else
        line.insert(at, upTo(8), "^ <-Z#2\xFF"[upTo(7)]);
    }
    Throw(line);
  }
}

TEST_F(SpotLinesTest, LinesOfAUsualLengthAllocateNothing) {
  lines.list.ShDxDone = true;
  records = false;
  const std::string plain =
      "DX de DL1ABC:    14025.0  3Y0J         a comment that is not short 27 2116Z JN58";
  const auto receive = [&] {
    lines.ar17(kAr17);
    lines.ZV11CarrotCounter(kZv11);
    ParseDxLine(plain, {.kind = NodeKind::Spider}, words, MomentNow(calendar), spot);
  };
  receive();
  const std::size_t before = MemoryMeter::Allocated();
  for (int i = 0; i < 1000; ++i) receive();
  EXPECT_EQ(MemoryMeter::Allocated(), before);
  EXPECT_EQ(displayed, 2002);
}

}  // namespace
}  // namespace spots
