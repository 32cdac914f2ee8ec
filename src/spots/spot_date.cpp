#include "spots/spot_date.h"

#include <chrono>

namespace spots {

Moment MomentNow(core::Calendar& calendar) {
  using std::chrono::days;
  using std::chrono::minutes;
  const core::Calendar::Today& today = calendar.MakeTodaysDate();
  // Counted from the date that stands there, even if midnight has come in between.
  const auto sinceMidnight = calendar.GmtNow() - std::chrono::sys_days{days{today.dayNumber}};
  const auto whole = std::chrono::floor<minutes>(sinceMidnight);
  return {today.dayNumber, today.date, static_cast<int>(whole.count())};
}

void InferDate(int hhmm, const Moment& now, MidnightLimits limits, std::string& date) {
  // A time ahead of now is today's too: the node's clock may be fast, but never by a day.
  if (now.minutes < limits.early && hhmm > limits.late)
    date = core::EnglishDate(now.dayNumber - 1);
  else
    date = now.date;
}

}  // namespace spots
