#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "platform/sim/world.h"
#include "spots/spot_pipeline.h"

// A plain line, in the columns of a DXSpider node.
struct Line {
  std::string spotter = "DL1ABC";
  std::string kHz = "14025.0";
  std::string call = "3Y0J";
  std::string comment = "CW up 2";
  std::string time = "2116";
  std::string tail = "";  // behind the time

  std::string Text() const;
};

// A spot pipeline at a node that sends plain lines, in a simulated world where it is
// 20 November 2026, 21:00 UTC.
class SpotDesk : public testing::Test {
 protected:
  using Texts = std::vector<std::string>;

  // True if the line was claimed.
  bool Receive(std::string_view line) { return pipeline.dx(line); }
  bool Receive(const Line& line) { return Receive(line.Text()); }
  // A spot of each call on that frequency.
  void ReceiveCalls(const Texts& calls, const std::string& kHz = "14025.0");

  // The calls of rows, "*" for a separator.
  static Texts CallsOf(const std::deque<spots::TableRow>& rows);
  Texts CallsInTable() const { return CallsOf(table.RtbDx.Rows()); }
  Texts CallsInStore(int band, int view) const {
    return CallsOf(table.SpotStore(band, view).Rows());
  }
  // The last row of the table.
  std::string LastRow() const;

  platform::sim::World world;
  core::Calendar calendar{world.clock};
  core::Settings settings;
  spots::NodeFacts node{.Ar17Refused = true, .SessionUp = true};
  int settlingLines = 0;
  spots::SpotPipeline pipeline{
      world.scheduler,
      calendar,
      settings,
      {.nodeFacts = [this] { return node; }, .sendSettlingLine = [this] { ++settlingLines; }}};
  spots::SpotTable& table = pipeline.table;
};
