#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "platform/sim/world.h"
#include "spots/fix_list.h"

namespace {

// One entry in five is a prefix.
std::string FixText(int entries) {
  std::string text;
  for (int i = 0; i < entries; ++i) {
    const std::string number = std::to_string(i);
    text += (i % 5 == 0 ? "X" + number + "*" : "DL" + number + "AB") + ",DL,,14,28,JO60\r\n";
  }
  return text;
}

// Both sides of a spot, one in four with an entry; the cost is that of a short list.
void SpotFix(benchmark::State& state) {
  platform::sim::World world;
  core::Calendar calendar(world.clock);
  core::ErrorLog errorLog(world.files, world.dialogs, calendar, "/f");
  world.files.content["/f/fixspots.dat"] = FixText(static_cast<int>(state.range(0)));
  spots::FixList list(world.files, world.scheduler, errorLog, "/f");
  list.ReadFixSpots();
  spots::ShownColumns columns;
  columns.DxCty = columns.DxCq = columns.DxItu = columns.DxGrid = true;
  const spots::NodeFacts node;
  const std::vector<std::string> calls = {"K1ABC", "G3XYZ-#", "X5AB", "EA8/DF4UE-#",
                                          "DL6AB", "3DA0XYZ", "W2BB", "JA1ZZZ/QRP"};
  std::string cty, stateName, cq, itu, grid;
  std::size_t next = 0;
  for (auto _ : state) {
    cty.clear();
    for (int side = 0; side < 2; ++side)
      benchmark::DoNotOptimize(list.ApplySpotFix(calls[next++ % calls.size()],
                                                 {cty, stateName, cq, itu, grid},
                                                 {.shown = columns, .node = node}));
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(SpotFix)->Arg(10)->Arg(1'000)->Arg(50'000);

}  // namespace
