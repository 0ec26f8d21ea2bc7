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

// One date. A fresh record is `{}`; a record that is used again allocates nothing. The three types
// follow from the numbers, and the record carries them all the same: the window's lists show type
// and number together, and CheckLksDate holds the one against the other.
struct LksDate {
  std::int16_t GMet;         // great cycle, 1 or 2
  std::u16string MetType;    // type of the Metonic cycle: "A", "B", "C"
  std::int16_t MetNum;       // position of the Metonic cycle in its great cycle, 1 to 341
  std::u16string YearType;   // "A", "B", "C"
  std::int16_t YearInMet;    // position of the year in its Metonic cycle, 1 to 19
  std::u16string MonthType;  // "A", "B"
  std::int16_t Month;        // position of the month in its year, 1 to 13
  std::int16_t Day;          // day of the month, 1 to 30
  std::int32_t Jdn;          // 7333 to 4740140
  std::int16_t Valid;        // -1: the fields name a day of the calendar; 0: they do not
  std::u16string Label;      // the one-line text of the date; empty after a failed conversion
};

inline constexpr std::int16_t LksTrue = -1;
inline constexpr std::int16_t LksFalse = 0;

// Fills `date` with the date of day `jdn`. Status:
//    0  success: all fields set, Valid true
//   -1  `jdn` below MinLksJdn
//   -2  `jdn` above MaxLksJdn
//   -3  `allowBeforeCe` is false and `jdn` lies below CeStartJdn
//   -4  no Metonic cycle holds the day
//   -5  a letter of the year pattern is none of A, B, C
//   -6  the month that came out lies outside 1 to 13
//   -7  the day that came out lies outside 1 to 30
// -4 to -7 guard the tables; no day of the calendar reaches them. On failure Jdn is set, Valid is
// false, Label is empty, and a field that a later step would have set keeps what it held.
std::int16_t JdnToLksDate(std::int32_t jdn, LksDate& date, bool allowBeforeCe);

// The JDN of the date in the fields GMet to Day; also sets Jdn, Label and Valid (to true). It adds
// up the tables and does not question the date: each field must lie in its own range, but together
// they may name a day that does not exist. Any GMet but 2 counts as 1.
std::int32_t LksDateToJdn(LksDate& date);

// Whether a date entered field by field exists. Sets Valid; from the last check on, also Jdn and
// Label. Status, by the first check that fails:
//    0  the date exists
//   -3  MetNum is outside 1 to MetCycleCount
//   -4  MetType is not the type of that cycle
//   -5  YearType is not the type of that year, or YearInMet is outside 1 to 19
//   -7  MonthType lies before "A" or after "C"
//   -8  Month is outside 1 to 13
//  -10  Day is outside 1 to 30
//   -6  the date does not exist: the day that it adds up to has another date
std::int16_t CheckLksDate(LksDate& date);

// Whether the eight fields from GMet to Day are equal. Jdn, Valid and Label do not count.
bool SameLksDate(const LksDate& a, const LksDate& b);

// The one-line text of the date in the fields GMet to Day, such as
// "GMet-2 MB-12 LYC-15 LA-1 16 day (Monday) 16/30 gibbous moon (waning)".
std::u16string LksDateLabel(const LksDate& date);

}  // namespace Karvel_Sorand
