#include <algorithm>
#include <cstddef>

#include "lks_internal.h"

namespace Karvel_Sorand {

namespace {

constexpr std::int32_t LongestCycle = 6940;  // days of a Metonic cycle of type A

// The last unit that begins on day `d` or before it, where unit u begins on day start[u]. Walks up
// from `guess`, which must not be beyond it.
std::size_t UnitOfDay(std::int32_t d, const std::vector<std::int32_t>& start, std::int32_t guess) {
  auto unit = static_cast<std::size_t>(guess);
  while (unit + 1 < start.size() && d >= start[unit + 1]) ++unit;
  return unit;
}

}  // namespace

std::int16_t JdnToLksFields(std::int32_t jdn, LksDate& date, bool allowBeforeCe) {
  if (jdn < MinLksJdn) return LksTooEarly;
  if (jdn > MaxLksJdn) return LksTooLate;
  if (!allowBeforeCe && jdn < CeStartJdn) return LksBeforeCe;

  // From here on `d` is the number of days since the first day of the unit that holds the day.
  std::int32_t d = jdn - MinLksJdn;
  date.GMet = static_cast<std::int16_t>(d / GreatCycleDays + 1);
  d %= GreatCycleDays;

  // The guess is never too high, since no cycle is longer than LongestCycle, and one too low at
  // most, since the shorter ones lack only 136 days in all.
  const std::size_t cycle = UnitOfDay(d, MetCycleStart, d / LongestCycle + 1);
  if (cycle > MetCycleTypes.size()) return LksNoCycle;
  date.MetNum = static_cast<std::int16_t>(cycle);
  date.MetType = MetCycleTypes[cycle - 1];
  d -= MetCycleStart[cycle];

  // Nor is this guess, since no year begins more than 18 days later than if all 19 had one length;
  // it is also one too low at most.
  const CycleYears& years = YearsOf(date.MetType);
  const std::size_t year = UnitOfDay(d, years.start, (d - 18) * YearsInMetCycle / LongestCycle + 1);
  const char16_t year_type = years.types[year - 1];  // 0 after the 19th
  if (year_type < u'A' || year_type > u'C') return LksNoYear;
  date.YearInMet = static_cast<std::int16_t>(year);
  date.YearType = year_type;
  d -= years.start[year];

  // The last month m with DaysBeforeMonth(m) <= d, which is 59 * (m - 1) <= 2 * d. By that the last
  // day of a year of type B would be in a month 13; it is the 30th of month 12.
  const std::int32_t month = std::min(2 * d / 59 + 1, year_type == u'C' ? MostMonths : 12);
  date.Month = static_cast<std::int16_t>(month);
  date.Day = static_cast<std::int16_t>(d - DaysBeforeMonth(month) + 1);
  if (date.Month < 1 || date.Month > MostMonths) return LksNoMonth;
  if (date.Day < 1 || date.Day > 30) return LksNoDay;
  // Odd months have 30 days, and so has month 12 of a year of type B. That is asked first, since
  // the processor guesses it right nearly always.
  const bool has_30_days = (month == 12 && year_type == u'B') || month % 2 == 1;
  date.MonthType = has_30_days ? u'A' : u'B';
  return 0;
}

std::int16_t JdnToLksDate(std::int32_t jdn, LksDate& date, bool allowBeforeCe) {
  date.Jdn = jdn;
  const std::int16_t status = JdnToLksFields(jdn, date, allowBeforeCe);
  date.Valid = status == 0 ? LksTrue : LksFalse;
  date.Label = status == 0 ? LksDateLabel(date) : u"";
  return status;
}

}  // namespace Karvel_Sorand
