#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>

#include "session/local_feed.h"
#include "spots/local_reject.h"

namespace program {

// Sends mail, and is not to be interrupted.
class MailSender {
 public:
  virtual ~MailSender() = default;
  virtual bool MailBusy() const = 0;
};

// Takes the place of what this version doesn't have yet, and counts what it was asked for.
class StandIns : public session::LoggerServer, public spots::CountryFilter, public MailSender {
 public:
  std::map<std::string, int> calls;
  std::set<int> takenPorts;  // on which nothing can listen
  int loggers = 0;           // logging programs that count as connected
  bool mailBusy = false;
  std::uint64_t sounds = 0;  // that were put into the queue

  bool EnableLogger(int port) override {
    ++calls["EnableLogger"];
    return !takenPorts.contains(port);
  }
  int LoggersConnected() const override { return loggers; }
  bool MailBusy() const override { return mailBusy; }
  void SendLogger(std::string_view) override {}
  void LoggerRaw(std::string_view) override {}
  bool LimitsDxCountries() const override { return false; }
  bool DxCountryTicked(std::string_view) const override { return true; }
  void GetLatestVersion() { ++calls["GetLatestVersion"]; }
  void AskSunTimes() { ++calls["AskSunTimes"]; }
  void HourlyWork() { ++calls["HourlyWork"]; }
  void Sun() { ++calls["Sun"]; }
  void DayChange() { ++calls["DayChange"]; }
};

}  // namespace program
