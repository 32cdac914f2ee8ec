#pragma once

#include <array>
#include <chrono>
#include <string>
#include <string_view>

#include "platform/clock.h"

namespace core {

using LocalTime = std::chrono::local_time<std::chrono::milliseconds>;

inline constexpr int kMinutesOfDay = 24 * 60;

// By the month's number; the first is no month. Never the system's language.
inline constexpr std::array<std::string_view, 13> kMonthNames = {
    "", "Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

// The date of a day number, which counts days since 1 January 1970, as "05-Jan-2026".
std::string EnglishDate(int dayNumber);

// "2026-01-05 21:07:09".
std::string TimeStamp(LocalTime time);

// A span in seconds with one to three decimals, rounded half up, and so many digits before the point
// at least: "001.25".
std::string Seconds(std::chrono::milliseconds span, std::size_t width, std::size_t decimals);

// What the date and the time are, in the forms that the program shows and stores.
class Calendar {
 public:
  // The clock outlives the calendar.
  explicit Calendar(const platform::Clock& clock) : clock_(clock) {}

  // The setting of that name: "Ok" for the zone that the system knows, or a number: the hours that
  // local time needs added to be UTC ("-5.5" in India), held within a day.
  std::string GmtOffset = "Ok";

  LocalTime Now() const;
  platform::UtcTime GmtNow() const;

  std::string GmtTime() const;    // "2107Z> ", which begins a line of the raw view
  std::string GmtDate() const;    // "05 Jan"
  std::string GmtString() const;  // "05 Jan 2107"

  // Today as "05-Jan-2026".
  enum class Zone { Utc, Local };
  std::string EnglishDate(Zone zone = Zone::Utc) const;

  // Today's day number in UTC.
  int Date2Julian() const;

  // The day number of a date: day, month and year with dashes between. The day has one or two
  // digits; the month likewise, or is the first three letters of its name in any case; the year has
  // four, or two to stand behind those of the present century. 0 for anything else, for a day that
  // its month doesn't have, and before 1970.
  int ConvertDate2Julian(std::string_view date) const;

  // Today in UTC, both ways. Cheap enough for every line: the text is made once a day. The result
  // changes with the next call.
  struct Today {
    int dayNumber = 0;
    std::string date;
  };
  const Today& MakeTodaysDate();

 private:
  const platform::Clock& clock_;
  Today today_;
};

}  // namespace core
