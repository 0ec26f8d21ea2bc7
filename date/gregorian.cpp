// The formulas count in years that begin on 1 March, so that the leap day is the last of its year,
// and in eras of 400 years, which all have 146097 days. They are those of Howard Hinnant,
// "chrono-Compatible Low-Level Date Algorithms" (days_from_civil, civil_from_days), with the JDN in
// place of the days since 1970.
#include "calendar_library.h"

namespace {

constexpr std::int64_t EraYears = 400;
constexpr std::int64_t EraDays = 146097;
constexpr std::int64_t Era0Jdn = 1721120;  // 1 March of year 0

std::int64_t FloorDiv(std::int64_t a, std::int64_t b) {
  return a / b - (a % b < 0 ? 1 : 0);
}

bool IsLeapYear(std::int64_t year) {
  return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

std::int32_t DaysInMonth(std::int32_t month, std::int32_t year) {
  if (month == 2) return IsLeapYear(year) ? 29 : 28;
  return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

bool Exists(const EuroDate& date) {
  return date.calendar == GregorianCalendar && date.month >= 1 && date.month <= 12 &&
         date.day >= 1 && date.day <= DaysInMonth(date.month, date.year);
}

// 64 bits, so that no year of 32 bits overflows.
std::int64_t JdnOf(const EuroDate& date) {
  const std::int64_t year = std::int64_t{date.year} - (date.month <= 2 ? 1 : 0);
  const std::int64_t month_from_march = (date.month + 9) % 12;
  const std::int64_t era = FloorDiv(year, EraYears);
  const std::int64_t year_of_era = year - era * EraYears;
  // From March on the months have 31, 30, 31, 30, 31 days over and over: 153 days in 5 months.
  const std::int64_t day_of_year = (153 * month_from_march + 2) / 5 + date.day - 1;
  return Era0Jdn + era * EraDays + year_of_era * 365 + year_of_era / 4 - year_of_era / 100 +
         day_of_year;
}

}  // namespace

void euro_date_to_jdn(EuroDate* date) {
  date->valid = 0;
  date->jdn = NoSuchDayJdn;
  if (!Exists(*date)) return;
  const std::int64_t jdn = JdnOf(*date);
  // A day has a next one, which must fit, too.
  if (jdn <= NoSuchDayJdn || jdn >= std::numeric_limits<std::int32_t>::max()) return;
  date->valid = 1;
  date->jdn = static_cast<std::int32_t>(jdn);
}

void jdn_to_euro_date(EuroDate* date) {
  if (date->calendar != GregorianCalendar) return;
  const std::int64_t days = date->jdn - Era0Jdn;
  const std::int64_t era = FloorDiv(days, EraDays);
  const std::int64_t day_of_era = days - era * EraDays;
  // The divisors are the days of 4, 100 and 400 years, less 1 where the last day is a leap day.
  const std::int64_t year_of_era =
      (day_of_era - day_of_era / 1460 + day_of_era / 36524 - day_of_era / 146096) / 365;
  const std::int64_t day_of_year =
      day_of_era - (365 * year_of_era + year_of_era / 4 - year_of_era / 100);
  const std::int64_t month_from_march = (5 * day_of_year + 2) / 153;
  date->day = static_cast<std::int32_t>(day_of_year - (153 * month_from_march + 2) / 5 + 1);
  date->month = static_cast<std::int32_t>((month_from_march + 2) % 12 + 1);
  date->year = static_cast<std::int32_t>(era * EraYears + year_of_era + (date->month <= 2 ? 1 : 0));
}

std::int32_t euro_day_of_week(std::int32_t jdn) {
  // JDN 0 was a Monday.
  return static_cast<std::int32_t>(std::int64_t{jdn} + 1 - 7 * FloorDiv(std::int64_t{jdn} + 1, 7));
}
