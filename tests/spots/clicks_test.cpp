#include "spots/clicks.h"

#include <gtest/gtest.h>

#include "row_maker.h"

namespace spots {
namespace {

using Act = Click::Act;

constexpr int kOnCall = 27;
constexpr int kOnSpotter = 8;
constexpr int kElsewhere = 45;

TEST(Clicks, CallColumnGivesTheCallAsDx) {
  for (const int column : {27, 38}) {
    const Click click = ClickOn(RowOf(UsualSpot()), column, {});
    EXPECT_EQ(click.act, Act::CallBook);
    EXPECT_EQ(click.call, "3Y0J");
    EXPECT_EQ(click.dxCall, "3Y0J");
    EXPECT_EQ(click.spotter, "");
  }
  for (const int column : {26, 39})
    EXPECT_EQ(ClickOn(RowOf(UsualSpot()), column, {}).act, Act::None) << column;
}

TEST(Clicks, ClassicSpotterIsInColumnsFiveToThirteen) {
  for (const int column : {5, 13}) {
    const Click click = ClickOn(RowOf(UsualSpot()), column, {});
    EXPECT_EQ(click.spotter, "DL1ABC");
    EXPECT_EQ(click.dxCall, "");
  }
  for (const int column : {-1, 0, 4, 14})
    EXPECT_EQ(ClickOn(RowOf(UsualSpot()), column, {}).act, Act::None) << column;
}

TEST(Clicks, ExpandedSpotterIsInColumnsOneToEight) {
  const TableRow row = RowOf(UsualSpot(), Expanded({}));
  EXPECT_EQ(ClickOn(row, 1, {}).spotter, "DL1ABC");
  EXPECT_EQ(ClickOn(row, 8, {}).spotter, "DL1ABC");
  EXPECT_EQ(ClickOn(row, 9, {}).act, Act::None);
  EXPECT_EQ(ClickOn(row, 31, {}).dxCall, "3Y0J");
}

TEST(Clicks, CallIsCutAtTheFirstBlankAndDash) {
  Spot spot = UsualSpot();
  spot.Spotter = "DL1ABC-12-#";
  EXPECT_EQ(ClickOn(RowOf(spot), kOnSpotter, {}).call, "DL1ABC");
  spot.Spotter = "-#-";
  const Click none = ClickOn(RowOf(spot), kOnSpotter, {.ctrl = true});
  EXPECT_EQ(none.act, Act::None);
  EXPECT_EQ(none.call, "");
}

TEST(Clicks, TakeTheWholeCallOfACutRow) {
  Spot spot = UsualSpot();
  spot.DxCall = "K6NNN/QRPP/MM";
  spot.Spotter = "VP2E/DF4UEX";
  const TableRow row = RowOf(spot, Expanded({}));
  EXPECT_EQ(ClickOn(row, 31, {}).call, "K6NNN/QRPP/MM");
  EXPECT_EQ(ClickOn(row, 1, {}).call, "VP2E/DF4UEX");
}

TEST(Clicks, KeysDecideWhatIsDone) {
  const TableRow row = RowOf(UsualSpot());
  EXPECT_EQ(ClickOn(row, kOnCall, {.toLoggers = true}).act, Act::Loggers);
  EXPECT_EQ(ClickOn(row, kOnCall, {.toLoggers = true}).hertz, "00014025000");
  EXPECT_EQ(ClickOn(row, kOnCall, {.ctrl = true, .toLoggers = true}).act, Act::Node);
  EXPECT_EQ(ClickOn(row, kOnCall, {.ctrl = true}).text, "sh/sun 3Y0J");
  EXPECT_EQ(ClickOn(row, kOnSpotter, {.ctrl = true}).text, "sh/sun DL1ABC");
  EXPECT_EQ(ClickOn(row, kOnCall, {.alt = true}).act, Act::Clipboard);
  EXPECT_EQ(ClickOn(row, kOnCall, {.ctrl = true, .alt = true}).act, Act::CallBook);
  EXPECT_EQ(ClickOn(row, kOnCall, {.ctrl = true, .alt = true, .toLoggers = true}).act,
            Act::CallBook);
}

TEST(Clicks, ClipboardGetsTheCallInEveryCase) {
  for (const ClickKeys keys : {ClickKeys{}, {.ctrl = true}, {.alt = true}, {.toLoggers = true}})
    EXPECT_EQ(ClickOn(RowOf(UsualSpot()), kOnCall, keys).call, "3Y0J");
}

TEST(Clicks, TuningPointerSendsTheFrequencyFromColumn14OnAndNothingElse) {
  Spot spot = UsualSpot();
  spot.Freq = 14025.3;
  const Click click = ClickOn(RowOf(spot), kElsewhere, {.ctrl = true, .tuning = true});
  EXPECT_EQ(click.act, Act::Radio);
  EXPECT_EQ(click.text, "FA00014025300;");
  EXPECT_EQ(click.call, "");
  EXPECT_EQ(ClickOn(RowOf(spot), 14, {.tuning = true}).act, Act::Radio);
  EXPECT_EQ(ClickOn(RowOf(spot), 13, {.tuning = true}).act, Act::CallBook);
  EXPECT_EQ(ClickOn(RowOf(spot), kOnCall, {.tuning = true}).act, Act::CallBook);
}

TEST(Clicks, FrequencyThatTheDigitsDontHoldIsNotSent) {
  Spot spot = UsualSpot();
  for (const double kHz : {1e9, 1e300, -1.0}) {
    spot.Freq = kHz;
    EXPECT_EQ(ClickOn(RowOf(spot), kElsewhere, {.tuning = true}).act, Act::None);
  }
}

TEST(Clicks, RowWithoutASpotDoesNothing) {
  const TableRow stars(Stars(79), TableRow::Kind::Stars, 0);
  const TableRow title("Last Hour", TableRow::Kind::Title, 0);
  for (int column = 0; column < 90; ++column) {
    EXPECT_EQ(ClickOn(stars, column, {.tuning = true}).act, Act::None);
    EXPECT_EQ(ClickOn(title, column, {.tuning = true}).act, Act::None);
  }
}

}  // namespace
}  // namespace spots
