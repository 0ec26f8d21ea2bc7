// The tables of the Lunar Karvel-Sorand calendar. It is defined wholly by counting days:
//
//   great cycle    341 Metonic cycles                          2366404 days
//   Metonic cycle  19 years; type A 6940, B 6939, C 6910 days
//   year           type A 354 days, B 355 days (12 months), C 384 days (13 months)
//   month          type A 30 days, B 29 days
//
// A great cycle holds 234 cycles of type A, 106 of B and one of C, so its mean month is
// 2366404 / 80134 = 29.530586 days and its mean year 2366404 / 6479 = 365.242167 days.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Karvel_Sorand {

// Builds the module values below. To be called once at start-up, before any other procedure of
// this module; the values do not change afterwards.
void InitLksTables();

// The module values. They are set by InitLksTables alone and can only be read from outside. Until
// then they are 0 and empty: a table at namespace scope that is made from them takes that without a
// warning.
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

// The years of a Metonic cycle, by the cycle's type.
struct CycleYears {
  std::u16string types;             // letter y is the type of year y
  std::int16_t days;                // the length of the cycle
  std::vector<std::int32_t> start;  // as MetCycleStart, for year 1 to 19 and the end of the cycle
};

// The years of a cycle of type `met_type`: "A", "B", and "C" for anything else.
const CycleYears& YearsOf(std::u16string_view met_type);

// The days of a year of type `letter`: 354 for A, 355 for B, 384 for any other letter.
std::int32_t YearDays(char16_t letter);

inline constexpr std::int16_t GreatCycleCount = 2;
inline constexpr std::int16_t YearsInMetCycle = 19;

}  // namespace Karvel_Sorand
