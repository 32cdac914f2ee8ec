#pragma once

#include <map>
#include <string>

#include "session/local_feed.h"
#include "session/requests.h"
#include "session/tnc_retry.h"

namespace program {

// Takes the place of what this version doesn't have yet, and counts what it was asked for.
class StandIns : public session::LoggerServer,
                 public session::LoginRequests,
                 public session::ClockWork,
                 public session::TncScript {
 public:
  std::map<std::string, int> calls;

  bool Connected() const override { return false; }
  void SendLogger(std::string_view) override {}
  void LoggerRaw(std::string_view) override {}
  void GetEm() override { ++calls["GetEm"]; }
  void GetLatestVersion() override { ++calls["GetLatestVersion"]; }
  void AskSunTimes() override { ++calls["AskSunTimes"]; }
  void HourlyWork() override { ++calls["HourlyWork"]; }
  void Sun() override { ++calls["Sun"]; }
  void DayChange() override { ++calls["DayChange"]; }
  void EnableLoggingSpots() override { ++calls["EnableLoggingSpots"]; }
  void Connect() override { ++calls["Connect"]; }
  void DisconnectTNC() override { ++calls["DisconnectTNC"]; }
};

}  // namespace program
