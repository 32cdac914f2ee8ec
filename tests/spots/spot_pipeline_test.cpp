#include "spots/spot_pipeline.h"

#include <gmock/gmock.h>

#include "spot_desk.h"

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class SpotPipeline : public SpotDesk {
 protected:
  SpotPipeline() { table.EnterTab(); }
};

TEST_F(SpotPipeline, LinesThatBeginOtherwiseAreNotClaimed) {
  for (const std::string_view line : {"", "dx de DL1ABC:", " DX de DL1ABC:", "AR17^", "DX de"})
    EXPECT_FALSE(Receive(line)) << line;
}

TEST_F(SpotPipeline, PlainLineIsClaimedAndShown) {
  EXPECT_TRUE(Receive(Line{}));
  EXPECT_EQ(LastRow(),
            "DX de DL1ABC:    14025.0  3Y0J         CW up 2                        2116Z");
  EXPECT_EQ(pipeline.SpotsShown, 1u);
}

TEST_F(SpotPipeline, PlainLinesAreNotClaimedOnceExtendedOnesCome) {
  parts.lines.Zv11Seen = true;
  EXPECT_FALSE(Receive(Line{}));
  EXPECT_THAT(CallsInTable(), IsEmpty());
}

TEST_F(SpotPipeline, PlainLinesAreDroppedUntilTheFormatIsSettled) {
  node.Ar17Refused = false;
  EXPECT_TRUE(Receive(Line{}));
  EXPECT_TRUE(Receive(Line{}));
  EXPECT_THAT(CallsInTable(), IsEmpty());
  EXPECT_EQ(settlingLines, 1);
  node.Ar17Refused = true;
  EXPECT_TRUE(Receive(Line{}));
  EXPECT_THAT(CallsInTable(), ElementsAre("3Y0J"));
  EXPECT_EQ(settlingLines, 1);
}

TEST_F(SpotPipeline, FrequencyOfZeroDropsTheSpot) {
  Receive({.kHz = "0.0"});
  Receive({.kHz = "QRT"});
  EXPECT_EQ(pipeline.SpotsShown, 0u);
}

TEST_F(SpotPipeline, CallOfOneCharacterDropsTheSpot) {
  Receive({.call = "K"});
  EXPECT_EQ(pipeline.SpotsShown, 0u);
  Receive({.call = "K1"});
  EXPECT_EQ(pipeline.SpotsShown, 1u);
}

TEST_F(SpotPipeline, SpotterOfTwoCharactersDropsTheSpot) {
  Receive({.spotter = "K1"});
  EXPECT_EQ(pipeline.SpotsShown, 0u);
  Receive({.spotter = "K1A"});
  EXPECT_EQ(pipeline.SpotsShown, 1u);
}

TEST_F(SpotPipeline, FrequencyOutsideAllBandsIsNotShownAndNotCounted) {
  for (const char* kHz : {"1799.9", "2000.1", "14350.1", "129900.0", "-14025.0"})
    Receive({.kHz = kHz});
  EXPECT_EQ(pipeline.SpotsShown, 0u);
  EXPECT_THAT(CallsInTable(), IsEmpty());
  EXPECT_EQ(table.rail.lblTotal[spots::kAllBands].Caption.Get(), "0");
}

TEST_F(SpotPipeline, EscapesInTheCommentAreDecoded) {
  Receive({.comment = "%22big%22%2C 59%25"});
  EXPECT_EQ(LastRow().substr(39, 12), "\"big\", 59%  ");
}

TEST_F(SpotPipeline, EscapeOfABlankOrAControlCharacterEndsTheDecoding) {
  for (const char* escape : {"%20", "%07", "%00", "%zz", "%4"}) {
    Receive({.comment = std::string("%41 ") + escape + " %42"});
    EXPECT_EQ(LastRow().substr(39, 10), (std::string("A ") + escape + " %42   ").substr(0, 10));
  }
}

TEST_F(SpotPipeline, MissingDateIsInferredFromTheTime) {
  world.clock.Set(std::chrono::sys_days{2026y / 11 / 21} + 19min);
  Receive(Line{});
  parts.spot.SpotDate.clear();
  parts.spot.SpotHHMM = 2341;
  pipeline.DisplayDx();
  EXPECT_EQ(parts.spot.SpotDate, "20-Nov-2026");
  parts.spot.SpotDate.clear();
  parts.spot.SpotHHMM = 2340;
  pipeline.DisplayDx();
  EXPECT_EQ(parts.spot.SpotDate, "21-Nov-2026");
  parts.spot.SpotDate = "01-Jan-2020";
  pipeline.DisplayDx();
  EXPECT_EQ(parts.spot.SpotDate, "01-Jan-2020");
}

TEST_F(SpotPipeline, AnnotationsAreEmptyBehindEveryLine) {
  Receive({.comment = "CW up 2                     54", .tail = " JN58"});
  EXPECT_EQ(parts.spot.DxCty, "");
  EXPECT_EQ(parts.spot.OrigCty, "");
  EXPECT_EQ(parts.spot.Comment, "CW up 2");
}

TEST_F(SpotPipeline, SpotsOfSkimmersAndOthersComeInTheOrderOfTheirLines) {
  Receive({.call = "PY2AA"});
  Receive({.spotter = "DL1ABC-#", .call = "ZS1AA"});
  Receive({.kHz = "7012.3", .call = "VK9XX"});
  EXPECT_THAT(CallsInTable(), ElementsAre("PY2AA", "ZS1AA", "VK9XX"));
  const auto& rows = table.RtbDx.Rows();
  EXPECT_EQ(rows[0].Band(), 6);
  EXPECT_EQ(rows[2].Band(), 4);
}

}  // namespace
