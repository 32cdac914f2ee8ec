#include "session/uptime.h"

#include "core/text.h"

namespace session {
namespace {

constexpr float kMinutesADay = 1440;
constexpr float kMinutesAnHour = 60;

float MinutesIn(char unit) {
  switch (unit) {
    case 'd':
      return kMinutesADay;
    case 'h':
      return kMinutesAnHour;
    case 'm':
      return 1;
    case 's':
      return 1.0F / 60;
    default:
      return 0;
  }
}

// "2d 3h 5m": numbers with their units. Nothing at the first word that is none of them.
std::optional<float> OfUnits(std::string_view text) {
  std::optional<float> minutes;
  for (const std::string_view word : core::Split(text, " ")) {
    if (word.empty()) continue;
    const float unit = MinutesIn(word.back());
    if (unit == 0 || core::Left(word, 1).find_first_of("0123456789") != 0) break;
    minutes = minutes.value_or(0) + static_cast<float>(core::ValInt(word)) * unit;
  }
  return minutes;
}

// "2 03:05".
std::optional<float> OfClock(std::string_view text) {
  const core::Position colon = core::InStr(text, ":");
  const core::Position blank = core::InStr(text, " ");
  if (colon == 0 || blank == 0 || blank > colon) return {};
  const auto number = [](std::string_view digits) {
    return static_cast<float>(core::ValInt(digits));  // hours may be too many for minutes in an int
  };
  return number(core::Left(text, blank)) * kMinutesADay +
         number(core::Mid(text, blank + 1, colon - blank - 1)) * kMinutesAnHour +
         number(core::Mid(text, colon + 1, 2));
}

}  // namespace

std::optional<float> UptimeMinutes(std::string_view line) {
  constexpr std::string_view kWord = "Uptime";
  const core::Position at = core::InStr(line, kWord);
  if (at == 0) return {};
  std::string_view rest = core::Mid(line, at + core::Len(kWord));
  if (!core::StartsWith(rest, " ") && !core::StartsWith(rest, ":")) return {};
  rest = core::Trim(core::Mid(rest, 2));
  const auto units = OfUnits(rest);
  return units ? units : OfClock(rest);
}

}  // namespace session
