#include <gtest/gtest.h>

#include "euro_date.h"

using namespace DatePr2;

// Every day of every year that the year field can hold, one after the other.
TEST(Dates, EveryDayOfEveryYear) {
  std::int32_t jdn = -1930999;  // 1 January of year -9999, a Monday
  std::int32_t weekday = 1;
  EuroDate date{0, 0, 0, GregorianCalendar, 0, 7};
  EuroDate back{0, 0, 0, GregorianCalendar, 0, 0};
  for (date.year = -9999; date.year <= 99999; ++date.year) {
    const bool is_leap = date.year % 4 == 0 && (date.year % 100 != 0 || date.year % 400 == 0);
    const int lengths[] = {0, 31, is_leap ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31, 0};
    for (date.month = 0; date.month <= 13; ++date.month) {
      for (date.day = 0; date.day <= 32; ++date.day) {
        const bool exists = date.day >= 1 && date.day <= lengths[date.month];
        EuroDateToJdn(date);
        ASSERT_EQ(date.valid, exists ? 1 : 0) << date.year << ' ' << date.month << ' ' << date.day;
        ASSERT_EQ(date.jdn, exists ? jdn : NoSuchDayJdn) << date.year << ' ' << date.month;
        if (!exists) continue;
        ASSERT_EQ(euro_day_of_week(jdn), weekday) << jdn;
        back.jdn = jdn;
        JdnToEuroDate(back);
        ASSERT_TRUE(back.year == date.year && back.month == date.month && back.day == date.day)
            << jdn;
        ++jdn;
        weekday = (weekday + 1) % 7;
      }
    }
  }
}

TEST(Dates, OrdersSignsAndThousands) {
  InitDateTables();
  EXPECT_EQ(DateText({-10000, 1, 2, u'G', 0, 1}, DateOrderDMY, u"-", u","), u"02-01-(-10,000)");
  EXPECT_EQ(DateText({9999, 12, 31, u'G', 0, 1}, DateOrderMDY, u"/", u","), u"12/31/9999");
  EXPECT_EQ(SeparateThousands(u"-123456789012345678", u","), u"-123,456,789,012,34");
}
