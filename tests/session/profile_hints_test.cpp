#include <gmock/gmock.h>

#include "session_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

void FillIn(core::Settings& settings) {
  settings.MyName = "ANNA";
  settings.MyQth = "Newington, CT";
  settings.MyLocation = "41 42 N 72 43 W";
  settings.MyGrid = "FN31";
  settings.HomeCluster = "N0HOME";
  settings.MyEmail = "anna@example.org";
}

void LogInTo(Station& station) {
  station.Connect();
  station.ReceiveBytes("login: \r\n");
  station.Sent();
  station.log.entries.clear();
}

class HintTest : public SessionFixture {
 protected:
  HintTest() {
    FillIn(settings);
    LogInTo(*this);
  }
};

struct Row {
  const char* line;
  Station::Lines answers;
};

const Row kRows[] = {
    {"Please enter your name, set/name", {"ANNA"}},
    {"Use SET/NAME <your name> to tell the users your name.", {"set/name ANNA"}},
    {"Please enter your name", {"ANNA"}},
    {"Please enter your name:", {"ANNA"}},
    {"Please enter your QTH, set/qth", {"Newington, CT"}},
    {"Please enter your QTH", {"Newington, CT"}},
    {"Please set your latitude/longitude information with SET/LOCATION.",
     {"SET/LOCATION 41 42 N 72 43 W"}},
    {"please enter ur location using SET/LOCATION and SET/QTH", {"SET/LOCATION 41 42 N 72 43 W"}},
    {"Please enter your location with set/location",
     {"set/location 41 42 N 72 43 W", "set/qra FN31"}},
    {"Please enter your location with set/location or set/qra",
     {"set/location 41 42 N 72 43 W", "set/qra FN31"}},
    {"Please enter your home node.", {"N0HOME"}},
    {"Please enter your name, set/name <your name>", {"set/name ANNA"}},
    {"Please enter your QTH, set/qth <your qth>", {"set/qth Newington, CT"}},
    {"Please enter your Home Node, set/homenode <your home DX Cluster>", {"set/homenode N0HOME"}},
    {"Your name is ANNA\\.  Is this correct? (Y or N) >", {"Y"}},
    {"Your name is Anna.  Is this correct? (Y or N) >", {"Y"}},
    {"Your name is ANN\\.  Is this correct? (Y or N) >", {"N"}},
    {"Your QTH is Newington, CT\\.  Is this correct? (Y or N) >", {"Y"}},
    {"Your QTH is Boston\\.  Is this correct? (Y or N) >", {"N"}},
    {"Your HomeNode is N0HOME\\.  Is this correct? (Y or N) >", {"Y"}},
    {"Your HomeNode is N0NODE\\.  Is this correct? (Y or N) >", {"N"}},
    {"Your name is now ANNA", {}},
    {"Your QTH is now Newington, CT", {}},
};

TEST(Hints, EachLineHasItsAnswerAndIsClaimed) {
  for (const Row& row : kRows) {
    Station station;
    FillIn(station.settings);
    LogInTo(station);
    station.Receive(row.line);
    EXPECT_EQ(station.Sent(), row.answers) << row.line;
    EXPECT_THAT(station.log.Of("Third"), IsEmpty()) << row.line;
  }
}

TEST(Hints, WordsCountInTheMiddleOfALineToo) {
  for (const Row& row : kRows) {
    Station station;
    FillIn(station.settings);
    LogInTo(station);
    station.Receive("N0NODE: " + std::string(row.line));
    EXPECT_EQ(station.Sent(), row.answers) << row.line;
  }
}

TEST(Hints, NothingIsAnsweredBeforeTheLogin) {
  for (const Row& row : kRows) {
    if (std::string(row.line).ends_with(" >")) continue;  // a login prompt itself
    Station station;
    FillIn(station.settings);
    station.Connect();
    station.Receive(row.line);
    EXPECT_THAT(station.Sent(), IsEmpty()) << row.line;
  }
}

TEST(Hints, WhatIsNotStoredIsNotAnswered) {
  for (const Row& row : kRows) {
    const std::string line = row.line;
    if (line.find("Is this correct") != std::string::npos) continue;
    Station station;
    FillIn(station.settings);
    auto& own = station.settings;
    LogInTo(station);
    own.MyName = own.MyQth = own.MyLocation = own.MyGrid = own.HomeCluster = own.MyEmail = "";
    station.Receive(line);
    EXPECT_THAT(station.Sent(), IsEmpty()) << line;
  }
}

TEST_F(HintTest, EachIsAnsweredOnce) {
  for (int i = 0; i < 2; ++i) {
    Receive("Please enter your name, set/name <your name>");
    Receive("Please enter your QTH, set/qth <your qth>");
    Receive("Please enter your location with set/location or set/qra");
    Receive("Please enter your Home Node, set/homenode <your home DX Cluster>");
  }
  ExpectSent({"set/name ANNA", "set/qth Newington, CT", "set/location 41 42 N 72 43 W",
              "set/qra FN31", "set/homenode N0HOME"});
}

TEST_F(HintTest, NextSessionIsAnsweredAgain) {
  Receive("Please enter your name, set/name <your name>");
  NodeCloses();
  LetRetry();
  ReceiveBytes("login: \r\n");
  Sent();
  Receive("Please enter your name, set/name <your name>");
  ExpectSent({"set/name ANNA"});
}

TEST_F(HintTest, LocationIsGivenWithoutAGridThatIsNotStored) {
  settings.MyGrid.clear();
  Receive("Please enter your location with set/location or set/qra");
  ExpectSent({"set/location 41 42 N 72 43 W"});
}

TEST_F(HintTest, OtherLinesAreNotClaimed) {
  for (const char* line : {"Please enter", "Your name is Anna", "your qth is now here", "hello"})
    Receive(line);
  ExpectNothingSent();
  EXPECT_THAT(log.Of("Third"),
              ElementsAre("Please enter", "Your name is Anna", "your qth is now here", "hello"));
}

// The address for mail.

TEST_F(HintTest, MailAddressIsGivenOnRequest) {
  Receive("Please enter your email address as SET/EMAIL n0call@example.org");
  ExpectSent({"SET/EMAIL anna@example.org"});
}

TEST_F(HintTest, MailAddressIsNotGivenToANodeThatGreetsWithoutAName) {
  Receive("Hello  (K1TST-2)");
  EXPECT_TRUE(program.state.NoEmailSet);
  Receive("Please enter your email address as SET/EMAIL n0call@example.org");
  ExpectNothingSent();
}

TEST_F(HintTest, GreetingOfAnotherCallOrInTheMiddleOfALineChangesNothing) {
  for (const char* line : {"Hello  (K2AAA)", "Hello (K1TST-2)", "Oh, Hello  (K1TST-2)",
                           "Hello Anna (K1TST-2)", "Hello  (K1TST)"})
    Receive(line);
  EXPECT_FALSE(program.state.NoEmailSet);
}

TEST_F(HintTest, MailAddressThatIsNotStoredIsNotGiven) {
  settings.MyEmail.clear();
  Receive("Please enter your email address as SET/EMAIL n0call@example.org");
  ExpectNothingSent();
}

}  // namespace
