#include <benchmark/benchmark.h>

#include <fstream>
#include <string>
#include <vector>

#include "platform/sim/world.h"
#include "program/program.h"

namespace {

// A mixed stream as a busy node sends it: mostly spots, some announcements, prompts and escapes.
std::string MixedStream(int lines) {
  const std::vector<std::string> kinds = {
      "DX de DL1ABC:    14025.0  3Y0J         CW up 2                        2210Z\a\a",
      "DX de G3XYZ-#:   18100.1  PY2AA        CW 21 dB 28 WPM CQ             2210Z\a\a",
      "DX de K1TST:      7012.3  VK9XX/P      this comment is far longer tha 2210Z JN58\a\a",
      "DX de EA8/DF4UE: 21149.0  PY2BB        100%25 copy %41                2211Z",
      "To ALL de G3XYZ: good conditions on 6 m tonight",
      "WWV de VE7CC <18Z> :   SFI=151, A=8, K=2, No Storms -> No Storms",
      "K1TST-2 de N0NODE 20-Nov-2026 2211Z  dxspider >",
  };
  constexpr std::size_t kCallColumn = 26;
  std::string stream;
  for (int i = 0; i < lines; ++i) {
    const bool spot = i % 10 < 8;
    const auto kind = static_cast<std::size_t>(spot ? i % 4 : 4 + i / 10 % 3);
    std::string line = kinds[kind];
    if (spot) line.replace(kCallColumn, 6, "K" + std::to_string(10'000 + i));  // none comes twice
    stream += line + "\r\n";
  }
  return stream;
}

// A program that has logged in to a DXSpider.
class Running {
 public:
  Running() : program(world.platform(), "/home/op/molva", {.quit = [] {}, .seed = 1}) {
    program.Start();
    world.Run(std::chrono::seconds{1});
    program.session.state.LoggedIn = true;
    program.session.state.Recognise(session::NodeKind::Spider);
    program.session.state.LoginFinished = true;
  }
  void Take(const std::string& stream) {
    for (const char byte : stream)
      program.session.intake.InputCharacter(static_cast<std::uint8_t>(byte));
  }

  platform::sim::World world;
  program::Program program;
};

// From received bytes through framing, the whole chain, the raw view, the spot stores and the
// table.
void Intake(benchmark::State& state) {
  Running running;
  constexpr int kLines = 10'000;
  const std::string stream = MixedStream(kLines);
  for (auto _ : state) running.Take(stream);
  state.SetItemsProcessed(state.iterations() * kLines);
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(stream.size()));
  state.counters["spots_shown"] =
      static_cast<double>(running.program.spotParts.pipeline.SpotsShown);
}
BENCHMARK(Intake)->Unit(benchmark::kMillisecond);

double ResidentMegabytes() {
  std::ifstream statm("/proc/self/statm");
  double total = 0, resident = 0;
  statm >> total >> resident;
  return resident * 4096 / 1e6;
}

// The memory that the process holds once the stores and rings are full, and two million lines
// later.
void MillionsOfLines(benchmark::State& state) {
  Running running;
  const std::string stream = MixedStream(10'000);
  for (auto _ : state) {
    for (int i = 0; i < 100; ++i) running.Take(stream);
    state.counters["MB_at_a_million"] = ResidentMegabytes();
    for (int i = 0; i < 200; ++i) running.Take(stream);
    state.counters["MB_two_million_later"] = ResidentMegabytes();
  }
}
BENCHMARK(MillionsOfLines)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
