#include "lks_steps.h"

namespace Karvel_Sorand {

std::int32_t LksDateToJdn(LksDate& date) {
  const auto cycle = static_cast<std::size_t>(date.MetNum);
  const auto year = static_cast<std::size_t>(date.YearInMet);
  std::int32_t days = MetCycleStart[cycle] + YearsOf(date.MetType).start[year];
  days += DaysBeforeMonth(date.Month) + date.Day - 1;
  // The 30th day of month 12 in a year of type B counts only from month 13 on, which no such year
  // has. The record's own YearType decides; CheckLksDate has made sure that it is the pattern's.
  if (date.Month == 13 && date.YearType == u"B") ++days;

  const int great_cycle = date.GMet >= 1 && date.GMet <= GreatCycleCount ? date.GMet : 1;
  date.Jdn = Gmet2StartJdn + (great_cycle - 2) * GreatCycleDays + days;
  WriteLksDateLabel(date, date.Label);
  date.Valid = LksTrue;
  return date.Jdn;
}

}  // namespace Karvel_Sorand
