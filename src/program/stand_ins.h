#pragma once

#include <map>
#include <string>

#include "session/forwarding.h"
#include "session/requests.h"

namespace program {

// Takes the place of what this version doesn't have yet, and counts what it was asked for.
class StandIns : public session::LineFeed,
                 public session::LoginRequests,
                 public session::ClockWork {
 public:
  std::map<std::string, int> calls;

  void RawLine(std::string_view) override {}
  void SendLocal(std::string_view) override {}
  void GetEm() override { ++calls["GetEm"]; }
  void GetLatestVersion() override { ++calls["GetLatestVersion"]; }
  void AskSunTimes() override { ++calls["AskSunTimes"]; }
  void HourlyWork() override { ++calls["HourlyWork"]; }
  void Sun() override { ++calls["Sun"]; }
  void DayChange() override { ++calls["DayChange"]; }
  void EnableLoggingSpots() override { ++calls["EnableLoggingSpots"]; }
};

}  // namespace program
