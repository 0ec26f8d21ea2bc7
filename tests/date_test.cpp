#include <gtest/gtest.h>

#include <chrono>

#include "euro_date.h"

using namespace DatePr2;

// Every day of every year that the year field can hold, against the standard library. Past its own
// years that is asked for a year that much earlier: every 400 years the calendar repeats itself.
TEST(Gregorian, EveryDayOfEveryYear) {
  constexpr std::int32_t UnixEpochJdn = 2440588, DaysOf400Years = 146097;
  for (std::int32_t year = -9999; year <= 99999; ++year) {
    const std::int32_t repeats = (std::max(year, 32767) - 32767 + 399) / 400;
    for (int n = 0; n < 14 * 33; ++n) {
      const int month = n / 33, day = n % 33;
      EuroDate date{year, month, day, GregorianCalendar, 0, 7};
      EuroDateToJdn(date);
      const auto there = std::chrono::year(year - 400 * repeats) / month / day;
      ASSERT_EQ(date.valid, there.ok() ? 1 : 0) << year << ' ' << month << ' ' << day;
      ASSERT_EQ(date.jdn == NoSuchDayJdn, !there.ok()) << year << ' ' << month << ' ' << day;
      if (!there.ok()) continue;
      const std::chrono::sys_days days = there;
      const auto jdn = days.time_since_epoch().count() + UnixEpochJdn + repeats * DaysOf400Years;
      ASSERT_EQ(date.jdn, jdn) << year << ' ' << month << ' ' << day;
      ASSERT_EQ(euro_day_of_week(date.jdn), int(std::chrono::weekday(days).c_encoding())) << jdn;
      date.year = date.month = date.day = 0;
      JdnToEuroDate(date);
      ASSERT_TRUE(date.year == year && date.month == month && date.day == day) << jdn;
    }
  }
  for (EuroDate date : {EuroDate{2010, 1, 1, 'J', 0, 1}, {2147483647, 12, 31, 'G', 0, 1}}) {
    EuroDateToJdn(date);
    EXPECT_TRUE(date.valid == 0 && date.jdn == NoSuchDayJdn) << date.year;
  }
}

TEST(DateText, OrdersAndSigns) {
  InitDateTables();
  const EuroDate date{-123456, 1, 2, 0, 0, 0};
  EXPECT_EQ(DateText(date, DateOrderDMY, u", ", u""), u"02, 01, (-123456)");
  EXPECT_EQ(DateText(date, DateOrderYMD, u"", u","), u"-123,4560102");
  EXPECT_EQ(DateText({10000, 1, 2, 0, 0, 0}, DateOrderMDY, u"-", u","), u"01-02-10,000");
}
