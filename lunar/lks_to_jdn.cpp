#include "lks_label.h"

namespace Karvel_Sorand {

std::int32_t LksDateToJdn(LksDate& date) {
  std::int32_t days = MetCycleStart[static_cast<std::size_t>(date.MetNum)];

  const std::u16string& pattern = YearTypesOf(date.MetType);
  for (std::int16_t year = 1; year < date.YearInMet; ++year) {
    days += YearDays(pattern[static_cast<std::size_t>(year) - 1]);
  }

  // The record's own YearType decides on the length of month 12, not the pattern; CheckLksDate has
  // made sure that they agree.
  for (std::int16_t month = 1; month < date.Month; ++month) {
    const bool long_month = month == 12 ? date.YearType == u"B" : month % 2 == 1;
    days += long_month ? 30 : 29;
  }

  date.Jdn = Gmet2StartJdn + days + date.Day - 1;
  if (date.GMet != 2) date.Jdn -= GreatCycleDays;
  WriteLksDateLabel(date, date.Label);
  date.Valid = LksTrue;
  return date.Jdn;
}

}  // namespace Karvel_Sorand
