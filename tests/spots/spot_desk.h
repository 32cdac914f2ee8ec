#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/sim/world.h"
#include "spots/spot_date.h"
#include "spots/spot_parts.h"

// A plain line, in the columns of a DXSpider node.
struct Line {
  std::string spotter = "DL1ABC";
  std::string kHz = "14025.0";
  std::string call = "3Y0J";
  std::string comment = "CW up 2";
  std::string time = "2116";
  std::string tail{};  // behind the time

  std::string Text() const;
};

// The moment at which a spot desk opens.
inline constexpr spots::Moment kDeskTime = {
    .dayNumber = 20777, .date = "20-Nov-2026", .minutes = 21 * 60};

// A spot pipeline at a node that sends plain lines, in a simulated world where it is
// 20 November 2026, 21:00 UTC.
class SpotDesk : public testing::Test {
 protected:
  using Texts = std::vector<std::string>;

  // True if the line was claimed.
  bool Receive(std::string_view line) { return parts.lines.dx(line); }
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

  // What else hears of spots.
  struct Receivers : spots::SpotReceivers, spots::CountryFilter {
    bool takesLines = false;
    bool alarms = false;                     // of every spot
    bool hasBuddies = false;                 // who wait for every call
    bool limitsCountries = false;            // to none at all
    std::function<void()> checking = [] {};  // an alarm
    Texts raw, fed, logWindow, buddies, announced, sounds;

    bool TakesLines() override { return takesLines; }
    void ForwardRawToLoggers(std::string_view line) override { raw.emplace_back(line); }
    void FeedLoggers(std::string_view line) override { fed.emplace_back(line); }
    void FeedLogWindow(std::string_view line) override { logWindow.emplace_back(line); }
    void TellBuddies(const spots::Spot& spot, std::string_view) override {
      if (hasBuddies) buddies.push_back(spot.DxCall);
    }
    void Announce(std::string_view text, std::string_view) override {
      announced.emplace_back(text);
    }
    bool CheckAlarm(const spots::Spot&, std::string_view) override {
      checking();
      return alarms;
    }
    void WaveQue(std::string_view name) override { sounds.emplace_back(name); }
    bool LimitsDxCountries() const override { return limitsCountries; }
    bool DxCountryTicked(std::string_view) const override { return !limitsCountries; }
  };

  spots::SpotParts::Needs Needs();

  platform::sim::World world;
  platform::Platform platform = world.platform();
  core::Calendar calendar{world.clock};
  core::Settings settings;
  core::ErrorLog errorLog{world.files, world.dialogs, calendar, "/home"};
  spots::NodeFacts node{.Ar17Refused = true, .SessionUp = true};
  Receivers receivers;
  int settlingLines = 0;
  int writes = 0;  // of the settings, asked for
  Texts sent, rawText, messages;
  spots::SpotParts parts{platform, calendar, settings, errorLog, "/home", Needs()};
  spots::SpotTable& table = parts.table;
  spots::SpotPipeline& pipeline = parts.pipeline;
};
