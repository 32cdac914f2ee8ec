#pragma once

#include <string_view>

#include "session/requests.h"
#include "spots/spot_receivers.h"

namespace program {

class Program;

// What parts of the program ask of those above them, passed on to the one that does it.
class Ties : public session::LoginRequests, public session::ClockWork, public spots::SpotReceivers {
 public:
  explicit Ties(Program& program) : program_(program) {}

  void GetEm() override;
  void GetLatestVersion() override;
  void AskSunTimes() override;

  void HourlyWork() override;
  void Sun() override;
  void DayChange() override;
  void EnableLoggingSpots() override;

  bool TakesLines() override;
  void ForwardRawToLoggers(std::string_view rawLine) override;
  void FeedLoggers(std::string_view line) override;
  void FeedLogWindow(std::string_view longLine) override;
  void TellBuddies(const spots::Spot& spot, std::string_view longLine) override;
  void Announce(std::string_view text, std::string_view sender) override;
  bool CheckAlarm(const spots::Spot& spot, std::string_view row) override;
  void WaveQue(std::string_view name) override;

 private:
  Program& program_;
};

}  // namespace program
