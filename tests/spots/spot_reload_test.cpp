#include "spots/spot_reload.h"

#include <gmock/gmock.h>

#include <functional>
#include <random>

#include "platform/sim/world.h"

namespace spots {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

constexpr const char* kReloadFolder = "/home/op/molva";
constexpr const char* kToday = "20-Nov-2026";
constexpr const char* kYesterday = "19-Nov-2026";
constexpr const char* kScratch = "/home/op/molva/2026/tmp.txt";

// It is 20 November 2026, 21:00 UTC; the last 12 hours are reloaded. Equal comments make a
// duplicate here.
class SpotReloadTest : public testing::Test {
 protected:
  using Texts = std::vector<std::string>;

  static std::string Line(const std::string& time, const std::string& call,
                          const std::string& comment = "") {
    return time + ",14025.0," + call + ",DL1ABC,," + (comment.empty() ? call : comment) +
           ",,,,,,,,,,,,,~\r\n";
  }
  std::string& File(const std::string& date) {
    return world.files.content[kReloadFolder + ("/" + date.substr(7)) + "/dx-" + date + ".txt"];
  }
  void Reload() {
    reload.ReloadSpots();
    world.RunUntil([this] { return !reload.Reloading.Get(); });
  }
  SpotReload::Needs Needs() {
    return {.closeLog = [this] { ++logsClosed; },
            .holdIntake =
                [this] {
                  ++holds;
                  return platform::Registration([this] { --holds; });
                },
            .showRaw =
                [this](std::string_view text) {
                  raw.emplace_back(text);
                  toldWhileReloading.push_back(reload.Reloading.Get());
                },
            .isDupe =
                [this](const Spot& spot) {
                  minutes.push_back(spot.SpotMinute);
                  return !comments.insert(spot.Comment).second;
                },
            .record = [this](const Spot& spot) { recorded.push_back(spot.DxCall); },
            .rejectCounty = [](const Spot& spot) { return spot.DxCall.ends_with("/ABC"); },
            .show = [this](Spot& spot) { Show(spot); }};
  }
  void Show(const Spot& spot) {
    shown.push_back(spot.DxCall);
    dates.insert(spot.SpotDate);
    EXPECT_EQ(holds, 1);
    EXPECT_TRUE(reload.Reloading.Get());
    if (onShow) onShow();
  }

