#include "spots/log_files.h"

#include <gmock/gmock.h>

#include "platform/sim/world.h"

namespace spots {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

constexpr const char* kFilesFolder = "/home/op/molva";

// It is 20 November 2026.
class LogFiles : public testing::Test {
 protected:
  std::string PathOf(std::string_view spotDate) { return LogPath("", LogDay(calendar, spotDate)); }
  void Has(const std::string& name) { world.files.content[kFilesFolder + ("/" + name)] = "x"; }
  std::vector<std::string> Left() const {
    std::vector<std::string> names;
    for (const auto& [path, bytes] : world.files.content)
      names.push_back(path.substr(std::string(kFilesFolder).size() + 1));
    return names;
  }
  void Delete(int daysToKeep) { DeleteLogFiles(world.files, calendar, kFilesFolder, daysToKeep); }

  platform::sim::World world;
  core::Calendar calendar{world.clock};
};

TEST_F(LogFiles, NameFollowsTheDateOfTheSpot) {
  EXPECT_EQ(PathOf("12-Jun-2009"), "/2009/dx-12-Jun-2009.txt");
  EXPECT_EQ(PathOf("20-Nov-2026"), "/2026/dx-20-Nov-2026.txt");
}

TEST_F(LogFiles, DayHasTwoDigitsAndBlanksAreTrimmed) {
  for (const char* date : {"1-Mar-2026", " 1-Mar-2026", "01-Mar-2026", "  01-Mar-2026 "})
    EXPECT_EQ(PathOf(date), "/2026/dx-01-Mar-2026.txt") << date;
}

TEST_F(LogFiles, WhatIsNoRealDateOfThatFormTakesTodays) {
  for (const char* date :
       {"",           " ",           "30-Feb-2026",  "00-Mar-2026", "32-Mar-2026", "29-Feb-2025",
        "1-3-2026",   "01-03-2026",  "1-March-2026", "1-Mar-26",    "1-Mar-02026", "001-Mar-2026",
        "1 Mar 2026", "1-Mar-2026-", "-1-Mar-2026",  "1-Mar-1969",  "../../etc",   "1-Mar-2026/..",
        "1-M/r-2026", "1-Mar-20.6"})
    EXPECT_EQ(PathOf(date), "/2026/dx-20-Nov-2026.txt") << date;
}

TEST_F(LogFiles, LeapDayIsReal) { EXPECT_EQ(PathOf("29-Feb-2024"), "/2024/dx-29-Feb-2024.txt"); }

TEST_F(LogFiles, DeletionKeepsTheLastDays) {
  for (const char* name : {"2026/dx-17-Nov-2026.txt", "2026/dx-18-Nov-2026.txt",
                           "2026/dx-19-Nov-2026.txt", "2026/dx-20-Nov-2026.txt"})
    Has(name);
  Delete(2);
  EXPECT_THAT(Left(), ElementsAre("2026/dx-19-Nov-2026.txt", "2026/dx-20-Nov-2026.txt"));
}

TEST_F(LogFiles, DeletionCoversAllYearFolders) {
  world.clock.Set(std::chrono::sys_days{2027y / 1 / 1} + 12h);
  for (const char* name : {"2009/dx-12-Jun-2009.txt", "2026/dx-30-Dec-2026.txt",
                           "2026/dx-31-Dec-2026.txt", "2027/dx-01-Jan-2027.txt"})
    Has(name);
  Delete(2);
  EXPECT_THAT(Left(), ElementsAre("2026/dx-31-Dec-2026.txt", "2027/dx-01-Jan-2027.txt"));
}

TEST_F(LogFiles, DeletionLeavesWhatTheLogDidNotMake) {
  const std::vector<std::string> names = {"2009/DX-12-Jun-2009.txt",
                                          "2009/dx-12-Jun-2009.txt.bak",
                                          "2009/dx-30-Feb-2009.txt",
                                          "2009/dx-notes.txt",
                                          "2009/tmp.txt",
                                          "20090/dx-12-Jun-2009.txt",
                                          "backup/dx-12-Jun-2009.txt",
                                          "dx-12-Jun-2009.txt"};
  for (const std::string& name : names) Has(name);
  Delete(1);
  EXPECT_EQ(Left(), names);
}

TEST_F(LogFiles, DeletionAlwaysKeepsTodays) {
  Has("2026/dx-19-Nov-2026.txt");
  Has("2026/dx-20-Nov-2026.txt");
  for (const int days : {0, -5}) Delete(days);
  EXPECT_THAT(Left(), ElementsAre("2026/dx-20-Nov-2026.txt"));
}

TEST_F(LogFiles, AnyNumberOfDaysCanBeKept) {
  Has("1970/dx-02-Jan-1970.txt");
  Delete(std::numeric_limits<int>::max());
  EXPECT_THAT(Left(), ElementsAre("1970/dx-02-Jan-1970.txt"));
}

TEST_F(LogFiles, FileThatCannotBeDeletedDoesNotHoldTheOthers) {
  Has("2025/dx-01-Jan-2025.txt");
  Has("2026/dx-01-Jan-2026.txt");
  world.files.denied.insert(std::string(kFilesFolder) + "/2025");
  Delete(1);
  EXPECT_THAT(Left(), ElementsAre("2025/dx-01-Jan-2025.txt"));
}

}  // namespace
}  // namespace spots
