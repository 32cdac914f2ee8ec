#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "core/dates.h"
#include "core/settings.h"
#include "platform/scheduler.h"
#include "spots/node_facts.h"
#include "spots/settling.h"
#include "spots/spot.h"
#include "spots/spot_table.h"

namespace spots {

// The way of a spot from the node's line to the table.
class SpotPipeline {
 public:
  struct Needs {
    std::function<NodeFacts()> nodeFacts;
    std::function<void()> sendSettlingLine;  // sends an empty line to the node
  };

  // The references outlive the pipeline.
  SpotPipeline(const platform::Scheduler& scheduler, core::Calendar& calendar,
               const core::Settings& settings, Needs needs);

  SpotTable table;
  Spot spot;              // the one at work
  bool Zv11Seen = false;  // the session sends its spots in extended lines: plain ones say no more
  std::uint64_t SpotsShown = 0;  // that went into the table, ever

  // The row of the chain for plain lines. True for a line that is a spot's, whatever comes of it.
  bool dx(std::string_view line);

  // The route of a spot whose line has been read.
  void DisplayDx();

 private:
  void InferMissingDate();
  void DisplayDxPart2();
  void UpdateText5(std::string_view row, std::uint32_t shape, std::size_t commentField);

  core::Calendar& calendar_;
  Needs needs_;
  Settling settling_;
  std::string row_;  // being made
};

}  // namespace spots