  platform::sim::World world;
  core::Calendar calendar{world.clock};
  core::Settings settings;
  int logsClosed = 0;
  int holds = 0;
  Texts raw, recorded, shown;
  std::set<std::string> comments, dates;
  std::vector<int> minutes;
  std::vector<bool> toldWhileReloading;
  std::function<void()> onShow;
  Texts faults;
  SpotReload reload{world.scheduler,
                    world.files,
                    calendar,
                    settings,
                    kReloadFolder,
                    Needs(),
                    [this](std::string_view name, std::string_view what) {
                      faults.push_back(std::string(name) + ": " + std::string(what));
                    }};
};

TEST_F(SpotReloadTest, ShowsTheSpotsOfTheLogInTheirOrder) {
  File(kToday) = Line("2050", "3Y0J") + Line("2055", "PY2AA");
  Reload();
  EXPECT_THAT(shown, ElementsAre("3Y0J", "PY2AA"));
  EXPECT_THAT(recorded, ElementsAre("3Y0J", "PY2AA"));
  EXPECT_THAT(dates, ElementsAre(kToday));
  EXPECT_EQ(reload.SpotsRead.Get(), 2u);
}

TEST_F(SpotReloadTest, TellsInTheRawViewWhatItReads) {
  settings.ReloadHours = 30;
  File(kToday) = Line("2050", "3Y0J");
  Reload();
  EXPECT_THAT(raw, ElementsAre("Reloading Dx Spots From Log File", "dx-19-Nov-2026.txt   ",
                               "      File not found", "dx-20-Nov-2026.txt   ", "Reload Complete"));
}

TEST_F(SpotReloadTest, BeginsWithTheOldestFileThatTheLimitTouches) {
  settings.ReloadHours = 21;  // midnight sharp
  Reload();
  EXPECT_THAT(raw, Not(testing::Contains("dx-19-Nov-2026.txt   ")));
  raw.clear();
  settings.ReloadHours = 22;
  Reload();
  EXPECT_THAT(raw, testing::Contains("dx-19-Nov-2026.txt   "));
}

TEST_F(SpotReloadTest, GoesBackOverTheYear) {
  world.clock.Set(std::chrono::sys_days{2027y / 1 / 1} + 3h);
  File("31-Dec-2026") = Line("2350", "3Y0J");
  File("01-Jan-2027") = Line("0007", "PY2AA");
  Reload();
  EXPECT_THAT(shown, ElementsAre("3Y0J", "PY2AA"));
  EXPECT_THAT(dates, ElementsAre("01-Jan-2027", "31-Dec-2026"));
  EXPECT_EQ(minutes[1] - minutes[0], 17);
}

TEST_F(SpotReloadTest, OnlySpotsBehindTheLimitAreShownButAllAreRecorded) {
  File(kToday) = Line("0859", "K1A") + Line("0900", "K1B") + Line("0901", "K1C");
  Reload();
  EXPECT_THAT(shown, ElementsAre("K1C"));
  EXPECT_THAT(recorded, ElementsAre("K1A", "K1B", "K1C"));
}

TEST_F(SpotReloadTest, OfTwoIdenticalSpotsOneIsShown) {
  File(kToday) = Line("2050", "3Y0J") + Line("2050", "3Y0J");
  Reload();
  EXPECT_THAT(shown, ElementsAre("3Y0J"));
  EXPECT_THAT(recorded, ElementsAre("3Y0J"));
  EXPECT_EQ(reload.SpotsRead.Get(), 2u);
}

TEST_F(SpotReloadTest, CountyThatIsRejectedIsRecordedButNotShown) {
  File(kToday) = Line("2050", "N0CALL/ABC") + Line("2051", "PY2AA");
  Reload();
  EXPECT_THAT(shown, ElementsAre("PY2AA"));
  EXPECT_THAT(recorded, ElementsAre("N0CALL/ABC", "PY2AA"));
}

TEST_F(SpotReloadTest, LineInTheOldFormReloadsLikeANewOne) {
  File(kToday) = "2050^14025.0^3Y0J^DL1ABC^^tnx, qsl^~\r\n" + Line("2051", "PY2AA");
  Reload();
  EXPECT_THAT(shown, ElementsAre("3Y0J", "PY2AA"));
  EXPECT_TRUE(comments.contains("tnx, qsl"));
}

TEST_F(SpotReloadTest, CommentWithACommaComesBack) {
  File(kToday) = Line("2050", "3Y0J", "%22tnx%22%2C 100% %5E qsl");
  Reload();
  EXPECT_THAT(comments, ElementsAre("\"tnx\", 100% ^ qsl"));
}

TEST_F(SpotReloadTest, FileWithBareLineFeedsIsReadToo) {
  std::string bare = Line("2050", "3Y0J") + Line("2051", "PY2AA");
  std::erase(bare, '\r');
  File(kToday) = bare;
  Reload();
  EXPECT_THAT(shown, ElementsAre("3Y0J", "PY2AA"));
}

TEST_F(SpotReloadTest, LastLineThatACrashCutIsSkippedAWholeOneIsNot) {
  const std::string whole = Line("2050", "3Y0J");
  File(kToday) = whole + Line("2051", "PY2AA").substr(0, 24);
  Reload();
  EXPECT_THAT(shown, ElementsAre("3Y0J"));
  comments.clear();
  File(kToday) = whole.substr(0, whole.size() - 2);
  Reload();
  EXPECT_THAT(shown, ElementsAre("3Y0J", "3Y0J"));
}

TEST_F(SpotReloadTest, FileThatCannotBeReadDoesNotHoldTheNext) {
  settings.ReloadHours = 24;
  File(kYesterday) = Line("2350", "3Y0J");
  File(kToday) = Line("2050", "PY2AA");
  world.files.denied.insert("/home/op/molva/2026/dx-19-Nov-2026.txt");
  Reload();
  EXPECT_THAT(shown, ElementsAre("PY2AA"));
  EXPECT_THAT(raw, testing::Contains("      File can't be read"));
  EXPECT_EQ(raw.back(), "Reload Complete");
}

TEST_F(SpotReloadTest, ScratchCopyHoldsWhatIsNoDuplicateWhileItsFileIsRead) {
  std::string& file = File(kToday);
  for (int i = 0; i < 150; ++i) file += Line("2050", "K1A") + Line("2051", "3Y0J");
  world.files.content[kScratch] = "old";
  reload.ReloadSpots();
  EXPECT_EQ(world.files.content[kScratch],
            "2050^14025.0^K1A^DL1ABC^^K1A^^^^^^^^^^^^^~\r\n"
            "2051^14025.0^3Y0J^DL1ABC^^3Y0J^^^^^^^^^^^^^~\r\n");
  world.Run(1s);
  EXPECT_FALSE(world.files.content.contains(kScratch));
}

TEST_F(SpotReloadTest, DiskThatTakesNoScratchCopyIsNoReasonToStop) {
  for (int i = 0; i < 150; ++i) File(kToday) += Line("2050", "K" + std::to_string(i));
  world.files.bytesFree = 100;
  Reload();
  EXPECT_EQ(shown.size(), 150u);
  world.files.denied.insert(kScratch);
  comments.clear();
  Reload();
  EXPECT_EQ(shown.size(), 300u);
  EXPECT_EQ(raw.back(), "Reload Complete");
}

TEST_F(SpotReloadTest, LogIsClosedFirst) {
  File(kToday) = Line("2050", "3Y0J");
  onShow = [this] { EXPECT_EQ(logsClosed, 1); };
  Reload();
  EXPECT_EQ(logsClosed, 1);
}

TEST_F(SpotReloadTest, IntakeIsHeldUntilItsEnd) {
  for (int i = 0; i < 150; ++i) File(kToday) += Line("2050", "K" + std::to_string(i));
  reload.ReloadSpots();
  EXPECT_EQ(holds, 1);
  world.Run(1s);
  EXPECT_EQ(holds, 0);
}

TEST_F(SpotReloadTest, EndIsToldWhenTheFlagIsClear) {
  File(kToday) = Line("2050", "3Y0J");
  Reload();
  EXPECT_THAT(toldWhileReloading, ElementsAre(true, true, false));
}

TEST_F(SpotReloadTest, OthersHaveTheirTurnAfterEachHundredLines) {
  for (int i = 0; i < 250; ++i) File(kToday) += Line("2050", "K" + std::to_string(i));
  std::vector<std::size_t> seen;
  std::function<void()> look = [&] {
    seen.push_back(shown.size());
    if (reload.Reloading.Get()) world.scheduler.Post(look).Keep();
  };
  reload.ReloadSpots();
  look();
  world.Run(1s);
  seen.resize(3);
  EXPECT_THAT(seen, ElementsAre(100u, 200u, 250u));
}

TEST_F(SpotReloadTest, CounterRisesWhileItReads) {
  for (int i = 0; i < 250; ++i) File(kToday) += Line("2050", "K" + std::to_string(i));
  std::vector<std::uint64_t> counts;
  const auto watching =
      reload.SpotsRead.Observe([&](std::uint64_t count) { counts.push_back(count); });
  Reload();
  EXPECT_THAT(counts, ElementsAre(0u, 100u, 200u, 250u));
}

TEST_F(SpotReloadTest, StopEndsItBehindTheLine) {
  settings.ReloadHours = 24;
  for (int i = 0; i < 150; ++i) File(kYesterday) += Line("2250", "K" + std::to_string(i));
  File(kToday) = Line("2050", "3Y0J");
  onShow = [this] {
    if (shown.size() == 120) reload.Stop();
  };
  Reload();
  EXPECT_EQ(shown.size(), 120u);
  EXPECT_EQ(reload.SpotsRead.Get(), 120u);
  EXPECT_THAT(raw, ElementsAre("Reloading Dx Spots From Log File", "dx-19-Nov-2026.txt   ",
                               "Reload Aborted"));
  EXPECT_FALSE(world.files.content.contains(kScratch));
  EXPECT_EQ(holds, 0);
  EXPECT_FALSE(toldWhileReloading.back());
}

TEST_F(SpotReloadTest, StopThatCameBeforeDoesNotEndTheNext) {
  reload.Stop();
  File(kToday) = Line("2050", "3Y0J");
  Reload();
  EXPECT_THAT(shown, ElementsAre("3Y0J"));
}

TEST_F(SpotReloadTest, SecondReloadWaitsForItsOwnRequest) {
  for (int i = 0; i < 150; ++i) File(kToday) += Line("2050", "K" + std::to_string(i));
  reload.ReloadSpots();
  reload.ReloadSpots();
  world.Run(1s);
  EXPECT_EQ(shown.size(), 150u);
  EXPECT_EQ(raw.size(), 3u);
}

TEST_F(SpotReloadTest, StepThatFailsEndsTheReloadAndLetsIntakeGo) {
  File(kToday) = Line("2050", "3Y0J");
  onShow = [] { throw std::runtime_error("broken"); };
  Reload();
  world.Run(1s);
  EXPECT_THAT(faults, ElementsAre("ReloadSpots: broken"));
  EXPECT_EQ(holds, 0);
  EXPECT_FALSE(reload.Reloading.Get());
  EXPECT_FALSE(world.files.content.contains(kScratch));
}

TEST_F(SpotReloadTest, ItsEndInTheMiddleLetsIntakeGo) {
  for (int i = 0; i < 250; ++i) File(kToday) += Line("2050", "K" + std::to_string(i));
  {
    SpotReload other(world.scheduler, world.files, calendar, settings, kReloadFolder,
                     {.closeLog = [] {},
                      .holdIntake = Needs().holdIntake,
                      .showRaw = [](std::string_view) {},
                      .isDupe = [](const Spot&) { return false; },
                      .record = [](const Spot&) {},
                      .rejectCounty = [](const Spot&) { return false; },
                      .show = [](Spot&) {}},
                     [](std::string_view, std::string_view) {});
    other.ReloadSpots();
    EXPECT_EQ(holds, 1);
  }
  EXPECT_EQ(holds, 0);
  EXPECT_FALSE(world.files.content.contains(kScratch));
}

TEST_F(SpotReloadTest, ClockThatJumpsMeanwhileChangesNothing) {
  for (int i = 0; i < 150; ++i) File(kToday) += Line("0901", "K" + std::to_string(i));
  onShow = [this] {
    if (shown.size() == 50) world.clock.Set(world.clock.UtcNow() + 4h);
  };
  Reload();
  EXPECT_EQ(shown.size(), 150u);
  EXPECT_THAT(dates, ElementsAre(kToday));
}

TEST_F(SpotReloadTest, HoursOutOfAnyRangeAreHeldWithinAYear) {
  settings.ReloadHours = std::numeric_limits<int>::max();
  Reload();
  EXPECT_EQ(raw.size(), 2u + 2u * 367u);  // each day's name, and that it isn't there
  raw.clear();
  settings.ReloadHours = -3;
  Reload();
  EXPECT_EQ(raw.size(), 2u + 2u);
}

TEST_F(SpotReloadTest, SevenDaysWithBrokenShortOverlongAndBinaryLines) {
  settings.ReloadHours = 7 * 24;
  std::mt19937 random(7);
  for (int day = 0; day < 7; ++day) {
    std::string& file = File(core::EnglishDate(calendar.Date2Julian() - day));
    for (int line = 0; line < 60'000; ++line) {
      const std::string good = Line("1200", "K" + std::to_string(day) + "A" + std::to_string(line));
      if (line % 100 == 0) {
        file += good;
      } else if (line % 4 == 0) {
        file += good.substr(0, random() % 16) + "\r\n";
      } else if (line % 4 == 1) {
        for (int i = 0; i < 30; ++i) file += static_cast<char>(random() % 32);
      } else if (line % 4 == 2) {
        file += "x" + good;
      } else if (line % 1000 == 3) {
        file += std::string(50'000, ',') + "\r\n";
      }
    }
  }
  Reload();
  EXPECT_EQ(raw.back(), "Reload Complete");
  EXPECT_THAT(faults, IsEmpty());
  // The first day lies before the limit.
  EXPECT_EQ(recorded.size(), 7u * 600u);
  for (const std::string& call : shown) ASSERT_TRUE(call.starts_with("K"));
}

TEST_F(SpotReloadTest, FileOfLineEndsAloneIsReadToItsEnd) {
  File(kToday) = std::string(200'000, '\n') + Line("2050", "3Y0J");
  Reload();
  EXPECT_THAT(shown, ElementsAre("3Y0J"));
}

}  // namespace
}  // namespace spots
