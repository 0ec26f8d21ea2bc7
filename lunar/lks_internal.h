// What the files of lunar/ share: the years of a Metonic cycle, and the lengths by which both
// conversions count.
#pragma once

#include "lks_date.h"

namespace Karvel_Sorand {

inline constexpr std::int16_t YearsInMetCycle = 19;
inline constexpr std::int16_t MostMonths = 13;  // of a year of type C; the others have 12

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

// The days before month `month` in a year of any type. Months of 30 and 29 days take turns, so two
// have 59 days; of an odd number of months the last has 30, which is half of 59 rounded up.
constexpr std::int32_t DaysBeforeMonth(std::int32_t month) {
  return (59 * (month - 1) + 1) / 2;
}

// Sets the fields GMet to Day from `jdn`, and no label; statuses and arguments as for JdnToLksDate.
std::int16_t JdnToLksFields(std::int32_t jdn, LksDate& date, bool allowBeforeCe);

}  // namespace Karvel_Sorand
