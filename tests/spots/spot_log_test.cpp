#include "spots/spot_log.h"

#include <gmock/gmock.h>

#include "platform/sim/world.h"
#include "session/memory_meter.h"

namespace spots {
namespace {

using namespace std::chrono_literals;
using platform::Files;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kLogFolder = "/home/op/molva";

// Counts what the disk is asked for.
class CountingFiles : public platform::sim::SimFiles {
 public:
  int appends = 0;
  Fault Append(const std::string& path, std::string_view bytes) override {
    ++appends;
    return SimFiles::Append(path, bytes);
  }
};

// It is 20 November 2026, 21:00 UTC, and spots are logged.
class SpotLogTest : public testing::Test {
 protected:
  SpotLogTest() { settings.LogDxSpots = true; }

  void Write(const std::string& call, const std::string& date = "20-Nov-2026") {
    Spot spot;
    spot.SpotTime = "2116";
    spot.Freq = 14025;
    spot.DxCall = call;
    spot.SpotDate = date;
    spot.Spotter = "DL1ABC";
    log.Write(spot);
  }
  // The calls in a file, "" for a line without one.
  std::vector<std::string> Calls(const std::string& name) const {
    std::vector<std::string> calls;
    const auto file = files.content.find(kLogFolder + ("/" + name));
    if (file == files.content.end()) return calls;
    std::istringstream lines(file->second);
    for (std::string line; std::getline(lines, line);)
      calls.push_back(line.size() < 13 ? "" : line.substr(13, line.find(',', 13) - 13));
    return calls;
  }
  std::vector<std::string> CallsOfToday() const { return Calls("2026/dx-20-Nov-2026.txt"); }

