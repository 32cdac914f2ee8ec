#include "core/error_log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "platform/sim/world.h"
#include "platform/tasks.h"

namespace core {
namespace {

using namespace std::chrono_literals;
using testing::IsEmpty;
using testing::SizeIs;

class ErrorLogTest : public testing::Test {
 protected:
  ErrorLogTest() { world.clock.Set(std::chrono::sys_days{2026y / 1 / 5} + 21h + 7min + 9s); }
  std::string Written() { return world.files.content["/molva/error.log"]; }

  platform::sim::World world;
  Calendar calendar{world.clock};
  ErrorLog log{world.files, world.dialogs, calendar, "/molva"};
};

TEST_F(ErrorLogTest, AReportIsOneQuotedLine) {
  log.ReportError("ReadCfg", 53, "File not found");
  EXPECT_EQ(Written(), "\"2026-01-05 21:07:09  ReadCfg - Error #53 File not found\"\r\n");
}

TEST_F(ErrorLogTest, TheTimeIsLocalWhateverTheOffsetSetting) {
  world.clock.localOffset = 3h;
  calendar.GmtOffset = "7";
  log.ReportError("ReadCfg", 53, "");
  EXPECT_EQ(Written(), "\"2026-01-06 00:07:09  ReadCfg - Error #53 \"\r\n");
}

TEST_F(ErrorLogTest, TwoReportsInOneSecondAreTwoLines) {
  log.ReportError("nossid", -5, "x");
  log.ReportError("nossid", -5, "x");
  const std::string line = "\"2026-01-05 21:07:09  nossid - Error #-5 x\"\r\n";
  EXPECT_EQ(Written(), line + line);
}

TEST_F(ErrorLogTest, TheFileOnlyGrows) {
  world.files.content["/molva/error.log"] = "old\r\n";
  log.ReportError("nossid", 5, "x");
  EXPECT_EQ(Written(), "old\r\n\"2026-01-05 21:07:09  nossid - Error #5 x\"\r\n");
}

TEST_F(ErrorLogTest, HostileTextCannotBreakTheRecord) {
  log.ReportError("AddItemToArray \"\r\n", 5, "a\"b\nc");
  EXPECT_EQ(Written(), "\"2026-01-05 21:07:09  AddItemToArray '   - Error #5 a'b c\"\r\n");
}

TEST_F(ErrorLogTest, AFailingDiskLosesTheLineAndCountsIt) {
  world.files.denied.insert("/molva");
  log.ReportError("nossid", 5, "x");
  log.ReportError("nossid", 5, "x");
  EXPECT_EQ(log.LostLines(), 2U);
  EXPECT_THAT(world.dialogs.shown, IsEmpty());
  world.files.denied.clear();
  log.ReportError("nossid", 5, "x");
  EXPECT_EQ(log.LostLines(), 2U);
  EXPECT_THAT(Written(), testing::EndsWith("nossid - Error #5 x\"\r\n"));
}

TEST_F(ErrorLogTest, NothingIsShownUsually) {
  log.ReportError("ReadCfg", 53, "File not found");
  EXPECT_THAT(world.dialogs.shown, IsEmpty());
}

TEST_F(ErrorLogTest, DebugModeShowsTheReportToo) {
  log.DebugMode = true;
  log.ReportError("ReadCfg", 53, "File not found");
  ASSERT_THAT(world.dialogs.shown, SizeIs(1));
  const platform::Message& message = world.dialogs.shown.front();
  EXPECT_EQ(message.title, "Function or Sub - ReadCfg");
  EXPECT_EQ(message.text, "Unexpected error #53 occurred: File not found\n");
  EXPECT_THAT(message.answers,
              testing::ElementsAre(platform::Answer::Retry, platform::Answer::Cancel));
  EXPECT_THAT(Written(), testing::EndsWith("ReadCfg - Error #53 File not found\"\r\n"));
}

platform::Task<> FailingTask() {
  throw std::runtime_error("no such table");
  co_return;
}

TEST_F(ErrorLogTest, AFailedTaskIsReportedUnderItsName) {
  platform::Tasks tasks{world.scheduler, log.FaultHandler()};
  tasks.Start("LoadTables", FailingTask());
  world.Run(1s);
  EXPECT_THAT(Written(), testing::EndsWith("  LoadTables - Error #0 no such table\"\r\n"));
}

}  // namespace
}  // namespace core
