#include "spots/state_table.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <set>
#include <sstream>

#include "core/text.h"
#include "platform/sim/sim_files.h"
#include "spots/state_codes.h"

namespace spots {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

const std::string kHeadLine = "ID NAME                        NORTH    WEST\n";
const std::string kAlabama = "AL ALABAMA                     32.78   86.83\n";
const std::string kAlaska = "AK ALASKA                      64.07  152.28\n";
const std::string kNowhere = "AM NOWHERE                      0.00   90.00\n";
const std::string kNorthOfNowhere = "AN NORTH OF NOWHERE            9.00    0.00\n";

std::string RepositoryFile() {
  std::ostringstream content;
  content << std::ifstream(MOLVA_STATE_FILE, std::ios::binary).rdbuf();
  return content.str();
}

class StateTableTest : public testing::Test {
 protected:
  Heading HeadingOf(std::string_view state) {
    Heading heading{"old", "  old"};
    table.FindHeadingState(state, heading);
    return heading;
  }

  StateTable table;
  const Home home{{42.28, 83.73}, true};
};

TEST_F(StateTableTest, ReadsTheStatesBehindTheFirstLineSorted) {
  table.Read(kHeadLine + kAlabama + kAlaska);
  EXPECT_THAT(table.cboState(), ElementsAre(kAlaska.substr(0, kAlaska.size() - 1),
                                            kAlabama.substr(0, kAlabama.size() - 1)));
  EXPECT_EQ(table.StateCount(), 2);
  EXPECT_EQ(table.StateHeadings()[0].code, "AK");
  EXPECT_EQ(table.StateHeadings()[1].code, "AL");
}

TEST_F(StateTableTest, PositionsStandInTheirColumns) {
  table.Read(kHeadLine + kAlabama);
  EXPECT_EQ(table.StateHeadings()[0].position, (core::Coordinates{32.78, 86.83}));
}

TEST_F(StateTableTest, LinesMayEndEitherWay) {
  table.Read("ID\r\nAL ALABAMA                     32.78   86.83\r\n");
  EXPECT_EQ(table.cboState(), std::vector{kAlabama.substr(0, kAlabama.size() - 1)});
}

TEST_F(StateTableTest, WithoutAlabamaInTheSecondLineTheFileIsIgnored) {
  const std::string alaskaFirst = kAlaska + kAlabama;
  for (const std::string& text :
       {std::string(), kHeadLine, kAlabama, kAlabama + kAlaska, kHeadLine + alaskaFirst}) {
    table.Read(text);
    EXPECT_EQ(table.StateCount(), 0) << text;
  }
}

TEST_F(StateTableTest, AFileThatIsIgnoredChangesNothing) {
  table.Read(kHeadLine + kAlabama);
  table.Read("garbage");
  EXPECT_EQ(table.StateCount(), 1);
}

TEST_F(StateTableTest, HeadingsFollowTheHome) {
  table.Read(kHeadLine + kAlabama + kAlaska);
  EXPECT_EQ(HeadingOf("AK"), Heading{});
  table.SetHome(home);
  EXPECT_EQ(HeadingOf("AK"), Bearing(home, {64.07, 152.28}));
  EXPECT_EQ(HeadingOf("AL"), Bearing(home, {32.78, 86.83}));
  EXPECT_NE(HeadingOf("AL"), Heading{});
}

TEST_F(StateTableTest, AStateWithoutAPositionKeepsTheHeadingBeforeIt) {
  table.SetHome(home);
  table.Read(kHeadLine + kAlabama + kAlaska + kNowhere + kNorthOfNowhere);
  EXPECT_EQ(HeadingOf("AM"), HeadingOf("AL"));
  EXPECT_EQ(HeadingOf("AN"), HeadingOf("AL"));
}

TEST_F(StateTableTest, WhatIsNoStateEmptiesTheHeading) {
  table.SetHome(home);
  table.Read(kHeadLine + kAlabama);
  Heading heading{"123", " 4567"};
  for (const std::string_view state : {"", "  ", "A", "ALA", "al", "OH", "ZZ"}) {
    EXPECT_FALSE(table.FindHeadingState(state, heading)) << state;
    EXPECT_EQ(heading, Heading{});
  }
}

TEST_F(StateTableTest, HoldsAsManyStatesAsItHasRoomFor) {
  std::string text = kHeadLine + kAlabama;
  for (char first = 'B'; first <= 'Z'; ++first)
    for (char second = 'A'; second <= 'Z'; ++second) text.append({first, second, '\n'});
  table.Read(text);
  EXPECT_EQ(table.StateCount(), 65);
  EXPECT_THAT(table.cboState(), SizeIs(500));
}

TEST_F(StateTableTest, FiftyMegabytesAreHarmless) {
  constexpr std::size_t fiftyMegabytes = 50'000'000;
  const std::string giant(fiftyMegabytes, '\n');
  table.Read(kHeadLine + kAlabama + giant);
  EXPECT_EQ(table.StateCount(), 1);
  table.Read(kHeadLine + kAlabama + std::string(fiftyMegabytes, 'X'));
  EXPECT_EQ(table.StateCount(), 1);
  table.Read(giant);
  EXPECT_EQ(table.StateCount(), 1);
}

TEST_F(StateTableTest, AFileThatIsMissingDoesNothing) {
  platform::sim::SimFiles files;
  ReadState(files, "/molva", table);
  EXPECT_EQ(table.StateCount(), 0);
  files.content["/molva/state.dat"] = kHeadLine + kAlabama;
  ReadState(files, "/molva", table);
  EXPECT_EQ(table.StateCount(), 1);
  files.content.clear();
  ReadState(files, "/molva", table);
  EXPECT_EQ(table.StateCount(), 1);
}

TEST_F(StateTableTest, FileThatLacksAStateOrAPositionIsDamaged) {
  platform::sim::SimFiles files;
  std::string& text = files.content["/molva/state.dat"];
  EXPECT_EQ(ReadState(files, "/molva", table), FileState::Damaged) << "empty";
  text = RepositoryFile();
  EXPECT_EQ(ReadState(files, "/molva", table), FileState::Read);
  text.erase(text.find_last_not_of("\r\n"));  // the end of the last longitude
  EXPECT_EQ(ReadState(files, "/molva", table), FileState::Read);
  text.resize(text.rfind('.'));
  text.resize(text.rfind(' '));
  EXPECT_EQ(ReadState(files, "/molva", table), FileState::Damaged) << "no longitude";
  text.resize(text.rfind('\n') + 1);
  EXPECT_EQ(ReadState(files, "/molva", table), FileState::Damaged) << "no last state";
}

class OwnStateFile : public StateTableTest {
 protected:
  OwnStateFile() {
    table.Read(RepositoryFile());
    table.SetHome(home);
  }
};

TEST_F(OwnStateFile, HoldsEachStateAndProvinceOnce) {
  std::set<std::string_view> codes;
  for (const auto& row : table.StateHeadings()) {
    EXPECT_TRUE(IsStateCode(row.code)) << row.code;
    codes.insert(row.code);
  }
  EXPECT_EQ(table.StateCount(), 65);
  EXPECT_THAT(codes, SizeIs(65));
}

TEST_F(OwnStateFile, EachLineNamesItsStateAndFillsItsColumns) {
  for (const std::string& line : table.cboState()) {
    EXPECT_THAT(line, SizeIs(44)) << line;
    EXPECT_EQ(line[2], ' ') << line;
    EXPECT_GE(line[3], 'A') << line;
    EXPECT_EQ(line[28], ' ') << line;
    EXPECT_EQ(line[36], ' ') << line;
  }
}

// On the continent and its islands, each in the part of it where its country lies.
TEST_F(OwnStateFile, PositionsAreInTheirCountries) {
  for (const auto& row : table.StateHeadings()) {
    const auto [latitude, longitude] = row.position;
    EXPECT_GT(longitude, 50) << row.code;
    EXPECT_LT(longitude, 160) << row.code;
    const bool isApart = row.code == "AK" || row.code == "HI";
    EXPECT_GT(latitude, IsProvince(row.code) ? 44 : isApart ? 20 : 28) << row.code;
    EXPECT_LT(latitude, IsProvince(row.code) ? 75 : isApart ? 65 : 48) << row.code;
  }
}

TEST_F(OwnStateFile, EachStateHasAHeadingOfItsOwn) {
  std::set<std::string> headings;
  for (const auto& row : table.StateHeadings()) {
    EXPECT_NE(HeadingOf(row.code), Heading{}) << row.code;
    headings.insert(row.heading.CurBearing + row.heading.CurDistance);
  }
  EXPECT_THAT(headings, SizeIs(65));
}

TEST_F(OwnStateFile, HeadingsFromAnnArborAreWhereOneExpectsThem) {
  EXPECT_EQ(HeadingOf("OH").CurBearing, "160");
  EXPECT_EQ(HeadingOf("CA").CurBearing, "271");
  EXPECT_EQ(HeadingOf("ME").CurBearing, " 69");
  EXPECT_EQ(HeadingOf("FL").CurBearing, "175");
}

}  // namespace
}  // namespace spots
