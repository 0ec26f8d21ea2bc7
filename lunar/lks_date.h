// The Lunar Karvel-Sorand calendar: one date of it, the conversions from and to the Julian Day
// Number (JDN, a whole count of days), and the check of a date that somebody entered.
//
// InitLksTables must have run before any of this is called. A status is 0 for success and negative
// for failure; it is the only report.
#pragma once

#include <cstdint>
#include <string>

#include "lks_tables.h"
#include "moon_phase.h"
#include "week.h"

namespace Karvel_Sorand {

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

// The statuses of JdnToLksDate beside 0, success. The last four guard the tables; no day of the
// calendar reaches them.
inline constexpr std::int16_t LksTooEarly = -1;  // `jdn` lies below MinLksJdn
inline constexpr std::int16_t LksTooLate = -2;   // `jdn` lies above MaxLksJdn
inline constexpr std::int16_t LksBeforeCe = -3;  // `jdn` lies below CeStartJdn, and that matters
inline constexpr std::int16_t LksNoCycle = -4;   // no Metonic cycle holds the day
inline constexpr std::int16_t LksNoYear = -5;    // the letter of the year is none of A, B, C
inline constexpr std::int16_t LksNoMonth = -6;   // the month that came out is outside 1 to 13
inline constexpr std::int16_t LksNoDay = -7;     // the day that came out is outside 1 to 30

// Fills `date` with the date of day `jdn`. Without `allowBeforeCe` a day below CeStartJdn is
// refused, for other programs: the form takes every day. On success, 0, all fields are set and
// Valid is true. On failure Jdn is set, Valid is false, Label is empty, and a field that a later
// step would have set keeps what it held.
std::int16_t JdnToLksDate(std::int32_t jdn, LksDate& date, bool allowBeforeCe);

// The JDN of the date in the fields GMet to Day; also sets Jdn, Label and Valid (to true). It adds
// up the tables and does not question the date: each field must lie in its own range, but together
// they may name a day that does not exist. Any GMet but 2 counts as 1.
std::int32_t LksDateToJdn(LksDate& date);

// The statuses of CheckLksDate beside 0, in the order of its checks.
inline constexpr std::int16_t LksWrongMetNum = -3;     // MetNum is outside 1 to MetCycleCount
inline constexpr std::int16_t LksWrongMetType = -4;    // MetType is not the type of that cycle
inline constexpr std::int16_t LksWrongYear = -5;       // YearType is not the type of that year, or
                                                       // YearInMet is outside 1 to 19
inline constexpr std::int16_t LksWrongMonthType = -7;  // MonthType lies before "A" or after "C"
inline constexpr std::int16_t LksWrongMonth = -8;      // Month is outside 1 to 13
inline constexpr std::int16_t LksWrongDay = -10;       // Day is outside 1 to 30
inline constexpr std::int16_t LksNoSuchDate = -6;      // the day that the date adds up to has
                                                       // another date

// Whether a date entered field by field exists: 0, or the status of the first check that fails.
// Sets Valid; from the last check on, also Jdn and Label.
std::int16_t CheckLksDate(LksDate& date);

// Whether the eight fields from GMet to Day are equal. Jdn, Valid and Label do not count.
bool SameLksDate(const LksDate& a, const LksDate& b);

// The one-line text of the date in the fields GMet to Day, such as
// "GMet-2 MB-12 LYC-15 LA-1 16 day (Monday) 16/30 gibbous moon (waning)".
std::u16string LksDateLabel(const LksDate& date);

}  // namespace Karvel_Sorand
