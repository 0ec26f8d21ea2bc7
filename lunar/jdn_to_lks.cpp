#include "lks_fields.h"
#include "lks_label.h"

namespace Karvel_Sorand {

namespace {

constexpr std::int32_t LongestCycle = 6940;   // days of a Metonic cycle of type A
constexpr std::int32_t PairDays = 59;         // a month of 30 days and the one of 29 behind it
constexpr std::int32_t DaysBefore12th = 325;  // months 1 to 11 of any year
constexpr std::int32_t DaysBefore13th = 354;  // months 1 to 12 of a year of type C

// Sets the month and the day from the zero-based day `d` of a year of type `year_type`.
void SplitDayOfYear(std::int32_t d, char16_t year_type, LksDate& date) {
  std::int32_t month = 0;
  std::int32_t day_from_0 = 0;
  if (d >= DaysBefore13th && year_type == u'C') {
    month = 13;
    day_from_0 = d - DaysBefore13th;
  } else if (d >= DaysBefore12th) {
    // Taken out of the pairs, since a year of type B has a 30th day here.
    month = 12;
    day_from_0 = d - DaysBefore12th;
  } else {
    const std::int32_t rest = d % PairDays;
    month = 2 * (d / PairDays) + (rest < 30 ? 1 : 2);
    day_from_0 = rest < 30 ? rest : rest - 30;
  }
  date.Month = static_cast<std::int16_t>(month);
  date.Day = static_cast<std::int16_t>(day_from_0 + 1);
}

char16_t MonthTypeOf(std::int16_t month, char16_t year_type) {
  if (month == 12) return year_type == u'B' ? u'A' : u'B';
  return month % 2 == 1 ? u'A' : u'B';
}

}  // namespace

std::int16_t JdnToLksFields(std::int32_t jdn, LksDate& date, bool allowBeforeCe) {
  if (jdn < MinLksJdn) return LksTooEarly;
  if (jdn > MaxLksJdn) return LksTooLate;
  if (!allowBeforeCe && jdn < CeStartJdn) return LksBeforeCe;

  // From here on `d` counts the days since the first day of the unit that holds the day.
  std::int32_t d = jdn - Gmet2StartJdn;
  date.GMet = d < 0 ? 1 : 2;
  if (d < 0) d += GreatCycleDays;

  // No cycle is longer than LongestCycle, so none before this one can hold the day; the shorter
  // ones add up to so little that it is this one or the next.
  std::int32_t cycle = d / LongestCycle + 1;
  while (cycle <= MetCycleCount && d >= MetCycleStart[static_cast<std::size_t>(cycle) + 1]) ++cycle;
  if (cycle > MetCycleCount) return LksNoCycle;
  const auto at = static_cast<std::size_t>(cycle);
  date.MetNum = static_cast<std::int16_t>(cycle);
  date.MetType.assign(1, MetCycleTypes[at - 1]);
  d -= MetCycleStart[at];

  const std::u16string& pattern = YearTypesOf(date.MetType);
  std::size_t year = 1;
  std::int32_t length = 0;
  for (; year <= pattern.size(); ++year) {
    length = YearDays(pattern[year - 1]);
    if (length == 0) return LksNoYear;
    if (d < length) break;
    d -= length;
  }
  if (year > pattern.size()) return LksNoYear;
  const char16_t year_type = pattern[year - 1];
  date.YearInMet = static_cast<std::int16_t>(year);
  date.YearType.assign(1, year_type);

  SplitDayOfYear(d, year_type, date);
  if (date.Month < 1 || date.Month > 13) return LksNoMonth;
  if (date.Day < 1 || date.Day > 30) return LksNoDay;
  date.MonthType.assign(1, MonthTypeOf(date.Month, year_type));
  return 0;
}

std::int16_t JdnToLksDate(std::int32_t jdn, LksDate& date, bool allowBeforeCe) {
  date.Jdn = jdn;
  const std::int16_t status = JdnToLksFields(jdn, date, allowBeforeCe);
  date.Valid = status == 0 ? LksTrue : LksFalse;
  if (status == 0) {
    WriteLksDateLabel(date, date.Label);
  } else {
    date.Label.clear();
  }
  return status;
}

}  // namespace Karvel_Sorand
