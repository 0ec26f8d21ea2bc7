#include <algorithm>
#include <cstddef>
#include <iterator>

#include "lks_internal.h"

namespace Karvel_Sorand {

namespace {

// The days before unit `number`, or before the nearest that the table has: only a caller who breaks
// the contract can ask for another.
std::int32_t DaysBefore(std::int16_t number, const std::vector<std::int32_t>& start) {
  return start[static_cast<std::size_t>(
      std::clamp<std::ptrdiff_t>(number, 0, std::ssize(start) - 1))];
}

}  // namespace

std::int32_t LksDateToJdn(LksDate& date) {
  std::int32_t days = DaysBefore(date.MetNum, MetCycleStart);
  days += DaysBefore(date.YearInMet, YearsOf(date.MetType).start);
  days += DaysBeforeMonth(std::max<std::int32_t>(date.Month, 1)) + date.Day - 1;
  // Month 12 of a year of type B has 30 days, and DaysBeforeMonth takes it for 29. That matters
  // only for a month 13, which no such year has but somebody may enter.
  if (date.Month == MostMonths && date.YearType == u"B") ++days;

  if (date.GMet == 2) days += GreatCycleDays;
  date.Jdn = MinLksJdn + days;
  date.Label = LksDateLabel(date);
  date.Valid = LksTrue;
  return date.Jdn;
}

}  // namespace Karvel_Sorand
