#include "core/dates.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/sim/world.h"

namespace core {
namespace {

using namespace std::chrono_literals;
using std::chrono::sys_days;

class CalendarTest : public testing::Test {
 protected:
  void SetUtc(std::chrono::year_month_day date, std::chrono::milliseconds time = 0ms) {
    world.clock.Set(sys_days{date} + time);
  }

  platform::sim::World world;
  Calendar calendar{world.clock};
};

TEST_F(CalendarTest, GmtTimeBeginsALineOfTheRawView) {
  SetUtc(2026y / 1 / 5, 21h + 7min + 59s + 999ms);
  EXPECT_EQ(calendar.GmtTime(), "2107Z> ");
}

TEST_F(CalendarTest, GmtTimeAtMidnightIsAllZeros) {
  SetUtc(2026y / 1 / 5);
  EXPECT_EQ(calendar.GmtTime(), "0000Z> ");
  world.clock.Set(sys_days{2026y / 1 / 5} - 1ms);
  EXPECT_EQ(calendar.GmtTime(), "2359Z> ");
}

TEST_F(CalendarTest, GmtDateIsDayAndMonth) {
  SetUtc(2026y / 1 / 5, 21h + 7min);
  EXPECT_EQ(calendar.GmtDate(), "05 Jan");
  EXPECT_EQ(calendar.GmtString(), "05 Jan 2107");
}

TEST_F(CalendarTest, TheDateChangesWithTheYear) {
  SetUtc(2025y / 12 / 31, 24h - 1ms);
  EXPECT_EQ(calendar.EnglishDate(), "31-Dec-2025");
  const int lastDay = calendar.Date2Julian();
  world.Run(1ms);
  EXPECT_EQ(calendar.EnglishDate(), "01-Jan-2026");
  EXPECT_EQ(calendar.Date2Julian(), lastDay + 1);
}

TEST_F(CalendarTest, LeapYearsHaveA29thOfFebruary) {
  SetUtc(2028y / 2 / 28, 24h);
  EXPECT_EQ(calendar.EnglishDate(), "29-Feb-2028");
  EXPECT_EQ(calendar.ConvertDate2Julian("29-Feb-2028"), calendar.Date2Julian());
  EXPECT_EQ(calendar.ConvertDate2Julian("01-Mar-2028"), calendar.Date2Julian() + 1);
  EXPECT_EQ(calendar.ConvertDate2Julian("29-Feb-2026"), 0);
  EXPECT_EQ(calendar.ConvertDate2Julian("29-Feb-2100"), 0);
}

TEST_F(CalendarTest, MonthsHaveTheirEnglishNames) {
  const std::string names = "JanFebMarAprMayJunJulAugSepOctNovDec";
  for (unsigned month = 1; month <= 12; ++month) {
    SetUtc(2026y / static_cast<int>(month) / 9);
    EXPECT_EQ(calendar.EnglishDate(), "09-" + names.substr(3 * month - 3, 3) + "-2026");
  }
}

TEST_F(CalendarTest, EnglishDateIsOfUtcOrOfLocalTime) {
  SetUtc(2026y / 1 / 5, 23h);
  world.clock.localOffset = 2h;
  EXPECT_EQ(calendar.EnglishDate(Calendar::Zone::Utc), "05-Jan-2026");
  EXPECT_EQ(calendar.EnglishDate(Calendar::Zone::Local), "06-Jan-2026");
}

TEST_F(CalendarTest, AnOffsetOfOkIsTheSystemsZone) {
  SetUtc(2026y / 1 / 5, 23h);
  for (const auto local : {-300min, 0min, 330min}) {
    world.clock.localOffset = local;
    EXPECT_EQ(calendar.GmtTime(), "2300Z> ");
  }
}

TEST_F(CalendarTest, AnOffsetInHoursIsAddedToLocalTime) {
  SetUtc(2026y / 1 / 5, 20h);
  world.clock.localOffset = 330min;
  calendar.GmtOffset = "-5.5";
  EXPECT_EQ(calendar.GmtString(), "05 Jan 2000");
  calendar.GmtOffset = "5.75";
  EXPECT_EQ(calendar.GmtString(), "06 Jan 0715");
  calendar.GmtOffset = "0";
  EXPECT_EQ(calendar.GmtString(), "06 Jan 0130");
  EXPECT_EQ(calendar.EnglishDate(), "06-Jan-2026");
}

TEST_F(CalendarTest, AnOffsetReachesNoFartherThanADay) {
  SetUtc(2026y / 1 / 5, 20h);
  calendar.GmtOffset = "1e300";
  EXPECT_EQ(calendar.GmtString(), "06 Jan 2000");
  calendar.GmtOffset = "-99";
  EXPECT_EQ(calendar.GmtString(), "04 Jan 2000");
}

TEST_F(CalendarTest, ADateIsReadInEitherForm) {
  SetUtc(2026y / 1 / 5);
  const int today = calendar.Date2Julian();
  for (const auto* date : {"5-Jan-2026", "05-Jan-2026", "05-01-2026", "05-Jan-26", " 5-Jan-2026",
                           "5-1-26", "05-JAN-2026 ", "05-jan-26"})
    EXPECT_EQ(calendar.ConvertDate2Julian(date), today) << date;
}

TEST_F(CalendarTest, DayNumbersCountDays) {
  EXPECT_EQ(calendar.ConvertDate2Julian("01-Mar-2026") - calendar.ConvertDate2Julian("28-Feb-2026"),
            1);
  EXPECT_EQ(calendar.ConvertDate2Julian("01-Jan-2026") - calendar.ConvertDate2Julian("01-Jan-2025"),
            365);
}

TEST_F(CalendarTest, AYearOfTwoDigitsStandsInThePresentCentury) {
  SetUtc(2026y / 1 / 5);
  EXPECT_EQ(calendar.ConvertDate2Julian("05-Jan-99"), calendar.ConvertDate2Julian("05-Jan-2099"));
  EXPECT_EQ(calendar.ConvertDate2Julian("05-Jan-00"), calendar.ConvertDate2Julian("05-Jan-2000"));
  SetUtc(1999y / 1 / 5);
  EXPECT_EQ(calendar.ConvertDate2Julian("05-Jan-99"), calendar.Date2Julian());
}

TEST_F(CalendarTest, ABadDateIsZero) {
  for (const auto* date : {"",
                           "-",
                           "--",
                           "---",
                           "abc",
                           "00-000-0000",
                           "5",
                           "5-Jan",
                           "5-Jan-",
                           "-Jan-2026",
                           "5--2026",
                           "0-Jan-2026",
                           "32-Jan-2026",
                           "30-Feb-2026",
                           "31-Apr-2026",
                           "5-13-2026",
                           "5-00-2026",
                           "5-January-2026",
                           "5-Ja-2026",
                           "5-001-2026",
                           "005-Jan-2026",
                           "5-Jan-026",
                           "5-Jan-20266",
                           "5-Jan-2O26",
                           "5-Jan-2",
                           "5-Jan--26",
                           "5-Jan-2026-1",
                           "+5-Jan-2026",
                           "5 -Jan-2026",
                           "5-Jan-1969",
                           "5-Jan-0000",
                           "99999999999-Jan-2026",
                           "5-Jan-99999999999"})
    EXPECT_EQ(calendar.ConvertDate2Julian(date), 0) << '"' << date << '"';
}

TEST_F(CalendarTest, TheTextOfEveryDayReadsBackAsItsNumber) {
  const int first = calendar.ConvertDate2Julian("01-Jan-1999");
  const int last = calendar.ConvertDate2Julian("31-Dec-2101");
  ASSERT_LT(first, last);
  for (int day = first; day <= last; ++day)
    ASSERT_EQ(calendar.ConvertDate2Julian(EnglishDate(day)), day);
}

TEST_F(CalendarTest, MakeTodaysDateFollowsTheDate) {
  SetUtc(2026y / 2 / 28, 23h);
  const int day = calendar.MakeTodaysDate().dayNumber;
  EXPECT_EQ(day, calendar.Date2Julian());
  EXPECT_EQ(calendar.MakeTodaysDate().date, "28-Feb-2026");
  world.Run(1h);
  EXPECT_EQ(calendar.MakeTodaysDate().dayNumber, day + 1);
  EXPECT_EQ(calendar.MakeTodaysDate().date, "01-Mar-2026");
  SetUtc(2026y / 2 / 28);
  EXPECT_EQ(calendar.MakeTodaysDate().date, "28-Feb-2026");
}

TEST_F(CalendarTest, MakeTodaysDateKnowsTheFirstDayOfAll) {
  SetUtc(1970y / 1 / 1);
  EXPECT_EQ(calendar.MakeTodaysDate().date, "01-Jan-1970");
}

TEST_F(CalendarTest, TheTimeStampIsToTheSecond) {
  SetUtc(2026y / 1 / 5, 21h + 7min + 9s + 999ms);
  world.clock.localOffset = 3h;
  EXPECT_EQ(TimeStamp(calendar.Now()), "2026-01-06 00:07:09");
}

TEST(SecondsTest, ASpanHasOneToThreeDecimalsRoundedHalfUp) {
  EXPECT_EQ(Seconds(1250ms, 3, 1), "001.3");
  EXPECT_EQ(Seconds(1254ms, 3, 2), "001.25");
  EXPECT_EQ(Seconds(1254ms, 1, 3), "1.254");
  EXPECT_EQ(Seconds(4ms, 1, 3), "0.004");
  EXPECT_EQ(Seconds(-1250ms, 1, 2), "-1.25");
}

}  // namespace
}  // namespace core
