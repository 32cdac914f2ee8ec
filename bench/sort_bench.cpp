#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "spots/classic_row.h"
#include "spots/sorted_view.h"

namespace {

// Rows of many stations on 20 metres within the last hour, in the order of their coming.
std::deque<spots::TableRow> Rows(std::int64_t count) {
  const spots::RowLayout layout = spots::ArPcScreenSetup({});
  std::deque<spots::TableRow> rows;
  spots::Spot spot;
  spot.LotwMark = " ";
  spot.Comment = "CW 21 dB 28 WPM CQ";
  for (std::int64_t i = 0; i < count; ++i) {
    spot.Freq = 14000 + static_cast<double>(i * 7919 % 3500) / 10;
    spot.DxCall = "K" + std::to_string(i * 31 % 1000) + "TST";
    spot.Spotter = "DL" + std::to_string(i % 97) + "ABC-#";
    spot.SpotHHMM = static_cast<int>(2000 + i * 59 / count);
    spot.SpotTime = std::to_string(spot.SpotHHMM);
    std::string text;
    const std::size_t commentField = spots::ClassicRow(spot, layout, {}, text);
    rows.emplace_back(text, spots::TableRow::Kind::Skimmer, 6,
                      spots::RowSpotOf(spot, spots::Packed(layout.shape), commentField));
  }
  return rows;
}

constexpr spots::SortMoment kNow{.minutes = 20 * 60 + 59, .day = 20};
constexpr int kPaneRows = 50;

// A view that is made anew, down to the rows to be shown. The first argument is its button.
void SortedViewAnew(benchmark::State& state) {
  const std::deque<spots::TableRow> rows = Rows(state.range(1));
  spots::SortedView view;
  view.SetPaneRows(kPaneRows);
  for (auto _ : state) {
    view.Begin(static_cast<int>(state.range(0)), true);
    view.Run(rows, kNow);
    benchmark::DoNotOptimize(view.Rows(false));
  }
}
BENCHMARK(SortedViewAnew)
    ->ArgsProduct({{spots::kLastHour, 2, 3}, {2000, 20'000}})
    ->Unit(benchmark::kMillisecond);

// What a tick takes with ten new rows.
void SortedViewTick(benchmark::State& state) {
  const std::deque<spots::TableRow> rows = Rows(2000);
  spots::SortedView view;
  view.SetPaneRows(kPaneRows);
  view.Begin(static_cast<int>(state.range(0)), true);
  view.Run(rows, kNow);
  for (auto _ : state) {
    for (std::size_t i = 0; i < 10; ++i) view.Queue(rows[i * 150]);
    view.Run(rows, kNow);
    benchmark::DoNotOptimize(view.Rows(false));
  }
}
BENCHMARK(SortedViewTick)->Arg(spots::kLastHour)->Arg(2)->Unit(benchmark::kMillisecond);

}  // namespace
