#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "platform/sim/world.h"
#include "spots/spot_pipeline.h"

namespace {

// Spots of many stations on all bands, one in two a Skimmer's.
std::vector<std::string> SpotLines() {
  const std::vector<std::string> ends = {
      "  3Y0J         CW up 2                        2210Z",
      "  PY2AA        CW 21 dB 28 WPM CQ             2210Z JN58",
      "  VK9XX/P      this comment is far longer tha 2211Z",
      "  K6NNN/QRPP/M tnx   qso    es  gl W        6 2211Z",
  };
  const std::vector<std::string> starts = {
      "DX de DL1ABC:    14025.0",  "DX de G3XYZ-#:   18100.1", "DX de K1TST:      7012.3",
      "DX de EA8/DF4UE-#:21149.0", "DX de K2AAA:    144300.0",
  };
  std::vector<std::string> lines;
  for (const auto& start : starts)
    for (const auto& end : ends) lines.push_back(start + end);
  return lines;
}

// From a whole line to its row in the stores and the table, with memories that are full.
void Spots(benchmark::State& state) {
  platform::sim::World world;
  core::Calendar calendar(world.clock);
  core::Settings settings;
  settings.SpotMemoryAll = settings.SpotMemorySingle = static_cast<int>(state.range(0));
  const spots::NodeFacts node{.Ar17Refused = true, .SessionUp = true};
  spots::SpotPipeline pipeline(world.scheduler, calendar, settings,
                               {.nodeFacts = [&] { return node; }, .sendSettlingLine = [] {}});
  const std::vector<std::string> lines = SpotLines();
  std::size_t next = 0;
  for (int i = 0; i < state.range(0) * 20; ++i) pipeline.dx(lines[next++ % lines.size()]);
  for (auto _ : state) pipeline.dx(lines[next++ % lines.size()]);
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(Spots)->Arg(20)->Arg(200)->Arg(2000);

}  // namespace
