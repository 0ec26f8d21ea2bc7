#include <gtest/gtest.h>

#include <chrono>

#include "euro_date.h"

using namespace DatePr2;
using std::chrono::year_month_day;

namespace {

constexpr std::int32_t UnixEpochJdn = 2440588;

EuroDate Gregorian(std::int32_t year, std::int32_t month, std::int32_t day) {
  EuroDate date{year, month, day, GregorianCalendar, 0, 7};
  EuroDateToJdn(date);
  return date;
}

}  // namespace

// Every day of every year that the year field can hold, counted one by one; the standard library
// is asked as well as far as its years go.
TEST(Gregorian, EveryDayOfEveryYear) {
  std::int32_t jdn = Gregorian(-9999, 1, 1).jdn;
  std::int32_t weekday = euro_day_of_week(jdn);
  for (std::int32_t year = -9999; year <= 99999; ++year) {
    const bool leap = std::chrono::year(year % 400).is_leap();
    for (std::int32_t month = 1; month <= 12; ++month) {
      const int length = month == 2 ? (leap ? 29 : 28) : 30 + ((month + month / 8) % 2);
      for (std::int32_t day = 1; day <= length; ++day, ++jdn, weekday = (weekday + 1) % 7) {
        EuroDate date = Gregorian(year, month, day);
        ASSERT_EQ(date.valid, 1) << year << ' ' << month << ' ' << day;
        ASSERT_EQ(date.jdn, jdn) << year << ' ' << month << ' ' << day;
        date.year = date.month = date.day = 0;
        JdnToEuroDate(date);
        ASSERT_TRUE(date.year == year && date.month == month && date.day == day) << jdn;
        ASSERT_EQ(euro_day_of_week(jdn), weekday) << jdn;
        if (year <= 32767) {
          const std::chrono::sys_days days{std::chrono::days(jdn - UnixEpochJdn)};
          ASSERT_EQ(year_month_day(days),
                    year_month_day(std::chrono::year(year),
                                   std::chrono::month(static_cast<unsigned>(month)),
                                   std::chrono::day(static_cast<unsigned>(day))));
          ASSERT_EQ(std::chrono::weekday(days).c_encoding(), static_cast<unsigned>(weekday));
        }
      }
      for (const std::int32_t day : {-1, 0, length + 1}) {
        const EuroDate date = Gregorian(year, month, day);
        ASSERT_TRUE(date.valid == 0 && date.jdn == NoSuchDayJdn) << year << ' ' << month;
      }
    }
  }
}

TEST(Gregorian, RefusesWhatItCannotSay) {
  constexpr std::int32_t Most = std::numeric_limits<std::int32_t>::max();
  for (EuroDate date : {EuroDate{2010, 0, 1, 'G', 0, 1}, EuroDate{2010, 13, 1, 'G', 0, 1},
                        EuroDate{2010, 1, 1, 'J', 0, 1}, EuroDate{Most, 12, 31, 'G', 0, 1}}) {
    EuroDateToJdn(date);
    EXPECT_TRUE(date.valid == 0 && date.jdn == NoSuchDayJdn) << date.year;
  }
}

TEST(DateText, OrdersAndSigns) {
  InitDateTables();
  using View = std::u16string_view;
  const std::tuple<EuroDate, View, View, View, View, View> rows[] = {
      {{2010, 5, 1, 0, 0, 0}, u"-", u"", u"2010-05-01", u"01-05-2010", u"05-01-2010"},
      {{0, 12, 31, 0, 0, 0}, u", ", u"", u"0, 12, 31", u"31, 12, 0", u"12, 31, 0"},
      {{-44, 3, 15, 0, 0, 0}, u"-", u",", u"-44-03-15", u"15-03-(-44)", u"03-15-(-44)"},
      {{12345, 1, 2, 0, 0, 0}, u"-", u",;", u"12,345-01-02", u"02-01-12,345", u"01-02-12,345"},
      {{-10000, 1, 2, 0, 0, 0},
       u"-",
       u",",
       u"-10,000-01-02",
       u"02-01-(-10,000)",
       u"01-02-(-10,000)"}};
  for (const auto& [date, separator, thousands, ymd, dmy, mdy] : rows) {
    EXPECT_EQ(DateText(date, DateOrderYMD, separator, thousands), ymd);
    EXPECT_EQ(DateText(date, DateOrderDMY, separator, thousands), dmy);
    EXPECT_EQ(DateText(date, DateOrderMDY, separator, thousands), mdy);
  }
  char buffer[24] = "#######################";
  separate_thousands("-12345678901234567890123", ',', buffer);
  EXPECT_EQ(std::string(buffer, 24), std::string("-12,345,678,901,234\0###", 23) + '\0');
}

TEST(Names, WeekdaysAndToday) {
  EXPECT_EQ(WeekdayName(3, true), u"Wednesday");
  EXPECT_EQ(WeekdayName(1, true), u"Monday   ");
  EXPECT_EQ(WeekdayName(7, true) + WeekdayName(-1, false), u"         ");
  EXPECT_EQ(DayOfWeekName(2451545, false), u"Saturday");
  SystemDate = [] { return std::u16string(u"05-01-2010"); };
  EXPECT_EQ(TodayJdn(), 2455318);
}
