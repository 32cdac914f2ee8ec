#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/dates.h"
#include "platform/files.h"
#include "platform/scheduler.h"
#include "spots/call_list.h"
#include "spots/node_facts.h"

namespace spots {

// Collects in "grid.txt" the grids of calls that the list "data/grid/grid.dat" doesn't have, for
// the one who keeps that list:
//   K1ABC FN42 261120
// Nothing happens without a list.
class GridRecorder {
 public:
  // What a node may fill "grid.txt" with.
  static constexpr std::uint64_t kMostBytes = std::uint64_t{4} << 20;

  // All three outlive the recorder. The folder is the one that holds the program's data files.
  GridRecorder(platform::Files& files, const platform::Scheduler& scheduler,
               core::Calendar& calendar, const std::string& folder);

  // Whether there is a list; looked at again now and then.
  bool HasGridList();
  // Of a node of another kind than DXSpider nothing is taken.
  void RecordGrid(std::string_view grid, std::string_view call, const NodeFacts& node);

 private:
  void ReadGridList();

  platform::Files& files_;
  const platform::Scheduler& scheduler_;
  core::Calendar& calendar_;
  const std::string listPath_;
  const std::string recordPath_;
  CallList gridList_;
  bool hasGridList_ = false;
  std::uint64_t gridListLength_ = 0;
  std::optional<platform::Milliseconds> lookedAt_;
};

}  // namespace spots
