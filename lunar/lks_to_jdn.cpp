#include <algorithm>

#include "lks_steps.h"

namespace Karvel_Sorand {

namespace {

// The days before unit `number`. A number that the table does not have, which only a caller who
// breaks the contract can ask for, counts as the nearest that it has.
std::int32_t DaysBefore(std::int16_t number, const std::vector<std::int32_t>& start) {
  return start[static_cast<std::size_t>(
      std::clamp<std::ptrdiff_t>(number, 0, std::ssize(start) - 1))];
}

}  // namespace

std::int32_t LksDateToJdn(LksDate& date) {
  std::int32_t days = DaysBefore(date.MetNum, MetCycleStart);
  days += DaysBefore(date.YearInMet, YearsOf(date.MetType).start);
  days += DaysBeforeMonth(std::max<std::int32_t>(date.Month, 1)) + date.Day - 1;
  // In a year of type B month 12 has 30 days, and DaysBeforeMonth counts 29. That shows in a month
  // 13 alone; no such year has one, but somebody may enter it. The record's own YearType decides;
  // CheckLksDate has made sure that it is the pattern's.
  if (date.Month == 13 && date.YearType == u"B") ++days;

  const int great_cycle = date.GMet >= 1 && date.GMet <= GreatCycleCount ? date.GMet : 1;
  date.Jdn = Gmet2StartJdn + (great_cycle - 2) * GreatCycleDays + days;
  WriteLksDateLabel(date, date.Label);
  date.Valid = LksTrue;
  return date.Jdn;
}

}  // namespace Karvel_Sorand
