// The Lunar Karvel-Sorand calendar: its tables, one date of it, the conversions from and to the
// Julian Day Number (JDN, a whole count of days), the check of a date that somebody entered, and
// the names of weekdays and phases. The calendar is defined wholly by counting days:
//
//   great cycle    341 Metonic cycles                          2366404 days
//   Metonic cycle  19 years; type A 6940, B 6939, C 6910 days
//   year           type A 354 days, B 355 days (12 months), C 384 days (13 months)
//   month          type A 30 days, B 29 days
//
// A great cycle holds 234 cycles of type A, 106 of B and one of C, so its mean month is
// 2366404 / 80134 = 29.530586 days and its mean year 2366404 / 6479 = 365.242167 days.
//
// A status is 0 for success and negative for failure; it is the only report.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Karvel_Sorand {

// Builds the module values below. To be called once at start-up, before any other procedure of
// this module; the values do not change afterwards.
void InitLksTables();

// The module values. Only InitLksTables sets them. Until then they are 0 or empty: a table at
// namespace scope that is built from them would silently copy that.
extern const std::int16_t& MetCycleCount;    // Metonic cycles in a great cycle: 341
extern const std::int32_t& Gmet2StartJdn;    // JDN of the first day of great cycle 2: 2373737
extern const std::int32_t& GreatCycleDays;   // days in a great cycle: 2366404
extern const std::int32_t& MinLksJdn;        // first JDN of the calendar: 7333
extern const std::int32_t& MaxLksJdn;        // last JDN of the calendar: 4740140
extern const std::int32_t& CeStartJdn;       // 1 January of year 1, Gregorian: 1721426
extern const std::u16string& MetCycleTypes;  // letter i is the type of Metonic cycle i
extern const std::u16string& YearTypesOfA;   // letter y is the type of year y of a cycle of type A
extern const std::u16string& YearTypesOfB;   // the same for type B
extern const std::u16string& YearTypesOfC;   // the same for type C

// Entries 1 to 342 (entry 0 is not used): days from the first day of a great cycle to the first
// day of its Metonic cycle i. Entry 342 stands for no cycle; it is the length of the great cycle.
extern const std::vector<std::int32_t>& MetCycleStart;

inline constexpr std::int16_t GreatCycleCount = 2;

// One date. In a fresh record all numbers are 0 and all texts empty. The three types follow from
// the numbers, and the record carries them all the same: the window's lists show type and number
// together, and CheckLksDate holds the one against the other.
struct LksDate {
  std::int16_t GMet = 0;       // great cycle, 1 or 2
  std::u16string MetType;      // type of the Metonic cycle: "A", "B", "C"
  std::int16_t MetNum = 0;     // position of the Metonic cycle in its great cycle, 1 to 341
  std::u16string YearType;     // "A", "B", "C"
  std::int16_t YearInMet = 0;  // position of the year in its Metonic cycle, 1 to 19
  std::u16string MonthType;    // "A", "B"
  std::int16_t Month = 0;      // position of the month in its year, 1 to 13
  std::int16_t Day = 0;        // day of the month, 1 to 30
  std::int32_t Jdn = 0;        // 7333 to 4740140
  std::int16_t Valid = 0;      // -1: the fields name a day of the calendar; 0: they do not
  std::u16string Label;        // the one-line text of the date; empty after a failed conversion
};

inline constexpr std::int16_t LksTrue = -1;
inline constexpr std::int16_t LksFalse = 0;

// The statuses of JdnToLksDate besides 0, success. The last four guard the tables; no day of the
// calendar reaches them.
inline constexpr std::int16_t LksTooEarly = -1;  // `jdn` is below MinLksJdn
inline constexpr std::int16_t LksTooLate = -2;   // `jdn` is above MaxLksJdn
inline constexpr std::int16_t LksBeforeCe = -3;  // `jdn` is below CeStartJdn, and not allowed to be
inline constexpr std::int16_t LksNoCycle = -4;   // no Metonic cycle holds the day
inline constexpr std::int16_t LksNoYear = -5;    // the letter of the year is none of A, B, C
inline constexpr std::int16_t LksNoMonth = -6;   // the month that came out is outside 1 to 13
inline constexpr std::int16_t LksNoDay = -7;     // the day that came out is outside 1 to 30

// Fills `date` with the date of day `jdn`. Without `allowBeforeCe`, not used by the form, a day
// below CeStartJdn is refused. On success, 0, all fields are set and Valid is true. On failure Jdn
// is set, Valid is false, Label is empty, and a field that a later step would have set keeps what
// it held.
std::int16_t JdnToLksDate(std::int32_t jdn, LksDate& date, bool allowBeforeCe);

// The JDN of the date in the fields GMet to Day; also sets Jdn, Label and Valid (to true). It adds
// up the tables and does not question the date: each field must be in its own range, but together
// they may name a day that does not exist. Any GMet but 2 is taken as 1.
std::int32_t LksDateToJdn(LksDate& date);

// The statuses of CheckLksDate besides 0, in the order of its checks.
inline constexpr std::int16_t LksWrongMetNum = -3;     // MetNum is outside 1 to MetCycleCount
inline constexpr std::int16_t LksWrongMetType = -4;    // MetType is not the type of that cycle
inline constexpr std::int16_t LksWrongYear = -5;       // YearType is not the type of that year, or
                                                       // YearInMet is outside 1 to 19
inline constexpr std::int16_t LksWrongMonthType = -7;  // MonthType is before "A" or after "C"
inline constexpr std::int16_t LksWrongMonth = -8;      // Month is outside 1 to 13
inline constexpr std::int16_t LksWrongDay = -10;       // Day is outside 1 to 30
inline constexpr std::int16_t LksNoSuchDate = -6;      // the day that the date adds up to has
                                                       // another date

// Whether a date entered field by field exists: 0, or the status of the first check that fails.
// Sets Valid; from the last check on, also Jdn and Label.
std::int16_t CheckLksDate(LksDate& date);

// Whether the eight fields from GMet to Day are equal, whatever Jdn, Valid and Label are.
bool SameLksDate(const LksDate& a, const LksDate& b);

// The one-line text of the date in the fields GMet to Day, such as
// "GMet-2 MB-12 LYC-15 LA-1 16 day (Monday) 16/30 gibbous moon (waning)".
std::u16string LksDateLabel(const LksDate& date);

// The 7/8-day week starts afresh on a Monday with every month, so the weekday follows from the day
// of the month and the month's type. A month of type A (30 days) has weeks of 7, 8, 7 and 8 days, a
// month of type B (29 days) of 7, 8, 6 and 8. The eighth day of a week is Lunaday.

// The name of weekday `n`, 1 being Monday, 7 Sunday and 8 Lunaday; empty for any other number.
std::u16string_view WeekdayNumberName(std::int16_t n);

// The weekday of day `day` of a month of type `monthType`; empty where there is no such day, and
// for a type other than "A" and "B".
std::u16string_view LunarWeekdayName(std::int16_t day, std::u16string_view monthType);

// The days of a month: 30 for type "A", 29 for any other text.
std::int16_t MonthLength(std::u16string_view monthType);

// The name of the phase of the moon on day `day` of a month of either type. A day below 1 is waxing
// crescent, a day above 30 waning crescent.
std::u16string_view MoonPhaseName(std::int16_t day);

}  // namespace Karvel_Sorand
