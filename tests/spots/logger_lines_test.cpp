#include "spots/logger_lines.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "row_maker.h"

namespace spots {
namespace {

std::string Long(const Spot& spot, const LoggerLineOptions& options = {}) {
  std::string line = "before";
  LoggerLongLine(spot, options, line);
  return line;
}
std::string Short(const Spot& spot, const LoggerLineOptions& options = {}) {
  std::string line = "before";
  LoggerShortLine(spot, options, line);
  return line;
}
Spot Member() {
  Spot spot = UsualSpot();
  spot.LotwMark = "+";
  spot.DxState = "NY";
  return spot;
}
constexpr LoggerLineOptions kState{.dxState = true};
constexpr LoggerLineOptions kMembers{.membership = true};
constexpr LoggerLineOptions kQth{.spotterQth = true};

TEST(LoggerLongLine, IsThatOfANode) {
  EXPECT_EQ(Long(UsualSpot()),
            "DX de DL1ABC:    14025.0  3Y0J         CW up 2                        2116Z");
}

TEST(LoggerLongLine, CommentIsCutToFortyTwoLessTheCall) {
  Spot spot = UsualSpot();
  spot.Comment = std::string(50, 'c');
  EXPECT_EQ(core::Mid(Long(spot), 40), std::string(30, 'c') + " 2116Z");
  spot.DxCall = "K6NNN/QRPP/MM";
  EXPECT_EQ(core::Mid(Long(spot), 41), std::string(29, 'c') + " 2116Z");
}

TEST(LoggerLongLine, CallThatTakesAllLeavesNoComment) {
  Spot spot = UsualSpot();
  spot.DxCall = std::string(60, 'K');
  EXPECT_EQ(core::Mid(Long(spot), 27), spot.DxCall + "  2116Z");
}

TEST(LoggerLongLine, StateStandsBehindTheComment) {
  EXPECT_EQ(core::Mid(Long(Member(), kState), 40, 31), "CW up 2 NY                     ");
  Spot full = Member();
  full.Comment = std::string(30, 'c');
  EXPECT_EQ(core::Mid(Long(full, kState), 40), full.Comment + " 2116Z");
}

TEST(LoggerLongLine, MarkStandsAt69IfThatIsBlank) {
  EXPECT_EQ(core::Mid(Long(Member(), kMembers), 69), "+ 2116Z");
  EXPECT_EQ(core::Mid(Long(Member()), 69), "  2116Z");
  Spot full = Member();
  full.Comment = std::string(30, 'c');
  EXPECT_EQ(core::Mid(Long(full, kMembers), 69), "c 2116Z");
}

TEST(LoggerLongLine, SpottersStateElseCountryStandsBehindTheLine) {
  Spot spot = UsualSpot();
  EXPECT_TRUE(Long(spot, kQth).ends_with("2116Z"));
  spot.OrigCty = "DL";
  EXPECT_TRUE(Long(spot, kQth).ends_with("2116Z DL"));
  spot.OrigState = "MI";
  EXPECT_TRUE(Long(spot, kQth).ends_with("2116Z MI"));
  EXPECT_TRUE(Long(spot).ends_with("2116Z"));
}

TEST(LoggerShortLine, IsThatOfAListAndSeventyEightWide) {
  EXPECT_EQ(Short(UsualSpot()),
            " 14025.0  3Y0J        20-Nov-2026 2116Z  CW up 2                      <DL1ABC>");
  EXPECT_EQ(Short(UsualSpot()).size(), 78u);
}

TEST(LoggerShortLine, LongFrequencyAndCallShiftWhatFollows) {
  Spot spot = UsualSpot();
  spot.Freq = 10489500.1;
  EXPECT_TRUE(Short(spot).starts_with("10489500.1  3Y0J      20-Nov-2026"));
  spot.DxCall = "K6NNN/QRPP/MM";
  EXPECT_TRUE(Short(spot).starts_with("10489500.1  K6NNN/QRPP/MM  20-Nov-2026"));
  EXPECT_EQ(Short(spot).size(), 78u);
}

TEST(LoggerShortLine, DateOfAOneDigitDayKeepsItsColumns) {
  Spot spot = UsualSpot();
  spot.SpotDate = "1-Mar-2026";
  EXPECT_EQ(core::Mid(Short(spot), 22, 19), "  1-Mar-2026 2116Z ");
}

TEST(LoggerShortLine, LongCommentReachesTheSpotterAndNoFurther) {
  Spot spot = UsualSpot();
  spot.Comment = std::string(60, 'c');
  EXPECT_EQ(core::Mid(Short(spot), 42), std::string(29, 'c') + "<DL1ABC>");
}

TEST(LoggerShortLine, MarkAndStateStandBeforeTheSpotterIfAllThreeAreBlank) {
  EXPECT_EQ(core::Right(Short(Member(), kState), 12), " +NY<DL1ABC>");
  EXPECT_EQ(core::Right(Short(Member()), 12), "   +<DL1ABC>");
  Spot two = Member();
  two.Comment = std::string(27, 'c');
  EXPECT_EQ(core::Right(Short(two, kState), 12), "cc +<DL1ABC>");
  Spot full = Member();
  full.Comment = std::string(29, 'c');
  EXPECT_EQ(core::Right(Short(full, kState), 12), "cccc<DL1ABC>");
}

TEST(LoggerShortLine, LongSpotterStandsWhole) {
  Spot spot = Member();
  spot.Spotter = std::string(60, 'S');
  EXPECT_TRUE(Short(spot, kState).ends_with("<" + spot.Spotter + ">"));
}

}  // namespace
}  // namespace spots
