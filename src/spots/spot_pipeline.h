#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "core/dates.h"
#include "core/settings.h"
#include "spots/display_choice.h"
#include "spots/duplicates.h"
#include "spots/local_reject.h"
#include "spots/logger_lines.h"
#include "spots/membership.h"
#include "spots/node_facts.h"
#include "spots/reference_data.h"
#include "spots/reject_lists.h"
#include "spots/spot.h"
#include "spots/spot_corrections.h"
#include "spots/spot_list.h"
#include "spots/spot_log.h"
#include "spots/spot_receivers.h"
#include "spots/spot_table.h"

namespace spots {

// The way of a spot from the record that a line has filled to the table.
class SpotPipeline {
 public:
  // What it meets on its way. All outlive the pipeline.
  struct Steps {
    Spot& spot;  // the one at work
    const core::Settings& settings;
    core::Calendar& calendar;
    SpotCorrections& corrections;
    LocalReject& localReject;
    RejectLists& rejects;
    Membership& members;
    Duplicates& duplicates;
    SpotLog& log;
    const DisplayChoice& display;
    const ReferenceData& reference;
    const SpotList& list;
    SpotTable& table;
    SpotReceivers& receivers;
  };
  struct Needs {
    std::function<NodeFacts()> nodeFacts;
    std::function<bool()> zv11Seen;  // the session sends its spots in extended lines
    // Bottom-of-band spots stay spots.
    std::function<bool()> keepsBottomOfBand;
  };

  SpotPipeline(Steps steps, Needs needs);

  std::uint64_t SpotsShown = 0;  // that went into the table, ever
  bool Reloading = false;        // spots come from the log: nothing sounds, nobody else is told

  // The route of a spot whose line has been read.
  void DisplayDx();
  // From an accepted spot to its row; one from the log begins here. A marked duplicate is fed to
  // loggers and goes no farther.
  enum class Mark { None, Duplicate };
  void DisplayDxPart2(Mark mark);

 private:
  bool IsAccepted();
  bool NamesCountry() const;
  void InferMissingDate();
  void MakeLoggerLine();
  void FeedListToLoggers();
  void MakeRow();
  void MakeExpandedRow(const RowLayout& layout);
  void UpdateText5(std::size_t commentField);
  void FeedLoggers();
  LoggerLineOptions LineOptions() const;

  Steps steps_;
  Spot& spot_;
  Needs needs_;
  std::string row_;  // these are being made
  std::string longLine_;
  std::string shortLine_;
  std::string announcement_;
};

}  // namespace spots
