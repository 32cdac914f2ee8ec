#include "spots/log_line.h"

#include <gtest/gtest.h>

namespace spots {
namespace {

Spot FullSpot() {
  Spot spot;
  spot.SpotTime = "2116";
  spot.SpotHHMM = 2116;
  spot.Freq = 14025.5;
  spot.DxCall = "3Y0J";
  spot.Spotter = "DL1ABC-#";
  spot.Node = "K1TST-2";
  spot.Comment = "CW up 2";
  spot.LotwMark = "+";
  spot.DxItu = "67";
  spot.OrigItu = "28";
  spot.DxCq = "38";
  spot.OrigCq = "14";
  spot.DxGrid = "JD15";
  spot.OrigGrid = "JN58";
  spot.DxCty = "3Y/B";
  spot.OrigCty = "DL";
  spot.DxState = "ON";
  spot.OrigState = "BY";
  spot.SpotterIp = "10.0.0.1";
  return spot;
}

std::string Logged(const Spot& spot, LogForm form = LogForm::Daily) {
  std::string line;
  AppendLogLine(spot, form, line);
  return line;
}

// What a comment is behind log and reload.
std::string ReloadedComment(const std::string& comment, LogForm form = LogForm::Daily) {
  Spot spot = FullSpot();
  spot.Comment = comment;
  std::string line = Logged(spot, form);
  line.resize(line.size() - 2);
  return ParseLogLine(line, spot) ? spot.Comment : "no spot";
}

TEST(LogLine, HoldsTheFieldsInTheirOrder) {
  EXPECT_EQ(Logged(FullSpot()),
            "2116,14025.5,3Y0J,DL1ABC-#,K1TST-2,CW up 2,+,67,28,38,14,JD15,JN58,3Y/B,DL,ON,BY,"
            "10.0.0.1,~\r\n");
}

TEST(LogLine, OfTheScratchCopyIsSeparatedByCarets) {
  EXPECT_TRUE(Logged(FullSpot(), LogForm::Scratch).starts_with("2116^14025.5^3Y0J^DL1ABC-#^"));
  EXPECT_TRUE(Logged(FullSpot(), LogForm::Scratch).ends_with("^10.0.0.1^~\r\n"));
}

TEST(LogLine, FrequencyKeepsItsDigitsAndHasAPoint) {
  Spot spot = FullSpot();
  for (const auto& [kHz, text] : {std::pair{14025.0, "14025.0"}, std::pair{100000.0, "100000.0"},
                                  std::pair{10368100.25, "10368100.25"}}) {
    spot.Freq = kHz;
    EXPECT_TRUE(Logged(spot).starts_with("2116," + std::string(text) + ",3Y0J,")) << text;
  }
}

TEST(LogLine, EscapesTheCommentAndLeavesTheSpotAsItIs) {
  Spot spot = FullSpot();
  spot.Comment = "\"big\", 5^9";
  EXPECT_NE(Logged(spot).find(",%22big%22%2C 5%5E9,"), std::string::npos);
  EXPECT_EQ(spot.Comment, "\"big\", 5^9");
}

TEST(LogLine, NoFieldCanShiftTheOthersOrEndTheLine) {
  Spot spot = FullSpot();
  spot.DxCall = "K1,TST";
  spot.OrigCty = "D^\"";
  spot.Node = "A\r\nB";
  std::string line = Logged(spot);
  line.resize(line.size() - 2);
  Spot read;
  ASSERT_TRUE(ParseLogLine(line, read));
  EXPECT_EQ(read.DxCall, "K1,TST");
  EXPECT_EQ(read.OrigCty, "D^\"");
  EXPECT_EQ(read.Node, "A  B");
  EXPECT_EQ(read.SpotterIp, "10.0.0.1");
}

TEST(LogLine, BothFormsGiveEveryFieldBack) {
  for (const LogForm form : {LogForm::Daily, LogForm::Scratch}) {
    std::string line = Logged(FullSpot(), form);
    line.resize(line.size() - 2);
    Spot read;
    ASSERT_TRUE(ParseLogLine(line, read));
    EXPECT_EQ(read.SpotHHMM, 2116);
    EXPECT_EQ(Logged(read), Logged(FullSpot()));
  }
}

TEST(LogLine, CommentWithACommaComesBack) {
  EXPECT_EQ(ReloadedComment("59, tnx"), "59, tnx");
  EXPECT_EQ(ReloadedComment("59, tnx", LogForm::Scratch), "59, tnx");
}

TEST(LogLine, PercentThatStartsNoEscapeDoesNotStopTheOthers) {
  EXPECT_EQ(ReloadedComment("100% sure, ok"), "100% sure, ok");
  EXPECT_EQ(ReloadedComment("%,%\"%"), "%,%\"%");
  EXPECT_EQ(ReloadedComment("%2,%"), "%2,%");
}

TEST(LogLine, EscapesAreUndoneOnceAndThoseOfTheNodeStay) {
  EXPECT_EQ(ReloadedComment("%252C %41 %2c"), "%252C %41 %2c");
  EXPECT_EQ(ReloadedComment("%%22"), "%\"");
}

TEST(LogLine, OlderLinesLeaveTheRestEmpty) {
  Spot spot = FullSpot();
  spot.SpotDate = "20-Nov-2026";
  spot.OrigLocation = "48/11";
  spot.RawLine = "ZV11^";
  spot.ExpandedLine = true;
  ASSERT_TRUE(ParseLogLine("0007,7012.3,PY2AA,K1TST,,tnx", spot));
  EXPECT_EQ(spot.SpotHHMM, 7);
  EXPECT_EQ(spot.Freq, 7012.3);
  EXPECT_EQ(spot.DxCall, "PY2AA");
  EXPECT_EQ(spot.Spotter, "K1TST");
  EXPECT_EQ(spot.Comment, "tnx");
  for (const std::string& rest :
       {spot.Node, spot.LotwMark, spot.DxItu, spot.OrigCq, spot.DxGrid, spot.DxState,
        spot.OrigState, spot.SpotterIp, spot.OrigLocation, spot.RawLine})
    EXPECT_EQ(rest, "");
  EXPECT_FALSE(spot.ExpandedLine);
  EXPECT_EQ(spot.SpotDate, "20-Nov-2026");
}

TEST(LogLine, QuotesAreRemovedFromTheFields) {
  Spot spot;
  ASSERT_TRUE(ParseLogLine("\"2116\",\"14025.0\",\"3Y0J\",\"DL1ABC\",\"\",\"a\"\"b\"", spot));
  EXPECT_EQ(spot.DxCall, "3Y0J");
  EXPECT_EQ(spot.Comment, "ab");
}

TEST(LogLine, WhatIsShorterThanElevenCharactersIsNoSpot) {
  Spot spot;
  EXPECT_FALSE(ParseLogLine("", spot));
  EXPECT_FALSE(ParseLogLine("1,7,K1,DL1", spot));
  EXPECT_TRUE(ParseLogLine("1,70,K1,DL1", spot));
}

TEST(LogLine, BrokenBinaryAndOverlongLinesAreNoSpots) {
  using namespace std::string_literals;
  const std::string overlong = "2116,14025.0,3Y0J,DL1ABC,," + std::string(2000, 'x');
  for (const std::string& line :
       {"this is no line of the log"s, "2116,14025.0,3Y0J"s, "2116,14025.0,3Y0J,DL"s,
        "2116,14025.0,K,DL1ABC,"s, "2116,none,3Y0J,DL1ABC,"s, "2116,-14025.0,3Y0J,DL1ABC,"s,
        "2460,14025.0,3Y0J,DL1ABC,"s, "2400,14025.0,3Y0J,DL1ABC,"s, "-116,14025.0,3Y0J,DL1ABC,"s,
        "zulu,14025.0,3Y0J,DL1ABC,"s, "99999999999,14025.0,3Y0J,DL1ABC,"s,
        "2116,14025.0,3Y0J,DL1ABC,\0,"s, ",,,,,,,,,,,,,,,,,,~"s, overlong}) {
    Spot spot;
    EXPECT_FALSE(ParseLogLine(line, spot)) << line.substr(0, 60);
  }
}

TEST(LogLine, BytesBeyondAsciiStayAsTheyAre) {
  EXPECT_EQ(ReloadedComment("73 de J\xFCrgen \xC3\xBC"), "73 de J\xFCrgen \xC3\xBC");
}

}  // namespace
}  // namespace spots
