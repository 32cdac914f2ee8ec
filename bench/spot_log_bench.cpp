#include <benchmark/benchmark.h>

#include <string>

#include "core/text.h"
#include "platform/sim/world.h"
#include "spots/bands.h"
#include "spots/classic_row.h"
#include "spots/log_files.h"
#include "spots/log_line.h"
#include "spots/spot_log.h"
#include "spots/spot_reload.h"
#include "spots/spot_table.h"

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

// The log of a week into rows and stores; the duplicate test finds none.
void LogReload(benchmark::State& state) {
  platform::sim::World world;
  core::Calendar calendar(world.clock);
  core::Settings settings;
  settings.ReloadHours = kDays * 24;
  settings.SpotMemoryAll = settings.SpotMemorySingle = 2000;
  FillLog(world.files, calendar.Date2Julian());
  spots::SpotTable table(calendar, settings);
  std::string row;
  spots::SpotReload reload(world.scheduler, world.files, calendar, settings, kFolder,
                           {.closeLog = [] {},
                            .holdIntake = [] { return platform::Registration(); },
                            .showRaw = [](std::string_view) {},
                            .isDupe = [](const spots::Spot&) { return false; },
                            .record = [](const spots::Spot&) {},
                            .rejectCounty = [](const spots::Spot&) { return false; },
                            .show =
                                [&](spots::Spot& spot) {
                                  spots::ClassicRow(spot, row);
                                  table.Add(row, spots::BandOf(spot.Freq));
                                },
                            .redraw = [] {}},
                           [](std::string_view, std::string_view) {});
  for (auto _ : state) {
    reload.ReloadSpots();
    world.RunUntil([&] { return !reload.Reloading.Get(); });
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(reload.SpotsRead.Get()));
}
BENCHMARK(LogReload)->Unit(benchmark::kMillisecond);

}  // namespace