  platform::sim::World world;
  CountingFiles files;
  core::Calendar calendar{world.clock};
  core::Settings settings;
  std::vector<Files::Fault> troubles;
  SpotLog log{world.scheduler, files,
              calendar,        settings,
              kLogFolder,      [this](Files::Fault fault) { troubles.push_back(fault); }};
};

TEST_F(SpotLogTest, LineIsTheSystemsWithinASecond) {
  Write("3Y0J");
  world.Run(1s);
  EXPECT_THAT(CallsOfToday(), ElementsAre("3Y0J"));
}

TEST_F(SpotLogTest, LineIsTheSystemsWithinASecondInAStreamWithoutPauses) {
  for (int tick = 0; tick < 50; ++tick) {
    Write("K" + std::to_string(tick));
    world.Run(100ms);
    EXPECT_GE(static_cast<int>(CallsOfToday().size()), tick - 9);
  }
}

TEST_F(SpotLogTest, NothingIsWrittenWhileLoggingIsOff) {
  settings.LogDxSpots = false;
  Write("3Y0J");
  world.Run(2s);
  EXPECT_THAT(files.content, IsEmpty());
}

TEST_F(SpotLogTest, SpotGoesIntoTheFolderAndTheFileOfItsDate) {
  Write("3Y0J");
  Write("PY2AA", " 1-Mar-2025");
  log.Close();
  EXPECT_THAT(CallsOfToday(), ElementsAre("3Y0J"));
  EXPECT_THAT(Calls("2025/dx-01-Mar-2025.txt"), ElementsAre("PY2AA"));
  EXPECT_TRUE(files.folders.contains("/home/op/molva/2025"));
}

TEST_F(SpotLogTest, NothingElseOfADateGetsIntoAPath) {
  Write("3Y0J", "../../../etc/passwd");
  Write("PY2AA", "99-Nov-2026");
  log.Close();
  EXPECT_EQ(files.content.size(), 1u);
  EXPECT_THAT(CallsOfToday(), ElementsAre("3Y0J", "PY2AA"));
}

TEST_F(SpotLogTest, ClosingHandsOverWhatWaits) {
  Write("3Y0J");
  EXPECT_THAT(CallsOfToday(), IsEmpty());
  log.Close();
  EXPECT_THAT(CallsOfToday(), ElementsAre("3Y0J"));
}

TEST_F(SpotLogTest, EnablingMakesTheYearsFolderAndClosesTheLog) {
  Write("3Y0J");
  log.EnableLoggingSpots();
  EXPECT_TRUE(files.folders.contains("/home/op/molva/2026"));
  EXPECT_THAT(CallsOfToday(), ElementsAre("3Y0J"));
}

TEST_F(SpotLogTest, YearChangeStartsANewFolder) {
  world.clock.Set(std::chrono::sys_days{2027y / 1 / 1});
  log.EnableLoggingSpots();
  EXPECT_TRUE(files.folders.contains("/home/op/molva/2027"));
  Write("3Y0J", "31-Dec-2026");
  Write("PY2AA", "01-Jan-2027");
  Write("K1TST", "no date");
  log.Close();
  EXPECT_THAT(Calls("2026/dx-31-Dec-2026.txt"), ElementsAre("3Y0J"));
  EXPECT_THAT(Calls("2027/dx-01-Jan-2027.txt"), ElementsAre("PY2AA", "K1TST"));
}

TEST_F(SpotLogTest, ClockThatJumpsAnHourLosesNoLine) {
  Write("K1");
  world.clock.Set(world.clock.UtcNow() - 1h);
  Write("K2");
  world.Run(1s);
  world.clock.Set(world.clock.UtcNow() + 4h);
  Write("K3");
  world.Run(1s);
  EXPECT_THAT(CallsOfToday(), ElementsAre("K1", "K2", "K3"));
}

TEST_F(SpotLogTest, FloodTakesFewCallsOfTheSystem) {
  for (int i = 0; i < 100'000; ++i) Write("3Y0J", i % 2 == 0 ? "20-Nov-2026" : "19-Nov-2026");
  log.Close();
  EXPECT_LT(files.appends, 500);
  EXPECT_EQ(CallsOfToday().size(), 50'000u);
}

TEST_F(SpotLogTest, DatesInAnyNumberStayInTheirFiles) {
  for (int day = 10; day < 30; ++day) Write("K1", std::to_string(day) + "-Jan-2026");
  for (int day = 10; day < 30; ++day) Write("K2", std::to_string(day) + "-Jan-2026");
  log.Close();
  EXPECT_EQ(files.content.size(), 20u);
  EXPECT_THAT(Calls("2026/dx-10-Jan-2026.txt"), ElementsAre("K1", "K2"));
  EXPECT_THAT(Calls("2026/dx-29-Jan-2026.txt"), ElementsAre("K1", "K2"));
}

TEST_F(SpotLogTest, FolderThatIsReadOnlyIsToldOnceAndItsEndToo) {
  files.denied.insert(kLogFolder);
  for (const char* call : {"K1", "K2", "K3"}) {
    Write(call);
    world.Run(1s);
  }
  EXPECT_THAT(troubles, ElementsAre(Files::Fault::Denied));
  files.denied.clear();
  Write("K4");
  world.Run(1s);
  EXPECT_THAT(troubles, ElementsAre(Files::Fault::Denied, Files::Fault::None));
  EXPECT_EQ(CallsOfToday().back(), "K4");
}

TEST_F(SpotLogTest, LineThatAFullDiskCutDoesNotSpoilTheNext) {
  Write("K1");
  world.Run(1s);
  files.bytesFree = 10;
  Write("K2");
  world.Run(1s);
  EXPECT_THAT(troubles, ElementsAre(Files::Fault::Full));
  files.bytesFree = 1'000'000;
  Write("K3");
  Write("K4");
  world.Run(1s);
  EXPECT_TRUE(files.content["/home/op/molva/2026/dx-20-Nov-2026.txt"].ends_with(
      "~\r\n2116,14025\r\n2116,14025.0,K3,DL1ABC,,,,,,,,,,,,,,,~\r\n"
      "2116,14025.0,K4,DL1ABC,,,,,,,,,,,,,,,~\r\n"));
  EXPECT_THAT(troubles, ElementsAre(Files::Fault::Full, Files::Fault::None));
}

TEST_F(SpotLogTest, TroubleIsToldWhenTheYearsFolderCannotBeMade) {
  files.denied.insert(kLogFolder);
  log.EnableLoggingSpots();
  EXPECT_THAT(troubles, ElementsAre(Files::Fault::Denied));
}

TEST_F(SpotLogTest, WithLoggingOffThereIsNoTrouble) {
  files.denied.insert(kLogFolder);
  settings.LogDxSpots = false;
  log.EnableLoggingSpots();
  EXPECT_THAT(troubles, IsEmpty());
  settings.LogDxSpots = true;
  log.EnableLoggingSpots();
  settings.LogDxSpots = false;
  log.EnableLoggingSpots();
  EXPECT_THAT(troubles, ElementsAre(Files::Fault::Denied, Files::Fault::None));
}

TEST_F(SpotLogTest, MemoryStaysBoundedWhileTheDiskTakesNothing) {
  files.denied.insert(kLogFolder);
  for (int i = 0; i < 20'000; ++i) Write("K1", i % 2 == 0 ? "20-Nov-2026" : "19-Nov-2026");
  const std::size_t before = MemoryMeter::Live();
  for (int i = 0; i < 200'000; ++i) Write("K1", i % 2 == 0 ? "20-Nov-2026" : "19-Nov-2026");
  EXPECT_LE(MemoryMeter::Live(), before + 1000);
}

TEST_F(SpotLogTest, CrashLosesNoOlderLine) {
  for (const char* call : {"K1", "K2"}) Write(call);
  world.Run(1s);
  Write("K3");
  files.crashAfterBytes = 5;
  EXPECT_THROW(world.Run(1s), platform::sim::Crash);
  EXPECT_THAT(CallsOfToday(), ElementsAre("K1", "K2", ""));
}

}  // namespace
}  // namespace spots
