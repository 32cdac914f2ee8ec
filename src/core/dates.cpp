#include "core/dates.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>

#include "core/text.h"

namespace core {
namespace {

using std::chrono::day;
using std::chrono::days;
using std::chrono::floor;
using std::chrono::hh_mm_ss;
using std::chrono::minutes;
using std::chrono::month;
using std::chrono::seconds;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

std::string TwoDigits(unsigned number) { return Digits(number, 2); }

std::string YearDigits(year number) { return Digits(static_cast<unsigned>(int{number}), 4); }

std::string DayDigits(day number) { return TwoDigits(unsigned{number}); }

std::string MonthName(month number) { return std::string(kMonthNames[unsigned{number}]); }

std::string DateText(year_month_day date) {
  return DayDigits(date.day()) + '-' + MonthName(date.month()) + '-' + YearDigits(date.year());
}

std::string DayAndMonth(platform::UtcTime time) {
  const year_month_day date{floor<days>(time)};
  return DayDigits(date.day()) + ' ' + MonthName(date.month());
}

std::string HoursAndMinutes(platform::UtcTime time) {
  const hh_mm_ss clock{floor<minutes>(time - floor<days>(time))};
  return TwoDigits(static_cast<unsigned>(clock.hours().count())) +
         TwoDigits(static_cast<unsigned>(clock.minutes().count()));
}

int DayNumber(sys_days date) { return static_cast<int>(date.time_since_epoch().count()); }

minutes HoursOffset(std::string_view hours) {
  return minutes{std::lround(std::clamp(Val(hours), -24.0, 24.0) * 60)};
}

// Nothing unless the text is digits alone, one to `most` of them.
std::optional<unsigned> Number(std::string_view text, std::size_t most) {
  unsigned number = 0;
  const char* const last = text.data() + text.size();
  const auto end = std::from_chars(text.data(), last, number);
  if (text.size() > most || end.ec != std::errc{} || end.ptr != last) return {};
  return number;
}

std::optional<month> MonthOf(std::string_view text) {
  const auto name = std::find_if(kMonthNames.begin() + 1, kMonthNames.end(),
                                 [&](auto each) { return SameIgnoringCase(each, text); });
  if (name != kMonthNames.end()) return month{static_cast<unsigned>(name - kMonthNames.begin())};
  if (const auto number = Number(text, 2)) return month{*number};
  return {};
}

// A year of one or three digits needs no refusal: it lies before all day numbers.
std::optional<year> YearOf(std::string_view text, year present) {
  const auto number = Number(text, 4);
  if (!number) return {};
  const int century = text.size() == 2 ? int{present} / 100 * 100 : 0;
  return year{century + static_cast<int>(*number)};
}

}  // namespace

std::string EnglishDate(int dayNumber) { return DateText(sys_days{days{dayNumber}}); }

std::string Seconds(std::chrono::milliseconds span, std::size_t width, std::size_t decimals) {
  constexpr std::array<unsigned, 3> kUnits = {100, 10, 1};  // in milliseconds
  const unsigned unit = kUnits[decimals - 1];
  const auto units = (static_cast<unsigned>(std::abs(span.count())) + unit / 2) / unit;
  const unsigned perSecond = 1000 / unit;
  const std::string sign = span.count() < 0 && units > 0 ? "-" : "";
  return sign + Digits(units / perSecond, width) + "." + Digits(units % perSecond, decimals);
}

std::string TimeStamp(LocalTime time) {
  const auto midnight = floor<days>(time);
  const year_month_day date{midnight};
  const hh_mm_ss clock{floor<seconds>(time - midnight)};
  return YearDigits(date.year()) + '-' + TwoDigits(unsigned{date.month()}) + '-' +
         DayDigits(date.day()) + ' ' + TwoDigits(static_cast<unsigned>(clock.hours().count())) +
         ':' + TwoDigits(static_cast<unsigned>(clock.minutes().count())) + ':' +
         TwoDigits(static_cast<unsigned>(clock.seconds().count()));
}

LocalTime Calendar::Now() const {
  return LocalTime{clock_.UtcNow().time_since_epoch() + clock_.LocalOffset()};
}

platform::UtcTime Calendar::GmtNow() const {
  if (SameIgnoringCase(GmtOffset, "Ok")) return clock_.UtcNow();
  return platform::UtcTime{Now().time_since_epoch() + HoursOffset(GmtOffset)};
}

std::string Calendar::GmtTime() const { return HoursAndMinutes(GmtNow()) + "Z> "; }

std::string Calendar::GmtDate() const { return DayAndMonth(GmtNow()); }

std::string Calendar::GmtString() const {
  const platform::UtcTime now = GmtNow();
  return DayAndMonth(now) + ' ' + HoursAndMinutes(now);
}

std::string Calendar::EnglishDate(Zone zone) const {
  if (zone == Zone::Local) return DateText(year_month_day{floor<days>(Now())});
  return DateText(floor<days>(GmtNow()));
}

int Calendar::Date2Julian() const { return DayNumber(floor<days>(GmtNow())); }

int Calendar::ConvertDate2Julian(std::string_view date) const {
  std::string_view rest = Trim(date);
  const year present = year_month_day{floor<days>(GmtNow())}.year();
  const auto dayOfMonth = Number(ExtractToCharacter('-', rest), 2);
  const auto monthOfYear = MonthOf(ExtractToCharacter('-', rest));
  const auto inYear = YearOf(rest, present);
  if (!dayOfMonth || !monthOfYear || !inYear) return 0;
  const year_month_day whole{*inYear, *monthOfYear, day{*dayOfMonth}};
  return whole.ok() ? std::max(DayNumber(whole), 0) : 0;
}

const Calendar::Today& Calendar::MakeTodaysDate() {
  const int dayNumber = Date2Julian();
  if (dayNumber != today_.dayNumber || today_.date.empty())
    today_ = {dayNumber, core::EnglishDate(dayNumber)};
  return today_;
}

}  // namespace core
