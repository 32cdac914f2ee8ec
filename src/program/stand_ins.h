#pragma once

#include <map>
#include <set>
#include <string>

#include "session/local_feed.h"
#include "session/requests.h"
#include "session/tnc_retry.h"

namespace program {

// Sends mail, and is not to be interrupted.
class MailSender {
 public:
  virtual ~MailSender() = default;
  virtual bool MailBusy() const = 0;
};

// Takes the place of what this version doesn't have yet, and counts what it was asked for.
class StandIns : public session::LoggerServer,
                 public session::LoginRequests,
                 public session::ClockWork,
                 public session::TncScript,
                 public MailSender {
 public:
  std::map<std::string, int> calls;
  std::set<int> takenPorts;  // on which nothing can listen
  int loggers = 0;           // logging programs that count as connected
  bool mailBusy = false;

  bool EnableLogger(int port) override {
    ++calls["EnableLogger"];
    return !takenPorts.contains(port);
  }
  int LoggersConnected() const override { return loggers; }
  bool MailBusy() const override { return mailBusy; }
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
