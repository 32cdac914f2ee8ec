#include "program/ties.h"

#include "program/program.h"

namespace program {

void Ties::GetEm() { program_.spotParts.requests.GetEm(); }

void Ties::GetLatestVersion() { program_.standIns.GetLatestVersion(); }

void Ties::AskSunTimes() { program_.standIns.AskSunTimes(); }

void Ties::HourlyWork() { program_.standIns.HourlyWork(); }

void Ties::Sun() { program_.standIns.Sun(); }

void Ties::DayChange() { program_.standIns.DayChange(); }

void Ties::EnableLoggingSpots() { program_.spotParts.log.EnableLoggingSpots(); }

bool Ties::TakesLines() {
  return program_.standIns.LoggersConnected() > 0 || program_.settings.LocalNetwork ||
         program_.settings.VQLog;
}

void Ties::ForwardRawToLoggers(std::string_view rawLine) { program_.standIns.LoggerRaw(rawLine); }

void Ties::FeedLoggers(std::string_view line) { program_.session.localFeed.SendLocal(line); }

void Ties::FeedLogWindow(std::string_view) {}

void Ties::TellBuddies(const spots::Spot&, std::string_view) {}

// In sight at least, until there is a view for announcements.
void Ties::Announce(std::string_view text, std::string_view) {
  program_.session.outgoing.updateText2(text);
}

bool Ties::CheckAlarm(const spots::Spot&, std::string_view) { return false; }

void Ties::WaveQue(std::string_view) { ++program_.standIns.sounds; }

}  // namespace program
