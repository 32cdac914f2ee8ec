#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "platform/sim/world.h"
#include "spots/membership.h"

namespace {

constexpr std::size_t kLotwCalls = 300'000;
constexpr std::size_t kEqslCalls = 150'000;

// Calls of the usual shape and length, no two the same.
std::string CallOf(std::size_t number) {
  std::string call = {static_cast<char>('A' + number % 26),
                      static_cast<char>('0' + number / 26 % 10)};
  for (number /= 260; call.size() < 5; number /= 26) call += static_cast<char>('A' + number % 26);
  return call;
}

std::string LotwText() {
  std::string text = "LOTW\r\n";
  for (std::size_t i = 0; i < kLotwCalls; ++i) {
    std::string call = CallOf(i);
    call.resize(14, ' ');
    text += call + (i % 5 == 4 ? "\r\n" : "");
  }
  return text + "&&\r\n";
}

std::string EqslText() {
  std::string text = "LIST OF AG MEMBERS AS OF 20-NOV-2026\r\n";
  text.insert(0, "THE ");
  for (std::size_t i = 0; i < kEqslCalls; ++i) text += CallOf(i * 2) + "\r\n";
  return text;
}

class Members {
 public:
  Members() {
    world.files.content["/f/lotw.txt"] = LotwText();
    world.files.content["/f/eqsl.txt"] = EqslText();
    settings.ShLoTW = settings.SheQSL = true;
    membership.TakeSettings();
    membership.ReadLotw();
    membership.ReadeQSL();
  }

  platform::sim::World world;
  core::Settings settings;
  spots::Membership membership{world.files, "/f", settings, [](spots::Membership::List) {}};
};

// The start of the program, the eQSL file being in order already.
void MembershipLoad(benchmark::State& state) {
  Members members;
  for (auto _ : state) {
    members.membership.ReadLotw();
    members.membership.ReadeQSL();
  }
  state.counters["calls"] =
      static_cast<double>(members.membership.LotwCount() + members.membership.EqslCount());
  state.counters["bytes"] = static_cast<double>(members.membership.Memory());
}
BENCHMARK(MembershipLoad)->Unit(benchmark::kMillisecond);

// The eQSL file as it is fetched: it is sorted and rewritten.
void MembershipLoadFetched(benchmark::State& state) {
  Members members;
  const std::string fetched = EqslText();
  for (auto _ : state) {
    members.world.files.content["/f/eqsl.txt"] = fetched;
    members.membership.ReadeQSL();
  }
}
BENCHMARK(MembershipLoadFetched)->Unit(benchmark::kMillisecond);

// One spot in three of a station that is on neither list.
void MembershipMark(benchmark::State& state) {
  Members members;
  std::vector<spots::Spot> heard(4096);
  for (std::size_t i = 0; i < heard.size(); ++i)
    heard[i].DxCall = CallOf(i * 7919 % kLotwCalls) + (i % 3 == 0 ? "/P" : "");
  std::size_t next = 0;
  for (auto _ : state)
    benchmark::DoNotOptimize(members.membership.MarkSpot(heard[next++ % heard.size()]));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(MembershipMark);

}  // namespace
