// The arithmetic is the standard library's. Its years have only 16 bits, but the calendar repeats
// itself every 400 years, an era: the date is moved by whole eras close to the library's day 0, and
// the result back.
#include <chrono>

#include "calendar_library.h"

namespace {

constexpr std::int32_t EraYears = 400;
constexpr std::int64_t EraDays = 146097;
constexpr std::int64_t Day0Jdn = 2440588;  // 1 January 1970

std::chrono::sys_days SysDay(std::int64_t days) {
  return std::chrono::sys_days(std::chrono::days(days));
}

}  // namespace

void euro_date_to_jdn(EuroDate* date) {
  date->valid = 0;
  date->jdn = NoSuchDayJdn;
  if (date->calendar != GregorianCalendar) return;
  // Checked first, since the library keeps only 8 bits of a month and of a day.
  if (date->month < 1 || date->month > 12 || date->day < 1 || date->day > 31) return;
  const auto moved = std::chrono::year(date->year % EraYears) / date->month / date->day;
  if (!moved.ok()) return;
  const std::int64_t jdn = Day0Jdn + std::chrono::sys_days(moved).time_since_epoch().count() +
                           date->year / EraYears * EraDays;
  // The next day must also fit.
  if (jdn <= NoSuchDayJdn || jdn >= std::numeric_limits<std::int32_t>::max()) return;
  date->valid = 1;
  date->jdn = static_cast<std::int32_t>(jdn);
}

void jdn_to_euro_date(EuroDate* date) {
  if (date->calendar != GregorianCalendar) return;
  const std::int64_t days = date->jdn - Day0Jdn;
  const std::chrono::year_month_day moved = SysDay(days % EraDays);
  date->year = int{moved.year()} + static_cast<std::int32_t>(days / EraDays) * EraYears;
  date->month = static_cast<std::int32_t>(unsigned{moved.month()});
  date->day = static_cast<std::int32_t>(unsigned{moved.day()});
}

std::int32_t euro_day_of_week(std::int32_t jdn) {
  const std::chrono::weekday weekday = SysDay((jdn - Day0Jdn) % EraDays);  // an era is whole weeks
  return static_cast<std::int32_t>(weekday.c_encoding());
}
