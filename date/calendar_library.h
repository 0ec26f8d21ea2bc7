// The calendar library: the proleptic Gregorian calendar by Julian Day Number (JDN), as four
// functions with C linkage, so that another library can take their place. Years are astronomical:
// there is a year 0, and -44 is the year before -43. The functions keep no state.
#pragma once

#include <cstdint>
#include <limits>

struct EuroDate {
  std::int32_t year;      // negative values included
  std::int32_t month;     // 1 to 12
  std::int32_t day;       // day of the month
  std::int32_t calendar;  // code of the calendar's letter; to be set before every call
  std::int32_t jdn;       // 1721426 for 1 January of year 1
  std::int32_t valid;     // 1 for a real date, 0 for any other
};
static_assert(sizeof(EuroDate) == 24);

inline constexpr std::int32_t GregorianCalendar = u'G';  // the only calendar there is

// The `jdn` of a date that does not exist. No day has it, and neither has a record that is all
// zero: such a date equals no day, only another date that does not exist.
inline constexpr std::int32_t NoSuchDayJdn = std::numeric_limits<std::int32_t>::min();

extern "C" {

// Sets `jdn` and `valid` from `year`, `month`, `day` and `calendar`. A date that does not exist, a
// calendar other than GregorianCalendar and a day whose JDN, or that of the next day, does not fit
// into 32 bits get valid 0 and NoSuchDayJdn.
void euro_date_to_jdn(EuroDate* date);

// Sets `year`, `month` and `day` from `jdn`, whatever its value, and leaves `valid` as it was. With
// a `calendar` other than GregorianCalendar it does nothing.
void jdn_to_euro_date(EuroDate* date);

// The day of the week of `jdn`: 0 for Sunday, 1 for Monday, up to 6 for Saturday.
std::int32_t euro_day_of_week(std::int32_t jdn);

// Writes into `buffer`, 20 bytes, the whole number in `number` with the character `separator`
// between groups of three digits, null-terminated. Both texts are 8-bit. What does not fit into the
// 20 bytes is cut off; no number of 32 bits needs more than 15.
void separate_thousands(const char* number, std::int32_t separator, char* buffer);
}
