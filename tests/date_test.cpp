#include <chrono>

#include "euro_date.h"
#include "text_printer.h"

using namespace DatePr2;

struct Dates : testing::Test {
  Dates() { InitDateTables(); }
};

// Every day of every year that the year field can hold, against the standard library. Past its own
// years that is asked for a year that much earlier: every 400 years the calendar repeats itself.
TEST_F(Dates, EveryDayOfEveryYear) {
  constexpr std::int32_t UnixEpochJdn = 2440588;
  constexpr std::int32_t DaysOf400Years = 146097;
  for (std::int32_t year = -9999; year <= 99999; ++year) {
    const std::int32_t repeats = (std::max(year, 32767) - 32767 + 399) / 400;
    for (std::int32_t month = 0; month <= 13; ++month) {
      for (std::int32_t day = 0; day <= 32; ++day) {
        EuroDate date{year, month, day, GregorianCalendar, 0, 7};
        EuroDateToJdn(date);
        const auto there = std::chrono::year(year - 400 * repeats) / month / day;
        ASSERT_EQ(date.valid, there.ok() ? 1 : 0) << year << ' ' << month << ' ' << day;
        ASSERT_EQ(date.jdn == NoSuchDayJdn, !there.ok()) << year << ' ' << month << ' ' << day;
        if (!there.ok()) continue;
        const std::chrono::sys_days days = there;
        const auto jdn = days.time_since_epoch().count() + UnixEpochJdn + repeats * DaysOf400Years;
        ASSERT_EQ(date.jdn, jdn) << year << ' ' << month << ' ' << day;
        const auto weekday = static_cast<std::int32_t>(std::chrono::weekday(days).c_encoding());
        ASSERT_EQ(euro_day_of_week(date.jdn), weekday) << jdn;
        EuroDate back{0, 0, 0, GregorianCalendar, date.jdn, 0};
        JdnToEuroDate(back);
        ASSERT_TRUE(back.year == year && back.month == month && back.day == day) << jdn;
      }
    }
  }
}

TEST_F(Dates, OtherCalendars) {
  EuroDate date{1, 2, 3, u'J', 2455318, 1};
  JdnToEuroDate(date);
  EuroDateToJdn(date);
  EXPECT_EQ(date.valid, 0);
  EXPECT_TRUE(date.year == 1 && date.month == 2 && date.day == 3);
}

TEST_F(Dates, Names) {
  std::u16string weekdays;
  for (std::int16_t number = -1; number <= 7; ++number) {
    weekdays.append(WeekdayName(number, true)).append(u"|");
  }
  EXPECT_EQ(weekdays,
            u"         |Sunday   |Monday   |Tuesday  |Wednesday|Thursday |Friday   |"
            u"Saturday |         |");
  EXPECT_EQ(DayOfWeekName(2451545, false), u"Saturday");
}

TEST_F(Dates, OrdersSignsAndThousands) {
  EXPECT_EQ(DateText({-44, 3, 15, u'G', 0, 1}, DateOrderDMY, u"-", u","), u"15-03-(-44)");
  EXPECT_EQ(DateText({-44, 3, 15, u'G', 0, 1}, DateOrderMDY, u"-", u","), u"03-15-(-44)");
  EXPECT_EQ(DateText({-44, 3, 15, u'G', 0, 1}, DateOrderYMD, u"-", u","), u"-44-03-15");
  EXPECT_EQ(DateText({9999, 1, 2, u'G', 0, 1}, DateOrderYMD, u"", u","), u"99990102");
  EXPECT_EQ(DateText({-9999, 1, 2, u'G', 0, 1}, DateOrderYMD, u"-", u","), u"-9999-01-02");
  EXPECT_EQ(DateText({10000, 1, 2, u'G', 0, 1}, DateOrderMDY, u"-", u".x"), u"01-02-10.000");
  EXPECT_EQ(DateText({10000, 1, 2, u'G', 0, 1}, DateOrderYMD, u"-", u""), u"10000-01-02");
  EXPECT_EQ(DateText({-10000, 1, 2, u'G', 0, 1}, DateOrderYMD, u"-", u","), u"-10,000-01-02");
  EXPECT_EQ(DateText({-123456, 1, 2, u'G', 0, 1}, DateOrderDMY, u"-", u","), u"02-01-(-123,456)");
}
