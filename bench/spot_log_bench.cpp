#include <benchmark/benchmark.h>

#include <string>

#include "core/text.h"
#include "platform/sim/world.h"
#include "program/program.h"
#include "spots/log_files.h"
#include "spots/log_line.h"
#include "spots/spot_log.h"

namespace {

constexpr const char* kFolder = "/home/op/molva";
constexpr int kDays = 7;
constexpr int kSpots = 400'000;

spots::Spot SpotNumber(int number) {
  spots::Spot spot;
  spot.SpotTime = core::Digits(static_cast<unsigned>(number / 60 % 24 * 100 + number % 60), 4);
  spot.Freq = 14000 + number % 3500 / 10.0;
  spot.DxCall = "K" + std::to_string(number % 1000) + "ABC";
  spot.Spotter = number % 2 == 0 ? "DL1ABC-#" : "EA8/DF4UE";
  spot.Comment = number % 3 == 0 ? "CW 21 dB 28 WPM CQ" : "tnx qso, 59 \"big\"";
  spot.LotwMark = "+";
  spot.DxItu = "28";
  spot.OrigCty = "DL";
  spot.OrigGrid = "JN58";
  return spot;
}

// Accepted spots to the system's calls, in memory.
void LogWriting(benchmark::State& state) {
  platform::sim::World world;
  core::Calendar calendar(world.clock);
  core::Settings settings;
  settings.LogDxSpots = true;
  spots::SpotLog log(world.scheduler, world.files, calendar, settings, kFolder,
                     [](platform::Files::Fault) {});
  spots::Spot spot = SpotNumber(1);
  spot.SpotDate = calendar.MakeTodaysDate().date;
  std::string& file = world.files.content[spots::LogPath(kFolder, calendar.Date2Julian())];
  for (auto _ : state) {
    log.Write(spot);
    if (file.size() > 10'000'000) file.clear();
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(LogWriting);

void FillLog(platform::sim::SimFiles& files, int today) {
  for (int day = 0; day < kDays; ++day) {
    std::string& file = files.content[spots::LogPath(kFolder, today - day)];
    for (int i = 0; i < kSpots / kDays; ++i)
      spots::AppendLogLine(SpotNumber(i), spots::LogForm::Daily, file);
  }
}

// The log of a week through the duplicate test into rows and stores.
void LogReload(benchmark::State& state) {
  platform::sim::World world;
  program::Program program(world.platform(), kFolder, {.quit = [] {}, .seed = 1});
  program.Start();
  world.Run(std::chrono::seconds{1});
  program.settings.ReloadHours = kDays * 24;
  program.settings.SpotMemoryAll = program.settings.SpotMemorySingle = 2000;
  FillLog(world.files, program.calendar.Date2Julian());
  spots::SpotReload& reload = program.spotParts.reload;
  for (auto _ : state) {
    reload.ReloadSpots();
    world.RunUntil([&] { return !reload.Reloading.Get(); });
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(reload.SpotsRead.Get()));
  state.counters["spots_shown"] = static_cast<double>(program.spotParts.pipeline.SpotsShown) /
                                  static_cast<double>(state.iterations());
}
BENCHMARK(LogReload)->Unit(benchmark::kMillisecond);

}  // namespace
