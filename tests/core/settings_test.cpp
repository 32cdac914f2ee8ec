#include "core/settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "core/quoted.h"

namespace core {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

std::string Written(const Settings& settings) {
  return FormatSettings(settings, "05-Jan-2026 2107Z> ");
}

std::string Written(bool Settings::*flag, bool value = true) {
  Settings settings;
  settings.*flag = value;
  return Written(settings);
}

Settings Parsed(const std::string& line) { return ParseSettings(line + "\r\n"); }

// Reading.

TEST(ParseSettings, AMissingKeyKeepsItsDefault) {
  const Settings read = ParseSettings("");
  EXPECT_EQ(read, Settings{});
  EXPECT_EQ(read.LoggerPort, 7300);
  EXPECT_EQ(read.NodeCall, "MOLVA-1");
  EXPECT_EQ(read.NodeHost, "");
  EXPECT_EQ(read.NodePort, "23");
  EXPECT_EQ(read.TelnetKAtime, 5);
  EXPECT_EQ(read.DXBM, 31748);
  EXPECT_EQ(read.ColourMissed1, 12517052);
  EXPECT_EQ(read.Missed, 65535);
  EXPECT_EQ(read.TabCorrection, 1.0);
  EXPECT_EQ(read.StartTab, 5);
  EXPECT_TRUE(read.AutoReconnect && read.GetMissedOnes && read.CorrectErrors && read.DownloaderOk);
}

TEST(ParseSettings, AValueWithACommaSurvives) {
  EXPECT_EQ(Parsed("\"My QTH\",\"Ann Arbor, MI, USA\"").MyQth, "Ann Arbor, MI, USA");
}

TEST(ParseSettings, AValueWithADoubleQuoteLosesTheQuote) {
  EXPECT_EQ(Parsed("\"My QTH\",\"Ann \"\"Tree\" Arbor\"").MyQth, "Ann Tree Arbor");
}

TEST(ParseSettings, TheFormOfKeyAndValueDoesNotMatter) {
  EXPECT_EQ(Parsed("FormTop,\"120\"").FormTop, 120);
  EXPECT_EQ(Parsed("\"FormTop\",120").FormTop, 120);
  EXPECT_EQ(Parsed("My QTH,Bonn").MyQth, "Bonn");
}

TEST(ParseSettings, ALineWithoutACommaHasAnEmptyValue) {
  EXPECT_EQ(Parsed("\"SelectedNode\"").NodeCall, "");
  EXPECT_EQ(Parsed("\"TelnetKAtime\"").TelnetKAtime, 0);
}

TEST(ParseSettings, LinesMayEndInLfAlone) {
  const Settings read = ParseSettings("\"My Call\",\"K1TST\"\n\n\"My QTH\",\"Bonn\"\n");
  EXPECT_EQ(read.MyCall, "K1TST");
  EXPECT_EQ(read.MyQth, "Bonn");
}

TEST(ParseSettings, UnknownKeysAreIgnored) {
  EXPECT_EQ(ParseSettings("\"My Dog\",\"Rex\"\r\n,\r\nmy call,x\r\n my Call,x\r\n"), Settings{});
}

TEST(ParseSettings, OfAKeyThatStandsTwiceTheLastCounts) {
  EXPECT_EQ(ParseSettings("FormTop,1\r\nFormTop,2\r\n").FormTop, 2);
}

TEST(ParseSettings, CallNameAndGridAreInUpperCase) {
  const Settings read =
      ParseSettings("My Call,k1tst-2\nMy Name,anna\nMy Grid,en82cg\nMy QTH,Bonn\n");
  EXPECT_EQ(read.MyCall, "K1TST-2");
  EXPECT_EQ(read.MyName, "ANNA");
  EXPECT_EQ(read.MyGrid, "EN82CG");
  EXPECT_EQ(read.MyQth, "Bonn");
}

TEST(ParseSettings, ABadNumberIsZero) {
  EXPECT_EQ(Parsed("TelnetKAtime,often").TelnetKAtime, 0);
  EXPECT_EQ(Parsed("Tab Correction,-").TabCorrection, 0);
  EXPECT_FALSE(Parsed("AutoReconnect,maybe").AutoReconnect);
}

TEST(ParseSettings, ANumberBeyondTheRangeIsHeldWithinIt) {
  EXPECT_EQ(Parsed("FormTop,99999999999").FormTop, 2147483647);
  EXPECT_EQ(Parsed("FormTop,-99999999999").FormTop, -2147483647 - 1);
  EXPECT_EQ(Parsed("FormTop,1e999").FormTop, 0);
}

TEST(ParseSettings, AFlagIsSetByAnyNumberButZeroAndByTrue) {
  for (const char* value : {"-1", "1", "7", "#TRUE#", "TRUE", "True", "\"true\""})
    EXPECT_TRUE(Parsed(std::string("SSL,") + value).SSL) << value;
  for (const char* value : {"0", "", "#FALSE#", "FALSE", "off", "NotMax"})
    EXPECT_FALSE(Parsed(std::string("AutoReconnect,") + value).AutoReconnect) << value;
}

TEST(ParseSettings, TheFormIsMaximizedOrNot) {
  EXPECT_TRUE(Parsed("\"Form\",\"Maximized\"").FormMaximized);
  EXPECT_FALSE(Parsed("\"Form\",\"NotMax\"").FormMaximized);
}

TEST(ParseSettings, OldKeysStillCount) {
  EXPECT_EQ(Parsed("\"PrimaryNode\",\"N0NODE\"").NodeCall, "N0NODE");
  EXPECT_EQ(Parsed("\"PrimaryAddress\",\"n0node.example\"").NodeHost, "n0node.example");
  EXPECT_EQ(Parsed("\"DxSourceToNetwork\",#TRUE#").SendToLog, 0);
  EXPECT_EQ(Parsed("\"DxSourceToNetwork\",#FALSE#").SendToLog, 1);
  EXPECT_TRUE(Parsed("\"AlarmEmailOn\",-1").AlarmEmailOn);
  EXPECT_TRUE(Parsed("\"LotwYN\",-1").ShLoTW);
  EXPECT_TRUE(Parsed("\"LotwYN\",-1").SheQSL);
  EXPECT_FALSE(Parsed("\"LotwYN\",0").ShLoTW);
  EXPECT_EQ(Parsed("\"WwvWeb\",-1"), Settings{});
}

TEST(ParseSettings, ASpotMemoryOfZeroIsTheUsualOne) {
  const Settings read = ParseSettings("Spot Memory All,0\r\nSpot Memory Single,-3\r\n");
  EXPECT_EQ(read.SpotMemoryAll, 200);
  EXPECT_EQ(read.SpotMemorySingle, 200);
  EXPECT_EQ(Parsed("Spot Memory All,50").SpotMemoryAll, 50);
}

TEST(ParseSettings, ALocationIsCleanedUpIfItCanBeRead) {
  EXPECT_EQ(Parsed("\"My Location\",\"42-17n, 083-44w\"").MyLocation, "42 17 N 83 44 W");
  EXPECT_EQ(Parsed("\"My Location\",\"at home\"").MyLocation, "at home");
}

TEST(ParseSettings, FamiliesTakeTheirNumbersAndNoOthers) {
  const Settings read = ParseSettings(
      "1SpotColor,11\r\n16SpotColor,26\r\n0SpotColor,5\r\n17SpotColor,5\r\n01SpotColor,5\r\n"
      "SpotColor,5\r\n00Freq,1800.5\r\n29Freq,50000\r\n30Freq,7\r\n0Freq,7\r\nFreq,7\r\n"
      "1FormTop,7\r\n99999999999999999999Freq,7\r\n");
  Settings expected;
  expected.SpotColor[0] = 11;
  expected.SpotColor[15] = 26;
  expected.Freq[0] = 1800.5;
  expected.Freq[29] = 50000;
  EXPECT_EQ(read, expected);
}

TEST(ParseSettings, RepeatedKeysFillTables) {
  const Settings read = ParseSettings(
      "Web Page,One\r\nWeb Address,http://one.example\r\nWeb Page,Two\r\n"
      "Tnc Command,C N0NODE\r\nTnc Reply,connected\r\nTnc TimeOut,30\r\n"
      "ProgramStart,/usr/bin/rigctld\r\nProgramStart,\r\n1ProgramStart,x\r\n");
  EXPECT_THAT(read.WebPages, ElementsAre(WebPage{"One", "http://one.example"}, WebPage{"Two", ""}));
  EXPECT_THAT(read.TncSteps, ElementsAre(TncStep{"C N0NODE", "connected", "30"}));
  EXPECT_THAT(read.ProgramStart, ElementsAre(StartedProgram{"/usr/bin/rigctld"}, StartedProgram{}));
}

TEST(ParseSettings, AColumnWithoutARowIsIgnored) {
  EXPECT_EQ(ParseSettings("Web Address,http://one.example\r\nTnc Reply,x\r\n"), Settings{});
}

TEST(ParseSettings, TheScriptHasSixStepsAtMost) {
  std::string text;
  for (char step = 'A'; step <= 'H'; ++step)
    text += std::string("Tnc Command,") + step + "\r\nTnc TimeOut,5\r\n";
  const Settings read = ParseSettings(text);
  ASSERT_EQ(read.TncSteps.size(), 6U);
  EXPECT_EQ(read.TncSteps.back(), (TncStep{"F", "", "5"}));
}

TEST(ParseSettings, WithoutWebPagesTheDefaultOneIsThere) {
  EXPECT_EQ(ParseSettings("FormTop,1\r\n").WebPages.size(), 1U);
  EXPECT_EQ(Parsed("Web Page,Mine").WebPages, (std::vector<WebPage>{{"Mine", ""}}));
}

TEST(ParseSettings, SerialSettingsTakeOnlyTheirWords) {
  EXPECT_EQ(Parsed("TncParity,Even").TncParity, "Even");
  EXPECT_EQ(Parsed("TncParity,Sometimes").TncParity, "N");
  EXPECT_EQ(Parsed("TncDataBits,7").TncDataBits, "7");
  EXPECT_EQ(Parsed("TncDataBits,9").TncDataBits, "8");
  EXPECT_EQ(Parsed("TncStopBits,1.5").TncStopBits, "1.5");
  EXPECT_EQ(Parsed("TncStopBits,3").TncStopBits, "1");
  EXPECT_EQ(Parsed("TncFlowControl,Xon / Xoff").TncFlowControl, "Xon / Xoff");
  EXPECT_EQ(Parsed("TncFlowControl,Some").TncFlowControl, "Hardware");
}

TEST(ParseSettings, AThemeIsLightOrDarkAndAnythingElseFollowsTheSystem) {
  EXPECT_EQ(Parsed("Theme,Dark").Theme, "Dark");
  EXPECT_EQ(Parsed("Theme,Light").Theme, "Light");
  EXPECT_EQ(Parsed("Theme,Pink").Theme, "");
}

TEST(ParseSettings, ALastLineThatWasCutOffDoesNotCount) {
  for (const char* cut : {"\"SelectedNode", "\"SelectedNode\"", "\"SelectedNode\",",
                          "\"SelectedNode\",\"K1", "\"SelectedNode\",\""})
    EXPECT_EQ(ParseSettings(cut).NodeCall, "MOLVA-1") << cut;
}

TEST(ParseSettings, ALastLineNeedsNoLineEnd) {
  EXPECT_EQ(ParseSettings("\"SelectedNode\",\"N0NODE\"").NodeCall, "N0NODE");
  EXPECT_EQ(ParseSettings("SelectedNode,N0NODE").NodeCall, "N0NODE");
  EXPECT_EQ(ParseSettings("\"SelectedNode\",\"\"").NodeCall, "");
}

// Writing.

TEST(FormatSettings, StartsWithTheTimeOfWriting) {
  EXPECT_THAT(Written(Settings{}), testing::StartsWith("\"DTS\",\"05-Jan-2026 2107Z> \"\r\n"));
}

TEST(FormatSettings, TheTimeOfWritingIsNeverReadBack) {
  EXPECT_EQ(ParseSettings(Written(Settings{})), Settings{});
}

TEST(FormatSettings, TextsAreQuotedAndNumbersBare) {
  Settings settings;
  settings.MyQth = "Ann Arbor, MI";
  settings.FormTop = -120;
  settings.TabCorrection = 0.85;
  settings.Freq[7] = 14074.5;
  const std::string text = Written(settings);
  EXPECT_THAT(text, HasSubstr("\r\n\"My QTH\",\"Ann Arbor, MI\"\r\n"));
  EXPECT_THAT(text, HasSubstr("\r\n\"FormTop\",-120\r\n"));
  EXPECT_THAT(text, HasSubstr("\r\n\"Tab Correction\",0.85\r\n"));
  EXPECT_THAT(text, HasSubstr("\r\n\"07Freq\",14074.5\r\n"));
}

TEST(FormatSettings, FlagsAreZeroOrMinusOne) {
  EXPECT_THAT(Written(&Settings::AutoStart), HasSubstr("\r\n\"AutoStart\",-1\r\n"));
  EXPECT_THAT(Written(&Settings::AutoStart, false), HasSubstr("\r\n\"AutoStart\",0\r\n"));
}

TEST(FormatSettings, FourFlagsAreBooleans) {
  EXPECT_THAT(Written(Settings{}), HasSubstr("\r\n\"AlarmEmailDisabled\",#FALSE#\r\n"));
  EXPECT_THAT(Written(&Settings::SSL), HasSubstr("\r\n\"SSL\",#TRUE#\r\n"));
  EXPECT_THAT(Written(&Settings::AutoLoTW), HasSubstr("\"ShLoTW\",0\r\n\"AutoLoTW\",#TRUE#\r\n"));
  EXPECT_THAT(Written(&Settings::SheQSL), HasSubstr("\"SheQSL\",-1\r\n\"AutoeQSL\",#FALSE#\r\n"));
}

TEST(FormatSettings, SomeFlagsAreWords) {
  EXPECT_THAT(Written(&Settings::FormMaximized), HasSubstr("\"Form\",\"Maximized\"\r\n"));
  EXPECT_THAT(Written(Settings{}), HasSubstr("\"Form\",\"NotMax\"\r\n"));
  EXPECT_THAT(Written(&Settings::RejectInvalidCountry),
              HasSubstr("\"Reject Invalid Country\",\"TRUE\"\r\n"));
  EXPECT_THAT(Written(&Settings::DontShowClusterUpdate),
              HasSubstr("\"Dont Show Cluster Update\",\"-1\"\r\n"));
  EXPECT_THAT(Written(&Settings::K3ReadSpotFreq), HasSubstr("\"K3 Read Spot Freq\",\"1\"\r\n"));
  EXPECT_THAT(Written(&Settings::ShowSkimmerDupes),
              HasSubstr("\"Show Skimmer Dupes\",\"True\"\r\n"));
}

TEST(FormatSettings, SwitchesOfTheAcceptanceOfSpotsAreKeptOnceTheyAreOn) {
  EXPECT_THAT(Written(&Settings::RejectCounties), HasSubstr("\r\n\"Reject Counties\",-1\r\n"));
  EXPECT_THAT(Written(&Settings::AllowSkimmerDupes),
              HasSubstr("\r\n\"Allow Skimmer Dupes\",-1\r\n"));
  EXPECT_THAT(Written(&Settings::ShowOwnSkimmerSpots),
              HasSubstr("\r\n\"Show Own Skimmer Spots\",-1\r\n"));
}

TEST(FormatSettings, KeysAtTheirDefaultThatAreOptionalAreLeftOut) {
  const std::string text = Written(Settings{});
  for (const char* key : {"Show Spot Nrs",
                          "Reject Invalid Country",
                          "Dont Show Cluster Update",
                          "DxARPCoff",
                          "Premium Service",
                          "Detailed Service",
                          "DontLookupDxCall",
                          "Default Browser",
                          "ShLoTW",
                          "AutoLoTW",
                          "LoTWChecking",
                          "SheQSL",
                          "AutoeQSL",
                          "eQSLChecking",
                          "Reject Not LoTW/eQSL",
                          "DownloaderOk",
                          "DownloaderVisible",
                          "ProgramStartUps",
                          "VQLog",
                          "Bob=Dx",
                          "htmlFile",
                          "GridFile",
                          "K3 Port",
                          "K3 Read Spot Freq",
                          "Show Skimmer Dupes",
                          "Theme",
                          "Raw Size",
                          "Login Size",
                          "Reject Counties",
                          "Allow Skimmer Dupes",
                          "Show Own Skimmer Spots",
                          "TncParity",
                          "TncDataBits",
                          "TncStopBits",
                          "TncFlowControl",
                          "ProgramStart",
                          "Tnc Command",
                          "WwvWeb",
                          "DxSourceToNetwork",
                          "PrimaryNode",
                          "PrimaryAddress",
                          "AlarmEmailOn",
                          "LotwYN"})
    EXPECT_THAT(text, Not(HasSubstr(QuotedField(key) + ","))) << key;
}

TEST(FormatSettings, DownloaderOkIsWrittenOnlyAsZero) {
  EXPECT_THAT(Written(&Settings::DownloaderOk, false), HasSubstr("\"DownloaderOk\",0\r\n"));
}

TEST(FormatSettings, ALoggerPortBelow7300IsReadButNotWrittenBack) {
  const Settings read = Parsed("\"LoggerPort\",6000");
  EXPECT_EQ(read.LoggerPort, 6000);
  EXPECT_THAT(Written(read), Not(HasSubstr("LoggerPort")));
  EXPECT_EQ(ParseSettings(Written(read)).LoggerPort, 7300);
  EXPECT_THAT(Written(Settings{}), HasSubstr("\"LoggerPort\",7300\r\n"));
  EXPECT_THAT(Written(Parsed("\"LoggerPort\",7301")), HasSubstr("\"LoggerPort\",7301\r\n"));
}

TEST(FormatSettings, TheLoggerPortStandsBeforeTheSwitchOfItsServer) {
  const std::string text = Written(Settings{});
  EXPECT_LT(text.find("\"LoggerPort\""), text.find("\"LoggingProgram\""));
}

TEST(FormatSettings, SerialSettingsAreWrittenOnlyAsOneOfTheirWords) {
  Settings settings;
  settings.TncParity = "Odd";
  settings.TncDataBits = "8";
  settings.TncStopBits = "7";
  EXPECT_THAT(Written(settings), HasSubstr("\"TncParity\",\"Odd\"\r\n"));
  EXPECT_THAT(Written(settings), Not(HasSubstr("TncDataBits")));
  EXPECT_THAT(Written(settings), Not(HasSubstr("TncStopBits")));
}

TEST(FormatSettings, TheRowsOfATableStandTogether) {
  Settings settings;
  settings.WebPages = {{"One", "http://one.example"}, {"Two", "http://two.example"}};
  EXPECT_THAT(Written(settings),
              HasSubstr("\"Web Page\",\"One\"\r\n\"Web Address\",\"http://one.example\"\r\n"
                        "\"Web Page\",\"Two\"\r\n\"Web Address\",\"http://two.example\"\r\n"
                        "\"ColourMail\","));
}

TEST(FormatSettings, StepsOfTheScriptWithoutATimeOutAreLeftOut) {
  Settings settings;
  settings.TncSteps = {{"C N0NODE", "connected", "30"}, {"hello", "x", "0"}, {"", "", ""}};
  EXPECT_THAT(Written(settings), HasSubstr("\"Tnc Command\",\"C N0NODE\"\r\n\"Tnc Reply\","
                                           "\"connected\"\r\n\"Tnc TimeOut\",\"30\"\r\n\"Tnc\",0"));
}

TEST(FormatSettings, HostileValuesStayOneField) {
  Settings settings;
  settings.MyQth = "Bonn\"\r\n\"My Call\",\"N0CALL";
  const Settings read = ParseSettings(Written(settings));
  EXPECT_EQ(read.MyQth, "Bonn  My Call,N0CALL");
  EXPECT_THAT(read.MyCall, IsEmpty());
}

}  // namespace
}  // namespace core
